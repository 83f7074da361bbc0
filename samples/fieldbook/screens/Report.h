/// @file
/// CReport: what came out of a computation, in words and as a drawing.
#pragma once

#include "compute/Compute.h"
#include "plan/Drawing.h"

#include <afxwin.h>

struct CReport {
    UINT nTitleId = 0;               ///< The computation, a string id.
    CString strMessage;              ///< How it ended, in one line.
    std::vector<CNamedPoint> points; ///< The solutions, by what they are called.
    std::vector<CString> notes;      ///< Further lines; two blanks stand between item and value.
    CDrawing drawing;
};

/// The report of a result: its points, or why there are none. Its drawing has the points only.
/// @param nPointId what a point is called, a string id; several are numbered
CReport MakeReport(UINT nTitleId, UINT nPointId, const CResult& result);

/// A point as lines: what it is called, N and E.
std::vector<CString> LinesOf(const CNamedPoint& point);
/// All of a report, as it is read in the journal.
std::vector<CString> LinesOf(const CReport& report);
