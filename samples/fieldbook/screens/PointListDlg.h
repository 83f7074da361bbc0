/// @file
/// CPointListDlg: the points of a job in a list.
#pragma once

#include "controls/nDialog.h"

#include "screens/EntryControls.h"
#include "screens/Job.h"
#include "screens/ListControls.h"

/// A full-screen dialog with a row for each point, where points can be changed and removed. The
/// OK button is in the title bar.
class CPointListDlg : public CnDialog {
public:
    /// @param job must outlive the dialog
    CPointListDlg(CJob& job, CWnd* pParent);

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    afx_msg void OnEdit();
    afx_msg void OnRemove();
    afx_msg void OnUndo();
    DECLARE_MESSAGE_MAP()

private:
    /// @return the name in the row that is selected; empty if none is, which the user is told
    CString SelectedName() const;
    /// Shows the points as they are now, and what has become of them.
    void ShowChange(const CPointChange& change, const CString& strText);

    CJob& m_job;
    CPointListCtrl m_list;
    CResultLine m_legend;
};
