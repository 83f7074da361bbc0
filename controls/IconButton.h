/// @file
/// CIconButton: a push or toggle button with an icon.
#pragma once

#include <afxwin.h>

#include "api/Export.h"

/// An owner-drawn button that shows an icon, alone in the middle or at the left of the
/// button's text. It may stay down when it is tapped, and come up with the next tap.
///
/// The control must have the style BS_OWNERDRAW.
class FIELDKIT_API CIconButton : public CButton {
public:
    /// Bits of the style.
    enum Style : UINT {
        StyleToggle = 0x1, ///< A release inside the button flips the push state.
        StyleFocus = 0x2,  ///< The button with the focus shows a focus rectangle.
        StyleText = 0x4,   ///< Icon at the left, text beside it; else the icon alone.
    };

    CIconButton() = default;

    /// Takes over a button of a dialog.
    /// @param nID    its control id in pParent
    /// @param hIcon  see SetIcon
    /// @param nStyle Style bits
    /// @return FALSE, with nothing changed, if there is no such control or this object
    ///         already has one
    BOOL Attach(UINT nID, CWnd* pParent, HICON hIcon, int nStyle);

    /// Changes the icon, and redraws if it is another one.
    /// @param hIcon not owned: it must outlive the button; null draws none
    /// @return the icon before
    HICON SetIcon(HICON hIcon);
    /// Tells the icon's size in pixels at AFX_DESIGN_DPI, 16 x 16 at first. It decides where the
    /// icon stands; the icon is drawn in its own size all the same, at other resolutions in this
    /// one. Does not redraw.
    void SetIconSize(SIZE* pSize);
    /// Replaces the style, and redraws if it is another one. The button comes up if it is
    /// no longer a toggle button.
    /// @param nStyle Style bits, not the BS_... of CButton
    void SetButtonStyle(UINT nStyle);
    /// Latches a toggle button down or releases it, without a click. Others take no notice.
    void SetPush(BOOL bPush);
    /// Draws frame, icon and text, and the focus rectangle of StyleFocus.
    /// @return TRUE if the button is latched down
    BOOL GetPush();

    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override;

protected:
    /// A toggle button flips its push state when the pen is lifted inside of it; a double tap
    /// counts as two taps.
    ///@{
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    ///@}

    DECLARE_MESSAGE_MAP()

private:
    bool Has(Style style) const { return (m_nStyle & style) != 0; }
    void Redraw();
    void DrawFace(CDC& dc, const CRect& rect, bool bPushed) const;

    HICON m_hIcon = nullptr;
    CSize m_sizeIcon = {16, 16};
    BOOL m_bPush = FALSE;
    UINT m_nStyle = 0;
};
