/// @file
/// The results of the day, sorted for reading.
#pragma once

#include <afx.h>

#include <utility>
#include <vector>

struct CJournalEntry {
    CString strTitle;
    std::vector<CString> lines;
};

/// The results of one computation.
struct CJournalGroup {
    CString strTitle;
    std::vector<size_t> entries; ///< Indices of the results, the oldest first.
};

/// The results by their titles, which stand in the order in which they first appear.
std::vector<CJournalGroup> GroupByTitle(const std::vector<CJournalEntry>& entries);

/// Takes a line apart at the blanks: "  N  -35300.000" is "N" and "-35300.000". A line without
/// two blanks between its parts is the first part alone.
std::pair<CString, CString> SplitLine(const CString& strLine);
