#include "controls/nComboBox.h"

#include "controls/detail/SipMode.h"

using namespace fieldkit::detail;

// clang-format off
BEGIN_MESSAGE_MAP(CnComboBox, CComboBox)
    ON_CONTROL_REFLECT(CBN_SETFOCUS, &CnComboBox::OnSetfocus)
    ON_CONTROL_REFLECT(CBN_KILLFOCUS, &CnComboBox::OnKillfocus)
    ON_WM_LBUTTONDOWN()
END_MESSAGE_MAP()
// clang-format on

BOOL CnComboBox::Attach(UINT nID, CWnd* pParent, DWORD dwOption) {
    m_dwOption = dwOption;
    return SubclassDlgItem(nID, pParent);
}

void CnComboBox::OnSetfocus() {
    ShowSip(m_dwOption);
}

void CnComboBox::OnKillfocus() {
    CloseSip(m_dwOption);
}

void CnComboBox::OnLButtonDown(UINT, CPoint) {
    Default();
}
