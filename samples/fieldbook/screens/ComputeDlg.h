/// @file
/// CComputeDlg: the computations to choose from.
#pragma once

#include "controls/nDialog.h"

#include "screens/Computations.h"
#include "screens/Job.h"

/// A button for each computation: ask for the inputs, compute, show the result.
class CComputeDlg : public CnDialog {
public:
    /// @param job must outlive the dialog
    CComputeDlg(CJob& job, CWnd* pParent);

protected:
    BOOL OnInitDialog() override;
    afx_msg void OnComputation(UINT nID);
    afx_msg void OnPolar();
    DECLARE_MESSAGE_MAP()

private:
    CJob& m_job;
    CComputations m_computations;
};
