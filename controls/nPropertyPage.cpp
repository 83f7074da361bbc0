#include "controls/nPropertyPage.h"

#include <afxext.h>

// clang-format off
BEGIN_MESSAGE_MAP(CnPropertyPage, CPropertyPage)
    ON_WM_LBUTTONDOWN()
END_MESSAGE_MAP()
// clang-format on

CnPropertyPage::CnPropertyPage(int nIDTemplate) : CPropertyPage(static_cast<UINT>(nIDTemplate)) {}

void CnPropertyPage::DoDataExchange(CDataExchange* pDX) {
    CPropertyPage::DoDataExchange(pDX);
}

BOOL CnPropertyPage::OnInitDialog() {
    CDialog::OnInitDialog();
    return TRUE;
}

BOOL CnPropertyPage::Anchor(UINT nID, int nLeft, int nTop, int nRight, int nBottom) {
    return AfxAnchorControl(::GetDlgItem(m_hWnd, static_cast<int>(nID)), {nLeft, nTop, nRight, nBottom});
}

void CnPropertyPage::OnLButtonDown(UINT, CPoint) {
    Default();
}
