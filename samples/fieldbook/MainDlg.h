/// @file
/// CMainDlg: the application's main window.
#pragma once

#include "controls/nDialog.h"

#include "Job.h"
#include "PointFile.h"

/// Reads the points file and leads to the other screens.
class CMainDlg : public CnDialog {
public:
    /// @param strPath the points file
    explicit CMainDlg(const CString& strPath);

protected:
    BOOL OnInitDialog() override;

    afx_msg void OnCompute();
    afx_msg void OnPolar();
    afx_msg void OnPointList();
    afx_msg void OnPointEntry();
    afx_msg void OnJournal();
    afx_msg void OnSettings();
    /// Tells about the lines that could not be read.
    afx_msg LRESULT OnReport(WPARAM wParam, LPARAM lParam);

    DECLARE_MESSAGE_MAP()

private:
    CString FileName() const;
    void LoadPoints();
    void ShowPointCount();

    CJob m_job;
    std::vector<CBadLine> m_badLines;
    UINT m_nSettingsPage = 0; ///< The page of the settings that was shown last.
};
