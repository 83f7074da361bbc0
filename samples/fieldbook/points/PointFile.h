/// @file
/// Reading of points files: one point a line.
#pragma once

#include "points/PointLine.h"

/// A line that could not be taken over.
struct CBadLine {
    int nLine; ///< From 1; empty lines count.
    LineFault fault;
};

/// What there is to tell of a file that was read.
struct CReadReport {
    std::vector<CBadLine> badLines; ///< The lines that gave no point.
    CLineFormat format;             ///< As the file is written; it can be saved in the same way.
    bool bRead = true;              ///< False if the reading was given up.
};

/// What only a person can decide or wants to see while a file is read.
struct CReadHelp {
    /// Tells which column is which when the file does not.
    /// @param lines   the first lines by their fields, one or more; the heading, if there is one, in front
    /// @param columns proposed; receives the choice
    /// @return false if reading is to be given up
    std::function<bool(const std::vector<std::vector<CString>>& lines, bool bHeading,
                       std::vector<Column>& columns)>
        chooseColumns;
    Progress progress;
};

/// Adds the points of a file to a book. Separator, heading and columns are recognised by the first
/// line of three fields and more; A01 records by their first field. Empty lines are skipped.
/// @param help with nothing in it, lines without a heading are name, N, E, Z and code
/// @return what was left out; everything else is in the book
CReadReport ReadPoints(const CFileText& text, CPointBook& book, const CReadHelp& help = {});
