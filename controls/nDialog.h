/// @file
/// CnDialog: the base of dialogs for a small screen worked with a stylus.
#pragma once

#include <afxwin.h>

#include <optional>

#include "api/Export.h"

/// A dialog that follows one word of options: full screen or popup, OK button in the title
/// bar, keys, dragging with the stylus, background colour.
///
/// Options and colour are set between construction and DoModal or Create, by derived classes
/// usually in their constructors. Without options the dialog is full screen and its title
/// bar has no OK button.
class FIELDKIT_API CnDialog : public CDialog {
public:
    /// Bits of the option word. A derived class may use others for itself.
    enum Option : DWORD {
        OptionOkButton = 0x00001,        ///< OK button in the title bar.
        OptionBarButtonSize = 0x00002,   ///< Full screen: command bar buttons of 32 x 15 pixels.
        OptionHidden = 0x00100,          ///< Hidden at the end of OnInitDialog.
        OptionPopup = 0x00200,           ///< Not full screen.
        OptionForwardPress = 0x00400,    ///< A press goes to CWnd::OnLButtonDown.
        OptionNoCommandBar = 0x01000,    ///< The empty command bar is destroyed.
        OptionSwallowKeys = 0x02000,     ///< Enter and Escape do nothing.
        OptionDrag = 0x10000,            ///< The stylus drags the dialog by its surface.
        OptionBackgroundColor = 0x20000, ///< Set by SetBKColor.
    };

    /// @param nIDTemplate template, searched in the application and in the library
    /// @param pParentWnd  owner; null for the application's main window
    CnDialog(UINT nIDTemplate, CWnd* pParentWnd);

    /// Adds option bits; no call takes any away.
    void SetOption(DWORD dwOption);
    /// Colours the dialog's surface and its static texts. Call before the dialog is created.
    void SetBKColor(DWORD crColor);

    /// Ties the edges of a control to those of the dialog, for screens that are larger than the
    /// device's; see AfxAnchorControl. Without it nothing moves. To be called in OnInitDialog, before
    /// the base class or after it.
    ///
    ///     Anchor(IDC_LIST, 0, 0, 100, 100); // grows with the dialog
    ///     Anchor(IDC_CLOSE, 100, 100, 100, 100); // stays at the lower right corner
    /// @param nLeft,nTop,nRight,nBottom percent of what the dialog has more than it needs
    /// @return FALSE, with nothing done, if there is no such control
    BOOL Anchor(UINT nID, int nLeft, int nTop, int nRight, int nBottom);

    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    /// Nothing of its own; derived classes call it first.
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    /// Ends the dialog with IDOK, if the data of the controls is accepted.
    void OnOK() override;
    /// Ends the dialog with IDCANCEL.
    void OnCancel() override;

    /// Closing by the title bar or the system is cancel.
    afx_msg void OnClose();
    /// A press begins dragging (OptionDrag): it draws the frame and captures the stylus.
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    /// Moves the drag frame along with the pen; it stays within reach on the screen.
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    /// The part of the screen that the drag frame keeps to, in screen coordinates. Here: that of the
    /// device between its bars, (0, 26) to (240, 294) at AFX_DESIGN_DPI, on every screen; a program for
    /// larger ones may give AfxGetWorkArea.
    virtual CRect GetDragArea() const;
    /// A lift ends dragging: the dialog goes where the frame is.
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    /// A capture that is lost, or a dialog that opens above, ends dragging; this dialog stays
    /// where it is.
    ///@{
    afx_msg void OnCaptureChanged(CWnd* pWnd);
    afx_msg void OnEnable(BOOL bEnable);
    ///@}
    /// A change of the system's settings; here the framework's processing, which makes room for the
    /// soft input panel.
    afx_msg void OnWinIniChange(LPCTSTR lpszSection);
    /// The surface and the static texts get the colour of SetBKColor, all else the system's.
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);

    DECLARE_MESSAGE_MAP()

private:
    bool Has(Option option) const { return (m_dwOption & option) != 0; }
    void InitFullScreen();
    CRect DragCandidate(CPoint point) const;
    void ShowFrame(const CRect& frame);
    void HideFrame();
    void AbandonDrag();

    DWORD m_dwOption = 0;

protected:
    CString m_str; ///< For derived classes; not used here.

private:
    std::optional<CPoint> m_ptPress = CPoint(); ///< None after an abandoned drag.
    CRect m_rcDrag;                             ///< The drag frame last drawn, on the screen.
    bool m_bFrameShown = false;
    COLORREF m_crBk = 0; ///< Meaningful with OptionBackgroundColor only.
    CBrush m_brBk;
};
