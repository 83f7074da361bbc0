#include "dialogs/ResultDlg.h"

#include "dialogs/detail/LoadText.h"
#include "dialogs/detail/RedrawPause.h"
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
    Anchor(IDC_FK_RESULT_LINES, 0, 0, 100, 100);
    Anchor(IDC_FK_RESULT_MESSAGE, 0, 100, 100, 100);
    Anchor(IDOK, 33, 100, 33, 100);
    Anchor(IDCANCEL, 67, 100, 67, 100);
    FillList(*static_cast<CListBox*>(GetDlgItem(IDC_FK_RESULT_LINES)));
    CenterWindow();
    ShowWindow(SW_SHOW);
    return TRUE;
}

void CResultDlg::FillList(CListBox& list) const {
    const RedrawPause pause(list);
    for (POSITION pos = m_lines.GetHeadPosition(); pos != nullptr;)
        list.AddString(m_lines.GetNext(pos));
}
