#include "Rooms.h"

#include "Sip.h"
#include "window/WndProc.h"

#include "afxdlgs.h"

#include <algorithm>

using namespace fieldkit::detail;

namespace {

bool IsTopLevelDialog(HWND hWnd) {
    return hWnd != nullptr && !(::GetWindowLongPtr(hWnd, GWL_STYLE) & WS_CHILD) &&
           ::GetClassLongPtr(hWnd, GCW_ATOM) == reinterpret_cast<ULONG_PTR>(WC_DIALOG);
}

/// The panel's place, if it is shown.
class CPanelPlace {
public:
    CPanelPlace() : m_bShown(CSip::IsShown(&m_rect)) {}
    operator const CRect*() const { return m_bShown ? &m_rect : nullptr; }

private:
    CRect m_rect;
    bool m_bShown;
};

/// A popup that is higher than its screen. The system's own dialogs are left alone.
bool IsTooHigh(CWnd* pWnd) {
    if (!IsTopLevelDialog(pWnd->m_hWnd) || (AfxWndAccess::Flags(pWnd) & WF_FULLSCREEN) != 0 ||
        dynamic_cast<CDialog*>(pWnd) == nullptr || dynamic_cast<CCommonDialog*>(pWnd) != nullptr)
        return false;
    CRect window;
    pWnd->GetWindowRect(window);
    return window.Height() > AfxGetWorkArea(pWnd->m_hWnd).Height();
}

void Move(const CRoom::CMoves& moves) {
    for (const CRoom::CMove& move : moves) {
        CRect now;
        ::GetWindowRect(move.hWnd, now);
        CSize size = move.place.Size();
        UINT nFlags = SWP_NOZORDER | SWP_NOACTIVATE;
        if (size == now.Size())
            nFlags |= SWP_NOSIZE;
        // The height of a combo box is that with its list.
        CRect dropped;
        if (::SendMessage(move.hWnd, CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&dropped)))
            size.cy = dropped.Height();
        // Controls may lie on one another (group boxes): their pictures cannot simply be copied.
        if (::GetWindowLongPtr(move.hWnd, GWL_STYLE) & WS_CHILD)
            nFlags |= SWP_NOCOPYBITS;
        ::SetWindowPos(move.hWnd, nullptr, move.place.left, move.place.top, size.cx, size.cy, nFlags);
    }
}

} // namespace

BOOL AFXAPI AfxAnchorControl(HWND hWndControl, const AFX_ANCHOR& anchor) {
    const HWND hParent = ::GetAncestor(hWndControl, GA_PARENT);
    if (hParent == nullptr || hParent == ::GetDesktopWindow())
        return FALSE;
    CRooms::Anchor(hWndControl, anchor);
    return TRUE;
}

CRooms& CRooms::OfThread() {
    std::shared_ptr<void>& pShell = CThreadState::Get().m_pShell;
    if (pShell == nullptr)
        pShell = std::make_shared<CRooms>();
    return *static_cast<CRooms*>(pShell.get());
}

BOOL CRooms::OnMessage(CWnd* pWnd, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_SIZE:
        if (wParam != SIZE_MINIMIZED)
            OnSize(pWnd->m_hWnd);
        return FALSE;
    case WM_SHOWWINDOW: // by then an application has given it its size
        if (wParam != 0 && lParam == 0 && IsTooHigh(pWnd))
            FitPopup(pWnd);
        return FALSE;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
    case WM_MOUSEMOVE:
    case WM_LBUTTONUP:
    case WM_CAPTURECHANGED:
        if (CThreadState::Get().m_pShell != nullptr)
            OnPen(pWnd->m_hWnd, message, static_cast<short>(HIWORD(lParam)));
        return FALSE;
    case WM_VSCROLL:
        return lParam != 0 && OnScroll(pWnd->m_hWnd, LOWORD(wParam), reinterpret_cast<HWND>(lParam));
    case WM_SETTINGCHANGE:
        if (wParam == SPI_SETSIPINFO && IsTopLevelDialog(pWnd->m_hWnd)) {
            OfThread().Add(pWnd->m_hWnd);
            OfThread().FollowLater();
        }
        return FALSE;
    case WM_NCDESTROY:
        if (CThreadState::Get().m_pShell != nullptr)
            OfThread().Remove(pWnd->m_hWnd);
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

CRoom* CRooms::Find(HWND hWnd) {
    const auto it = std::find_if(m_rooms.begin(), m_rooms.end(),
                                 [hWnd](const CRoom& room) { return room.GetWindow() == hWnd; });
    return it != m_rooms.end() ? &*it : nullptr;
}

CRoom& CRooms::Add(HWND hWnd) {
    CRoom* const pRoom = Find(hWnd);
    return pRoom != nullptr ? *pRoom : m_rooms.emplace_back(hWnd);
}

void CRooms::CutOff(HWND hWnd) {
    if (CRoom* const pRoom = Find(hWnd))
        pRoom->CutOff();
}

void CRooms::Remove(HWND hWnd) {
    m_pen.End(hWnd);
    std::erase_if(m_rooms, [hWnd](const CRoom& room) { return room.GetWindow() == hWnd; });
}

// --- The size of the dialog ------------------------------------------------------------------

/// A dialog that is just being made gets its controls and its size bit by bit: what is too high
/// for the screen shows in the end.
void CRooms::OnSize(HWND hWnd) {
    const bool bKnown = CThreadState::Get().m_pShell != nullptr && OfThread().Find(hWnd) != nullptr;
    if (!bKnown && !CRoom(hWnd).MustScroll())
        return;
    OfThread().FollowLater();
    Move(OfThread().Add(hWnd).Plan(CPanelPlace()));
    OfThread().CutOff(hWnd);
}

BOOL CRooms::OnScroll(HWND hWnd, UINT nCode, HWND hBar) {
    if (CThreadState::Get().m_pShell == nullptr)
        return FALSE;
    CRoom* const pRoom = OfThread().Find(hWnd);
    if (pRoom == nullptr || !pRoom->HasBar(hBar))
        return FALSE;
    Move(pRoom->Scroll(nCode, CPanelPlace()));
    OfThread().CutOff(hWnd);
    return TRUE;
}

/// A program that handles these messages has the pen for itself if it does not hand them on, or has
/// taken the capture before it does.
void CRooms::OnPen(HWND hWnd, UINT message, int nY) {
    CRooms& rooms = OfThread();
    switch (message) {
    case WM_LBUTTONUP:
    case WM_CAPTURECHANGED:
        rooms.m_pen.End(hWnd);
        break;
    case WM_MOUSEMOVE:
        if (const std::optional<int> pos = rooms.m_pen.Move(hWnd, nY)) {
            Move(rooms.Add(hWnd).ScrollTo(*pos, CPanelPlace()));
            OfThread().CutOff(hWnd);
        }
        break;
    default:
        const CRoom* const pRoom = rooms.Find(hWnd);
        if (pRoom != nullptr && pRoom->IsScrolling() && ::GetCapture() == nullptr)
            rooms.m_pen.Press(hWnd, nY, pRoom->GetScroll(), OnPenTimer);
    }
}

void CALLBACK CRooms::OnPenTimer(HWND, UINT, UINT_PTR, DWORD) {
    OfThread().m_pen.Watch();
}

void CRooms::FitPopup(CWnd* pWnd) {
    const HWND hWnd = pWnd->m_hWnd;
    const CRect area = AfxGetWorkArea(hWnd);
    CRect now;
    pWnd->GetWindowRect(now);
    const bool bCut = IsTooHigh(pWnd) || WholeSize(hWnd).cy != 0;
    const CSize size = bCut ? OfThread().Add(hWnd).SizeIn(area) : now.Size();
    const CPoint place(std::max(std::min(now.left, area.right - size.cx), area.left),
                       std::max(std::min(now.top, area.bottom - size.cy), area.top));
    if (CRect(place, size) != now)
        pWnd->SetWindowPos(nullptr, place.x, place.y, size.cx, size.cy, SWP_NOZORDER | SWP_NOACTIVATE);
}

CSize CRooms::WholeSize(HWND hWnd) {
    const CRoom* const pRoom = CThreadState::Get().m_pShell != nullptr ? OfThread().Find(hWnd) : nullptr;
    return pRoom != nullptr ? pRoom->GetWholeSize() : CSize();
}

void CRooms::Anchor(HWND hControl, const AFX_ANCHOR& anchor) {
    const HWND hParent = ::GetAncestor(hControl, GA_PARENT);
    if (OfThread().Add(hParent).IsAnchored(hControl))
        Settle(hParent);
    CRoom& room = OfThread().Add(hParent);
    room.Anchor(hControl, anchor);
    Move(room.Plan(CPanelPlace()));
    OfThread().CutOff(hParent);
}

void CRooms::Settle(HWND hWnd) {
    CRoom::CMoves moves;
    for (CRoom& room : OfThread().m_rooms)
        if (room.GetWindow() == hWnd || ::IsChild(hWnd, room.GetWindow())) {
            const CRoom::CMoves plan = room.Settle();
            moves.insert(moves.end(), plan.begin(), plan.end());
        }
    Move(moves);
}

HFONT CRooms::FontOf(HWND hDialog) {
    const CRoom* const pRoom = OfThread().Find(hDialog);
    const HFONT hOwn = pRoom != nullptr ? pRoom->GetFont() : nullptr;
    return hOwn != nullptr ? hOwn : reinterpret_cast<HFONT>(::SendMessage(hDialog, WM_GETFONT, 0, 0));
}

void CRooms::SetResolution(HWND hDialog, int nOld, int nNew, std::unique_ptr<CFont> pFont) {
    OfThread().Add(hDialog).SetResolution(nOld, nNew, std::move(pFont));
}

// --- Following the panel and the focus -----------------------------------------------------------

void CRooms::FollowLater() {
    if (m_nTimer == 0)
        m_nTimer = ::SetTimer(nullptr, 0, USER_TIMER_MINIMUM, OnTimer);
}

void CALLBACK CRooms::OnTimer(HWND, UINT, UINT_PTR, DWORD) {
    if (::GetCapture() == nullptr)
        AfxCallGuarded({}, [] {
            OfThread().Follow();
            return 0;
        });
}

void CRooms::Follow() {
    ::KillTimer(nullptr, m_nTimer);
    m_nTimer = 0;
    const CPanelPlace panel;
    // The system's own boxes do not tell that they come, nor that they go.
    const HWND hActive = ::GetActiveWindow();
    if (panel != nullptr && IsTopLevelDialog(hActive) && CWnd::FromHandlePermanent(hActive) == nullptr)
        Add(hActive);
    std::erase_if(m_rooms, [](const CRoom& room) { return !::IsWindow(room.GetWindow()); });
    CRoom::CMoves moves;
    for (CRoom& room : m_rooms) {
        const CRoom::CMoves plan = room.Plan(panel);
        moves.insert(moves.end(), plan.begin(), plan.end());
    }
    if (panel == nullptr)
        std::erase_if(m_rooms, [](const CRoom& room) { return room.IsIdle(); });
    const auto scrolls = [](const CRoom& room) { return room.IsScrolling(); };
    WatchFocus(!m_rooms.empty() &&
               (panel != nullptr || std::any_of(m_rooms.begin(), m_rooms.end(), scrolls)));
    std::vector<HWND> scrolling;
    for (const CRoom& room : m_rooms)
        if (room.IsScrolling())
            scrolling.push_back(room.GetWindow());
    Move(moves); // last: the application may do anything in between, close the dialog too
    for (const HWND hWnd : scrolling)
        OfThread().CutOff(hWnd);
}

LRESULT CALLBACK CRooms::FocusHook(int nCode, WPARAM wParam, LPARAM lParam) {
    if (nCode == HCBT_SETFOCUS)
        OfThread().FollowLater();
    return ::CallNextHookEx(nullptr, nCode, wParam, lParam);
}

void CRooms::WatchFocus(bool bWatch) {
    if (bWatch == (m_hFocusHook != nullptr))
        return;
    if (!bWatch)
        ::UnhookWindowsHookEx(m_hFocusHook);
    m_hFocusHook = bWatch ? ::SetWindowsHookEx(WH_CBT, FocusHook, nullptr, ::GetCurrentThreadId()) : nullptr;
}
