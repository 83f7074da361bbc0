// The title bar of the device's shell, which desktop Windows has not got.
#pragma once

#include "afxext.h"

namespace fieldkit::detail {

/// Draws and works the OK button of title bars, and the whole title bar of full-screen
/// windows: one bar of the device's height, no frame.
///
/// It hangs in the default processing of windows with WF_OKBUTTON or WF_FULLSCREEN, so
/// that an application's own handlers come first.
class CDeviceCaption {
public:
    /// @return TRUE if the message is the title bar's business and has been handled.
    static BOOL OnMessage(CWnd* pWnd, UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    /// Makes a window cover the work area of its screen, with the OK button in its title bar.
    static void EnterFullScreen(CWnd* pWnd);
    /// Shows or hides the OK button.
    static void ShowOkButton(CWnd* pWnd, BOOL bShow);

private:
    enum Button { None, Ok, Close };

    static BOOL OnFullScreenMessage(CWnd* pWnd, UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    static LRESULT OnHitTest(CWnd* pWnd, WPARAM wParam, LPARAM lParam);
    static void OnSized(CWnd* pWnd, WPARAM wParam);
    static void Track(CWnd* pWnd, Button button);
    static void PressOk(CWnd* pWnd);
    static void Paint(CWnd* pWnd, Button pressed);
    static void PaintBar(CWnd* pWnd, CDC& dc);
    static CRect BarRect(const CWnd* pWnd);
    static CRect ButtonRect(const CWnd* pWnd, Button button);
    static Button ButtonAt(const CWnd* pWnd, CPoint screenPoint);
};

} // namespace fieldkit::detail
