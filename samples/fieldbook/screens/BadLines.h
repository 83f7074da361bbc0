/// @file
/// What the user is told about points that cannot be taken over.
#pragma once

#include "points/PointFile.h"

#include <afxwin.h>

/// The string id of what is wrong with a point.
UINT FaultTextId(LineFault fault);

/// Shows which lines are no text in any encoding: the file is not read.
void ShowUnreadableLines(CWnd& parent, const std::vector<int>& lines);

/// Shows which lines of a file could not be read. Shows nothing if there are none.
void ShowBadLines(CWnd& parent, const std::vector<CBadLine>& badLines);
