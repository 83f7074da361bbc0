/// @file
/// The results of the day, sorted for reading.
#pragma once

#include <afx.h>

#include <utility>
#include <vector>

struct CJournalEntry {
    CString strTitle;
    std::vector<CString> lines;
    CString strTime; ///< When it was computed.
    CString strFile; ///< The name of the points file; empty while there was none.
};

/// The results of one computation.
struct CJournalGroup {
    CString strTitle;
    std::vector<size_t> entries; ///< Indices of the results, the oldest first.
};

/// The results by their titles, which stand in the order in which they first appear.
/// @param strPart leaves the results that have it in one of their lines, in either case; empty: all
std::vector<CJournalGroup> GroupByTitle(const std::vector<CJournalEntry>& entries, const CString& strPart);

/// Takes a line apart at the blanks: "  N  -35300.000" is "N" and "-35300.000". A line without
/// two blanks between its parts is the first part alone.
std::pair<CString, CString> SplitLine(const CString& strLine);
