/// @file
/// Files that are replaced as a whole or not at all.
#pragma once

#include "util/AsciiFile.h"

#include <functional>

/// Writes a file anew. What `write` puts out goes to a file of its own in the same folder, with
/// ".new" behind the name, which takes the place of the old one when all of it is on the disk.
/// A full disk or a crash at any moment leaves the old file as it was.
/// @param strPath the file to be written; one that exists is replaced
/// @param write   fills the file; what it throws goes on to the caller
/// @throw CFileException* with the name strPath; nothing is left of the new file then
void RewriteFile(const CString& strPath, const std::function<void(CAsciiFile&)>& write);
