// The test program once more, in a process of its own.
#pragma once

#include "afx.h"

namespace fx {

/// @param strArguments for the program
/// @param pszFolder    its current one, null for this process's
/// @return how it ended, or the error if it did not begin
inline DWORD RunOwnProcess(const CString& strArguments, LPCTSTR pszFolder = nullptr) {
    WCHAR szProgram[MAX_PATH];
    ::GetModuleFileName(nullptr, szProgram, MAX_PATH);
    CString strLine = CString(L"\"") + szProgram + L"\" " + strArguments;
    STARTUPINFO startup = {};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process = {};
    if (!::CreateProcess(szProgram, strLine.GetBuffer(), nullptr, nullptr, TRUE, 0, nullptr, pszFolder,
                         &startup, &process))
        return ::GetLastError();
    ::WaitForSingleObject(process.hProcess, INFINITE);
    DWORD dwExit = 0;
    ::GetExitCodeProcess(process.hProcess, &dwExit);
    ::CloseHandle(process.hProcess);
    ::CloseHandle(process.hThread);
    return dwExit;
}

} // namespace fx
