/// @file
/// CReportDlg: the result of a computation.
#pragma once

#include "controls/nDialog.h"

#include "screens/EntryControls.h"
#include "screens/Job.h"
#include "screens/LineLists.h"

/// Shows all solutions. The one that is chosen, in cyan, can be kept as a point of the book, and
/// all of them can be seen in the plan.
class CReportDlg : public CnDialog {
public:
    /// @param job, report must outlive the dialog
    CReportDlg(CJob& job, const CReport& report, CWnd* pParent);

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    afx_msg void OnPlan();
    afx_msg void OnKeep();
    DECLARE_MESSAGE_MAP()

private:
    bool Keep(const CString& strName);

    CJob& m_job;
    const CReport& m_report;
    CReportList m_list;
    CResultLine m_message;
    CResultLine m_hint;
};

/// Writes a report into the journal and shows it.
void ShowReport(CJob& job, const CReport& report, CWnd& parent);
