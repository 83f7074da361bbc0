// Sizes that the system has for each resolution. On a system that knows only one for the whole
// screen they are of that one.
#pragma once

#include "afxwin.h"

namespace fieldkit::detail {

class CResolution {
public:
    /// What a window has been told by WM_DPICHANGED holds from then on.
    /// @param nDpi 0 when the window goes
    static void Tell(HWND hWnd, int nDpi);
    /// As GetSystemMetrics.
    static int Metric(HWND hWnd, int nIndex);
    /// As AdjustWindowRectEx, for a window without a menu.
    static void AdjustRect(HWND hWnd, LPRECT pRect, DWORD dwStyle, DWORD dwExStyle);
    static NONCLIENTMETRICS NonClientMetrics(HWND hWnd);
    /// Dialogs follow a change in one way on all systems: the framework's.
    static void KeepSystemFromScaling(HWND hDialog);
};

} // namespace fieldkit::detail
