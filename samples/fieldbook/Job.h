/// @file
/// CJob: what all screens of the application work on.
#pragma once

#include "Journal.h"
#include "PointBook.h"
#include "Settings.h"

/// The points of a file with the day's results and the settings. The main dialog owns it.
struct CJob {
    /// @param strFile the points file
    explicit CJob(const CString& strFile) : strPath(strFile), journal(strFile) {}

    CString strPath;
    CPointBook book;
    CJournal journal;
    CSettings settings;
};
