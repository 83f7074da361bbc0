/// @file
/// The result dialogs of the application.
#pragma once

#include "Compute.h"
#include "Journal.h"
#include "PointFile.h"

#include <afxwin.h>

/// Shows the points of a result, or why there are none, and writes the same into the journal.
/// @param nTitleId the computation, a string id
/// @param nPointId what a point is called, a string id; several are numbered
/// @param notes    further lines
void ShowResult(CWnd& parent, CJournal& journal, UINT nTitleId, UINT nPointId, const CResult& result,
                const std::vector<CString>& notes = {});

/// The string id of what is wrong with a point.
UINT FaultTextId(LineFault fault);

/// Shows which lines of a file could not be read. Shows nothing if there are none.
void ShowBadLines(CWnd& parent, const std::vector<CBadLine>& badLines);
