/// @file
/// The export of the points.
#pragma once

#include "screens/Job.h"

/// Lets the user choose the columns, which are kept in the settings, and the file, and writes the
/// points.
void RunExport(CJob& job, CWnd& parent);
