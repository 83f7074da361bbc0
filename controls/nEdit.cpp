#include "controls/nEdit.h"

#include "controls/detail/SipMode.h"

using namespace fieldkit::detail;

// clang-format off
BEGIN_MESSAGE_MAP(CnEdit, CEdit)
    ON_CONTROL_REFLECT(EN_SETFOCUS, &CnEdit::OnSetfocus)
    ON_CONTROL_REFLECT(EN_KILLFOCUS, &CnEdit::OnKillfocus)
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONDBLCLK()
END_MESSAGE_MAP()
// clang-format on

BOOL CnEdit::Attach(UINT nID, CWnd* pParent, DWORD dwOption) {
    m_dwOption = dwOption;
    return SubclassDlgItem(nID, pParent);
}

void CnEdit::OnSetfocus() {
    ShowSip(m_dwOption);
}

void CnEdit::OnKillfocus() {
    CloseSip(m_dwOption);
}

void CnEdit::OnLButtonDown(UINT, CPoint) {
    Default();
}

void CnEdit::OnLButtonDblClk(UINT, CPoint) {
    Default();
}
