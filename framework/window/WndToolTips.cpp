// The tips that the framework shows for a window by itself (EnableToolTips): one control a thread,
// which knows the one tool that the pen is on.
#include "WndProc.h"

using namespace fieldkit::detail;

namespace {

TOOLINFO EmptyTool() {
    TOOLINFO tool = {};
    tool.cbSize = TTTOOLINFOW_V2_SIZE; // what the system's controls of any version take
    return tool;
}

/// The thread's tip; it goes with the top-level window that it was made for.
HWND TipFor(HWND hWnd) {
    HWND& hTip = CThreadState::Get().m_hToolTip;
    const HWND hOwner = ::GetAncestor(hWnd, GA_ROOT);
    if (hTip != nullptr && ::IsWindow(hTip) && ::GetWindow(hTip, GW_OWNER) == hOwner)
        return hTip;
    if (hTip != nullptr)
        ::DestroyWindow(hTip);
    hTip = ::CreateWindowEx(WS_EX_TOPMOST, TOOLTIPS_CLASS, nullptr, WS_POPUP | TTS_NOPREFIX, 0, 0, 0, 0,
                            hOwner, nullptr, AfxGetInstanceHandle(), nullptr);
    return hTip;
}

bool IsSameTool(const TOOLINFO& a, const TOOLINFO& b) {
    return a.hwnd == b.hwnd && a.uId == b.uId;
}

} // namespace

BOOL CWnd::EnableToolTips(BOOL bEnable) {
    if (bEnable)
        m_nFlags |= WF_TOOLTIPS;
    else
        m_nFlags &= ~static_cast<UINT>(WF_TOOLTIPS);
    return TRUE;
}

INT_PTR CWnd::OnToolHitTest(CPoint point, TOOLINFO* pTI) const {
    const HWND hChild = ::ChildWindowFromPointEx(m_hWnd, point, CWP_SKIPINVISIBLE);
    if (hChild == nullptr || hChild == m_hWnd)
        return -1;
    if (pTI != nullptr) {
        pTI->hwnd = m_hWnd;
        pTI->uId = reinterpret_cast<UINT_PTR>(hChild);
        pTI->uFlags |= TTF_IDISHWND;
        pTI->lpszText = LPSTR_TEXTCALLBACK;
    }
    return ::GetDlgCtrlID(hChild);
}

void CWnd::FilterToolTipMessage(MSG* pMsg) {
    if (pMsg->message < WM_MOUSEFIRST || pMsg->message > WM_MOUSELAST)
        return;
    CPoint point(pMsg->pt);
    ScreenToClient(&point);
    TOOLINFO tool = EmptyTool();
    const INT_PTR nHit = OnToolHitTest(point, &tool);
    const HWND hTip = TipFor(m_hWnd);
    if (hTip == nullptr)
        return;
    TOOLINFO known = EmptyTool();
    const bool bKnown = AfxSendPointer(hTip, TTM_ENUMTOOLS, 0, &known) != 0;
    if (bKnown && nHit != -1 && IsSameTool(tool, known)) {
        AfxSendPointer(hTip, TTM_RELAYEVENT, 0, pMsg);
        return;
    }
    if (bKnown)
        AfxSendPointer(hTip, TTM_DELTOOL, 0, &known);
    if (nHit != -1) {
        AfxSendPointer(hTip, TTM_ADDTOOL, 0, &tool);
        AfxSendPointer(hTip, TTM_RELAYEVENT, 0, pMsg);
    }
}

void CWnd::CancelToolTips(BOOL) {
    const HWND hTip = CThreadState::Get().m_hToolTip;
    if (::IsWindow(hTip))
        ::SendMessage(hTip, TTM_POP, 0, 0);
}
