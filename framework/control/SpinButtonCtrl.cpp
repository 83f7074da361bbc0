#include "window/WndProc.h"
#include "afxcmn.h"

using namespace fieldkit::detail;

IMPLEMENT_DYNAMIC(CSpinButtonCtrl, CWnd)

BOOL CSpinButtonCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(UPDOWN_CLASS, nullptr, dwStyle, rect, pParentWnd, nID);
}

CWnd* CSpinButtonCtrl::SetBuddy(CWnd* pWndBuddy) {
    return CWnd::FromHandle(
        reinterpret_cast<HWND>(SendMessage(UDM_SETBUDDY, reinterpret_cast<WPARAM>(HandleOf(pWndBuddy)))));
}

CWnd* CSpinButtonCtrl::GetBuddy() const {
    return CWnd::FromHandle(reinterpret_cast<HWND>(SendMessage(UDM_GETBUDDY)));
}

void CSpinButtonCtrl::GetRange(int& lower, int& upper) const {
    const DWORD dwRange = GetRange();
    lower = static_cast<short>(HIWORD(dwRange));
    upper = static_cast<short>(LOWORD(dwRange));
}

void CSpinButtonCtrl::GetRange32(int& lower, int& upper) const {
    SendMessage(UDM_GETRANGE32, reinterpret_cast<WPARAM>(&lower), reinterpret_cast<LPARAM>(&upper));
}
