#include "screens/SecondTap.h"

#include <cstdlib>

namespace {

bool IsPress(UINT nMessage) {
    return nMessage == WM_LBUTTONDOWN || nMessage == WM_LBUTTONDBLCLK || nMessage == WM_NCLBUTTONDOWN ||
           nMessage == WM_NCLBUTTONDBLCLK;
}

bool IsEnter(const MSG& msg) {
    return msg.message == WM_KEYDOWN && msg.wParam == VK_RETURN;
}

bool IsHeldDown(const MSG& msg) {
    constexpr LPARAM kWasDown = 1 << 30;
    return IsEnter(msg) && (msg.lParam & kWasDown) != 0;
}

/// Icon buttons are none: those that change a scale or a toggle may be tapped as quickly as one likes.
bool IsPushButton(HWND hWnd) {
    return (::SendMessage(hWnd, WM_GETDLGCODE, 0, 0) & (DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON)) != 0;
}

bool IsNear(const MSG& msg, CPoint place) {
    constexpr int kHalfButton = 14; // pixels
    const CSize way = CPoint(msg.pt) - place;
    const int nMost = AfxScale(msg.hwnd, kHalfButton);
    return std::abs(way.cx) <= nMost && std::abs(way.cy) <= nMost;
}

} // namespace

CSecondTapFilter::CSecondTapFilter()
    : m_hHook(::SetWindowsHookEx(WH_GETMESSAGE, OnMessage, nullptr, ::GetCurrentThreadId())) {
    s_pFilter = this;
}

CSecondTapFilter::~CSecondTapFilter() {
    s_pFilter = nullptr;
    if (m_hHook != nullptr)
        ::UnhookWindowsHookEx(m_hHook);
}

LRESULT CALLBACK CSecondTapFilter::OnMessage(int nCode, WPARAM wParam, LPARAM lParam) {
    CSecondTapFilter* const pFilter = s_pFilter;
    MSG& msg = *reinterpret_cast<MSG*>(lParam);
    if (nCode == HC_ACTION && (wParam & PM_REMOVE) != 0 && pFilter != nullptr) {
        const bool bSecond = IsPress(msg.message) ? pFilter->IsSecond(msg, msg.hwnd, pFilter->m_press)
                             : IsEnter(msg)
                                 ? pFilter->IsSecond(msg, ::GetAncestor(msg.hwnd, GA_ROOT), pFilter->m_enter)
                                 : false;
        if (bSecond)
            msg.message = WM_NULL;
    }
    return ::CallNextHookEx(nullptr, nCode, wParam, lParam);
}

/// @param hWnd what the tap is for
/// @param last receives a tap that counts
bool CSecondTapFilter::IsSecond(const MSG& msg, HWND hWnd, CTap& last) const {
    const bool bQuick =
        last.hWnd != nullptr && (IsHeldDown(msg) || msg.time - last.dwTime <= ::GetDoubleClickTime());
    const bool bNear = IsEnter(msg) || IsNear(msg, last.place);
    if (bQuick && bNear && (hWnd != last.hWnd || IsPushButton(msg.hwnd)))
        return true;
    last = {hWnd, msg.pt, msg.time};
    return false;
}
