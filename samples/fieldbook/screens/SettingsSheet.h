/// @file
/// CSettingsSheet: the settings, in pages.
#pragma once

#include "controls/nPropertySheet.h"

#include "screens/SettingsPages.h"

/// Takes the settings over, keeps them and puts them into force when its OK button, in the title
/// bar, is tapped.
class CSettingsSheet : public CnPropertySheet {
public:
    /// @param settings  changed by OK
    /// @param nLastPage the page to begin with; receives the one shown last
    CSettingsSheet(CSettings& settings, UINT& nLastPage, CWnd* pParent);

    INT_PTR DoModal() override;

protected:
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

private:
    CSettings& m_settings;
    CSettings m_edited; ///< What the pages work on.
    UINT& m_nLastPage;
    CCoordinatesPage m_coordinates;
    CAnglesPage m_angles;
    CTolerancePage m_tolerance;
};

/// Saves the settings, and tells the user if that fails.
void KeepSettings(const CSettings& settings);

/// Tells the library about the settings that it does not read itself.
void ApplySettings(const CSettings& settings);
