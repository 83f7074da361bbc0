/// @file
/// CnPropertySheet: a full-screen property sheet for the stylus.
#pragma once

#include <afxdlgs.h>
#include <afxext.h>

#include "api/Export.h"

/// A property sheet that fills the screen and follows one word of options, as CnDialog does.
///
/// Neither Enter, Escape nor the Cancel command closes it: that is left to its OK button and
/// to the application's own commands. Set the options between construction and DoModal.
class FIELDKIT_API CnPropertySheet : public CPropertySheet {
    DECLARE_DYNAMIC(CnPropertySheet)
public:
    /// Bits of the option word; the values are those of CnDialog.
    enum Option : DWORD {
        OptionOkButton = 0x00001,     ///< OK button in the title bar.
        OptionCommandBar = 0x00002,   ///< Command bar with buttons of 32 x 15 pixels.
        OptionHidden = 0x00100,       ///< Hidden until the application shows it.
        OptionForwardPress = 0x00400, ///< A press goes to CWnd::OnLButtonDown.
    };

    /// @param nIDCaption  string resource of the title
    /// @param pParentWnd  owner; null for the application's main window
    /// @param iSelectPage page shown first, from 0
    CnPropertySheet(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage);
    /// The same with the title as a text.
    /// @param pszCaption  the title; copied
    /// @param pParentWnd  owner; null for the application's main window
    /// @param iSelectPage page shown first, from 0
    CnPropertySheet(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage);

    /// Replaces the option word (CnDialog's adds to it).
    void SetOption(DWORD dwOption);

    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    BOOL OnInitDialog() override;

    /// The system's own processing; with OptionForwardPress that of CWnd.
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    /// A change of the system's settings; here the framework's processing.
    afx_msg void OnWinIniChange(LPCTSTR lpszSection);
    /// Does nothing: the Cancel command does not close the sheet.
    afx_msg void OnCancel();

    DECLARE_MESSAGE_MAP()

private:
    bool Has(Option option) const { return (m_dwOption & option) != 0; }

    DWORD m_dwOption = 0;
    CCeCommandBar m_wndCommandBar;
};
