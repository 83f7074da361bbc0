#include "screens/PointListDlg.h"

#include "screens/PointEditDlg.h"
#include "screens/Resource.h"
#include "screens/Text.h"
#include "dialogs/ResMsgBox.h"

// clang-format off
BEGIN_MESSAGE_MAP(CPointListDlg, CnDialog)
    ON_BN_CLICKED(IDC_EDIT, &CPointListDlg::OnEdit)
    ON_BN_CLICKED(IDC_REMOVE, &CPointListDlg::OnRemove)
END_MESSAGE_MAP()
// clang-format on

CPointListDlg::CPointListDlg(CJob& job, CWnd* pParent)
    : CnDialog(IDD_POINT_LIST, pParent), m_job(job), m_list(job.book) {
    SetOption(OptionOkButton);
}

void CPointListDlg::DoDataExchange(CDataExchange* pDX) {
    CnDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_POINTS, m_list);
    DDX_Control(pDX, IDC_LEGEND, m_legend);
}

BOOL CPointListDlg::OnInitDialog() {
    CnDialog::OnInitDialog();
    m_list.Fill();
    ShowLegend();
    return TRUE;
}

void CPointListDlg::ShowLegend() {
    m_legend.SetWindowText(Text(IDS_USED_POINTS, m_job.book.GetUsedCount()));
}

CString CPointListDlg::SelectedName() const {
    const CNamedPoint* const pPoint = m_list.GetSelectedPoint();
    if (pPoint == nullptr)
        CResMsgBox().InformationMsgBox(IDS_SELECT_POINT);
    return pPoint != nullptr ? pPoint->strName : CString();
}

void CPointListDlg::OnEdit() {
    const CString strName = SelectedName();
    if (strName.IsEmpty())
        return;
    CPointEditDlg dialog(m_job, strName, this);
    if (dialog.DoModal() != IDOK)
        return;
    m_list.Refresh();
    ShowLegend();
}

void CPointListDlg::OnRemove() {
    const CString strName = SelectedName();
    if (strName.IsEmpty() || CResMsgBox().WarningMsgBox(Text(IDS_ASK_REMOVE, strName.GetString())) != IDYES)
        return;
    m_job.book.Remove(strName);
    m_list.Refresh();
    ShowLegend();
}
