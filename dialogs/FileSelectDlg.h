/// @file
/// CFileSelectDlg: lets the user pick a file of a folder, or name a new one.
#pragma once

#include <afxcmn.h>

#include "controls/IconButton.h"
#include "controls/nDialog.h"
#include "controls/nListCtrl.h"

/// A full-screen dialog with the files of one folder that have the wanted extension, and a field
/// for the name. A button changes the folder.
///
/// Call SetMode, SetCurrentName, SetSubName and SetFileFolder in this order, then DoModal, and
/// after IDOK GetFilePath. The dialog itself reads, creates and deletes no file. A folder that
/// cannot be read has an empty list; nothing is reported.
class FIELDKIT_API CFileSelectDlg : public CnDialog {
public:
    /// What the dialog is for: its title, and what OK and a tap on a file do.
    enum Mode : int {
        ModeOpen = 0, ///< OK ends the dialog, whatever the name is.
        ModeSave = 1, ///< OK refuses a name that no file can have, and asks before an existing file.
        ModeNew = 2,  ///< As ModeSave; a tap on a file proposes a name that is still free.
    };

    /// @param pParent owner; null for the application's main window
    explicit CFileSelectDlg(CWnd* pParent);

    /// @param nMode a Mode, ModeOpen at first; others act as ModeOpen, with a title of their own
    void SetMode(int nMode);
    /// The name, without extension, that proposals begin with; empty for no proposals. It is
    /// used by the next SetSubName or SetFileFolder.
    void SetCurrentName(CString strName);
    /// Sets the folder, and proposes a name that is free there if there is a current name. An
    /// open dialog shows both; what has been typed into its name field is replaced.
    /// @param strFolder without a backslash at its end; "\" or an empty text is the root, on the
    ///   desktop that of the current drive
    void SetFileFolder(CString strFolder);
    /// Sets the extension, and proposes a name as SetFileFolder does.
    /// @param strSubName in lower case, without the dot. A file is listed if its extension, in
    ///   lower case, is found anywhere in it: "csv txt" lists both kinds. Names get the whole text
    ///   as their extension.
    void SetSubName(CString strSubName);

    /// The folder set last, or chosen by the user since.
    CString GetFileFolder() const;
    /// The extension as SetSubName was given it.
    CString GetSubName() const;
    /// The path of the name in the field, or after the dialog of the last one; empty if there is
    /// no name. While the dialog is open, a name without extension first gets one, in the field
    /// too; ModeOpen ends with the name as it was typed.
    CString GetFilePath();

protected:
    /// @param strName without extension
    /// @return the name itself if the folder has no such file, else the next one by number
    CString GetSafeName(CString strName);
    /// Fills the list with the folder's files, in the order of the file system.
    void SetCurrentFileToList();
    /// Shows the extension below the list.
    void ShowSubName();
    /// Reads the name from the field, and adds the extension if it has none.
    void UpdateItems();

    /// Ties list and folder button to their controls, and exchanges the name.
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    /// Ends the dialog; in ModeSave and ModeNew only with a name that a file of the folder can
    /// have, and after the user has agreed to overwrite an existing one.
    void OnOK() override;

    /// A tap on a file puts its name into the field; in ModeNew the next name that is free. A tap
    /// beside the files changes nothing.
    afx_msg void OnClickLstFiles(NMHDR* pNMHDR, LRESULT* pResult);
    /// Lets the user pick another folder. The name in the field stays.
    afx_msg void OnBtnFile();
    /// The list follows the size of the dialog, icon and font the resolution.
    ///@{
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg LRESULT OnDpiChanged(WPARAM wParam, LPARAM lParam);
    ///@}

    DECLARE_MESSAGE_MAP()

private:
    void InitColumns();
    void FitColumns();
    void AnchorControls();
    void ChooseListFont();
    void ShowTitle();
    void ShowFolder();
    void ProposeName();
    CString WithExtension(const CString& strName) const;
    bool IsWanted(LPCTSTR pszFileName) const;
    void AddFiles();
    void AddFile(int nItem, const WIN32_FIND_DATA& file);
    bool IsNameUsable();
    bool MayOverwrite();

    CFont m_fontList; ///< Before the list, which uses it.
    CnListCtrl m_lstFiles;
    CIconButton m_btnFile;
    CString m_strCurrentName;
    CString m_strName; ///< Contents of the name field.
    CString m_strFolder;
    CString m_strFilePath; ///< The last result of GetFilePath.
    CString m_strSubName;
    int m_nMode = ModeOpen;
};
