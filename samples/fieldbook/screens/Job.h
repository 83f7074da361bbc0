/// @file
/// CJob: what all screens of the application work on.
#pragma once

#include "points/ChangeFile.h"
#include "points/FilePath.h"
#include "points/History.h"
#include "points/PointFile.h"
#include "screens/Journal.h"
#include "screens/Settings.h"

/// The points of a file with the day's results, and what the user has set and typed lately.
struct CJob {
    /// @param strHistoryPath where the names of points are kept that were entered lately; changes to
    ///                       points are recorded in its folder if they can be nowhere else
    explicit CJob(const CString& strHistoryPath);

    CString strPath;                ///< The points file; empty while the points are in none.
    CLineFormat format;             ///< Of the points file.
    std::vector<CBadLine> badLines; ///< Lines of the points file that are not in the book.
    CPointBook book;
    CChangeFile changes;        ///< What the points file has not got yet.
    bool bRecorded = true;      ///< Whether the last change could be recorded.
    UINT nUntold = 0;           ///< The text why not, until the user is told; 0 for nothing to tell.
    std::uint64_t nContent = 0; ///< Hash of the points file as it was read or written last.
    std::uint64_t nSeen = 0;    ///< Hash of the points file when it was looked at last.
    CFileStamp stamp;           ///< Of the points file at that time.
    bool bWritten = false;      ///< Whether the points file has been written since it was opened.
    CJournal journal;
    CHistory history;
    CSettings settings;
};
