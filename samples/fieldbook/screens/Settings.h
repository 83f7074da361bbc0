/// @file
/// The settings that the user makes, and where they are kept.
#pragma once

#include "points/Column.h"

#include <afxwin.h>

constexpr int kMinDecimals = 1;
constexpr int kMaxDecimals = 5;

/// What the library's tolerance can be, in metres: whatever comes closer than that touches. A
/// coordinate of the job is known to a millimetre at best.
constexpr double kTolerances[] = {1e-6, 1e-5, 1e-4};

struct CSettings {
    int nDecimals = 3;   ///< Of coordinates: the device's shared setting, MIN_ to kMaxDecimals.
    int bTenths = 0;     ///< Whether seconds are shown with their tenths; 0 or 1.
    int nTolerance = 0;  ///< Index into kTolerances.
    CString strFolder;   ///< Where the file dialogs begin; empty if none has been chosen yet.
    CString strFile;     ///< The points file that was used last, with its whole path.
    CString strPrevious; ///< The one before it; empty if there was none.
    std::vector<Column> columns = {Column::Name, Column::N, Column::E, Column::Z}; ///< Of the export.
    std::vector<Column> order; ///< Of files without a heading; empty until one was opened.
};

/// @param app whose profile has the settings that are not shared
CSettings LoadSettings(CWinApp& app);
/// @return false if they could not be written
bool SaveSettings(CWinApp& app, const CSettings& settings);
