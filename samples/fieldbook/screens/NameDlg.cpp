#include "screens/NameDlg.h"

#include "screens/Resource.h"

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
