#include "afx.h"

#include <cstdio>
#include <cstdlib>

namespace {

void WriteOut(const CString& text) {
#ifdef _WIN32
    OutputDebugStringW(text);
    if (!IsDebuggerPresent())
#endif
        std::fprintf(stderr, "%ls", text.GetString());
}

} // namespace

void AFXAPI AfxAssertFailedLine(LPCSTR lpszFileName, int nLine) {
    CString text;
    text.Format(L"Assertion failed: %hs, line %d\n", lpszFileName, nLine);
    WriteOut(text);
    std::abort();
}

void AFXAPI AfxAssertValidObject(const CObject* pOb, LPCSTR lpszFileName, int nLine) {
    if (pOb == nullptr)
        AfxAssertFailedLine(lpszFileName, nLine);
    pOb->AssertValid();
}

void AfxTrace(LPCTSTR lpszFormat, ...) {
    CString text;
    va_list args;
    va_start(args, lpszFormat);
    text.FormatV(lpszFormat, args);
    va_end(args);
    WriteOut(text);
}
