// How a dialog keeps its focused entry field clear of the soft input panel.
#pragma once

#include "afxext.h"

#include <vector>

namespace fieldkit::detail {

/// A popup dialog moves up as far as the work area allows; the rest, and all of it in a
/// full-screen dialog, is had by moving the controls up inside the dialog. Only its command
/// bar stays at its place.
class CSipRoom {
public:
    /// Where a window shall go; in its parent's coordinates.
    struct CMove {
        HWND hWnd;
        CPoint place;
    };

    explicit CSipRoom(HWND hWnd) : m_hWnd(hWnd) {}

    HWND GetWindow() const { return m_hWnd; }
    /// Plans the room for the field that now has the focus. The plan counts as carried out: this
    /// object may be gone when the moves are made, since they send messages to the application.
    /// @param pPanel the panel's place on the screen; null if none is shown
    std::vector<CMove> Plan(const CRect* pPanel);

private:
    struct CShifted {
        HWND hWnd;
        CPoint place; ///< Where it was put.
        int nShift;   ///< How far above its own place that is.
    };
    struct CShift {
        int nDialog;
        int nControls;
    };

    CShift ShiftFor(HWND hWndField, const CRect& panel) const;
    std::vector<CMove> Apply(CShift shift);
    int ShiftOf(HWND hWnd) const;

    HWND m_hWnd;
    std::vector<CShifted> m_shifted; ///< The dialog and its controls, as far as they are not at home.
};

} // namespace fieldkit::detail
