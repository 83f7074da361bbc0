#include "afx.h"

#include <cstdio>
#include <cstdlib>

void AFXAPI AfxTraceText(const CStringW& text) {
#ifdef _WIN32
    OutputDebugStringW(text);
    if (!IsDebuggerPresent())
#endif
        std::fprintf(stderr, "%ls", text.GetString());
}

void AFXAPI AfxAssertFailedLine(LPCSTR lpszFileName, int nLine) {
    CString text;
    text.Format(L"Assertion failed: %hs, line %d\n", lpszFileName, nLine);
    AfxTraceText(text);
    std::abort();
}

void AFXAPI AfxAssertValidObject(const CObject* pOb, LPCSTR lpszFileName, int nLine) {
    if (pOb == nullptr)
        AfxAssertFailedLine(lpszFileName, nLine);
    pOb->AssertValid();
}
