/// @file
/// CDialog: modal and modeless dialogs from templates. Included by afxwin.h.
#pragma once

/// A dialog box from a template.
///
/// As on the device, a dialog is full screen unless m_bFullScreen is cleared before it is
/// created: it covers the work area, its title bar carries an OK button that sends IDOK,
/// and an empty command bar with the button of the soft input panel stands at its bottom.
class AFX_CORE CDialog : public CWnd {
    DECLARE_DYNAMIC(CDialog)
public:
    CDialog();
    explicit CDialog(LPCTSTR lpszTemplateName, CWnd* pParentWnd = nullptr);
    explicit CDialog(UINT nIDTemplate, CWnd* pParentWnd = nullptr);
    ~CDialog() override;

    /// Creates a modeless dialog. @return FALSE if there is no such template or window.
    virtual BOOL Create(LPCTSTR lpszTemplateName, CWnd* pParentWnd = nullptr);
    virtual BOOL Create(UINT nIDTemplate, CWnd* pParentWnd = nullptr);
    using CWnd::Create;
    BOOL CreateIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = nullptr);
    /// Prepares a modal dialog from a template in memory, which must outlive DoModal.
    BOOL InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = nullptr);

    /// Runs the dialog until EndDialog.
    /// @return what EndDialog was given; -1 if the dialog could not be created.
    virtual INT_PTR DoModal();
    void EndDialog(int nResult);

    void MapDialogRect(LPRECT lpRect) const;
    void NextDlgCtrl() const;
    void PrevDlgCtrl() const;
    void GotoDlgCtrl(CWnd* pWndCtrl);
    void SetDefID(UINT nID);
    DWORD GetDefID() const;

    /// Called when all controls exist. @return FALSE if it has set the focus itself.
    virtual BOOL OnInitDialog();
    virtual void OnSetFont(CFont* pFont);

    BOOL m_bFullScreen = TRUE;     ///< Set before the dialog is created.
    CWnd* m_pWndEmptyCB = nullptr; ///< The empty command bar (a CCeCommandBar) while the dialog
                                   ///< is full screen, else null. Owned by the dialog.
    HICON m_hIcon = nullptr;       ///< The dialog's icon; not owned.

    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pInfo) override;

protected:
    UINT m_nIDHelp = 0;
    LPCTSTR m_lpszTemplateName = nullptr;
    LPCDLGTEMPLATE m_lpDialogTemplate = nullptr;
    CWnd* m_pParentWnd = nullptr;

    virtual void OnOK();
    virtual void OnCancel();
    void PostNcDestroy() override;
    BOOL CreateDlgIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd);

    afx_msg LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);

    DECLARE_MESSAGE_MAP()

private:
    friend struct AfxDialogAccess;

    BOOL CreateFromResource(CWnd* pParentWnd);
    void EnterFullScreen();
};
