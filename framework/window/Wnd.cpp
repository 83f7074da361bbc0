// CWnd: state, text, relations and messages; thin over the system's functions.
#include "Resources.h"
#include "WndProc.h"
#include "WndShell.h"

using namespace fieldkit::detail;

IMPLEMENT_DYNCREATE(CWnd, CCmdTarget)

// The compiler would drop the test for a null object as impossible; the framework's
// sources are built with -fno-delete-null-pointer-checks for this one function.
HWND CWnd::GetSafeHwnd() const {
    return this != nullptr ? m_hWnd : nullptr;
}

namespace {

/// Never destroyed: it has no window to be destroyed with it.
const CWnd& PlaceInOrder(HWND hWnd) {
    auto* pWnd = new CWnd;
    pWnd->m_hWnd = hWnd;
    return *pWnd;
}

} // namespace

const CWnd& CWnd::wndTop = PlaceInOrder(HWND_TOP);
const CWnd& CWnd::wndBottom = PlaceInOrder(HWND_BOTTOM);
const CWnd& CWnd::wndTopMost = PlaceInOrder(HWND_TOPMOST);
const CWnd& CWnd::wndNoTopMost = PlaceInOrder(HWND_NOTOPMOST);

// --- Style and state -----------------------------------------------------------------------

DWORD CWnd::GetStyle() const {
    return static_cast<DWORD>(::GetWindowLong(m_hWnd, GWL_STYLE));
}

DWORD CWnd::GetExStyle() const {
    const auto dwStyle = static_cast<DWORD>(::GetWindowLong(m_hWnd, GWL_EXSTYLE));
    return (m_nFlags & WF_OKBUTTON) ? dwStyle | WS_EX_CAPTIONOKBTN : dwStyle;
}

namespace {

BOOL ModifyWindowLong(HWND hWnd, int nIndex, DWORD dwRemove, DWORD dwAdd, UINT nFlags) {
    const auto dwOld = static_cast<DWORD>(::GetWindowLong(hWnd, nIndex));
    const DWORD dwNew = (dwOld & ~dwRemove) | dwAdd;
    if (dwNew == dwOld)
        return FALSE;
    ::SetWindowLong(hWnd, nIndex, static_cast<LONG>(dwNew));
    if (nFlags != 0)
        ::SetWindowPos(hWnd, nullptr, 0, 0, 0, 0,
                       SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED | nFlags);
    return TRUE;
}

} // namespace

BOOL CWnd::ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags) {
    return ModifyWindowLong(m_hWnd, GWL_STYLE, dwRemove, dwAdd, nFlags);
}

BOOL AFXAPI CWnd::ModifyStyle(HWND hWnd, DWORD dwRemove, DWORD dwAdd, UINT nFlags) {
    return ModifyWindowLong(hWnd, GWL_STYLE, dwRemove, dwAdd, nFlags);
}

BOOL AFXAPI CWnd::ModifyStyleEx(HWND hWnd, DWORD dwRemove, DWORD dwAdd, UINT nFlags) {
    return ModifyWindowLong(hWnd, GWL_EXSTYLE, dwRemove, dwAdd, nFlags);
}

BOOL CWnd::ModifyStyleEx(DWORD dwRemove, DWORD dwAdd, UINT nFlags) {
    const bool bHad = (m_nFlags & WF_OKBUTTON) != 0;
    const bool bWants = (bHad && !(dwRemove & WS_EX_CAPTIONOKBTN)) || (dwAdd & WS_EX_CAPTIONOKBTN);
    if (bHad != bWants)
        g_wndShell.pfnShowOkButton(this, bWants);
    const BOOL bChanged = ModifyWindowLong(m_hWnd, GWL_EXSTYLE, dwRemove & ~WS_EX_CAPTIONOKBTN,
                                           dwAdd & ~WS_EX_CAPTIONOKBTN, nFlags);
    return bChanged || bHad != bWants;
}

BOOL CWnd::EnableWindow(BOOL bEnable) {
    return ::EnableWindow(m_hWnd, bEnable);
}
BOOL CWnd::IsWindowEnabled() const {
    return ::IsWindowEnabled(m_hWnd);
}
BOOL CWnd::ShowWindow(int nCmdShow) {
    m_nFlags |= WF_SHOWSET;
    return ::ShowWindow(m_hWnd, nCmdShow);
}
BOOL CWnd::IsWindowVisible() const {
    return ::IsWindowVisible(m_hWnd);
}
BOOL CWnd::IsIconic() const {
    return ::IsIconic(m_hWnd);
}
BOOL CWnd::IsZoomed() const {
    return ::IsZoomed(m_hWnd);
}
int CWnd::GetDlgCtrlID() const {
    return ::GetDlgCtrlID(m_hWnd);
}
int CWnd::SetDlgCtrlID(int nID) {
    return static_cast<int>(::SetWindowLongPtr(m_hWnd, GWLP_ID, nID));
}

HICON CWnd::SetIcon(HICON hIcon, BOOL bBigIcon) {
    return reinterpret_cast<HICON>(
        SendMessage(WM_SETICON, static_cast<WPARAM>(bBigIcon), reinterpret_cast<LPARAM>(hIcon)));
}
HICON CWnd::GetIcon(BOOL bBigIcon) const {
    return reinterpret_cast<HICON>(SendMessage(WM_GETICON, static_cast<WPARAM>(bBigIcon)));
}

// --- Text and font -------------------------------------------------------------------------

void CWnd::SetWindowText(LPCTSTR lpszString) {
    ::SetWindowText(m_hWnd, lpszString);
}
int CWnd::GetWindowText(LPTSTR lpszString, int nMaxCount) const {
    return ::GetWindowText(m_hWnd, lpszString, nMaxCount);
}
void CWnd::GetWindowText(CString& rString) const {
    const int nLength = GetWindowTextLength();
    ::GetWindowText(m_hWnd, rString.GetBuffer(nLength), nLength + 1);
    rString.ReleaseBuffer();
}
int CWnd::GetWindowTextLength() const {
    return ::GetWindowTextLength(m_hWnd);
}
void CWnd::SetFont(CFont* pFont, BOOL bRedraw) {
    const HGDIOBJ hFont = pFont != nullptr ? pFont->m_hObject : nullptr;
    SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(hFont), bRedraw);
}
CFont* CWnd::GetFont() const {
    return CFont::FromHandle(reinterpret_cast<HFONT>(SendMessage(WM_GETFONT)));
}

// --- Relations -----------------------------------------------------------------------------

CWnd* CWnd::GetParent() const {
    return FromHandle(::GetParent(m_hWnd));
}
CWnd* CWnd::SetParent(CWnd* pWndNewParent) {
    return FromHandle(::SetParent(m_hWnd, HandleOf(pWndNewParent)));
}
CWnd* CWnd::GetOwner() const {
    return m_hWndOwner != nullptr ? FromHandle(m_hWndOwner) : GetParent();
}
void CWnd::SetOwner(CWnd* pOwnerWnd) {
    m_hWndOwner = HandleOf(pOwnerWnd);
}
CWnd* CWnd::GetTopLevelParent() const {
    return FromHandle(::GetAncestor(m_hWnd, GA_ROOT));
}
CWnd* CWnd::GetDlgItem(int nID) const {
    return FromHandle(::GetDlgItem(m_hWnd, nID));
}
void CWnd::GetDlgItem(int nID, HWND* phWnd) const {
    *phWnd = ::GetDlgItem(m_hWnd, nID);
}
CWnd* CWnd::GetWindow(UINT nCmd) const {
    return FromHandle(::GetWindow(m_hWnd, nCmd));
}
CWnd* CWnd::GetNextDlgTabItem(CWnd* pWndCtl, BOOL bPrevious) const {
    return FromHandle(::GetNextDlgTabItem(m_hWnd, HandleOf(pWndCtl), bPrevious));
}
BOOL CWnd::IsChild(const CWnd* pWnd) const {
    return ::IsChild(m_hWnd, HandleOf(pWnd));
}
CWnd* CWnd::GetActiveWindow() {
    return FromHandle(::GetActiveWindow());
}
CWnd* CWnd::SetActiveWindow() {
    return FromHandle(::SetActiveWindow(m_hWnd));
}
CWnd* CWnd::GetForegroundWindow() {
    return FromHandle(::GetForegroundWindow());
}
BOOL CWnd::SetForegroundWindow() {
    return ::SetForegroundWindow(m_hWnd);
}
CWnd* CWnd::GetFocus() {
    return FromHandle(::GetFocus());
}
CWnd* CWnd::SetFocus() {
    return FromHandle(::SetFocus(m_hWnd));
}
CWnd* CWnd::GetCapture() {
    return FromHandle(::GetCapture());
}
CWnd* CWnd::SetCapture() {
    return FromHandle(::SetCapture(m_hWnd));
}
CWnd* CWnd::GetDesktopWindow() {
    return FromHandle(::GetDesktopWindow());
}
CWnd* CWnd::WindowFromPoint(POINT point) {
    return FromHandle(::WindowFromPoint(point));
}

CWnd* CWnd::GetSafeOwner(CWnd* pParent, HWND* pWndTop) {
    CWnd* pStart = pParent != nullptr ? pParent : AfxGetMainWnd();
    HWND hWnd = HandleOf(pStart);
    while (hWnd != nullptr && (::GetWindowLong(hWnd, GWL_STYLE) & WS_CHILD))
        hWnd = ::GetParent(hWnd);
    HWND hWndTop = hWnd;
    for (HWND h = hWnd; h != nullptr; h = ::GetParent(h))
        hWndTop = h;
    // A dialog that names no parent belongs above the dialog that is open already.
    if (pParent == nullptr && hWnd != nullptr)
        hWnd = ::GetLastActivePopup(hWnd);
    if (pWndTop != nullptr) {
        const bool bDisable = hWndTop != nullptr && hWndTop != hWnd && ::IsWindowEnabled(hWndTop);
        *pWndTop = bDisable ? hWndTop : nullptr;
        if (bDisable)
            ::EnableWindow(hWndTop, FALSE);
    }
    return FromHandle(hWnd);
}

// --- Messages ------------------------------------------------------------------------------

LRESULT CWnd::SendMessage(UINT message, WPARAM wParam, LPARAM lParam) const {
    return ::SendMessage(m_hWnd, message, wParam, lParam);
}
BOOL CWnd::PostMessage(UINT message, WPARAM wParam, LPARAM lParam) const {
    return ::PostMessage(m_hWnd, message, wParam, lParam);
}
void CWnd::SendMessageToDescendants(UINT message, WPARAM wParam, LPARAM lParam, BOOL bDeep) {
    for (HWND h = ::GetTopWindow(m_hWnd); h != nullptr; h = ::GetNextWindow(h, GW_HWNDNEXT)) {
        ::SendMessage(h, message, wParam, lParam);
        if (bDeep && ::GetTopWindow(h) != nullptr)
            FromHandle(h)->SendMessageToDescendants(message, wParam, lParam, bDeep);
    }
}
UINT_PTR CWnd::SetTimer(UINT_PTR nIDEvent, UINT nElapse, TIMERPROC lpfnTimer) {
    return ::SetTimer(m_hWnd, nIDEvent, nElapse, lpfnTimer);
}
BOOL CWnd::KillTimer(UINT_PTR nIDEvent) {
    return ::KillTimer(m_hWnd, nIDEvent);
}
int CWnd::MessageBox(LPCTSTR lpszText, LPCTSTR lpszCaption, UINT nType) {
    return ::MessageBoxEx(GetSafeHwnd(), lpszText, lpszCaption != nullptr ? lpszCaption : AfxGetAppName(),
                          nType, AfxChosenLanguage());
}
