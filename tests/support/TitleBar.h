// The device's title bar, whose buttons are no windows, and the area that the shell leaves.
#pragma once

#include "FrameworkEnvironment.h"
#include "PenInput.h"

namespace fx {

inline CRect WorkArea() {
    CRect rect;
    ::SystemParametersInfo(SPI_GETWORKAREA, 0, &rect, 0);
    return rect;
}

inline CRect Screen() {
    return CRect(0, 0, ::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN));
}

/// Where a title bar reacts as a button, from the right; (-1, -1) for nowhere.
inline CPoint FindTitleButton(const CWnd& wnd, LRESULT lHit) {
    const CRect rect = RectOf(wnd);
    const int y = rect.top + AFX_DEVICE_BAR_HEIGHT / 2;
    for (int x = rect.right - 1; x > rect.left; --x)
        if (wnd.SendMessage(WM_NCHITTEST, 0, MAKELPARAM(x, y)) == lHit)
            return CPoint(x - 3, y);
    return CPoint(-1, -1);
}
inline CPoint FindOkButton(const CWnd& wnd) {
    return FindTitleButton(wnd, HTOBJECT);
}
inline CPoint FindCloseButton(const CWnd& wnd) {
    return FindTitleButton(wnd, HTHELP);
}

inline void TapOk(const CWnd& wnd) {
    pen::Tap(FindOkButton(wnd));
}
inline void TapClose(const CWnd& wnd) {
    pen::Tap(FindCloseButton(wnd));
}

} // namespace fx
