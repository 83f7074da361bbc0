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
