#include "screens/SettingsPages.h"

#include "compute/ValueText.h"
#include "screens/Resource.h"
#include "screens/Text.h"

// clang-format off
BEGIN_MESSAGE_MAP(CCoordinatesPage, CnPropertyPage)
    ON_EN_CHANGE(IDC_DECIMALS, &CCoordinatesPage::OnDecimals)
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CAnglesPage, CnPropertyPage)
    ON_BN_CLICKED(IDC_WHOLE_SECONDS, &CAnglesPage::OnSeconds)
    ON_BN_CLICKED(IDC_TENTHS, &CAnglesPage::OnSeconds)
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CTolerancePage, CnPropertyPage)
    ON_LBN_SELCHANGE(IDC_TOLERANCES, &CTolerancePage::OnTolerance)
END_MESSAGE_MAP()
// clang-format on

CCoordinatesPage::CCoordinatesPage(CSettings& settings)
    : CnPropertyPage(IDD_COORDINATES), m_settings(settings) {}

void CCoordinatesPage::DoDataExchange(CDataExchange* pDX) {
    CnPropertyPage::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_SPIN, m_spin);
    DDX_Control(pDX, IDC_EXAMPLE, m_example);
    DDX_Text(pDX, IDC_DECIMALS, m_settings.nDecimals);
}

BOOL CCoordinatesPage::OnInitDialog() {
    constexpr DWORD kNoPanel = 0; // the arrows are enough
    m_decimals.Attach(IDC_DECIMALS, this, kNoPanel);
    CnPropertyPage::OnInitDialog();
    Anchor(IDC_EXAMPLE, 0, 0, 100, 0);
    m_spin.SetBuddy(&m_decimals);
    m_spin.SetPos(m_settings.nDecimals);
    OnDecimals();
    return TRUE;
}

void CCoordinatesPage::OnDecimals() {
    constexpr double kExample = -35300.12345;
    if (m_example.GetSafeHwnd() == nullptr)
        return; // the controls are being made
    CString strExample;
    strExample.Format(L"%.*f", static_cast<int>(LOWORD(m_spin.GetPos())), kExample);
    m_example.SetWindowText(Text(IDS_EXAMPLE, strExample.GetString()));
}

CAnglesPage::CAnglesPage(CSettings& settings) : CnPropertyPage(IDD_ANGLES), m_settings(settings) {}

void CAnglesPage::DoDataExchange(CDataExchange* pDX) {
    CnPropertyPage::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_EXAMPLE, m_example);
    DDX_Radio(pDX, IDC_WHOLE_SECONDS, m_settings.bTenths);
}

BOOL CAnglesPage::OnInitDialog() {
    CnPropertyPage::OnInitDialog();
    Anchor(IDC_EXAMPLE, 0, 0, 100, 0);
    OnSeconds();
    return TRUE;
}

void CAnglesPage::OnSeconds() {
    constexpr double kExample = 0.927295218; // radians: a side of 4 to one of 3
    const bool bTenths = IsDlgButtonChecked(IDC_TENTHS) != 0;
    m_example.SetWindowText(Text(IDS_EXAMPLE, DirectionText(kExample, bTenths).GetString()));
}

CTolerancePage::CTolerancePage(CSettings& settings) : CnPropertyPage(IDD_TOLERANCE), m_settings(settings) {}

/// The list gets its rows before its choice.
void CTolerancePage::DoDataExchange(CDataExchange* pDX) {
    CnPropertyPage::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_TOLERANCES, m_list);
    DDX_Control(pDX, IDC_EXAMPLE, m_choice);
    if (m_list.GetCount() == 0)
        for (const double dTolerance : kTolerances)
            m_list.AddString(Text(IDS_TOLERANCE, dTolerance));
    DDX_LBIndex(pDX, IDC_TOLERANCES, m_settings.nTolerance);
}

BOOL CTolerancePage::OnInitDialog() {
    CnPropertyPage::OnInitDialog();
    Anchor(IDC_TOLERANCES, 0, 0, 100, 100);
    Anchor(IDC_EXAMPLE, 0, 100, 100, 100);
    OnTolerance();
    return TRUE;
}

void CTolerancePage::OnTolerance() {
    const double dMillimetres = kTolerances[m_list.GetCurSel()] * 1000;
    m_choice.SetWindowText(Text(IDS_TOLERANCE_CHOICE, dMillimetres));
}
