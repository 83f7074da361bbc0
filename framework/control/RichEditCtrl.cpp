// Fields for formatted text.
#include "afxcmn.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(CRichEditCtrl, CWnd)

namespace {

/// Stays loaded: windows of its classes may be open to the end.
BOOL LoadControl(LPCTSTR lpszLibrary) {
    return ::LoadLibraryEx(lpszLibrary, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32) != nullptr;
}

} // namespace

BOOL AFXAPI AfxInitRichEdit2() {
    return LoadControl(L"riched20.dll");
}

BOOL AFXAPI AfxInitRichEdit() {
    return AfxInitRichEdit2() && LoadControl(L"riched32.dll");
}

BOOL CRichEditCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return AfxInitRichEdit2() && CWnd::Create(RICHEDIT_CLASS, nullptr, dwStyle, rect, pParentWnd, nID);
}

void CRichEditCtrl::GetSel(long& nStartChar, long& nEndChar) const {
    CHARRANGE range = {};
    GetSel(range);
    nStartChar = range.cpMin;
    nEndChar = range.cpMax;
}

void CRichEditCtrl::SetSel(long nStartChar, long nEndChar) {
    CHARRANGE range = {nStartChar, nEndChar};
    SetSel(range);
}

CString CRichEditCtrl::GetSelText() const {
    CHARRANGE range = {};
    GetSel(range);
    CString strText;
    GetSelText(strText.GetBuffer(std::max(range.cpMax - range.cpMin, 0L) + 1));
    strText.ReleaseBuffer();
    return strText;
}

long CRichEditCtrl::GetTextLengthEx(DWORD dwFlags, UINT uCodePage) const {
    constexpr UINT kUtf16 = 1200;
    GETTEXTLENGTHEX wanted = {dwFlags, uCodePage == static_cast<UINT>(-1) ? kUtf16 : uCodePage};
    return AfxSendInt(m_hWnd, EM_GETTEXTLENGTHEX, reinterpret_cast<WPARAM>(&wanted));
}

int CRichEditCtrl::GetTextRange(int nFirst, int nLast, CString& refString) const {
    TEXTRANGEW range = {{nFirst, nLast}, refString.GetBuffer(std::max(nLast - nFirst, 0) + 1)};
    const int nLength = AfxSendPointer(m_hWnd, EM_GETTEXTRANGE, 0, &range);
    refString.ReleaseBuffer();
    return nLength;
}

int CRichEditCtrl::GetLine(int nIndex, LPTSTR lpszBuffer, int nMaxLength) const {
    if (nMaxLength < 1)
        return 0;
    *reinterpret_cast<WORD*>(lpszBuffer) = static_cast<WORD>(nMaxLength);
    return GetLine(nIndex, lpszBuffer);
}

CPoint CRichEditCtrl::GetCharPos(long lChar) const {
    POINTL point = {};
    AfxSendInt(m_hWnd, EM_POSFROMCHAR, reinterpret_cast<WPARAM>(&point), lChar);
    return CPoint(point.x, point.y);
}
