/// @file
/// The choice of columns for the export.
#pragma once

#include "points/Export.h"

#include <afxwin.h>

/// Lets the user choose columns and their order; blank ones can be put between them.
/// @param columns shown at first; changed by OK. At least one comes out.
/// @return false if the user has cancelled
bool ChooseColumns(CWnd& parent, std::vector<Column>& columns);
