#include "screens/PickDlg.h"

#include "screens/PlanDlg.h"
#include "screens/Resource.h"
#include "screens/Text.h"

// clang-format off
BEGIN_MESSAGE_MAP(CPickDlg, CnDialog)
    ON_EN_CHANGE(IDC_PART, &CPickDlg::OnPart)
    ON_NOTIFY(NM_CLICK, IDC_POINTS, &CPickDlg::OnRow)
END_MESSAGE_MAP()
// clang-format on

CPickDlg::CPickDlg(const CJob& job, CWnd* pParent)
    : CnDialog(IDD_PICK, pParent), m_list(job.book, job.settings.nDecimals) {
    SetOption(OptionOkButton);
}

void CPickDlg::DoDataExchange(CDataExchange* pDX) {
    CnDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_POINTS, m_list);
}

BOOL CPickDlg::OnInitDialog() {
    CnDialog::OnInitDialog();
    Anchor(IDC_PART, 0, 0, 100, 0);
    Anchor(IDC_POINTS, 0, 0, 100, 100);
    m_part.Attach(IDC_PART, this, SipOptionMode0);
    m_list.Fill();
    m_list.SetFocus(); // the panel comes with the field
    return FALSE;
}

void CPickDlg::OnPart() {
    CString strPart;
    m_part.GetWindowText(strPart);
    m_list.ShowOnly(strPart);
}

void CPickDlg::OnRow(NMHDR* pNMHDR, LRESULT* pResult) {
    *pResult = 0;
    if (reinterpret_cast<const NMITEMACTIVATE*>(pNMHDR)->iItem >= 0)
        OnOK();
}

void CPickDlg::OnOK() {
    const CNamedPoint* const pPoint = m_list.GetSelectedPoint();
    if (pPoint == nullptr)
        return;
    m_strName = pPoint->strName;
    CnDialog::OnOK();
}

CString PickFromPlan(const CJob& job, CWnd& parent) {
    const CDrawing drawing = DrawingOf(job.book.GetPoints());
    CPlanDlg dialog(drawing, Text(IDS_PICK_FROM_PLAN), &parent);
    dialog.SetPick();
    return dialog.DoModal() == IDOK ? dialog.GetPicked() : CString(); // OK without a tap: none
}
