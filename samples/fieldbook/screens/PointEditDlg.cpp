#include "screens/PointEditDlg.h"

#include "screens/Resource.h"
#include "screens/Text.h"

CPointEditDlg::CPointEditDlg(CJob& job, const CString& strName, CWnd* pParent)
    : CPointEntryDlg(job, pParent), m_strName(strName) {}

BOOL CPointEditDlg::OnInitDialog() {
    CPointEntryDlg::OnInitDialog();
    SetWindowText(Text(IDS_EDIT_POINT));
    SetDlgItemText(IDC_ADD, Text(IDS_CHANGE_POINT));
    GetDlgItem(IDC_KIND)->EnableWindow(FALSE); // it proposes names of new points
    const CNamedPoint& point = *m_job.book.FindPoint(m_strName);
    m_others = point.others;
    ShowPoint(point);
    GetDlgItem(IDC_ADD)->SetFocus(); // the whole point is seen; the panel comes with a field
    return FALSE;
}

void CPointEditDlg::OnOK() {
    Add();
}

bool CPointEditDlg::Take(const CNamedPoint& point) {
    if (!m_job.book.Replace(m_strName, point))
        return false;
    EndDialog(IDOK);
    return true;
}
