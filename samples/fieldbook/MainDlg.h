/// @file
/// CMainDlg: the application's main window.
#pragma once

#include "controls/nDialog.h"

#include "Journal.h"
#include "PointFile.h"
#include "Questions.h"

/// Reads the points file and offers the computations.
class CMainDlg : public CnDialog {
public:
    /// @param strPath the points file
    explicit CMainDlg(const CString& strPath);

protected:
    BOOL OnInitDialog() override;

    // Each button: ask for the inputs, compute, show the result.
    afx_msg void OnLines();
    afx_msg void OnLineCircle();
    afx_msg void OnCircles();
    afx_msg void OnArcCentre();
    afx_msg void OnTangents();
    afx_msg void OnPointList();
    /// Tells about the lines that could not be read.
    afx_msg LRESULT OnReport(WPARAM wParam, LPARAM lParam);

    DECLARE_MESSAGE_MAP()

private:
    CString FileName() const;
    void LoadPoints();

    CString m_strPath;
    CPointBook m_book;
    std::vector<CBadLine> m_badLines;
    CJournal m_journal;
    CQuestions m_questions;
};
