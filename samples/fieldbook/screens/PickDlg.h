/// @file
/// CPickDlg: a point to choose from all of them.
#pragma once

#include "controls/nDialog.h"
#include "screens/EntryControls.h"
#include "screens/Job.h"
#include "screens/ListControls.h"

/// The list of points, where a tap on a row chooses that point and closes with IDOK. What is typed
/// above leaves those that have it in their names.
class CPickDlg : public CnDialog {
public:
    /// @param job must outlive the dialog
    CPickDlg(const CJob& job, CWnd* pParent);

    /// After IDOK the name of the point.
    CString GetName() const { return m_strName; }

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    void OnOK() override;
    afx_msg void OnPart();
    afx_msg void OnRow(NMHDR* pNMHDR, LRESULT* pResult);
    DECLARE_MESSAGE_MAP()

private:
    CCodeEdit m_part;
    CPointListCtrl m_list;
    CString m_strName;
};

/// Lets the user tap a point in the plan.
/// @return its name; empty if none was chosen
CString PickFromPlan(const CJob& job, CWnd& parent);
