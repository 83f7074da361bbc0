#include "dialogs/ResultDlg.h"

#include "dialogs/detail/LoadText.h"
#include "resources/ResourceIds.h"

using namespace fieldkit::detail;

CResultDlg::CResultDlg(const wchar_t* pszMessage, const wchar_t* pszCaption, CWnd* pParent)
    : CnDialog(IDD_FK_RESULT, pParent), m_strMessage(pszMessage), m_strCaption(pszCaption) {
    SetOption(OptionPopup);
}

CResultDlg::CResultDlg(int nMessageId, int nCaptionId, CWnd* pParent)
    : CnDialog(IDD_FK_RESULT, pParent), m_strMessage(LoadText(nMessageId)),
      m_strCaption(LoadText(nCaptionId)) {}

CResultDlg::~CResultDlg() {
    m_lines.RemoveAll();
}

void CResultDlg::AddString(const wchar_t* psz) {
    m_lines.AddTail(psz);
}

BOOL CResultDlg::OnInitDialog() {
    CnDialog::OnInitDialog();
    SetWindowText(m_strCaption);
    SetDlgItemText(IDC_FK_RESULT_MESSAGE, m_strMessage);
    auto* pList = static_cast<CListBox*>(GetDlgItem(IDC_FK_RESULT_LINES));
    for (POSITION pos = m_lines.GetHeadPosition(); pos != nullptr;)
        pList->AddString(m_lines.GetNext(pos));
    CenterWindow();
    ShowWindow(SW_SHOW);
    return TRUE;
}
