// The program's arguments, and texts with arguments.
#include "afxwin.h"

void CCommandLineInfo::ParseParam(LPCTSTR pszParam, BOOL bFlag, BOOL) {
    if (bFlag || !m_strFileName.IsEmpty())
        return;
    m_strFileName = pszParam;
    m_nShellCommand = FileOpen;
}

void CWinApp::ParseCommandLine(CCommandLineInfo& rCmdInfo) {
    int nCount = 0;
    LPWSTR* const ppszArguments = ::CommandLineToArgvW(::GetCommandLine(), &nCount);
    for (int i = 1; i < nCount; ++i) {
        const bool bFlag = ppszArguments[i][0] == L'-' || ppszArguments[i][0] == L'/';
        rCmdInfo.ParseParam(ppszArguments[i] + (bFlag ? 1 : 0), bFlag, i == nCount - 1);
    }
    ::LocalFree(ppszArguments);
}

void AFXAPI AfxFormatString1(CString& rString, UINT nIDS, LPCTSTR lpsz1) {
    AfxFormatString2(rString, nIDS, lpsz1, L"%2");
}

/// In one pass: an argument may hold a percent sign itself.
void AFXAPI AfxFormatString2(CString& rString, UINT nIDS, LPCTSTR lpsz1, LPCTSTR lpsz2) {
    CString strFormat;
    strFormat.LoadString(nIDS);
    rString.Empty();
    for (int i = 0; i < strFormat.GetLength(); ++i) {
        const bool bArgument = strFormat[i] == L'%' && i + 1 < strFormat.GetLength() &&
                               (strFormat[i + 1] == L'1' || strFormat[i + 1] == L'2');
        if (bArgument)
            rString += strFormat[++i] == L'1' ? lpsz1 : lpsz2;
        else
            rString += strFormat[i];
    }
}
