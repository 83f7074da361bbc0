// How a message finds its handler: the window's map, the control it came from, the
// parent's map.
#include "MessageMap.h"
#include "WndProc.h"
#include "WndShell.h"

using namespace fieldkit::detail;

namespace {

// The seven colour messages of controls are folded into one for the message maps.
bool IsColorMessage(UINT message) {
    return message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC;
}
// A list whose items are dragged tells its parent by a message of its own.
bool IsDragList(UINT message) {
    constexpr UINT kFirstRegistered = 0xC000;
    static const UINT nDragMessage = ::RegisterWindowMessage(DRAGLISTMSGSTRING);
    return message >= kFirstRegistered && message == nDragMessage;
}
AFX_CTLCOLOR ColorOf(UINT message, WPARAM wParam, LPARAM lParam) {
    return {reinterpret_cast<HDC>(wParam), reinterpret_cast<HWND>(lParam), message - WM_CTLCOLORMSGBOX};
}

} // namespace

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    LRESULT lResult = 0;
    if (!OnWndMsg(message, wParam, lParam, &lResult))
        lResult = DefWindowProc(message, wParam, lParam);
    return lResult;
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    LRESULT lResult = 0;
    if (g_wndShell.pfnOnMessage(this, message, wParam, lParam, &lResult))
        return lResult;
    return CallSuper(message, wParam, lParam);
}

LRESULT CWnd::CallSuper(UINT message, WPARAM wParam, LPARAM lParam) {
    const WNDPROC pfnSuper = *GetSuperWndProcAddr();
    // The usual case of a window of one's own; CallWindowProc takes longer.
    if (pfnSuper == nullptr || pfnSuper == &::DefWindowProc)
        return ::DefWindowProc(m_hWnd, message, wParam, lParam);
    return ::CallWindowProc(pfnSuper, m_hWnd, message, wParam, lParam);
}

MSG* CWnd::GetCurrentMessage() {
    return &CThreadState::Get().m_msgLast;
}

LRESULT CWndHandlers::Default() {
    const MSG msg = *CWnd::GetCurrentMessage();
    return static_cast<CWnd*>(this)->DefWindowProc(msg.message, msg.wParam, msg.lParam);
}

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (message == WM_COMMAND) {
        if (!OnCommand(wParam, lParam))
            return FALSE;
        *pResult = 1;
        return TRUE;
    }
    if (message == WM_NOTIFY) {
        // Not every notification has a header behind it: the system sends itself some.
        return lParam != 0 && OnNotify(wParam, lParam, pResult);
    }
    if (IsDragList(message))
        return ReflectLastMsg(::GetDlgItem(m_hWnd, static_cast<int>(wParam)), pResult);
    AFX_CTLCOLOR color;
    if (IsColorMessage(message)) {
        color = ColorOf(message, wParam, lParam);
        message = AFX_WM_CTLCOLOR;
        lParam = reinterpret_cast<LPARAM>(&color);
    }
    const AFX_MSGMAP_ENTRY* pEntry = FindMapEntry(GetMessageMap(), message);
    if (pEntry == nullptr)
        return FALSE;
    return pEntry->pfnDispatch(this, pEntry->pfn, {wParam, lParam, 0, pResult});
}

// --- Commands and notifications -----------------------------------------------------------

BOOL CWnd::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pInfo) {
    return CCmdTarget::OnCmdMsg(nID, nCode, pExtra, pInfo);
}

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam) {
    const UINT nID = LOWORD(wParam);
    const auto hWndCtrl = reinterpret_cast<HWND>(lParam);
    const CThreadState& state = CThreadState::Get();
    if (state.m_hLockoutNotifyWindow != nullptr && state.m_hLockoutNotifyWindow == m_hWnd)
        return TRUE; // data exchange is writing to the controls
    if (hWndCtrl == nullptr)
        return nID != 0 && OnCmdMsg(nID, CN_COMMAND, nullptr, nullptr);
    if (ReflectLastMsg(hWndCtrl))
        return TRUE;
    return nID != 0 && OnCmdMsg(nID, static_cast<int>(HIWORD(wParam)), nullptr, nullptr);
}

namespace {

/// The number of the control that a notification is from. All tips are 0: what they give is no number.
UINT SenderOf(const NMHDR& header) {
    if (header.code >= TTN_LAST && header.code <= TTN_FIRST)
        return 0;
    const int nID = ::GetDlgCtrlID(header.hwndFrom);
    return nID != 0 ? static_cast<UINT>(nID) : static_cast<UINT>(header.idFrom);
}

} // namespace

BOOL CWnd::OnNotify(WPARAM, LPARAM lParam, LRESULT* pResult) {
    auto* pNMHDR = reinterpret_cast<NMHDR*>(lParam);
    const CThreadState& state = CThreadState::Get();
    if (state.m_hLockoutNotifyWindow != nullptr && state.m_hLockoutNotifyWindow == m_hWnd)
        return TRUE;
    if (ReflectLastMsg(pNMHDR->hwndFrom, pResult))
        return TRUE;
    AFX_NOTIFY notify = {pResult, pNMHDR};
    return OnCmdMsg(SenderOf(*pNMHDR), static_cast<int>(pNMHDR->code), &notify, nullptr);
}

// --- Reflection ------------------------------------------------------------------------------

BOOL CWnd::ReflectLastMsg(HWND hWndChild, LRESULT* pResult) {
    const CThreadState& state = CThreadState::Get();
    CWnd* pWnd = state.m_windows.Permanent(hWndChild);
    const MSG& msg = state.m_msgLast;
    return pWnd != nullptr && pWnd->OnChildNotify(msg.message, msg.wParam, msg.lParam, pResult);
}

BOOL CWnd::SendChildNotifyLastMsg(LRESULT* pResult) {
    const MSG& msg = *GetCurrentMessage();
    return OnChildNotify(msg.message, msg.wParam, msg.lParam, pResult);
}

BOOL CWnd::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    return ReflectChildNotify(message, wParam, lParam, pResult);
}

BOOL CWnd::ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    LRESULT lResult = 0;
    LRESULT* const pOut = pResult != nullptr ? pResult : &lResult;
    int nCode = 0;
    AFX_CTLCOLOR color;
    if (message == WM_COMMAND) {
        nCode = HIWORD(wParam);
    } else if (message == WM_NOTIFY) {
        nCode = static_cast<int>(reinterpret_cast<NMHDR*>(lParam)->code);
    } else if (IsColorMessage(message)) {
        color = ColorOf(message, wParam, lParam);
        message = AFX_WM_CTLCOLOR;
        lParam = reinterpret_cast<LPARAM>(&color);
    }
    const AFX_MSGMAP_ENTRY* pEntry = FindMapEntry(GetMessageMap(), message + WM_REFLECT_BASE, nCode);
    return pEntry != nullptr && pEntry->pfnDispatch(this, pEntry->pfn, {wParam, lParam, 0, pOut});
}

// --- Handlers that ask the control first ----------------------------------------------------

HBRUSH CWnd::OnCtlColor(CDC*, CWnd* pWnd, UINT) {
    LRESULT lResult = 0;
    if (pWnd != nullptr && pWnd->SendChildNotifyLastMsg(&lResult))
        return reinterpret_cast<HBRUSH>(lResult);
    return reinterpret_cast<HBRUSH>(Default());
}

void CWnd::OnDrawItem(int, LPDRAWITEMSTRUCT lpDrawItemStruct) {
    if (lpDrawItemStruct->CtlType == ODT_MENU) {
        if (CMenu* pMenu = CMenu::FromHandle(reinterpret_cast<HMENU>(lpDrawItemStruct->hwndItem)))
            pMenu->DrawItem(lpDrawItemStruct);
    } else if (!ReflectLastMsg(lpDrawItemStruct->hwndItem)) {
        Default();
    }
}

void CWnd::OnMeasureItem(int nIDCtl, LPMEASUREITEMSTRUCT lpMeasureItemStruct) {
    if (lpMeasureItemStruct->CtlType == ODT_MENU) {
        // The item does not say which menu it is of.
        if (CMenu* pMenu = CThreadState::Get().FindMenuOf(lpMeasureItemStruct->itemID))
            pMenu->MeasureItem(lpMeasureItemStruct);
        return;
    }
    CWnd* pChild = FromHandlePermanent(::GetDlgItem(m_hWnd, nIDCtl));
    if (pChild == nullptr || !pChild->SendChildNotifyLastMsg())
        Default();
}

int CWnd::OnCompareItem(int, LPCOMPAREITEMSTRUCT lpCompareItemStruct) {
    LRESULT lResult = 0;
    if (ReflectLastMsg(lpCompareItemStruct->hwndItem, &lResult))
        return static_cast<int>(lResult);
    return DefaultAs<int>();
}

void CWnd::OnDeleteItem(int, LPDELETEITEMSTRUCT lpDeleteItemStruct) {
    if (!ReflectLastMsg(lpDeleteItemStruct->hwndItem))
        Default();
}

int CWnd::OnCharToItem(UINT, CListBox* pListBox, UINT) {
    LRESULT lResult = 0;
    if (pListBox != nullptr && pListBox->SendChildNotifyLastMsg(&lResult))
        return static_cast<int>(lResult);
    return DefaultAs<int>();
}

int CWnd::OnVKeyToItem(UINT nKey, CListBox* pListBox, UINT nIndex) {
    return CWnd::OnCharToItem(nKey, pListBox, nIndex);
}

void CWnd::OnParentNotify(UINT message, LPARAM lParam) {
    const bool bChild = message == WM_CREATE || message == WM_DESTROY; // otherwise lParam is a point
    if (!bChild || !ReflectLastMsg(reinterpret_cast<HWND>(lParam)))
        Default();
}

void CWnd::OnHScroll(UINT, UINT, CScrollBar* pScrollBar) {
    if (pScrollBar == nullptr || !pScrollBar->SendChildNotifyLastMsg())
        Default();
}

void CWnd::OnVScroll(UINT, UINT, CScrollBar* pScrollBar) {
    if (pScrollBar == nullptr || !pScrollBar->SendChildNotifyLastMsg())
        Default();
}

LRESULT CWnd::OnTabletQueryGesture(WPARAM, LPARAM lParam) {
    CPoint point(static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam)));
    ScreenToClient(&point);
    return static_cast<LRESULT>(GetGestureStatus(point));
}

ULONG CWnd::GetGestureStatus(CPoint) {
    return AFX_TABLET_DISABLE_PRESSANDHOLD;
}

// clang-format off
BEGIN_MESSAGE_MAP(CWnd, CCmdTarget)
    ON_WM_NCDESTROY()
    ON_WM_CTLCOLOR()
    ON_WM_DRAWITEM()
    ON_WM_MEASUREITEM()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    ON_WM_COMPAREITEM()
    ON_WM_DELETEITEM()
    ON_WM_CHARTOITEM()
    ON_WM_VKEYTOITEM()
    ON_WM_PARENTNOTIFY()
    ON_WM_INITMENUPOPUP()
    ON_MESSAGE(AFX_WM_TABLET_QUERYSYSTEMGESTURESTATUS, &CWnd::OnTabletQueryGesture)
END_MESSAGE_MAP()
// clang-format on
