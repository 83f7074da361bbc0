/// @file
/// CJob: what all screens of the application work on.
#pragma once

#include "points/History.h"
#include "screens/Journal.h"
#include "points/PointFile.h"
#include "screens/Settings.h"

/// The points of a file with the day's results, and what the user has set and typed lately.
struct CJob {
    /// @param strHistoryPath where the names of points are kept that were entered lately
    explicit CJob(const CString& strHistoryPath) : history(strHistoryPath) {}

    CString strPath;                ///< The points file; empty while the points are in none.
    CLineFormat format;             ///< Of the points file.
    std::vector<CBadLine> badLines; ///< Lines of the points file that are not in the book.
    CPointBook book;
    CJournal journal;
    CHistory history;
    CSettings settings;
};
