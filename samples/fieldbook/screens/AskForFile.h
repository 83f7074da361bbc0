/// @file
/// The file dialog as this application uses it.
#pragma once

#include "screens/Settings.h"

/// Lets the user choose a points file, beginning in the folder used last, which it changes.
/// @param settings has the folder
/// @param nMode    one of CFileSelectDlg::Mode; overwriting has been agreed to in all but
/// ModeOpen
/// @param strName  without extension: the name that is proposed, counted up if there is such a
///                 file; empty for none
/// @return the path; empty if the user has chosen none
CString AskForFile(CWnd& parent, CSettings& settings, int nMode, const CString& strName);
