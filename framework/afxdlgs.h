/// @file
/// Property sheets and their pages, and the system's own dialogs.
#pragma once

/// What programs ask for to see whether this header has been included.
#define __AFXDLGS_H__

#include "afxcmn.h"
#include "afxcom_.h"

#include <prsht.h>

#include <memory>
#include <vector>

class CPropertySheet;

namespace fieldkit::detail {
class CCreateHook;
class CDialogTemplateCopy;
} // namespace fieldkit::detail

/// One page of a property sheet: a dialog from a template, made when it is first shown.
///
/// The template's title stands on the tab unless the page is constructed with a caption.
/// Owned by the caller; it must outlive the sheet's window.
class AFX_CORE CPropertyPage : public CDialog {
    DECLARE_DYNAMIC(CPropertyPage)
public:
    /// A page to be completed by Construct.
    CPropertyPage();
    /// @param nIDCaption string for the tab; 0 for the template's title
    explicit CPropertyPage(UINT nIDTemplate, UINT nIDCaption = 0);
    /// The same with the template's name.
    explicit CPropertyPage(LPCTSTR lpszTemplateName, UINT nIDCaption = 0);
    ~CPropertyPage() override;

    /// Does what the constructors do, for a page that was made without arguments.
    ///@{
    void Construct(UINT nIDTemplate, UINT nIDCaption = 0);
    void Construct(LPCTSTR lpszTemplateName, UINT nIDCaption = 0);
    ///@}

    /// What the system is told about the page; change it before the page is added to a sheet.
    PROPSHEETPAGE m_psp = {};

    // --- Operations --------------------------------------------------------------------
    /// Tells the sheet that the page has changes that are not applied yet, or none any more:
    /// its Apply button follows.
    void SetModified(BOOL bChanged = TRUE);
    /// Turns the sheet's OK into Close and disables Cancel: what has been done stays done.
    void CancelToClose();
    /// Sends PSM_QUERYSIBLINGS to the pages that exist, in order, until one answers.
    /// @return that answer, else 0
    LRESULT QuerySiblings(WPARAM wParam, LPARAM lParam);
    /// Ends the whole sheet; no page is asked.
    void EndDialog(int nEndID);

    // --- Events: override --------------------------------------------------------------
    /// The page is about to be shown. Loads the controls from the members each time but the first,
    /// when OnInitDialog does. @return FALSE to have the next page shown in its place
    virtual BOOL OnSetActive();
    /// The page is about to be left, or OK or Apply has been pressed on it. Saves and checks its
    /// data (UpdateData). @return FALSE to stay
    virtual BOOL OnKillActive();
    /// OK or Apply: takes the changes over. Here: calls OnOK.
    /// @return FALSE to keep the sheet open
    virtual BOOL OnApply();
    /// Cancel: the changes are dropped. Here: calls OnCancel.
    virtual void OnReset();
    /// Called by OnApply. Here: nothing.
    void OnOK() override;
    /// Called by OnReset. Here: nothing.
    void OnCancel() override;
    /// Cancel has been pressed and nothing is dropped yet. @return FALSE to keep the sheet open
    virtual BOOL OnQueryCancel();
    /// The buttons of a wizard. @return 0 for the neighbouring page, -1 to stay, or the
    ///   template identifier of the page to go to
    virtual LRESULT OnWizardBack();
    /// See OnWizardBack.
    virtual LRESULT OnWizardNext();
    /// @return FALSE to stay
    virtual BOOL OnWizardFinish();

    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
    void PostNcDestroy() override;
    /// Ends the sheet with -1.
    void OnInitFailed() override;

    /// Runs the page's OnInitDialog.
    afx_msg LRESULT OnInitPage(WPARAM wParam, LPARAM lParam);
    /// Keeps the page in the sheet's area for pages.
    afx_msg void OnWindowPosChanging(WINDOWPOS* lpwndpos);
    /// Takes the focus off a page that is hidden.
    afx_msg void OnWindowPosChanged(WINDOWPOS* lpwndpos);

    DECLARE_MESSAGE_MAP()

private:
    friend class CPropertySheet;
    friend struct AfxPageAccess;

    /// Completes m_psp. @return FALSE if there is no such template.
    BOOL Prepare();
    CPropertySheet* Sheet() const;

    CString m_strCaption;
    BOOL m_bFirstSetActive = TRUE;
    /// The system reads, and may write, here.
    std::unique_ptr<fieldkit::detail::CDialogTemplateCopy> m_pTemplate;
    /// While the page's window is being created.
    std::unique_ptr<fieldkit::detail::CCreateHook> m_pHook;
};

/// A dialog of several pages with tabs, or (after SetWizardMode) with Back and Next.
///
/// As on the device, a sheet can be full screen (m_bFullScreen): it covers the work area, the OK button in
/// its title bar stands for its push buttons, which are hidden, and its pages fill the area between title bar
/// and command bar.
///
/// IDOK, IDCANCEL and ID_APPLY_NOW are commands of the sheet, wherever they come from: title
/// bar, push buttons, keys. An ON_COMMAND handler for one replaces what the sheet does.
class AFX_CORE CPropertySheet : public CWnd {
    DECLARE_DYNAMIC(CPropertySheet)
public:
    /// A sheet to be completed by Construct.
    CPropertySheet();
    /// @param nIDCaption  string for the title bar
    /// @param pParentWnd  owner; the main window for null
    /// @param iSelectPage the page shown first
    explicit CPropertySheet(UINT nIDCaption, CWnd* pParentWnd = nullptr, UINT iSelectPage = 0);
    /// The same with the title as a text.
    explicit CPropertySheet(LPCTSTR pszCaption, CWnd* pParentWnd = nullptr, UINT iSelectPage = 0);
    ~CPropertySheet() override;
    /// Does what the constructors do, for a sheet that was made without arguments.
    ///@{
    void Construct(UINT nIDCaption, CWnd* pParentWnd = nullptr, UINT iSelectPage = 0);
    void Construct(LPCTSTR pszCaption, CWnd* pParentWnd = nullptr, UINT iSelectPage = 0);
    ///@}

    /// Shows the sheet until it is ended.
    /// @return IDOK, IDCANCEL or ID_WIZFINISH, or what EndDialog was given; -1 if the sheet could
    ///   not be created: it has no page, or a page no template.
    virtual INT_PTR DoModal();
    /// Shows the sheet modeless; it destroys its window when it is ended.
    /// @param dwStyle -1 for a window with a title bar and without push buttons, which is shown at once
    virtual BOOL Create(CWnd* pParentWnd = nullptr, DWORD dwStyle = static_cast<DWORD>(-1),
                        DWORD dwExStyle = 0);
    using CWnd::Create;
    /// Ends the sheet without asking its pages.
    void EndDialog(int nEndID);

    // --- Pages, counted from 0 -----------------------------------------------------------
    /// Adds a page at the end, also while the sheet is shown.
    void AddPage(CPropertyPage* pPage);
    /// Takes a page out of the sheet; the page itself stays. A page that is not there is ignored.
    ///@{
    void RemovePage(CPropertyPage* pPage);
    void RemovePage(int nPage);
    ///@}
    /// The number of pages.
    int GetPageCount() const { return static_cast<int>(m_pages.size()); }
    /// Null if there is no such page.
    CPropertyPage* GetPage(int nPage) const;
    /// -1 if the page is not in the sheet.
    int GetPageIndex(CPropertyPage* pPage) const;
    /// The page shown; before there is a window, the one that will be shown first.
    int GetActiveIndex() const;
    /// The page shown; null in a sheet without pages.
    CPropertyPage* GetActivePage() const;
    /// The page shown may refuse to be left (OnKillActive).
    BOOL SetActivePage(int nPage);
    /// The same with the page itself; FALSE if it is not in the sheet.
    BOOL SetActivePage(CPropertyPage* pPage);

    // --- Looks and buttons -----------------------------------------------------------------
    /// @param nStyle PSH_PROPTITLE or 0
    void SetTitle(LPCTSTR lpszText, UINT nStyle = 0);
    /// The row of tabs; null before there is a window.
    CTabCtrl* GetTabControl() const {
        return static_cast<CTabCtrl*>(GetDlgItem(static_cast<int>(AFX_IDC_TAB_CONTROL)));
    }
    /// @param nButton PSBTN_...; it is pressed when the sheet next handles its messages
    void PressButton(int nButton);
    /// Whether tabs that do not fit beside each other stand in several rows; call it before DoModal.
    void EnableStackedTabs(BOOL bStacked) { m_bStacked = bStacked; }
    /// Call it before DoModal.
    void SetWizardMode() { m_psh.dwFlags |= PSH_WIZARD; }
    /// @param dwFlags PSWIZB_...: the buttons that can be pressed
    void SetWizardButtons(DWORD dwFlags);
    /// Replaces Back and Next by one button.
    void SetFinishText(LPCTSTR lpszText);

    /// Called when the sheet's window exists. Here: the system makes tabs, buttons and the first
    /// page; then the sheet goes full screen. A command bar that exists by then is kept, and an OK
    /// button that has been hidden stays hidden. @return FALSE if the focus has been set
    virtual BOOL OnInitDialog();

    PROPSHEETHEADER m_psh = {}; ///< What the system is told; change it before the sheet is created.
    BOOL m_bFullScreen = AfxGetFullScreenDialogs(); ///< Set before the sheet is created.
    CWnd* m_pWndEmptyCB = nullptr; ///< The empty command bar (a CCeCommandBar) if the full-screen sheet
                                   ///< had to make one, else null. Owned by the sheet.

    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pInfo) override;
    BOOL ContinueModal() override;

protected:
    /// The owner that the sheet was constructed with.
    CWnd* m_pParentWnd = nullptr;

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    void PostNcDestroy() override;

    /// Runs OnInitDialog.
    afx_msg LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);
    /// Presses a button on behalf of PressButton.
    afx_msg LRESULT OnPressButton(WPARAM wParam, LPARAM lParam);
    /// Cancels the sheet.
    afx_msg void OnClose();
    /// Lays tabs and pages out anew in a full-screen sheet.
    afx_msg void OnSize(UINT nType, int cx, int cy);

    DECLARE_MESSAGE_MAP()

private:
    friend class CPropertyPage;
    friend struct AfxSheetAccess;

    BOOL CreateSheet(HWND hWndOwner);
    BOOL HasCurrentPage() const;
    BOOL IsFullScreen() const { return (m_nFlags & WF_FULLSCREEN) != 0; }
    void EnterFullScreen();
    void CutOffButtons();
    void HideButtons();
    void LayOut();
    CRect LayOutWizardButtons(CRect area);
    CRect PageRect() const;

    CString m_strCaption;
    std::vector<CPropertyPage*> m_pages;
    DWORD m_dwStyle = static_cast<DWORD>(-1); ///< Wanted by Create.
    DWORD m_dwExStyle = 0;
    BOOL m_bStacked = TRUE;            ///< Tabs stand in several rows.
    std::unique_ptr<CWnd> m_pEmptyBar; ///< What m_pWndEmptyCB shows.
};
