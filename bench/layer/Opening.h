// The openings that are compared, each in a process of its own.
#pragma once

#include "Measure.h"

#include <afx.h>

namespace bench {

/// What a process opens. The system's memory is then as in an application that has just
/// started; in one process each opening would find what the ones before it left.
enum class What { BareFiles, Files, BareTree, Tree, BareDialog, Dialog };

/// Starts this program again to open one thing, and waits.
/// @param strFolder the folder with the files; the folder that the tree selects; else empty
Cost OpenInProcess(What what, const CString& strFolder);

/// What main calls first: does the opening if this process was started for one.
/// @return false for the process that does the comparing
bool RunOpening(int argc, char** argv);

} // namespace bench
