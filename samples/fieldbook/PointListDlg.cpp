#include "PointListDlg.h"

#include "Resource.h"
#include "Text.h"

CPointListDlg::CPointListDlg(const CPointBook& book, CWnd* pParent)
    : CnDialog(IDD_POINT_LIST, pParent), m_book(book), m_list(book) {
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
    m_legend.SetWindowText(Text(IDS_USED_POINTS, m_book.GetUsedCount()));
    return TRUE;
}
