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

/// The folder of a file as the file dialogs write it: from the root on, without a backslash at
/// its end. On the desktop, where there are drives, that holds for the current one; folders of
/// other drives keep their letter.
CString FolderOf(const CString& strPath);
