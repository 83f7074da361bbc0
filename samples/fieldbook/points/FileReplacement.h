/// @file
/// Files that are read and replaced as a whole or not at all.
#pragma once

#include "points/Progress.h"

#include <afx.h>

#include <string>

/// @return all bytes of a file
/// @throw CFileException* with the name strPath; genericException for more than 256 MB
std::string ReadWholeFile(const CString& strPath, const Progress& progress = {});

/// Writes a file anew. What `write` puts out goes to a file of its own in the same folder, with
/// ".new" behind the name, which takes the place of the old one when all of it is on the disk.
/// A full disk or a crash at any moment leaves the old file as it was.
/// @param strPath the file to be written; one that exists is replaced
/// @param write   fills the file; what it throws goes on to the caller
/// @throw CFileException* with the name strPath; nothing is left of the new file then
void RewriteFile(const CString& strPath, const std::function<void(CFile&)>& write);
/// The same with the bytes themselves.
void RewriteFile(const CString& strPath, const std::string& bytes, const Progress& progress = {});

/// Copies a file to one with ".bak" behind its name. An older copy is replaced.
/// @return false if that failed; an older copy is as it was
bool KeepBackup(const CString& strPath);
