#include "SipRooms.h"

#include "Sip.h"
#include "window/ThreadState.h"

#include <algorithm>

using namespace fieldkit::detail;

namespace {

bool IsTopLevelDialog(HWND hWnd) {
    return !(::GetWindowLongPtr(hWnd, GWL_STYLE) & WS_CHILD) &&
           ::GetClassLongPtr(hWnd, GCW_ATOM) == reinterpret_cast<ULONG_PTR>(WC_DIALOG);
}

void Move(const std::vector<CSipRoom::CMove>& moves) {
    for (const CSipRoom::CMove& move : moves) {
        // Controls may lie on one another (group boxes): their pictures cannot simply be copied.
        const bool bChild = (::GetWindowLongPtr(move.hWnd, GWL_STYLE) & WS_CHILD) != 0;
        ::SetWindowPos(move.hWnd, nullptr, move.place.x, move.place.y, 0, 0,
                       SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | (bChild ? SWP_NOCOPYBITS : 0U));
    }
}

} // namespace

CSipRooms* CSipRooms::OfThread() {
    return static_cast<CSipRooms*>(CThreadState::Get().m_pShell.get());
}

BOOL CSipRooms::OnMessage(CWnd* pWnd, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_SETTINGCHANGE:
        if (wParam == SPI_SETSIPINFO && IsTopLevelDialog(pWnd->m_hWnd))
            Add(pWnd->m_hWnd);
        return FALSE;
    case WM_NCDESTROY:
        if (CSipRooms* pRooms = OfThread())
            pRooms->Remove(pWnd->m_hWnd);
        return FALSE;
    case WM_SETCURSOR: {
        const bool bRefused =
            LOWORD(lParam) == static_cast<WORD>(HTERROR) && HIWORD(lParam) == WM_LBUTTONDOWN;
        return bRefused && CSip::OnPressWhileDisabled(pWnd->m_hWnd);
    }
    default:
        return FALSE;
    }
}

void CSipRooms::Add(HWND hWnd) {
    if (OfThread() == nullptr)
        CThreadState::Get().m_pShell = std::make_shared<CSipRooms>();
    CSipRooms& rooms = *OfThread();
    const auto isItsOwn = [hWnd](const CSipRoom& room) { return room.GetWindow() == hWnd; };
    if (std::none_of(rooms.m_rooms.begin(), rooms.m_rooms.end(), isItsOwn))
        rooms.m_rooms.emplace_back(hWnd);
    rooms.FollowLater();
}

void CSipRooms::Remove(HWND hWnd) {
    std::erase_if(m_rooms, [hWnd](const CSipRoom& room) { return room.GetWindow() == hWnd; });
}

// --- Following the panel and the focus -----------------------------------------------------------

void CSipRooms::FollowLater() {
    if (m_nTimer == 0)
        m_nTimer = ::SetTimer(nullptr, 0, USER_TIMER_MINIMUM, OnTimer);
}

void CALLBACK CSipRooms::OnTimer(HWND, UINT, UINT_PTR, DWORD) {
    if (::GetCapture() == nullptr)
        AfxCallGuarded({}, [] {
            OfThread()->Follow();
            return 0;
        });
}

void CSipRooms::Follow() {
    ::KillTimer(nullptr, m_nTimer);
    m_nTimer = 0;
    CRect panel;
    const bool bShown = CSip::IsShown(&panel);
    std::vector<CSipRoom::CMove> moves;
    for (CSipRoom& room : m_rooms) {
        const std::vector<CSipRoom::CMove> plan = room.Plan(bShown ? &panel : nullptr);
        moves.insert(moves.end(), plan.begin(), plan.end());
    }
    if (!bShown)
        m_rooms.clear();
    WatchFocus(!m_rooms.empty());
    Move(moves); // last: the application may do anything in between, close the dialog too
}

LRESULT CALLBACK CSipRooms::FocusHook(int nCode, WPARAM wParam, LPARAM lParam) {
    if (nCode == HCBT_SETFOCUS)
        OfThread()->FollowLater();
    return ::CallNextHookEx(nullptr, nCode, wParam, lParam);
}

void CSipRooms::WatchFocus(bool bWatch) {
    if (bWatch == (m_hFocusHook != nullptr))
        return;
    if (!bWatch)
        ::UnhookWindowsHookEx(m_hFocusHook);
    m_hFocusHook = bWatch ? ::SetWindowsHookEx(WH_CBT, FocusHook, nullptr, ::GetCurrentThreadId()) : nullptr;
}
