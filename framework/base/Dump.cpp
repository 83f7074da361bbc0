#include "afx.h"

#include <algorithm>
#include <cwchar>

CDumpContext afxDump;

void CDumpContext::Flush() {
    if (m_pFile != nullptr)
        m_pFile->Flush();
}

CDumpContext& CDumpContext::operator<<(LPCWSTR lpsz) {
    const CStringW text(lpsz != nullptr ? lpsz : L"NULL");
    if (m_pFile == nullptr) {
        AfxTraceText(text);
    } else {
        const CStringA narrow(text);
        m_pFile->Write(narrow, static_cast<UINT>(narrow.GetLength()));
    }
    return *this;
}

CDumpContext& CDumpContext::operator<<(LPCSTR lpsz) {
    return *this << (lpsz != nullptr ? CStringW(lpsz) : CStringW(L"NULL")).GetString();
}

CDumpContext& CDumpContext::operator<<(const void* lp) {
    CString text;
    text.Format(L"$%p", lp);
    return *this << text.GetString();
}

CDumpContext& CDumpContext::operator<<(const CObject* pOb) {
    if (pOb == nullptr)
        return *this << L"NULL";
    pOb->Dump(*this);
    return *this;
}

CDumpContext& CDumpContext::operator<<(double d) {
    CString text;
    text.Format(L"%g", d);
    return *this << text.GetString();
}

CDumpContext& CDumpContext::operator<<(LONGLONG n) {
    CString text;
    text.Format(L"%I64d", n);
    return *this << text.GetString();
}

CDumpContext& CDumpContext::operator<<(ULONGLONG n) {
    CString text;
    text.Format(L"%I64u", n);
    return *this << text.GetString();
}

void CDumpContext::HexDump(LPCTSTR lpszLine, const BYTE* pby, int nBytes, int nWidth) {
    CString text;
    for (int i = 0; i < nBytes; ++i) {
        if (i % std::max(nWidth, 1) == 0)
            text.AppendFormat(i == 0 ? L"%s" : L"\n%s", lpszLine);
        text.AppendFormat(L" %02X", static_cast<unsigned>(pby[i]));
    }
    *this << (text + L"\n").GetString();
}

void AFXAPI AfxDump(const CObject* pOb) {
    afxDump << pOb;
}

BOOL AFXAPI AfxExtractSubString(CString& rString, LPCTSTR lpszFullString, int iSubString, TCHAR chSep) {
    LPCTSTR p = lpszFullString;
    for (; p != nullptr && iSubString > 0; --iSubString)
        if (p = std::wcschr(p, chSep); p != nullptr)
            ++p;
    if (p == nullptr || iSubString < 0) {
        rString.Empty();
        return FALSE;
    }
    LPCTSTR const pEnd = std::wcschr(p, chSep);
    rString = pEnd != nullptr ? CString(p, static_cast<int>(pEnd - p)) : CString(p);
    return TRUE;
}
