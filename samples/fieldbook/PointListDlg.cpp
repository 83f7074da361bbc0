#include "PointListDlg.h"

#include "Resource.h"
#include "Text.h"

// clang-format off
BEGIN_MESSAGE_MAP(CPointListDlg, CnDialog)
    ON_LBN_SELCHANGE(IDC_POINTS, &CPointListDlg::OnSelChange)
END_MESSAGE_MAP()
// clang-format on

CPointListDlg::CPointListDlg(const CPointBook& book, CWnd* pParent)
    : CnDialog(IDD_POINT_LIST, pParent), m_book(book) {
    SetOption(OptionOkButton);
}

void CPointListDlg::DoDataExchange(CDataExchange* pDX) {
    CnDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_POINTS, m_list);
}

BOOL CPointListDlg::OnInitDialog() {
    CnDialog::OnInitDialog();
    FillList();
    return TRUE;
}

void CPointListDlg::FillList() {
    int columns[] = {36, 82}; // dialog units
    m_list.SetTabStops(2, columns);
    m_list.SetRedraw(FALSE);
    for (const CNamedPoint& row : m_book.GetPoints())
        m_list.AddString(row.strName + L"\t" + row.point.GetNString() + L"\t" + row.point.GetEString());
    m_list.SetRedraw(TRUE);
}

void CPointListDlg::OnSelChange() {
    const int nRow = m_list.GetCurSel();
    if (nRow == LB_ERR)
        return;
    const CCoordinate& point = m_book.GetPoints()[static_cast<size_t>(nRow)].point;
    SetDlgItemText(IDC_HEIGHT,
                   point.IsExistZ() ? Text(IDS_HEIGHT, point.GetZString().GetString()) : Text(IDS_NO_HEIGHT));
}
