/// @file
/// The parts of paths as the screens show them and the file dialogs take them.
#pragma once

#include <afx.h>

/// The file's name with its extension.
CString FileNameOf(const CString& strPath);

/// The file's name without its extension.
CString TitleOf(const CString& strPath);

/// The path of a file of a folder.
CString PathIn(const CString& strFolder, const CString& strName);

/// The path from the drive on.
CString FullPathOf(const CString& strPath);

/// Whether two paths, written in whatever way, are those of one file.
bool IsSamePath(const CString& strPath1, const CString& strPath2);

/// Changes whenever a file is written, if the file system tells times finely enough.
struct CFileStamp {
    ULONGLONG nWritten = 0;
    ULONGLONG nSize = 0;
    bool bThere = false;

    bool operator==(const CFileStamp& other) const {
        return bThere == other.bThere && nWritten == other.nWritten && nSize == other.nSize;
    }
};
CFileStamp StampOf(const CString& strPath);

/// The folder of a file as the file dialogs write it: from the root on, without a backslash at
/// its end. On the desktop, where there are drives, that holds for the current one; folders of
/// other drives keep their letter.
CString FolderOf(const CString& strPath);
