// The pen that scrolls a dialog by its empty surface.
#pragma once

#include "afxwin.h"

#include <optional>

namespace fieldkit::detail {

/// A press on free ground that goes on beyond the system's threshold of dragging. The dialog has the
/// capture from the press on, so that the pen may come to controls and leave the dialog; who takes the
/// capture away, or opens another dialog, ends it.
class CPenScroll {
public:
    /// @param nPos what the dialog is scrolled by
    /// @param pfnWatch shall call Watch: an application may keep the pen's lift for itself
    void Press(HWND hWnd, int nY, int nPos, TIMERPROC pfnWatch);
    /// @return what the dialog is to be scrolled by; nothing as long as it may become a tap
    std::optional<int> Move(HWND hWnd, int nY);
    /// Gives the capture back. Nothing if it is about another window.
    void End(HWND hWnd);
    void Watch();

private:
    bool HasPen() const;

    HWND m_hWnd = nullptr; ///< None without a press.
    UINT_PTR m_nTimer = 0;
    int m_nPressY = 0;
    int m_nPressPos = 0;
    bool m_bDragging = false;
};

} // namespace fieldkit::detail
