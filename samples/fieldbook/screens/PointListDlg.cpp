#include "screens/PointListDlg.h"

#include "screens/PointEditDlg.h"
#include "screens/Messages.h"
#include "screens/Resource.h"
#include "screens/Text.h"

// clang-format off
BEGIN_MESSAGE_MAP(CPointListDlg, CnDialog)
    ON_BN_CLICKED(IDC_EDIT, &CPointListDlg::OnEdit)
    ON_BN_CLICKED(IDC_REMOVE, &CPointListDlg::OnRemove)
    ON_BN_CLICKED(IDC_UNDO, &CPointListDlg::OnUndo)
END_MESSAGE_MAP()
// clang-format on

CPointListDlg::CPointListDlg(CJob& job, CWnd* pParent)
    : CnDialog(IDD_POINT_LIST, pParent), m_job(job), m_list(job.book, job.settings.nDecimals) {
    SetOption(OptionOkButton);
}

void CPointListDlg::DoDataExchange(CDataExchange* pDX) {
    CnDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_POINTS, m_list);
    DDX_Control(pDX, IDC_LEGEND, m_legend);
}

BOOL CPointListDlg::OnInitDialog() {
    CnDialog::OnInitDialog();
    Anchor(IDC_POINTS, 0, 0, 100, 100);
    Anchor(IDC_LEGEND, 0, 100, 100, 100);
    Anchor(IDC_EDIT, 0, 100, 33, 100);
    Anchor(IDC_REMOVE, 33, 100, 67, 100);
    Anchor(IDC_UNDO, 67, 100, 100, 100);
    m_list.Fill();
    m_legend.SetWindowText(Text(IDS_USED_POINTS, m_job.book.GetUsedCount()));
    GetDlgItem(IDC_UNDO)->EnableWindow(m_job.book.CanUndo());
    return TRUE;
}

CString CPointListDlg::SelectedName() const {
    const CNamedPoint* const pPoint = m_list.GetSelectedPoint();
    if (pPoint == nullptr)
        TellInformation(Text(IDS_SELECT_POINT));
    return pPoint != nullptr ? pPoint->strName : CString();
}

void CPointListDlg::OnEdit() {
    const CString strName = SelectedName();
    if (strName.IsEmpty())
        return;
    CPointEditDlg dialog(m_job, strName, this);
    if (dialog.DoModal() != IDOK)
        return;
    ShowChange(m_job.book.GetLastChange(), Text(IDS_CHANGED));
}

void CPointListDlg::OnRemove() {
    const CString strName = SelectedName();
    if (strName.IsEmpty() || !AskToLose(Text(IDS_ASK_REMOVE, strName.GetString())) ||
        !m_job.book.Remove(strName))
        return;
    ShowChange(m_job.book.GetLastChange(), Text(IDS_REMOVED, strName.GetString()));
}

/// A change that is taken back is told: the row may lie outside of what is seen.
void CPointListDlg::OnUndo() {
    CPointChange undone;
    if (!m_job.book.Undo(undone))
        return;
    const bool bRemoved = undone.kind == CPointChange::Kind::Remove;
    const CString strName = bRemoved ? undone.before.strName : undone.after.strName;
    ShowChange(undone.Reversed(), Text(IDS_UNDONE, strName.GetString()));
    m_list.Select(strName);
}

void CPointListDlg::ShowChange(const CPointChange& change, const CString& strText) {
    if (m_hWnd == nullptr)
        return; // closed behind a question
    m_list.Follow(change);
    m_legend.SetWindowText(strText);
    GetDlgItem(IDC_UNDO)->EnableWindow(m_job.book.CanUndo());
}
