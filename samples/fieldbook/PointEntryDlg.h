/// @file
/// CPointEntryDlg: new points, typed in.
#pragma once

#include "controls/nDialog.h"

#include "EntryControls.h"
#include "Job.h"

/// Takes points over into the book and the points file, one after the other.
class CPointEntryDlg : public CnDialog {
public:
    /// @param job must outlive the dialog
    CPointEntryDlg(CJob& job, CWnd* pParent);

protected:
    BOOL OnInitDialog() override;

    afx_msg void OnAdd();
    /// Proposes the next free name of the kind.
    afx_msg void OnKind();
    afx_msg void OnNoHeight();
    DECLARE_MESSAGE_MAP()

private:
    void AttachControls();
    void Take(const CNamedPoint& point);
    CString TextOf(const CWnd& control) const;

    CJob& m_job;
    CChoiceCombo m_kind;
    CNameEdit m_name;
    CNumberEdit m_n;
    CNumberEdit m_e;
    CNumberEdit m_z;
    CNoHeightButton m_noHeight;
    CResultLine m_message;
};
