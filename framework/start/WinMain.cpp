// The entry point of applications. It is linked into the program itself, from a static
// library, because a DLL cannot hold it.
#include "afxwin.h"

int APIENTRY WinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPSTR, int nCmdShow) {
    AfxInstallNewHandler();
    // The command line without the program's own name, which may stand in quotes.
    LPTSTR pszCommandLine = ::GetCommandLine();
    const TCHAR chEnd = *pszCommandLine == _T('"') ? _T('"') : _T(' ');
    if (chEnd == _T('"'))
        ++pszCommandLine;
    while (*pszCommandLine != 0 && *pszCommandLine != chEnd)
        ++pszCommandLine;
    if (*pszCommandLine == _T('"'))
        ++pszCommandLine;
    while (*pszCommandLine == _T(' '))
        ++pszCommandLine;
    return AfxWinMain(hInstance, hPrevInstance, pszCommandLine, nCmdShow);
}
