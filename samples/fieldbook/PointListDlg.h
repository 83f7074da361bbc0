/// @file
/// CPointListDlg: the points of a job in a list.
#pragma once

#include "controls/nDialog.h"

#include "PointBook.h"

/// A full-screen dialog with a row of name, northing and easting for each point, and the
/// height of the row that is selected below. The OK button is in the title bar.
class CPointListDlg : public CnDialog {
public:
    /// @param book must outlive the dialog
    CPointListDlg(const CPointBook& book, CWnd* pParent);

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    afx_msg void OnSelChange();
    DECLARE_MESSAGE_MAP()

private:
    void FillList();

    const CPointBook& m_book;
    CListBox m_list;
};
