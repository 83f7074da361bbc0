#include "companion/detail/PanelWindow.h"

#include "companion/detail/Module.h"
#include "companion/detail/PanelDrawing.h"
#include "resources/ResourceIds.h"

#include "Tesuvo.h"

#include <afxext.h>

#include <algorithm>
#include <utility>

using namespace fieldkit::detail;

namespace {

constexpr wchar_t kPanelClass[] = L"TesuvoInputPanel";

// The panel's height on the device, and the screen for which it was made.
// Pixels at AFX_DESIGN_DPI.
constexpr int kPanelHeight = 125;
constexpr int kScreenWidth = 240;
constexpr int kScreenHeight = 320;
constexpr int kPanelHeightMost = 200;

constexpr UINT WM_ANNOUNCE = WM_APP;
constexpr UINT_PTR kCloseTimer = 1;
constexpr UINT_PTR kWatchTimer = 2;
constexpr UINT kWatchInterval = 100;
constexpr int kRaises = 10; // one a watch, so for a second

CString TitleOf(int mode) {
    if (mode == 1)
        return L"123";
    CString title;
    title.LoadString(mode == 2 ? IDS_FK_PANEL_KANA : IDS_FK_PANEL_LETTERS);
    return title;
}

bool IsEntryField(HWND window) {
    return window != nullptr && (::SendMessageW(window, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL) != 0;
}

/// The work area of the screen on which the user is typing.
RECT WorkArea() {
    MONITORINFO info{};
    info.cbSize = sizeof info;
    ::GetMonitorInfoW(::MonitorFromWindow(::GetFocus(), MONITOR_DEFAULTTOPRIMARY), &info);
    return info.rcWork;
}

/// Above the bar at the bottom, whose switch must stay in reach. On larger screens the keys grow,
/// as far as it makes them easier to hit; a low one keeps the same share of it for the dialog.
CRect PlaceIn(const CRect& area) {
    const HWND focus = ::GetFocus();
    const int height =
        std::min({area.Width() * kPanelHeight / kScreenWidth, area.Height() * kPanelHeight / kScreenHeight,
                  AfxScale(focus, kPanelHeightMost)});
    const int bottom = area.bottom - AfxScale(focus, AFX_DEVICE_BAR_HEIGHT);
    return {area.left, bottom - height, area.right, bottom};
}

} // namespace

PanelWindow& PanelWindow::OfThisThread() {
    // The system destroys a thread's windows with the thread, so nothing has to be released.
    thread_local PanelWindow panel;
    return panel;
}

RECT PanelWindow::Place() const {
    if (m_system)
        return m_systemPlace;
    RECT place{};
    ::GetWindowRect(m_window, &place);
    return place;
}

// --- Coming and going ------------------------------------------------------------------------

bool PanelWindow::Create() {
    WNDCLASSW description{};
    description.lpfnWndProc = WindowProc;
    description.hInstance = CompanionModule();
    description.hCursor = ::LoadCursorW(nullptr, IDC_ARROW);
    description.lpszClassName = kPanelClass;
    ::RegisterClassW(&description); // another thread's panel has perhaps done it
    // A window must not outlive the code that answers its messages.
    PinCompanionModule();
    // Without an owner: a modal dialog cannot disable it.
    m_window = ::CreateWindowExW(WS_EX_NOACTIVATE | WS_EX_TOOLWINDOW | WS_EX_TOPMOST, kPanelClass, L"",
                                 WS_POPUP, 0, 0, 0, 0, nullptr, nullptr, CompanionModule(), nullptr);
    return m_window != nullptr;
}

void PanelWindow::Show(int mode) {
    if (m_window == nullptr && !Create())
        return;
    ::KillTimer(m_window, kCloseTimer);
    m_shown = true;
    m_field = ::GetFocus();
    m_below = nullptr;
    SetMode(mode == 1 || mode == 2 ? mode : 0);
    m_system = TVGetCommonRegInt(TVSETTING_SYSTEM_KEYBOARD) != 0 && m_keyboard.Show();
    if (m_system) {
        ::ShowWindow(m_window, SW_HIDE);
    } else {
        m_keyboard.Hide(); // if the choice has changed
        PutInPlace();
    }
    ::SetTimer(m_window, kWatchTimer, kWatchInterval, nullptr);
    // Later, when the dialog that is perhaps just being made has its place on the screen.
    ::PostMessageW(m_window, WM_ANNOUNCE, 0, 0);
}

void PanelWindow::SetMode(int mode) {
    if (mode == m_mode)
        return;
    m_mode = mode;
    m_shift = Shift::Off;
    Release();
    ::SetWindowTextW(m_window, TitleOf(mode));
    ::InvalidateRect(m_window, nullptr, FALSE);
}

void PanelWindow::PutInPlace() {
    const CRect place = PlaceIn(WorkArea());
    if (::IsWindowVisible(m_window) && place == Place())
        return;
    ::SetWindowPos(m_window, HWND_TOPMOST, place.left, place.top, place.Width(), place.Height(),
                   SWP_NOACTIVATE | SWP_SHOWWINDOW);
}

void PanelWindow::Close() {
    if (!m_shown)
        return;
    m_shown = false;
    ::SetTimer(m_window, kCloseTimer, USER_TIMER_MINIMUM, nullptr);
}

/// Not while the pen is down elsewhere: the dialog goes back to its place when the panel has
/// gone, and a button that moves away under the pen would not be clicked.
void PanelWindow::Hide() {
    const HWND capture = ::GetCapture();
    if (capture != nullptr && capture != m_window)
        return;
    ::KillTimer(m_window, kCloseTimer);
    ::KillTimer(m_window, kWatchTimer);
    Release();
    m_shift = Shift::Off;
    ::ShowWindow(m_window, SW_HIDE);
    m_keyboard.Hide();
    m_system = false;
    Announce();
}

void PanelWindow::Watch() {
    if (!m_shown)
        return;
    const HWND focus = ::GetFocus();
    if (m_field != nullptr && !::IsWindow(m_field) && !IsEntryField(focus)) {
        Close(); // the field went without telling, and there is no other to type into
        return;
    }
    if (focus != nullptr)
        m_field = focus;
    if (m_system)
        m_systemPlace = m_keyboard.Place();
    else
        StayOnTop();
    Announce();
}

/// Whether the system sees a window above the panel: the list of a combo box, which belongs there.
bool PanelWindow::IsBelowAnother() const {
    HWND above = ::GetWindow(m_window, GW_HWNDPREV);
    while (above != nullptr && !::IsWindowVisible(above))
        above = ::GetWindow(above, GW_HWNDPREV);
    return above != nullptr;
}

/// Under Wine a window that gets the focus comes up above the topmost ones, and once more when the
/// screen has confirmed it; the system does not know of either. So the confirmation is taken in
/// first, and for a while the panel is raised again, should it come late. The detour makes the
/// system put the windows in order.
void PanelWindow::StayOnTop() {
    const HWND focus = ::GetFocus();
    if (!::IsWindowVisible(focus) || IsBelowAnother())
        return;
    if (std::exchange(m_below, focus) != focus)
        m_raises = kRaises;
    if (m_raises == 0)
        return;
    --m_raises;
    ::GetQueueStatus(QS_ALLINPUT);
    for (const HWND place : {HWND_NOTOPMOST, HWND_TOPMOST})
        ::SetWindowPos(m_window, place, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

// --- Telling the application -----------------------------------------------------------------

void PanelWindow::Announce() {
    const HWND active = ::GetActiveWindow();
    if (!IsShown()) {
        const HWND told = std::exchange(m_told, nullptr);
        if (told != nullptr && active != told)
            Tell(active);
        Tell(told);
        return;
    }
    const RECT place = Place();
    if (active == nullptr || (active == m_told && ::EqualRect(&place, &m_toldPlace)))
        return;
    m_told = active;
    m_toldPlace = place;
    Tell(active);
}

void PanelWindow::Tell(HWND window) {
    ::SendMessageW(window, WM_SETTINGCHANGE, SPI_SETSIPINFO, 0); // does nothing if it has gone
}

// --- Messages --------------------------------------------------------------------------------

LRESULT CALLBACK PanelWindow::WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    // An exception must not travel through the system's frames.
    try {
        return OfThisThread().OnMessage(window, message, wParam, lParam);
    } catch (CException* e) {
        e->Delete();
    } catch (...) { // memory has run out: the panel does without
    }
    if (message == WM_PAINT)
        ::ValidateRect(window, nullptr);
    return 0;
}

LRESULT PanelWindow::OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const POINT point = {static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
    switch (message) {
    case WM_MOUSEACTIVATE:
        return MA_NOACTIVATE;
    case AFX_WM_TABLET_QUERYSYSTEMGESTURESTATUS:
        return AFX_TABLET_DISABLE_PRESSANDHOLD; // a key that is held must know at once
    case WM_LBUTTONDOWN:
        OnPress(point);
        break;
    case WM_MOUSEMOVE:
        OnMove(point);
        break;
    case WM_LBUTTONUP:
        OnLift();
        break;
    case WM_CAPTURECHANGED:
        Release();
        break;
    case WM_TIMER:
        OnTimer(wParam);
        break;
    case WM_ERASEBKGND:
        return 1;
    case WM_PAINT:
        OnPaint();
        break;
    case WM_ANNOUNCE:
        Watch();
        break;
    case WM_DISPLAYCHANGE:
        if (m_shown)
            ShowAgain();
        break;
    case WM_CLOSE:
        Close();
        break;
    case WM_NCDESTROY:
        m_keyboard.Hide();
        *this = PanelWindow();
        [[fallthrough]];
    default:
        return ::DefWindowProcW(window, message, wParam, lParam);
    }
    return 0;
}

void PanelWindow::OnTimer(UINT_PTR timer) {
    switch (timer) {
    case kCloseTimer:
        Hide();
        break;
    case kWatchTimer:
        Watch();
        break;
    default:
        Repeat();
        break;
    }
}

void PanelWindow::OnPaint() {
    CPaintDC dc(CWnd::FromHandle(m_window));
    CRect client;
    ::GetClientRect(m_window, client);
    DrawPanel(dc, client.Size(), Keys(),
              {Page(), m_pressed, m_shift != Shift::Off, m_shift == Shift::Locked});
}
