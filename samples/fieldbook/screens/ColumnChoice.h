/// @file
/// The choice of columns, for the export and for files that do not tell theirs.
#pragma once

#include "points/PointFile.h"
#include "screens/ProgressWindow.h"
#include "screens/Settings.h"

#include <afxwin.h>

/// Lets the user choose columns and their order; blank ones can be put between them.
/// @param columns shown at first; changed by OK. At least one comes out.
/// @return false if the user has cancelled
bool ChooseColumns(CWnd& parent, std::vector<Column>& columns);

/// Help with reading a points file: the order of its columns is asked for when no heading tells it.
/// That of files without any heading is asked once and kept in the settings.
/// @param settings, parent must outlive the help
/// @param window goes off the screen while something is asked; must outlive the help
CReadHelp HelpFor(CSettings& settings, CWnd& parent, CProgressWindow& window);
