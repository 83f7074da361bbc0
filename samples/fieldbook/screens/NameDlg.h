/// @file
/// CNameDlg: asks for the name of a point.
#pragma once

#include "controls/nDialog.h"

#include "screens/EntryControls.h"
#include "screens/Job.h"

/// A popup dialog with a message, an entry field whose list has the names entered lately, OK and
/// cancel.
class CNameDlg : public CnDialog {
public:
    /// @param history must outlive the dialog, which leaves it as it is
    CNameDlg(const CString& strMessage, const CString& strTitle, CHistory& history, CWnd* pParent);

    /// The name is that of one of the job's points: the list and the plan offer them all. Call
    /// before DoModal.
    /// @param job must outlive the dialog
    void OfferPoints(const CJob& job) { m_pJob = &job; }

    /// The name that is proposed. Call before DoModal.
    void SetName(const CString& strName) { m_strName = strName; }
    /// After IDOK the name entered, without blanks and in capitals.
    CString GetName() const { return m_strName; }

protected:
    BOOL OnInitDialog() override;
    void OnOK() override;
    afx_msg void OnList();
    afx_msg void OnPlan();
    DECLARE_MESSAGE_MAP()

private:
    void Choose(const CString& strName);

    const CJob* m_pJob = nullptr; ///< None for a new name.
    CString m_strMessage;
    CString m_strTitle;
    CString m_strName;
    CHistory& m_history;
    CNameCombo m_name;
};
