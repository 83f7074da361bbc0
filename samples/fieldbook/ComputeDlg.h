/// @file
/// CComputeDlg: the computations.
#pragma once

#include "controls/nDialog.h"

#include "Compute.h"
#include "Job.h"
#include "Questions.h"

/// A button for each computation: ask for the inputs, compute, show the result.
class CComputeDlg : public CnDialog {
public:
    /// @param job must outlive the dialog
    CComputeDlg(CJob& job, CWnd* pParent);

protected:
    afx_msg void OnLines();
    afx_msg void OnLineCircle();
    afx_msg void OnCircles();
    afx_msg void OnArcCentre();
    afx_msg void OnTangents();
    DECLARE_MESSAGE_MAP()

private:
    /// Shows a result and remembers which points it was made of.
    void Show(UINT nTitleId, UINT nPointId, const CResult& result, const std::vector<CString>& notes = {});

    CJob& m_job;
    CQuestions m_questions;
};
