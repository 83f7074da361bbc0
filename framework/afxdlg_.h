/// @file
/// CDialog: modal and modeless dialogs from templates. Included by afxwin.h.
#pragma once

#include "afxwnd_.h"

#include <memory>

/// Whether dialogs and property sheets that are constructed from now on are full screen unless they say
/// otherwise. FALSE at first: dialogs are as large as their templates, as on a desktop.
///@{
AFX_CORE void AFXAPI AfxSetFullScreenDialogs(BOOL bFullScreen);
AFX_CORE BOOL AFXAPI AfxGetFullScreenDialogs();
///@}

/// A dialog box from a template.
///
/// As on the device, a dialog can be full screen (m_bFullScreen): it covers the work area, its title
/// bar carries an OK button that sends IDOK, and an empty command bar with the button of the soft
/// input panel stands at its bottom.
class AFX_CORE CDialog : public CWnd {
    DECLARE_DYNAMIC(CDialog)
public:
    CDialog();
    /// A modal dialog, to be opened with DoModal.
    /// @param pParentWnd owner; null for the application's main window
    ///@{
    explicit CDialog(LPCTSTR lpszTemplateName, CWnd* pParentWnd = nullptr);
    explicit CDialog(UINT nIDTemplate, CWnd* pParentWnd = nullptr);
    ///@}
    ~CDialog() override;

    /// Creates a modeless dialog. @return FALSE if there is no such template or window.
    virtual BOOL Create(LPCTSTR lpszTemplateName, CWnd* pParentWnd = nullptr);
    /// The same with the template's number.
    virtual BOOL Create(UINT nIDTemplate, CWnd* pParentWnd = nullptr);
    using CWnd::Create;
    /// Creates a modeless dialog from a template in memory. @return FALSE on failure
    /// @param lpDialogInit initialisation data (RT_DLGINIT); may be null
    ///@{
    virtual BOOL CreateIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = nullptr,
                                void* lpDialogInit = nullptr);
    virtual BOOL CreateIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd = nullptr);
    ///@}
    /// Prepares a modal dialog from a template in memory, which must outlive DoModal.
    ///@{
    BOOL InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = nullptr,
                           void* lpDialogInit = nullptr);
    BOOL InitModalIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd = nullptr);
    ///@}
    /// The dialog's number in the help file.
    void SetHelpID(UINT nIDR) { m_nIDHelp = nIDR; }

    /// Runs the dialog until EndDialog.
    /// @return what EndDialog was given; -1 if the dialog could not be created.
    virtual INT_PTR DoModal();
    /// Ends a modal dialog.
    /// @param nResult what DoModal returns
    void EndDialog(int nResult);

    /// Turns dialog units into pixels, in the dialog's font.
    void MapDialogRect(LPRECT lpRect) const;
    /// Moves the focus to the next, the previous or the given control.
    ///@{
    void NextDlgCtrl() const;
    void PrevDlgCtrl() const;
    void GotoDlgCtrl(CWnd* pWndCtrl);
    ///@}
    /// The button that Enter presses; DC_HASDEFID in the high word of GetDefID if there is one.
    ///@{
    void SetDefID(UINT nID);
    DWORD GetDefID() const;
    ///@}

    /// Called when all controls exist. @return FALSE if it has set the focus itself.
    virtual BOOL OnInitDialog();
    /// Called before the controls are created, with the font that they get. Here: nothing.
    virtual void OnSetFont(CFont* pFont);

    BOOL m_bFullScreen = AfxGetFullScreenDialogs(); ///< Set before the dialog is created.
    CWnd* m_pWndEmptyCB = nullptr; ///< The empty command bar (a CCeCommandBar) while the dialog
                                   ///< is full screen, else null. Owned by the dialog.
    HICON m_hIcon = nullptr;       ///< The dialog's icon; not owned.

    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pInfo) override;

protected:
    /// Not used by the framework itself.
    UINT m_nIDHelp = 0;
    /// The template's name or number; null for a template in memory.
    LPCTSTR m_lpszTemplateName = nullptr;
    /// The template in memory; null for one of the resources.
    LPCDLGTEMPLATE m_lpDialogTemplate = nullptr;
    /// Its initialisation data; may be null.
    void* m_lpDialogInit = nullptr;
    /// The template in memory of the system that CreateIndirect or InitModalIndirect was given; not owned.
    HGLOBAL m_hDialogTemplate = nullptr;
    /// The owner that the dialog was constructed with.
    CWnd* m_pParentWnd = nullptr;

    /// The OK button, or Enter: UpdateData, then EndDialog(IDOK). A modeless dialog must override
    /// it.
    virtual void OnOK();
    /// Cancel, Escape or the close button: EndDialog(IDCANCEL). A modeless dialog must override it.
    virtual void OnCancel();
    void PostNcDestroy() override;
    /// What Create and DoModal have in common. @return FALSE on failure
    BOOL CreateDlgIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd);

    /// Runs the template's initialisation data, then OnInitDialog.
    afx_msg LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);
    /// Updates how the controls look.
    afx_msg LRESULT HandleIdle(WPARAM wParam, LPARAM lParam);
    /// Runs OnSetFont.
    afx_msg LRESULT HandleSetFont(WPARAM wParam, LPARAM lParam);

    DECLARE_MESSAGE_MAP()

private:
    friend struct AfxDialogAccess;

    BOOL CreateFromResource(CWnd* pParentWnd);
    void EnterFullScreen();

    std::unique_ptr<CWnd> m_pEmptyBar; ///< What m_pWndEmptyCB shows.
};
