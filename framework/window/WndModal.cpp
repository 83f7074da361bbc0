// The message loop of modal windows, and the walk that offers each message to the
// windows above its target.
#include "WndProc.h"

#include <utility>

using namespace fieldkit::detail;

BOOL CWnd::PreTranslateMessage(MSG* pMsg) {
    if (m_nFlags & WF_TOOLTIPS)
        FilterToolTipMessage(pMsg);
    return FALSE;
}

BOOL CWnd::PreTranslateInput(LPMSG lpMsg) {
    const bool bKey = lpMsg->message >= WM_KEYFIRST && lpMsg->message <= WM_KEYLAST;
    const bool bMouse = lpMsg->message >= WM_MOUSEFIRST && lpMsg->message <= WM_MOUSELAST;
    return (bKey || bMouse) && IsDialogMessage(lpMsg);
}

BOOL CWnd::WalkPreTranslateTree(HWND hWndStop, MSG* pMsg) {
    for (HWND hWnd = pMsg->hwnd; hWnd != nullptr; hWnd = ::GetParent(hWnd)) {
        CWnd* pWnd = FromHandlePermanent(hWnd);
        if (pWnd != nullptr && pWnd->PreTranslateMessage(pMsg))
            return TRUE;
        if (hWnd == hWndStop)
            break;
    }
    return FALSE;
}

namespace {

bool QueueIsEmpty() {
    MSG msg;
    return !::PeekMessage(&msg, nullptr, 0, 0, PM_NOREMOVE);
}

} // namespace

int CWnd::RunModalLoop(DWORD dwFlags) {
    const CModalScope scope(this);
    CWinThread& thread = CThreadState::Get().PumpThread();
    const HWND hWnd = m_hWnd;
    const HWND hWndParent = ::GetParent(hWnd);
    bool bShow = (dwFlags & MLF_SHOWONIDLE) && !(m_nFlags & WF_SHOWSET) && !(GetStyle() & WS_VISIBLE);
    bool bIdle = true;
    LONG lIdle = 0;
    m_nModalResult = -1;
    m_nFlags |= WF_MODALLOOP | WF_CONTINUEMODAL;

    // Whatever is called may destroy the window, or even this object.
    const auto goesOn = [&] {
        return scope.IsAlive() && m_hWnd == hWnd && ::IsWindow(hWnd) && ContinueModal();
    };
    const auto onIdle = [&] {
        if (std::exchange(bShow, false)) {
            ShowWindow(SW_SHOWNORMAL);
            ::UpdateWindow(hWnd);
        }
        if (!(dwFlags & MLF_NOIDLEMSG) && hWndParent != nullptr && lIdle == 0)
            ::SendMessage(hWndParent, WM_ENTERIDLE, MSGF_DIALOGBOX, reinterpret_cast<LPARAM>(hWnd));
        bIdle = !(dwFlags & MLF_NOKICKIDLE) &&
                ::SendMessage(hWnd, WM_KICKIDLE, MSGF_DIALOGBOX, static_cast<LPARAM>(lIdle++)) != 0;
        CThreadState::Get().DeleteTemporaries();
    };

    while (goesOn()) {
        if (bIdle && QueueIsEmpty()) {
            onIdle();
            continue;
        }
        if (!thread.PumpMessage()) { // WM_QUIT: end this loop, and let the outer ones see it too
            AfxPostQuitMessage(static_cast<int>(thread.m_msgCur.wParam));
            break;
        }
        if (thread.IsIdleMessage(&thread.m_msgCur)) {
            bIdle = true;
            lIdle = 0;
        }
    }
    if (!scope.IsAlive())
        return -1;
    m_nFlags &= ~static_cast<UINT>(WF_MODALLOOP | WF_CONTINUEMODAL);
    return m_nModalResult;
}

BOOL CWnd::ContinueModal() {
    return (m_nFlags & WF_CONTINUEMODAL) != 0;
}

void CWnd::EndModalLoop(int nResult) {
    m_nModalResult = nResult;
    if (m_nFlags & WF_CONTINUEMODAL) {
        m_nFlags &= ~static_cast<UINT>(WF_CONTINUEMODAL);
        PostMessage(WM_NULL); // wakes the loop
    }
}
