/// @file
/// CMainMenu: the application's main window.
#pragma once

#include "dialogs/ButtonMenuDlg.h"

#include "screens/FileCommands.h"
#include "screens/Job.h"

/// A menu that stays: a tap on an entry opens its screen, and the menu is there again when it is
/// closed. Its title tells the points file, how many points there are and, with a star, that some
/// of them are not saved.
class CMainMenu : public CButtonMenuDlg {
public:
    /// @param strPath the points file that is opened at first
    CMainMenu(CJob& job, const CString& strPath);

protected:
    BOOL OnInitDialog() override;
    /// An entry was tapped.
    void OnOK() override;
    /// Leaves the program, unless there are points that the user wants to keep.
    void OnCancel() override;
    /// Comes when the menu is on the screen.
    afx_msg LRESULT OnOpenFirst(WPARAM wParam, LPARAM lParam);
    /// The program is in front again: another one may have written the points file.
    afx_msg void OnActivateApp(BOOL bActive, DWORD dwThreadID);
    afx_msg LRESULT OnInFront(WPARAM wParam, LPARAM lParam);
    /// The system's session is about to end.
    afx_msg BOOL OnQueryEndSession();
    afx_msg void OnEndSession(BOOL bEnding);

    DECLARE_MESSAGE_MAP()

private:
    void OnPointEntry();
    void OnPointList();
    void OnCompute();
    void OnPlan();
    void OnJournal();
    void OnFile();
    void OnExport();
    void OnSettings();
    void LookAtFile();
    void ShowTitle();

    CJob& m_job;
    CString m_strFirstPath;
    CFileCommands m_files;
    CUIntArray m_entries;
    UINT m_nSettingsPage = 0; ///< The page of the settings that was shown last.
};
