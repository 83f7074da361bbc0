#include "SipRoom.h"

#include "window/WndProc.h"

#include <algorithm>

using namespace fieldkit::detail;

namespace {

/// Pixels at AFX_DESIGN_DPI that stay free between the field and the panel.
constexpr int kMargin = 2;

CRect RectOf(HWND hWnd) {
    CRect rect;
    ::GetWindowRect(hWnd, rect);
    return rect;
}

CPoint PlaceOf(HWND hWnd) {
    CPoint place = RectOf(hWnd).TopLeft();
    ::MapWindowPoints(nullptr, ::GetAncestor(hWnd, GA_PARENT), &place, 1);
    return place;
}

int WorkAreaTop(HWND hWnd) {
    MONITORINFO info = {};
    info.cbSize = sizeof info;
    ::GetMonitorInfo(::MonitorFromWindow(hWnd, MONITOR_DEFAULTTONEAREST), &info);
    return info.rcWork.top;
}

bool IsFullScreen(HWND hWnd) {
    CWnd* pWnd = CWnd::FromHandlePermanent(hWnd);
    return pWnd != nullptr && (AfxWndAccess::Flags(pWnd) & WF_FULLSCREEN) != 0;
}

/// The entry field of a dialog that has the focus, or null.
HWND FocusedField(HWND hWndDialog) {
    const HWND hFocus = ::GetFocus();
    if (hFocus == nullptr || !::IsChild(hWndDialog, hFocus))
        return nullptr;
    const LRESULT lCode = ::SendMessage(hFocus, WM_GETDLGCODE, 0, 0);
    return (lCode & DLGC_HASSETSEL) != 0 ? hFocus : nullptr;
}

/// The control of the dialog itself that a window belongs to, at whatever depth.
HWND ControlOf(HWND hWndDialog, HWND hWnd) {
    for (HWND hParent = ::GetAncestor(hWnd, GA_PARENT); hParent != hWndDialog && hParent != nullptr;
         hParent = ::GetAncestor(hWnd, GA_PARENT))
        hWnd = hParent;
    return hWnd;
}

} // namespace

std::vector<CSipRoom::CMove> CSipRoom::Plan(const CRect* pPanel) {
    if (pPanel == nullptr)
        return Apply({0, 0});
    const HWND hWndField = FocusedField(m_hWnd);
    // While the pen is with a button or a list, the dialog had better stay where it is.
    return hWndField != nullptr ? Apply(ShiftFor(hWndField, *pPanel)) : std::vector<CMove>();
}

/// How far everything must be above its own place, as if nothing had been moved so far.
CSipRoom::CShift CSipRoom::ShiftFor(HWND hWndField, const CRect& panel) const {
    const int nDialogNow = ShiftOf(m_hWnd);
    CRect field = RectOf(hWndField);
    field.OffsetRect(0, nDialogNow + ShiftOf(ControlOf(m_hWnd, hWndField)));
    const int nCovered = field.bottom + AfxScale(m_hWnd, kMargin) - panel.top;
    if (nCovered <= 0)
        return {0, 0};

    CRect dialog = RectOf(m_hWnd);
    dialog.OffsetRect(0, nDialogNow);
    int nDialog = 0;
    if (!IsFullScreen(m_hWnd)) {
        // If there is room, the buttons below the field come clear as well.
        const int nWanted = std::max<int>(nCovered, dialog.bottom - panel.top);
        nDialog = std::clamp<int>(dialog.top - WorkAreaTop(m_hWnd), 0, nWanted);
    }
    // A field that is too high for the room shall at least show its first line.
    CPoint client(0, nDialogNow);
    ::ClientToScreen(m_hWnd, &client);
    const int nAboveField = std::max<int>(0, field.top - client.y);
    return {nDialog, std::clamp(nCovered - nDialog, 0, nAboveField)};
}

std::vector<CSipRoom::CMove> CSipRoom::Apply(CShift shift) {
    std::vector<CMove> moves;
    std::vector<CShifted> shifted;
    const auto put = [&](HWND hWnd, int nShift) {
        const CPoint now = PlaceOf(hWnd);
        const CPoint target(now.x, now.y + ShiftOf(hWnd) - nShift);
        if (nShift != 0)
            shifted.push_back({hWnd, target, nShift});
        if (target != now)
            moves.push_back({hWnd, target});
    };
    put(m_hWnd, shift.nDialog);
    for (HWND hChild = ::GetWindow(m_hWnd, GW_CHILD); hChild != nullptr;
         hChild = ::GetWindow(hChild, GW_HWNDNEXT))
        if (::GetDlgCtrlID(hChild) != static_cast<int>(AFX_IDW_TOOLBAR))
            put(hChild, shift.nControls);
    m_shifted = std::move(shifted);
    return moves;
}

/// What has been moved by someone else since has a new place of its own, and is not shifted.
int CSipRoom::ShiftOf(HWND hWnd) const {
    for (const CShifted& shifted : m_shifted)
        if (shifted.hWnd == hWnd)
            return PlaceOf(hWnd) == shifted.place ? shifted.nShift : 0;
    return 0;
}
