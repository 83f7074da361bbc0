/// @file
/// CSelMemberDlg: chooses members and their order.
#pragma once

#include "controls/IconButton.h"
#include "controls/nDialog.h"
#include "controls/nListBox.h"
#include "dialogs/SelMemberItem.h"

/// A popup dialog with two lists: the members that can be added, and those in use in their
/// order. Buttons move a member across, and one in use up and down.
///
/// The caller fills both lists with AddSelMemberItemToList before DoModal. After IDOK they
/// hold new items, as the user left them; after cancel they are untouched. The items are the
/// caller's: the dialog's destructor frees none, so call FlashSelMemberList for both lists.
class FIELDKIT_API CSelMemberDlg : public CnDialog {
    static constexpr int kItemBlock = 10;

public:
    CPtrList m_listAvailable{kItemBlock}; ///< CSelMemberItem* that can be added.
    CPtrList m_listCurrent{kItemBlock};   ///< CSelMemberItem* in use.

    /// @param strTitle the caption
    CSelMemberDlg(const CString& strTitle, CWnd* pParent);
    ~CSelMemberDlg() override;

    /// Deletes every item of a list and empties it.
    static void FlashSelMemberList(CPtrList& list);
    /// Appends a new item.
    /// @param dwData the caller's value; CSelMemberItem::BLANK for a blank
    /// @return the item, which belongs to whoever flashes the list
    static CSelMemberItem* AddSelMemberItemToList(CPtrList& list, const wchar_t* pszText,
                                                  unsigned long dwData);

protected:
    /// Ties both lists to their controls.
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    /// Replaces the items of both lists by new ones, as the user left them, and ends the dialog.
    void OnOK() override;

    /// Puts the selected member that can be added above the selected one in use, at the end if none
    /// is selected.
    afx_msg void OnBtnAdd();
    /// Puts the selected member in use back to the end of those that can be added; a blank just
    /// goes.
    afx_msg void OnBtnDel();
    /// Moves the selected member in use by one place and keeps it selected.
    ///@{
    afx_msg void OnBtnUp();
    afx_msg void OnBtnDown();
    ///@}

    DECLARE_MESSAGE_MAP()

private:
    /// The icons in the size of the new resolution.
    afx_msg LRESULT OnDpiChanged(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnNcCalcSize(WPARAM wParam, LPARAM lParam);
    void FitToScreen();
    void MoveCurrent(int nFrom, int nTo);

    CString m_strTitle;
    CnListBox m_lbAvailable;
    CnListBox m_lbCurrent;
    CIconButton m_btnUp;
    CIconButton m_btnDown;
    int m_nFrameCut = 0; ///< Pixels of the frame's right side that the client area takes.
};
