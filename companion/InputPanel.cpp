#include "Tesuvo.h"

#include "Module.h"

#include <iterator>

namespace {

constexpr wchar_t kPanelClass[] = L"TesuvoInputPanel";
constexpr int kPanelHeight = 80;

/// The calling thread's panel. The system destroys a thread's windows with the
/// thread, so nothing has to be released here.
thread_local HWND t_panel = nullptr;

const wchar_t* ModeLabel(int nMode) {
    switch (nMode) {
    case 1:
        return L"123";
    case 2:
        return L"かな";
    default:
        return L"ABC";
    }
}

void Paint(HWND hWnd) {
    PAINTSTRUCT paint;
    const HDC dc = ::BeginPaint(hWnd, &paint);
    if (dc == nullptr)
        return;
    RECT client;
    ::GetClientRect(hWnd, &client);
    wchar_t label[8];
    const int length = ::GetWindowTextW(hWnd, label, static_cast<int>(std::size(label)));
    ::SetBkMode(dc, TRANSPARENT);
    ::SetTextColor(dc, ::GetSysColor(COLOR_BTNTEXT));
    ::DrawTextW(dc, label, length, &client, DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
    ::EndPaint(hWnd, &paint);
}

LRESULT CALLBACK PanelProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_MOUSEACTIVATE:
        return MA_NOACTIVATE;
    case WM_PAINT:
        Paint(hWnd);
        return 0;
    case WM_NCDESTROY:
        t_panel = nullptr;
        break;
    default:
        break;
    }
    return ::DefWindowProcW(hWnd, message, wParam, lParam);
}

bool RegisterPanelClass() {
    WNDCLASSW description{};
    description.lpfnWndProc = PanelProc;
    description.hInstance = CompanionModule();
    description.hCursor = ::LoadCursorW(nullptr, IDC_ARROW);
    description.hbrBackground = ::GetSysColorBrush(COLOR_BTNFACE);
    description.lpszClassName = kPanelClass;
    return ::RegisterClassW(&description) != 0;
}

HWND CreatePanel() {
    static const bool registered = RegisterPanelClass();
    if (!registered)
        return nullptr;
    // A window must not outlive the code that answers its messages.
    PinCompanionModule();
    return ::CreateWindowExW(WS_EX_NOACTIVATE | WS_EX_TOOLWINDOW | WS_EX_TOPMOST, kPanelClass, L"",
                             WS_POPUP | WS_BORDER, 0, 0, 0, 0, nullptr, nullptr, CompanionModule(), nullptr);
}

/// The work area of the screen on which the user is typing.
RECT WorkArea() {
    MONITORINFO info{};
    info.cbSize = sizeof info;
    ::GetMonitorInfoW(::MonitorFromWindow(::GetFocus(), MONITOR_DEFAULTTOPRIMARY), &info);
    return info.rcWork;
}

} // namespace

void TVShowSIP(int nMode) {
    if (t_panel == nullptr)
        t_panel = CreatePanel();
    if (t_panel == nullptr)
        return;
    ::SetWindowTextW(t_panel, ModeLabel(nMode));
    ::InvalidateRect(t_panel, nullptr, TRUE);
    const RECT area = WorkArea();
    ::SetWindowPos(t_panel, HWND_TOPMOST, area.left, area.bottom - kPanelHeight, area.right - area.left,
                   kPanelHeight, SWP_NOACTIVATE | SWP_SHOWWINDOW);
}

void TVCloseSIP() {
    if (t_panel != nullptr)
        ::ShowWindow(t_panel, SW_HIDE);
}
