/// @file
/// CButtonMenuDlg: a menu of large buttons.
#pragma once

#include "controls/IconButton.h"
#include "controls/nDialog.h"

/// A popup dialog that is a column of buttons, one for each entry of the menu. Tapping one
/// closes it.
///
/// A button is 36 pixels high and as wide as the dialog, which does not scroll: a screen of
/// 320 pixels has room for eight. Up to 21 entries can be chosen; the buttons of further ones
/// are shown but do nothing.
class FIELDKIT_API CButtonMenuDlg : public CnDialog {
public:
    /// @param nTitleId  string resource of the caption
    /// @param pEntryIds string resources of the entries, one each; stays the caller's and must
    ///                  be there until DoModal opens the dialog
    CButtonMenuDlg(int nTitleId, CUIntArray* pEntryIds, CWnd* pParent);
    ~CButtonMenuDlg() override;

    /// @return the index of the entry that the last DoModal ended with; -1 if it did not end with
    ///         IDOK
    int GetMenuIndex() const;

protected:
    /// Nothing of its own.
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    /// Deletes the buttons and ends the dialog. Without a choice before it (by the Enter key), OK
    /// chooses the button with the focus; if there is none, the dialog stays open.
    void OnOK() override;
    /// Deletes the buttons and ends the dialog.
    void OnCancel() override;

    /// Takes the entry of a tapped button over and ends the dialog with IDOK.
    /// @param nID the button's control id
    afx_msg void OnBtnMenu(unsigned int nID);
    /// Nothing: default processing would make a menu scroll that is higher than its screen.
    afx_msg void OnShowWindow(BOOL bShow, UINT nStatus);
    /// The icons in the size of the new resolution.
    afx_msg LRESULT OnDpiChanged(WPARAM wParam, LPARAM lParam);

    DECLARE_MESSAGE_MAP()

private:
    void FitToEntries();
    int FocusedEntry() const;
    void CreateButtons();
    void DeleteButtons();

    CArray<CIconButton*, CIconButton*> m_buttons; ///< Owned; null once deleted.
    CUIntArray* m_pEntryIds;
    int m_nTitleId;
    int m_nMenuIndex;
    CSize m_sizeButton;
    int m_nRows = 1; ///< Entries in a column.
};
