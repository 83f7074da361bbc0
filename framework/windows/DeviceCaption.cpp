#include "DeviceCaption.h"

#include "DialogKeys.h"
#include "SelectScope.h"

#include <dwmapi.h>

namespace {

constexpr int OK_BUTTON_WIDTH = 34;
constexpr int BUTTON_MARGIN = 2;
constexpr int TITLE_MARGIN = 4;

// Hit-test codes that mean nothing to the system, so that it keeps its hands off.
constexpr int HIT_OK = HTOBJECT;
constexpr int HIT_CLOSE = HTHELP;

// Undocumented requests of the theme service to draw its own title bar over ours.
constexpr UINT WM_NCUAHDRAWCAPTION = 0x00AE;
constexpr UINT WM_NCUAHDRAWFRAME = 0x00AF;

CPoint ScreenPoint(LPARAM lParam) {
    return CPoint(static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam)));
}

/// The desktop's compositor draws title bars by itself unless it is asked not to.
void KeepSystemFromDrawing(HWND hWnd) {
    const DWMNCRENDERINGPOLICY policy = DWMNCRP_DISABLED;
    ::DwmSetWindowAttribute(hWnd, DWMWA_NCRENDERING_POLICY, &policy, sizeof policy);
}

void RefreshFrame(HWND hWnd) {
    ::SetWindowPos(hWnd, nullptr, 0, 0, 0, 0,
                   SWP_FRAMECHANGED | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

} // namespace

// --- Geometry, in window coordinates ---------------------------------------------------------

CRect CDeviceCaption::WorkArea(const CWnd* pWnd) {
    MONITORINFO info = {};
    info.cbSize = sizeof info;
    ::GetMonitorInfo(::MonitorFromWindow(pWnd->m_hWnd, MONITOR_DEFAULTTONEAREST), &info);
    return info.rcWork;
}

CRect CDeviceCaption::BarRect(const CWnd* pWnd) {
    CRect window;
    pWnd->GetWindowRect(window);
    if (pWnd->m_nFlags & WF_FULLSCREEN)
        return CRect(0, 0, window.Width(), AFX_DEVICE_BAR_HEIGHT);
    CRect client;
    pWnd->GetClientRect(client);
    pWnd->ClientToScreen(client);
    client.OffsetRect(-window.left, -window.top);
    return CRect(client.left, client.top - ::GetSystemMetrics(SM_CYCAPTION), client.right, client.top - 1);
}

CRect CDeviceCaption::ButtonRect(const CWnd* pWnd, Button button) {
    CRect rect = BarRect(pWnd);
    rect.DeflateRect(BUTTON_MARGIN, BUTTON_MARGIN);
    const bool bFullScreen = (pWnd->m_nFlags & WF_FULLSCREEN) != 0;
    const int nCloseWidth = bFullScreen ? rect.Height() : ::GetSystemMetrics(SM_CXSIZE);
    if (button == Close) {
        rect.left = rect.right - nCloseWidth;
        return rect;
    }
    const DWORD dwStyle = pWnd->GetStyle();
    int nSystemButtons = (dwStyle & WS_SYSMENU) ? 1 : 0;
    if (!bFullScreen && nSystemButtons && (dwStyle & (WS_MINIMIZEBOX | WS_MAXIMIZEBOX)))
        nSystemButtons = 3;
    rect.right -= nSystemButtons * (nCloseWidth + BUTTON_MARGIN);
    rect.left = rect.right - OK_BUTTON_WIDTH;
    return rect;
}

CDeviceCaption::Button CDeviceCaption::ButtonAt(const CWnd* pWnd, CPoint screenPoint) {
    CRect window;
    pWnd->GetWindowRect(window);
    const CPoint point = screenPoint - window.TopLeft();
    if ((pWnd->m_nFlags & WF_OKBUTTON) && ButtonRect(pWnd, Ok).PtInRect(point))
        return Ok;
    const bool bOwnClose = (pWnd->m_nFlags & WF_FULLSCREEN) && (pWnd->GetStyle() & WS_SYSMENU);
    return bOwnClose && ButtonRect(pWnd, Close).PtInRect(point) ? Close : None;
}

// --- Messages ----------------------------------------------------------------------------------

BOOL CDeviceCaption::OnMessage(CWnd* pWnd, UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (!(pWnd->m_nFlags & (WF_OKBUTTON | WF_FULLSCREEN)))
        return FALSE;
    if ((pWnd->m_nFlags & WF_FULLSCREEN) && OnFullScreenMessage(pWnd, message, wParam, lParam, pResult))
        return TRUE;
    switch (message) {
    case WM_NCACTIVATE:
        pWnd->m_nFlags &= ~static_cast<UINT>(WF_CAPTIONACTIVE);
        pWnd->m_nFlags |= wParam ? WF_CAPTIONACTIVE : 0U;
        [[fallthrough]];
    case WM_NCPAINT:
    case WM_SETTEXT:
        *pResult = pWnd->CallSuper(message, wParam, lParam);
        Paint(pWnd, None);
        return TRUE;
    case WM_NCHITTEST:
        *pResult = OnHitTest(pWnd, wParam, lParam);
        return TRUE;
    case WM_NCLBUTTONDOWN:
    case WM_NCLBUTTONDBLCLK:
        if (wParam != HIT_OK && wParam != HIT_CLOSE)
            return FALSE;
        *pResult = 0;
        Track(pWnd, wParam == HIT_OK ? Ok : Close);
        return TRUE;
    default:
        return FALSE;
    }
}

BOOL CDeviceCaption::OnFullScreenMessage(CWnd* pWnd, UINT message, WPARAM wParam, LPARAM lParam,
                                         LRESULT* pResult) {
    switch (message) {
    case WM_NCCALCSIZE: // the first rectangle of either form of lParam is the new window's
        reinterpret_cast<RECT*>(lParam)->top += AFX_DEVICE_BAR_HEIGHT;
        *pResult = 0;
        return TRUE;
    case WM_NCPAINT:
        Paint(pWnd, None);
        *pResult = 0;
        return TRUE;
    case WM_NCACTIVATE:
        pWnd->m_nFlags &= ~static_cast<UINT>(WF_CAPTIONACTIVE);
        pWnd->m_nFlags |= wParam ? WF_CAPTIONACTIVE : 0U;
        Paint(pWnd, None);
        *pResult = TRUE;
        return TRUE;
    case WM_NCUAHDRAWCAPTION:
    case WM_NCUAHDRAWFRAME:
        *pResult = 0;
        return TRUE;
    case WM_GETMINMAXINFO: {
        *pResult = pWnd->CallSuper(message, wParam, lParam);
        auto* pInfo = reinterpret_cast<MINMAXINFO*>(lParam);
        const CRect area = WorkArea(pWnd);
        pInfo->ptMaxPosition = CPoint(0, 0);
        pInfo->ptMaxSize = CPoint(area.Width(), area.Height());
        pInfo->ptMaxTrackSize = pInfo->ptMaxSize;
        return TRUE;
    }
    case WM_SIZE:
        *pResult = pWnd->CallSuper(message, wParam, lParam);
        OnSized(pWnd, wParam);
        return TRUE;
    default:
        return FALSE;
    }
}

LRESULT CDeviceCaption::OnHitTest(CWnd* pWnd, WPARAM wParam, LPARAM lParam) {
    switch (ButtonAt(pWnd, ScreenPoint(lParam))) {
    case Ok:
        return HIT_OK;
    case Close:
        return HIT_CLOSE;
    default:
        break;
    }
    const LRESULT lHit = pWnd->CallSuper(WM_NCHITTEST, wParam, lParam);
    if (!(pWnd->m_nFlags & WF_FULLSCREEN) || lHit == HTCLIENT)
        return lHit;
    return HTBORDER; // a full-screen window is not moved by its title bar
}

void CDeviceCaption::OnSized(CWnd* pWnd, WPARAM wParam) {
    // Maximising alone leaves a window without a sizing frame at its old size.
    if (wParam == SIZE_MAXIMIZED) {
        const CRect area = WorkArea(pWnd);
        CRect window;
        pWnd->GetWindowRect(window);
        if (window != area)
            pWnd->MoveWindow(area);
    }
    auto* pBar = dynamic_cast<CCeCommandBar*>(
        CWnd::FromHandlePermanent(::GetDlgItem(pWnd->m_hWnd, static_cast<int>(AFX_IDW_TOOLBAR))));
    if (pBar != nullptr)
        pBar->Reposition();
}

// --- Operations --------------------------------------------------------------------------------

void CDeviceCaption::EnterFullScreen(CWnd* pWnd) {
    pWnd->m_nFlags |= WF_FULLSCREEN | WF_OKBUTTON;
    if (::GetActiveWindow() == pWnd->m_hWnd) // it became so before the title bar was ours
        pWnd->m_nFlags |= WF_CAPTIONACTIVE;
    KeepSystemFromDrawing(pWnd->m_hWnd);
    const CRect area = WorkArea(pWnd);
    ::SetWindowPos(pWnd->m_hWnd, nullptr, area.left, area.top, area.Width(), area.Height(),
                   SWP_FRAMECHANGED | SWP_NOZORDER | SWP_NOACTIVATE);
}

void CDeviceCaption::ShowOkButton(CWnd* pWnd, BOOL bShow) {
    if (bShow)
        KeepSystemFromDrawing(pWnd->m_hWnd);
    pWnd->m_nFlags &= ~static_cast<UINT>(WF_OKBUTTON);
    pWnd->m_nFlags |= bShow ? WF_OKBUTTON : 0U;
    RefreshFrame(pWnd->m_hWnd);
}

/// Follows the pen until it is lifted, as a push button does; lifted outside, nothing happens.
void CDeviceCaption::Track(CWnd* pWnd, Button button) {
    const HWND hWnd = pWnd->m_hWnd;
    ::SetCapture(hWnd);
    bool bInside = true;
    Paint(pWnd, button);
    while (::GetCapture() == hWnd) {
        MSG msg;
        if (::GetMessage(&msg, nullptr, 0, 0) <= 0) {
            ::PostQuitMessage(static_cast<int>(msg.wParam));
            ::ReleaseCapture();
            return;
        }
        if (msg.message == WM_MOUSEMOVE || msg.message == WM_LBUTTONUP) {
            const bool bNow = ButtonAt(pWnd, msg.pt) == button;
            if (bNow != bInside)
                Paint(pWnd, bNow ? button : None);
            bInside = bNow;
            if (msg.message == WM_LBUTTONUP)
                break;
        } else {
            ::DispatchMessage(&msg);
        }
    }
    if (CWnd::FromHandlePermanent(hWnd) != pWnd)
        return; // a message dispatched above has closed the window
    const bool bLifted = ::GetCapture() == hWnd;
    ::ReleaseCapture();
    Paint(pWnd, None);
    if (!bLifted || !bInside)
        return;
    if (button == Close)
        pWnd->PostMessage(WM_SYSCOMMAND, SC_CLOSE);
    else
        PressOk(pWnd);
}

/// The button takes the focus for as long as IDOK is handled, as one in the dialog would: what a
/// field does when it is left has then been done.
void CDeviceCaption::PressOk(CWnd* pWnd) {
    const HWND hWnd = pWnd->m_hWnd;
    const HWND hFocus = ::GetFocus();
    const auto isOpen = [&] { // and not only waiting for its loop to come to an end
        return CWnd::FromHandlePermanent(hWnd) == pWnd && ::IsWindowEnabled(hWnd) &&
               (pWnd->m_nFlags & (WF_MODALLOOP | WF_CONTINUEMODAL)) != WF_MODALLOOP;
    };
    if (!::IsChild(hWnd, hFocus)) {
        ::SendMessage(hWnd, WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED), 0);
        return;
    }
    // The dialog remembers the field as if another window had become active, and gives the focus
    // back by itself after a message box.
    pWnd->CallSuper(WM_ACTIVATE, WA_INACTIVE, 0);
    ::SetFocus(nullptr);
    if (isOpen())
        ::SendMessage(hWnd, WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED), 0);
    const bool bNobodyHasIt = ::GetFocus() == nullptr && ::GetActiveWindow() == hWnd;
    if (!bNobodyHasIt || !isOpen() || !::IsWindowVisible(hWnd))
        return;
    pWnd->CallSuper(WM_ACTIVATE, WA_ACTIVE, 0);
    if (::GetFocus() == nullptr) // no dialog
        ::SetFocus(::IsChild(hWnd, hFocus) && CDialogKeys::IsReachable(hFocus) ? hFocus : hWnd);
}

// --- Drawing -----------------------------------------------------------------------------------

void CDeviceCaption::PaintBar(CWnd* pWnd, CDC& dc) {
    const bool bActive = (pWnd->m_nFlags & WF_CAPTIONACTIVE) != 0;
    CRect bar = BarRect(pWnd);
    dc.FillSolidRect(bar, ::GetSysColor(bActive ? COLOR_ACTIVECAPTION : COLOR_INACTIVECAPTION));

    NONCLIENTMETRICS metrics = {};
    metrics.cbSize = sizeof metrics;
    ::SystemParametersInfo(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    CFont font;
    font.CreateFontIndirect(&metrics.lfCaptionFont);
    const CSelectScope selected(dc, font.m_hObject);
    CString strTitle;
    pWnd->GetWindowText(strTitle);
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(::GetSysColor(bActive ? COLOR_CAPTIONTEXT : COLOR_INACTIVECAPTIONTEXT));
    bar.left += TITLE_MARGIN;
    bar.right = ButtonRect(pWnd, (pWnd->m_nFlags & WF_OKBUTTON) ? Ok : Close).left;
    dc.DrawText(strTitle, bar, DT_SINGLELINE | DT_VCENTER | DT_LEFT | DT_NOPREFIX | DT_END_ELLIPSIS);
}

void CDeviceCaption::Paint(CWnd* pWnd, Button pressed) {
    CWindowDC dc(pWnd);
    if (pWnd->m_nFlags & WF_FULLSCREEN) {
        PaintBar(pWnd, dc);
        if (pWnd->GetStyle() & WS_SYSMENU) {
            const UINT nPushed = pressed == Close ? DFCS_PUSHED : 0U;
            dc.DrawFrameControl(ButtonRect(pWnd, Close), DFC_CAPTION, DFCS_CAPTIONCLOSE | nPushed);
        }
    }
    if (!(pWnd->m_nFlags & WF_OKBUTTON))
        return;
    CRect rect = ButtonRect(pWnd, Ok);
    dc.DrawFrameControl(rect, DFC_BUTTON, DFCS_BUTTONPUSH | (pressed == Ok ? DFCS_PUSHED : 0U));
    const CSelectScope selected(dc, ::GetStockObject(DEFAULT_GUI_FONT));
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(::GetSysColor(COLOR_BTNTEXT));
    if (pressed == Ok)
        rect.OffsetRect(1, 1);
    dc.DrawText(_T("OK"), rect, DT_SINGLELINE | DT_VCENTER | DT_CENTER);
}
