#include "DialogKeys.h"

using namespace fieldkit::detail;

namespace {

DWORD StyleOf(HWND hWnd) {
    return static_cast<DWORD>(::GetWindowLongPtr(hWnd, GWL_STYLE));
}

bool TakesKeys(HWND hWnd) {
    return (StyleOf(hWnd) & (WS_VISIBLE | WS_DISABLED)) == WS_VISIBLE;
}

HWND DialogOf(HWND hWnd) {
    while (hWnd != nullptr && (StyleOf(hWnd) & WS_CHILD))
        hWnd = ::GetAncestor(hWnd, GA_PARENT);
    return hWnd;
}

/// The first tab stop below a window, or null.
HWND FirstTabStop(HWND hWnd) {
    for (HWND h = ::GetWindow(hWnd, GW_CHILD); h != nullptr; h = ::GetWindow(h, GW_HWNDNEXT)) {
        if (!TakesKeys(h))
            continue;
        if (::GetWindowLongPtr(h, GWL_EXSTYLE) & WS_EX_CONTROLPARENT) {
            if (const HWND hInside = FirstTabStop(h))
                return hInside;
        } else if (StyleOf(h) & WS_TABSTOP) {
            return h;
        }
    }
    return nullptr;
}

} // namespace

bool CDialogKeys::IsReachable(HWND hWnd) {
    while (hWnd != nullptr && (StyleOf(hWnd) & WS_CHILD)) {
        if (!TakesKeys(hWnd))
            return false;
        hWnd = ::GetAncestor(hWnd, GA_PARENT);
    }
    return true;
}

void CDialogKeys::FocusReachable(HWND hWndDialog) {
    const HWND hTabStop = FirstTabStop(hWndDialog);
    ::SetFocus(hTabStop != nullptr ? hTabStop : hWndDialog);
}

void CDialogKeys::Prepare(MSG* pMsg) {
    const bool bKey = pMsg->message >= WM_KEYFIRST && pMsg->message <= WM_KEYLAST;
    if (!bKey || IsReachable(pMsg->hwnd))
        return;
    const HWND hWndDialog = DialogOf(pMsg->hwnd);
    if (!IsReachable(::GetFocus()))
        FocusReachable(hWndDialog);
    const HWND hFocus = ::GetFocus();
    const bool bInside = ::IsChild(hWndDialog, hFocus) && IsReachable(hFocus);
    pMsg->hwnd = bInside ? hFocus : hWndDialog; // a handler may have put the focus back
}
