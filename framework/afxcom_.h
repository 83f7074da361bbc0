/// @file
/// The system's own dialogs for files, colours, fonts and searching. Included by afxdlgs.h.
#pragma once

#include "afxwin.h"

#include <commdlg.h>

/// A dialog of the system. It has the system's size and title bar, never the device's full screen.
/// OnInitDialog, message map and data exchange work as in any dialog.
class AFX_CORE CCommonDialog : public CDialog {
    DECLARE_DYNAMIC(CCommonDialog)
public:
    /// @param pParentWnd owner; null for the application's main window
    explicit CCommonDialog(CWnd* pParentWnd);

protected:
    /// Lets the system do what the button is for.
    ///@{
    void OnOK() override;
    void OnCancel() override;
    ///@}

private:
    friend struct AfxCommonAccess;
};

/// Asks for the name of a file to open or to save.
///
/// Change m_ofn before DoModal for what the constructor does not offer. With OFN_ALLOWMULTISELECT
/// lpstrFile and nMaxFile should be set to a larger buffer of the caller's.
class AFX_CORE CFileDialog : public CCommonDialog {
    DECLARE_DYNAMIC(CFileDialog)
public:
    /// @param lpszDefExt   extension, without a point, of a name that is entered without one
    /// @param lpszFileName name shown at first
    /// @param dwFlags      OFN_...
    /// @param lpszFilter   pairs of text and pattern, each ended by |, one more | at the end
    /// @param dwSize       not used
    explicit CFileDialog(BOOL bOpenFileDialog, LPCTSTR lpszDefExt = nullptr, LPCTSTR lpszFileName = nullptr,
                         DWORD dwFlags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT, LPCTSTR lpszFilter = nullptr,
                         CWnd* pParentWnd = nullptr, DWORD dwSize = 0);

    OPENFILENAME m_ofn = {}; ///< What the system is told, and what it answers.
    /// The same.
    ///@{
    OPENFILENAME& GetOFN() { return m_ofn; }
    const OPENFILENAME& GetOFN() const { return m_ofn; }
    ///@}

    /// @return IDOK or IDCANCEL; CommDlgExtendedError tells why if there was no dialog
    INT_PTR DoModal() override;

    /// The chosen file, also while the dialog is open: whole; name with extension; extension
    /// without its point; name without extension; folder.
    ///@{
    CString GetPathName() const;
    CString GetFileName() const;
    CString GetFileExt() const;
    CString GetFileTitle() const;
    CString GetFolderPath() const;
    ///@}
    BOOL GetReadOnlyPref() const { return (m_ofn.Flags & OFN_READONLY) != 0; }
    /// Walks over the files of OFN_ALLOWMULTISELECT.
    ///@{
    POSITION GetStartPosition() const;
    /// @param pos from GetStartPosition; null after the last
    CString GetNextPathName(POSITION& pos) const;
    ///@}

    /// Changes the open dialog. @param nID the system's control
    ///@{
    void SetControlText(int nID, LPCTSTR lpsz);
    void HideControl(int nID);
    void SetDefExt(LPCTSTR lpsz);
    ///@}

protected:
    BOOL m_bOpenFileDialog; ///< TRUE opens, FALSE saves.

    // --- Events: override --------------------------------------------------------------
    /// OK has been pressed. @return 1 to keep the dialog open
    virtual BOOL OnFileNameOK() { return FALSE; }
    /// @return OFN_SHAREWARN, OFN_SHARENOWARN or OFN_SHAREFALLTHROUGH
    virtual UINT OnShareViolation(LPCTSTR) { return OFN_SHAREWARN; }
    virtual void OnInitDone() {}
    virtual void OnFileNameChange() {}
    virtual void OnFolderChange() {}
    virtual void OnTypeChange() {}

    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

private:
    CString FromDialog(UINT message) const;

    CString m_strFilter;
    CString m_strDefExt;
    TCHAR m_szFileName[MAX_PATH] = {};
};

/// Asks for a colour.
class AFX_CORE CColorDialog : public CCommonDialog {
    DECLARE_DYNAMIC(CColorDialog)
public:
    /// @param dwFlags CC_...
    explicit CColorDialog(COLORREF clrInit = 0, DWORD dwFlags = 0, CWnd* pParentWnd = nullptr);

    CHOOSECOLOR m_cc = {}; ///< What the system is told, and what it answers.

    /// @return IDOK or IDCANCEL
    INT_PTR DoModal() override;
    COLORREF GetColor() const { return m_cc.rgbResult; }
    /// Selects a colour in the open dialog.
    void SetCurrentColor(COLORREF clr);
    /// The sixteen colours that the user has made, for all dialogs of the program.
    static COLORREF* GetSavedCustomColors();

protected:
    /// OK has been pressed. @return TRUE to keep the dialog open
    virtual BOOL OnColorOK() { return FALSE; }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
};

/// Asks for a font.
class AFX_CORE CFontDialog : public CCommonDialog {
    DECLARE_DYNAMIC(CFontDialog)
public:
    /// @param lplfInitial the font shown at first; null for none
    /// @param dwFlags     CF_...
    explicit CFontDialog(LPLOGFONT lplfInitial = nullptr, DWORD dwFlags = CF_EFFECTS | CF_SCREENFONTS,
                         CDC* pdcPrinter = nullptr, CWnd* pParentWnd = nullptr);

    CHOOSEFONT m_cf = {}; ///< What the system is told, and what it answers.
    LOGFONT m_lf = {};    ///< The font.

    /// @return IDOK or IDCANCEL
    INT_PTR DoModal() override;
    /// The font that is chosen, also while the dialog is open.
    void GetCurrentFont(LPLOGFONT lplf);
    ///@{
    CString GetFaceName() const { return m_lf.lfFaceName; }
    CString GetStyleName() const { return m_szStyleName; }
    /// Tenths of a point.
    int GetSize() const { return m_cf.iPointSize; }
    COLORREF GetColor() const { return m_cf.rgbColors; }
    int GetWeight() const { return m_lf.lfWeight; }
    BOOL IsStrikeOut() const { return m_lf.lfStrikeOut; }
    BOOL IsUnderline() const { return m_lf.lfUnderline; }
    BOOL IsBold() const { return (m_cf.nFontType & BOLD_FONTTYPE) != 0; }
    BOOL IsItalic() const { return (m_cf.nFontType & ITALIC_FONTTYPE) != 0; }
    ///@}

private:
    TCHAR m_szStyleName[64] = {};
};

/// The modeless dialog for searching and replacing. Made by new, it deletes itself. Its owner
/// is told by the registered message FINDMSGSTRING, see GetNotifier.
class AFX_CORE CFindReplaceDialog : public CCommonDialog {
    DECLARE_DYNAMIC(CFindReplaceDialog)
public:
    CFindReplaceDialog();

    FINDREPLACE m_fr = {}; ///< What the system is told, and what it answers.

    /// @param dwFlags FR_... @return FALSE on failure; the object is then still there
    BOOL Create(BOOL bFindDialogOnly, LPCTSTR lpszFindWhat, LPCTSTR lpszReplaceWith = nullptr,
                DWORD dwFlags = FR_DOWN, CWnd* pParentWnd = nullptr);
    using CDialog::Create;
    /// The dialog that has sent the registered message. @param lParam of that message
    static CFindReplaceDialog* GetNotifier(LPARAM lParam);
    /// What the user wants; IsTerminating: the dialog is about to go.
    ///@{
    CString GetFindString() const { return m_fr.lpstrFindWhat; }
    CString GetReplaceString() const { return m_fr.lpstrReplaceWith; }
    BOOL SearchDown() const { return Has(FR_DOWN); }
    BOOL FindNext() const { return Has(FR_FINDNEXT); }
    BOOL MatchCase() const { return Has(FR_MATCHCASE); }
    BOOL MatchWholeWord() const { return Has(FR_WHOLEWORD); }
    BOOL ReplaceCurrent() const { return Has(FR_REPLACE); }
    BOOL ReplaceAll() const { return Has(FR_REPLACEALL); }
    BOOL IsTerminating() const { return Has(FR_DIALOGTERM); }
    ///@}

protected:
    void PostNcDestroy() override;

private:
    BOOL Has(DWORD dwFlag) const { return (m_fr.Flags & dwFlag) != 0; }

    TCHAR m_szFindWhat[128] = {};
    TCHAR m_szReplaceWith[128] = {};
};
