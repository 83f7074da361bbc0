/// @file
/// CInfoStatic: a static text on a colour of its own, with an information icon on request.
#pragma once

#include <afxwin.h>

#include "api/Export.h"

/// A one-line static text. Neither setter redraws: invalidate the control if it is visible.
class FIELDKIT_API CInfoStatic : public CStatic {
public:
    /// Bits of the option word.
    enum Option : DWORD {
        OptionIcon = 0x1, ///< The shared information icon stands before the text.
    };

    CInfoStatic() = default;

    /// Replaces the option word.
    void SetOption(DWORD dwOption);
    /// Sets the colour behind the text, white at first.
    void SetBkColor(DWORD crColor);

protected:
    /// Fills the control with its colour and draws icon and text on one line, centred in its
    /// height.
    afx_msg void OnPaint();
    /// A new text is drawn in the control's own look, which does not change when it is disabled.
    ///@{
    afx_msg LRESULT OnSetText(WPARAM wParam, LPARAM lParam);
    afx_msg void OnEnable(BOOL bEnable);
    ///@}
    /// Default processing only.
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);

    DECLARE_MESSAGE_MAP()

private:
    COLORREF m_crBk = RGB(255, 255, 255);
    DWORD m_dwOption = 0;
};
