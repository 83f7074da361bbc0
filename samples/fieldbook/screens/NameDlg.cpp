#include "screens/NameDlg.h"

#include "screens/PickDlg.h"
#include "screens/Resource.h"

// clang-format off
BEGIN_MESSAGE_MAP(CNameDlg, CnDialog)
    ON_BN_CLICKED(IDC_PICK_LIST, &CNameDlg::OnList)
    ON_BN_CLICKED(IDC_PICK_PLAN, &CNameDlg::OnPlan)
END_MESSAGE_MAP()
// clang-format on

CNameDlg::CNameDlg(const CString& strMessage, const CString& strTitle, CHistory& history, CWnd* pParent)
    : CnDialog(IDD_NAME, pParent), m_strMessage(strMessage), m_strTitle(strTitle), m_history(history) {
    SetOption(OptionPopup);
}

BOOL CNameDlg::OnInitDialog() {
    CnDialog::OnInitDialog();
    SetWindowText(m_strTitle);
    SetDlgItemText(IDC_MESSAGE, m_strMessage);
    m_name.Attach(IDC_NAME, this, SipOptionMode0);
    m_history.GetStack().SetupList(&m_name);
    m_name.SetWindowText(m_strName);
    for (const int nId : {IDC_PICK_LIST, IDC_PICK_PLAN})
        GetDlgItem(nId)->ShowWindow(m_pJob != nullptr ? SW_SHOW : SW_HIDE);
    CenterWindow();
    ShowWindow(SW_SHOW);
    // The panel comes with the focus, and only to a window that is on the screen.
    m_name.SetFocus();
    m_name.SetEditSel(0, -1); // typing replaces what is proposed
    return FALSE;
}

void CNameDlg::OnOK() {
    m_name.GetWindowText(m_strName);
    CnDialog::OnOK();
}

void CNameDlg::OnList() {
    CPickDlg dialog(*m_pJob, this);
    if (dialog.DoModal() == IDOK)
        Choose(dialog.GetName());
}

void CNameDlg::OnPlan() {
    Choose(PickFromPlan(*m_pJob, *this));
}

/// Who has tapped a point has answered.
void CNameDlg::Choose(const CString& strName) {
    if (strName.IsEmpty())
        return;
    m_strName = strName;
    EndDialog(IDOK);
}
