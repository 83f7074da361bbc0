// A folder into which nobody may look.
#pragma once

#include "support/TestApp.h"

/// Keeps everybody from listing a folder while it exists. A lock is in force for all users,
/// where missing permissions would not stop an administrator.
struct LockedFolder {
    explicit LockedFolder(LPCTSTR pszFolder)
        : m_hFolder(::CreateFile(pszFolder, FILE_LIST_DIRECTORY, 0, nullptr, OPEN_EXISTING,
                                 FILE_FLAG_BACKUP_SEMANTICS, nullptr)) {
        WIN32_FIND_DATA entry;
        EXPECT_EQ(INVALID_HANDLE_VALUE, ::FindFirstFile(CString(pszFolder) + L"\\*", &entry));
    }
    ~LockedFolder() { ::CloseHandle(m_hFolder); }

private:
    HANDLE m_hFolder;
};
