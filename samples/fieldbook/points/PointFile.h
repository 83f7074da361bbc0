/// @file
/// Reading and writing of points files: text in the OEM code page, one point a line.
#pragma once

#include "points/PointLine.h"
#include "util/AsciiFile.h"

#include <vector>

/// A line that could not be taken over.
struct CBadLine {
    int nLine; ///< From 1; empty lines count.
    LineFault fault;
};

/// What there is to tell of a file that was read.
struct CReadReport {
    std::vector<CBadLine> badLines; ///< The lines that gave no point.
    CLineFormat format;             ///< As the file is written; it can be saved in the same way.
};

/// Adds the points of a file to a book. Separator and header are recognised by the first line
/// of three fields and more. Empty lines and the header are skipped.
/// @param file open for reading
/// @return what was left out; everything else is in the book
/// @throw CFileException* as CFile::Read; the points read so far are in the book
CReadReport ReadPoints(CAsciiFile& file, CPointBook& book);

/// Writes all points of a book in place of the file that may be there. That one stays whole
/// until the new one is complete: a full disk or a crash loses nothing. The book stays marked
/// as modified.
/// @throw CFileException* if the file cannot be written; the old one is as it was
void SavePoints(const CString& strPath, const CPointBook& book, const CLineFormat& format);

/// Copies a file to one with ".bak" behind its name, before lines that could not be read are
/// lost by saving. An older copy is replaced.
/// @return false if that failed; an older copy is as it was
bool KeepBackup(const CString& strPath);
