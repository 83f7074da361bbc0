/// @file
/// Reading of points files: text in the OEM code page, one point a line.
#pragma once

#include "PointLine.h"
#include "util/AsciiFile.h"

#include <vector>

/// A line that could not be taken over.
struct CBadLine {
    int nLine; ///< From 1; empty lines count.
    LineFault fault;
};

/// Adds the points of a file to a book. Empty lines and a header in line 1 are skipped.
/// @param file open for reading
/// @return the lines that gave no point; everything else is in the book
/// @throw CFileException* as CFile::Read; the points read so far are in the book
std::vector<CBadLine> ReadPoints(CAsciiFile& file, CPointBook& book);

/// Adds a point as the last line of a file, which is made if there is none. A last line without
/// an end gets one, so that it stays a line of its own.
/// @throw CFileException* if the file cannot be opened or written
void AppendPoint(const CString& strPath, const CNamedPoint& point);
