/// @file
/// CPointListDlg: the points of a job in a list.
#pragma once

#include "controls/nDialog.h"

#include "EntryControls.h"
#include "ListControls.h"

/// A full-screen dialog with a row for each point. The OK button is in the title bar.
class CPointListDlg : public CnDialog {
public:
    /// @param book must outlive the dialog
    CPointListDlg(const CPointBook& book, CWnd* pParent);

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;

private:
    const CPointBook& m_book;
    CPointListCtrl m_list;
    CResultLine m_legend;
};
