#include "screens/SettingsSheet.h"

#include "screens/Messages.h"
#include "screens/Resource.h"
#include "screens/Text.h"
#include "geometry/Vector.h"

// clang-format off
BEGIN_MESSAGE_MAP(CSettingsSheet, CnPropertySheet)
    ON_WM_DESTROY()
END_MESSAGE_MAP()
// clang-format on

CSettingsSheet::CSettingsSheet(CSettings& settings, UINT& nLastPage, CWnd* pParent)
    : CnPropertySheet(IDS_SETTINGS, pParent, nLastPage), m_settings(settings), m_edited(settings),
      m_nLastPage(nLastPage), m_coordinates(m_edited), m_angles(m_edited), m_tolerance(m_edited) {
    SetOption(OptionOkButton);
    AddPage(&m_coordinates);
    AddPage(&m_angles);
    AddPage(&m_tolerance);
}

INT_PTR CSettingsSheet::DoModal() {
    const INT_PTR nResult = CnPropertySheet::DoModal();
    if (nResult == IDOK) {
        m_settings = m_edited;
        ApplySettings(m_settings);
        KeepSettings(m_settings);
    }
    return nResult;
}

void CSettingsSheet::OnDestroy() {
    m_nLastPage = static_cast<UINT>(GetActiveIndex());
    CnPropertySheet::OnDestroy();
}

void KeepSettings(const CSettings& settings) {
    if (!SaveSettings(*AfxGetApp(), settings))
        TellError(Text(IDS_NOT_SAVED));
}

void ApplySettings(const CSettings& settings) {
    CVector::SetTolerance(kTolerances[settings.nTolerance]);
}
