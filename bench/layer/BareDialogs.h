// What the file dialogs show, made with nothing but the system's own calls.
#pragma once

#include "Measure.h"

namespace bench {

/// Enumerates a folder and inserts its files, with time and size, into a list view.
Cost FillBareList(const wchar_t* pszFolder);
/// Enumerates all folders below one and inserts them into a tree view.
Cost FillBareTree(const wchar_t* pszFolder);
/// Opens a dialog and draws it.
Cost OpenBareDialog(LPCDLGTEMPLATE pTemplate);

} // namespace bench
