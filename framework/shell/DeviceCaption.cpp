#include "DeviceCaption.h"

#include "drawing/SelectScope.h"
#include "window/DialogKeys.h"
#include "window/Resolution.h"
#include "window/WndProc.h"

#include <dwmapi.h>

using namespace fieldkit::detail;

namespace {

// Pixels at AFX_DESIGN_DPI.
constexpr int kOkButtonWidth = 34;
constexpr int kButtonMargin = 2;
constexpr int kTitleMargin = 4;

// Hit-test codes that mean nothing to the system, so that it keeps its hands off.
constexpr int kHitOk = HTOBJECT;
constexpr int kHitClose = HTHELP;

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

CRect CDeviceCaption::BarRect(const CWnd* pWnd) {
    CRect window;
    pWnd->GetWindowRect(window);
    if (AfxWndAccess::Flags(pWnd) & WF_FULLSCREEN)
        return CRect(0, 0, window.Width(), AfxScale(pWnd->m_hWnd, AFX_DEVICE_BAR_HEIGHT));
    CRect client;
    pWnd->GetClientRect(client);
    pWnd->ClientToScreen(client);
    client.OffsetRect(-window.left, -window.top);
    return CRect(client.left, client.top - CResolution::Metric(pWnd->m_hWnd, SM_CYCAPTION), client.right,
                 client.top - 1);
}

CRect CDeviceCaption::ButtonRect(const CWnd* pWnd, Button button) {
    const HWND hWnd = pWnd->m_hWnd;
    const int nMargin = AfxScale(hWnd, kButtonMargin);
    CRect rect = BarRect(pWnd);
    rect.DeflateRect(nMargin, nMargin);
    const bool bFullScreen = (AfxWndAccess::Flags(pWnd) & WF_FULLSCREEN) != 0;
    const int nCloseWidth = bFullScreen ? rect.Height() : CResolution::Metric(hWnd, SM_CXSIZE);
    if (button == Close) {
        rect.left = rect.right - nCloseWidth;
        return rect;
    }
    const DWORD dwStyle = pWnd->GetStyle();
    int nSystemButtons = (dwStyle & WS_SYSMENU) ? 1 : 0;
    if (!bFullScreen && nSystemButtons && (dwStyle & (WS_MINIMIZEBOX | WS_MAXIMIZEBOX)))
        nSystemButtons = 3;
    rect.right -= nSystemButtons * (nCloseWidth + nMargin);
    rect.left = rect.right - AfxScale(hWnd, kOkButtonWidth);
    return rect;
}

CDeviceCaption::Button CDeviceCaption::ButtonAt(const CWnd* pWnd, CPoint screenPoint) {
    CRect window;
    pWnd->GetWindowRect(window);
    const CPoint point = screenPoint - window.TopLeft();
    if ((AfxWndAccess::Flags(pWnd) & WF_OKBUTTON) && ButtonRect(pWnd, Ok).PtInRect(point))
        return Ok;
    const bool bOwnClose = (AfxWndAccess::Flags(pWnd) & WF_FULLSCREEN) && (pWnd->GetStyle() & WS_SYSMENU);
    return bOwnClose && ButtonRect(pWnd, Close).PtInRect(point) ? Close : None;
}

// --- Messages ----------------------------------------------------------------------------------

BOOL CDeviceCaption::OnMessage(CWnd* pWnd, UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (!(AfxWndAccess::Flags(pWnd) & (WF_OKBUTTON | WF_FULLSCREEN)))
        return FALSE;
    if ((AfxWndAccess::Flags(pWnd) & WF_FULLSCREEN) &&
        OnFullScreenMessage(pWnd, message, wParam, lParam, pResult))
        return TRUE;
    switch (message) {
    case WM_NCACTIVATE:
        AfxWndAccess::SetFlags(pWnd, WF_CAPTIONACTIVE, wParam != 0);
        [[fallthrough]];
    case WM_NCPAINT:
    case WM_SETTEXT:
        *pResult = AfxWndAccess::CallSuper(pWnd, message, wParam, lParam);
        Paint(pWnd, None);
        return TRUE;
    case WM_NCHITTEST:
        *pResult = OnHitTest(pWnd, wParam, lParam);
        return TRUE;
    case WM_NCLBUTTONDOWN:
    case WM_NCLBUTTONDBLCLK:
        if (wParam != kHitOk && wParam != kHitClose)
            return FALSE;
        *pResult = 0;
        Track(pWnd, wParam == kHitOk ? Ok : Close);
        return TRUE;
    default:
        return FALSE;
    }
}

BOOL CDeviceCaption::OnFullScreenMessage(CWnd* pWnd, UINT message, WPARAM wParam, LPARAM lParam,
                                         LRESULT* pResult) {
    switch (message) {
    case WM_NCCALCSIZE: // the first rectangle of either form of lParam is the new window's
        reinterpret_cast<RECT*>(lParam)->top += AfxScale(pWnd->m_hWnd, AFX_DEVICE_BAR_HEIGHT);
        *pResult = 0;
        return TRUE;
    case WM_NCPAINT:
        Paint(pWnd, None);
        *pResult = 0;
        return TRUE;
    case WM_NCACTIVATE:
        AfxWndAccess::SetFlags(pWnd, WF_CAPTIONACTIVE, wParam != 0);
        Paint(pWnd, None);
        *pResult = TRUE;
        return TRUE;
    case WM_NCUAHDRAWCAPTION:
    case WM_NCUAHDRAWFRAME:
        *pResult = 0;
        return TRUE;
    case WM_GETMINMAXINFO: {
        *pResult = AfxWndAccess::CallSuper(pWnd, message, wParam, lParam);
        auto* pInfo = reinterpret_cast<MINMAXINFO*>(lParam);
        const CRect area = AfxGetWorkArea(pWnd->m_hWnd);
        pInfo->ptMaxPosition = CPoint(0, 0);
        pInfo->ptMaxSize = CPoint(area.Width(), area.Height());
        pInfo->ptMaxTrackSize = pInfo->ptMaxSize;
        return TRUE;
    }
    case WM_SIZE:
        OnSized(pWnd, wParam);
        return FALSE;
    default:
        return FALSE;
    }
}

LRESULT CDeviceCaption::OnHitTest(CWnd* pWnd, WPARAM wParam, LPARAM lParam) {
    switch (ButtonAt(pWnd, ScreenPoint(lParam))) {
    case Ok:
        return kHitOk;
    case Close:
        return kHitClose;
    default:
        break;
    }
    const LRESULT lHit = AfxWndAccess::CallSuper(pWnd, WM_NCHITTEST, wParam, lParam);
    if (!(AfxWndAccess::Flags(pWnd) & WF_FULLSCREEN) || lHit == HTCLIENT)
        return lHit;
    return HTBORDER; // a full-screen window is not moved by its title bar
}

void CDeviceCaption::OnSized(CWnd* pWnd, WPARAM wParam) {
    // Maximising alone leaves a window without a sizing frame at its old size.
    if (wParam == SIZE_MAXIMIZED) {
        const CRect area = AfxGetWorkArea(pWnd->m_hWnd);
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
    AfxWndAccess::SetFlags(pWnd, WF_FULLSCREEN | WF_OKBUTTON);
    if (::GetActiveWindow() == pWnd->m_hWnd) // it became so before the title bar was ours
        AfxWndAccess::SetFlags(pWnd, WF_CAPTIONACTIVE);
    KeepSystemFromDrawing(pWnd->m_hWnd);
    const CRect area = AfxGetWorkArea(pWnd->m_hWnd);
    ::SetWindowPos(pWnd->m_hWnd, nullptr, area.left, area.top, area.Width(), area.Height(),
                   SWP_FRAMECHANGED | SWP_NOZORDER | SWP_NOACTIVATE);
}

void CDeviceCaption::ShowOkButton(CWnd* pWnd, BOOL bShow) {
    if (bShow)
        KeepSystemFromDrawing(pWnd->m_hWnd);
    AfxWndAccess::SetFlags(pWnd, WF_OKBUTTON, bShow);
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
               (AfxWndAccess::Flags(pWnd) & (WF_MODALLOOP | WF_CONTINUEMODAL)) != WF_MODALLOOP;
    };
    if (!::IsChild(hWnd, hFocus)) {
        ::SendMessage(hWnd, WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED), 0);
        return;
    }
    // The dialog remembers the field as if another window had become active, and gives the focus
    // back by itself after a message box.
    AfxWndAccess::CallSuper(pWnd, WM_ACTIVATE, WA_INACTIVE, 0);
    ::SetFocus(nullptr);
    if (isOpen())
        ::SendMessage(hWnd, WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED), 0);
    const bool bNobodyHasIt = ::GetFocus() == nullptr && ::GetActiveWindow() == hWnd;
    if (!bNobodyHasIt || !isOpen() || !::IsWindowVisible(hWnd))
        return;
    AfxWndAccess::CallSuper(pWnd, WM_ACTIVATE, WA_ACTIVE, 0);
    if (::GetFocus() == nullptr) // no dialog
        ::SetFocus(::IsChild(hWnd, hFocus) && CDialogKeys::IsReachable(hFocus) ? hFocus : hWnd);
}

// --- Drawing -----------------------------------------------------------------------------------

void CDeviceCaption::PaintBar(CWnd* pWnd, CDC& dc) {
    const bool bActive = (AfxWndAccess::Flags(pWnd) & WF_CAPTIONACTIVE) != 0;
    CRect bar = BarRect(pWnd);
    dc.FillSolidRect(bar, ::GetSysColor(bActive ? COLOR_ACTIVECAPTION : COLOR_INACTIVECAPTION));

    CFont font;
    const NONCLIENTMETRICS metrics = CResolution::NonClientMetrics(pWnd->m_hWnd);
    font.CreateFontIndirect(&metrics.lfCaptionFont);
    const CSelectScope selected(dc, font.m_hObject);
    CString strTitle;
    pWnd->GetWindowText(strTitle);
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(::GetSysColor(bActive ? COLOR_CAPTIONTEXT : COLOR_INACTIVECAPTIONTEXT));
    bar.left += AfxScale(pWnd->m_hWnd, kTitleMargin);
    bar.right = ButtonRect(pWnd, (AfxWndAccess::Flags(pWnd) & WF_OKBUTTON) ? Ok : Close).left;
    dc.DrawText(strTitle, bar, DT_SINGLELINE | DT_VCENTER | DT_LEFT | DT_NOPREFIX | DT_END_ELLIPSIS);
}

void CDeviceCaption::Paint(CWnd* pWnd, Button pressed) {
    CWindowDC dc(pWnd);
    if (AfxWndAccess::Flags(pWnd) & WF_FULLSCREEN) {
        PaintBar(pWnd, dc);
        if (pWnd->GetStyle() & WS_SYSMENU) {
            const UINT nPushed = pressed == Close ? DFCS_PUSHED : 0U;
            dc.DrawFrameControl(ButtonRect(pWnd, Close), DFC_CAPTION, DFCS_CAPTIONCLOSE | nPushed);
        }
    }
    if (!(AfxWndAccess::Flags(pWnd) & WF_OKBUTTON))
        return;
    CRect rect = ButtonRect(pWnd, Ok);
    dc.DrawFrameControl(rect, DFC_BUTTON, DFCS_BUTTONPUSH | (pressed == Ok ? DFCS_PUSHED : 0U));
    LOGFONT look = {};
    ::GetObject(::GetStockObject(DEFAULT_GUI_FONT), sizeof look, &look);
    look.lfHeight = ::MulDiv(look.lfHeight, AfxGetDpi(pWnd->m_hWnd), AfxGetDpi(nullptr));
    CFont font;
    font.CreateFontIndirect(&look);
    const CSelectScope selected(dc, font.m_hObject);
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(::GetSysColor(COLOR_BTNTEXT));
    if (pressed == Ok)
        rect.OffsetRect(1, 1);
    dc.DrawText(_T("OK"), rect, DT_SINGLELINE | DT_VCENTER | DT_CENTER);
}
