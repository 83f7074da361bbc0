/// @file
/// CPolarDlg: a point by its direction and distance from another one.
#pragma once

#include "controls/nDialog.h"

#include "screens/EntryControls.h"
#include "screens/Job.h"
#include "screens/Report.h"

/// Adds an angle to a direction, both typed as d.mmss and shown in degrees, minutes and seconds,
/// and goes a distance that way.
class CPolarDlg : public CnDialog {
public:
    /// @param job must outlive the dialog
    CPolarDlg(CJob& job, CWnd* pParent);

protected:
    BOOL OnInitDialog() override;
    afx_msg void OnList();
    afx_msg void OnPlan();
    afx_msg void OnCompute();
    DECLARE_MESSAGE_MAP()

private:
    void AttachControls();
    CReport Report(const CNamedPoint& from, double dDistance);

    CJob& m_job;
    CNameCombo m_from;
    CDirectionEdit m_direction;
    CDirectionEdit m_turn;
    CNumberEdit m_distance;
};
