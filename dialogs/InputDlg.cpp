#include "dialogs/InputDlg.h"

#include "dialogs/detail/LoadText.h"
#include "resources/ResourceIds.h"

using namespace fieldkit::detail;

CInputDlg::CInputDlg(int nMessageId, int nCaptionId, CWnd* pParent)
    : CInputDlg(LoadText(nMessageId), LoadText(nCaptionId), pParent) {}

CInputDlg::CInputDlg(const wchar_t* pszMessage, int nCaptionId, CWnd* pParent)
    : CInputDlg(pszMessage, LoadText(nCaptionId), pParent) {}

CInputDlg::CInputDlg(int nMessageId, const wchar_t* pszCaption, CWnd* pParent)
    : CInputDlg(LoadText(nMessageId), pszCaption, pParent) {}

CInputDlg::CInputDlg(const wchar_t* pszMessage, const wchar_t* pszCaption, CWnd* pParent)
    : CnDialog(IDD_FK_INPUT, pParent), m_strMessage(pszMessage), m_strCaption(pszCaption) {
    SetOption(OptionPopup);
}

void CInputDlg::SetString(CString str) {
    m_strValue = str;
}

CString CInputDlg::GetString() const {
    return m_strValue;
}

void CInputDlg::DoDataExchange(CDataExchange* pDX) {
    CnDialog::DoDataExchange(pDX);
    DDX_Text(pDX, IDC_FK_INPUT_VALUE, m_strValue);
}

BOOL CInputDlg::OnInitDialog() {
    CnDialog::OnInitDialog();
    SetDlgItemText(IDC_FK_INPUT_MESSAGE, m_strMessage);
    SetWindowText(m_strCaption);
    auto* pEdit = static_cast<CEdit*>(GetDlgItem(IDC_FK_INPUT_VALUE));
    pEdit->SetFocus();
    const int nEnd = pEdit->GetWindowTextLength();
    pEdit->SetSel(nEnd, nEnd); // scrolls the caret into view
    CenterWindow();
    ShowWindow(SW_SHOW);
    return FALSE; // the focus is where it belongs
}
