// CWndSystem: what needs other objects of the framework.
#include "WndProc.h"

#include <algorithm>

using namespace fieldkit::detail;

namespace {

HMENU MenuOf(const CMenu* pMenu) {
    return pMenu != nullptr ? pMenu->m_hMenu : nullptr;
}

HRGN RegionOf(const CRgn* pRgn) {
    return pRgn != nullptr ? static_cast<HRGN>(pRgn->m_hObject) : nullptr;
}

} // namespace

CMenu* CWndSystem::GetMenu() const {
    return CMenu::FromHandle(::GetMenu(m_hWnd));
}
BOOL CWndSystem::SetMenu(CMenu* pMenu) {
    return ::SetMenu(m_hWnd, MenuOf(pMenu));
}
CMenu* CWndSystem::GetSystemMenu(BOOL bRevert) const {
    return CMenu::FromHandle(::GetSystemMenu(m_hWnd, bRevert));
}
BOOL CWndSystem::HiliteMenuItem(CMenu* pMenu, UINT nIDHiliteItem, UINT nHilite) {
    return ::HiliteMenuItem(m_hWnd, MenuOf(pMenu), nIDHiliteItem, nHilite);
}

BOOL CWndSystem::SetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, BOOL bRedraw) {
    lpScrollInfo->cbSize = sizeof *lpScrollInfo;
    ::SetScrollInfo(m_hWnd, nBar, lpScrollInfo, bRedraw);
    return TRUE;
}
BOOL CWndSystem::GetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, UINT nMask) {
    lpScrollInfo->cbSize = sizeof *lpScrollInfo;
    lpScrollInfo->fMask |= nMask;
    return ::GetScrollInfo(m_hWnd, nBar, lpScrollInfo);
}
int CWndSystem::GetScrollLimit(int nBar) {
    SCROLLINFO info = {};
    if (!GetScrollInfo(nBar, &info, SIF_RANGE | SIF_PAGE))
        return 0;
    return info.nMax - std::max(static_cast<int>(info.nPage) - 1, 0);
}
CScrollBar* CWndSystem::GetScrollBarCtrl(int) const {
    return nullptr;
}
int CWndSystem::ScrollWindowEx(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, CRgn* prgnUpdate,
                               LPRECT lpRectUpdate, UINT flags) {
    return ::ScrollWindowEx(m_hWnd, dx, dy, lpRectScroll, lpRectClip, RegionOf(prgnUpdate), lpRectUpdate,
                            flags);
}

CWnd* CWndSystem::GetNextWindow(UINT nFlag) const {
    return CWnd::FromHandle(::GetNextWindow(m_hWnd, nFlag));
}
CWnd* CWndSystem::GetTopWindow() const {
    return CWnd::FromHandle(::GetTopWindow(m_hWnd));
}
CWnd* CWndSystem::GetLastActivePopup() const {
    return CWnd::FromHandle(::GetLastActivePopup(m_hWnd));
}
CWnd* CWndSystem::GetAncestor(UINT gaFlags) const {
    return CWnd::FromHandle(::GetAncestor(m_hWnd, gaFlags));
}
CWnd* CWndSystem::GetNextDlgGroupItem(CWnd* pWndCtl, BOOL bPrevious) const {
    return CWnd::FromHandle(::GetNextDlgGroupItem(m_hWnd, HandleOf(pWndCtl), bPrevious));
}
CWnd* CWndSystem::ChildWindowFromPoint(POINT point) const {
    return CWnd::FromHandle(::ChildWindowFromPoint(m_hWnd, point));
}
CWnd* CWndSystem::ChildWindowFromPoint(POINT point, UINT nFlags) const {
    return CWnd::FromHandle(::ChildWindowFromPointEx(m_hWnd, point, nFlags));
}
CWnd* CWndSystem::GetDescendantWindow(int nID, BOOL bOnlyPerm) const {
    for (HWND h = ::GetTopWindow(m_hWnd); h != nullptr; h = ::GetNextWindow(h, GW_HWNDNEXT)) {
        CWnd* pWnd = bOnlyPerm ? CWnd::FromHandlePermanent(h) : CWnd::FromHandle(h);
        if (pWnd != nullptr && ::GetDlgCtrlID(h) == nID)
            return pWnd;
        CWnd* pBelow = pWnd != nullptr ? pWnd->GetDescendantWindow(nID, bOnlyPerm) : nullptr;
        if (pBelow != nullptr)
            return pBelow;
    }
    return nullptr;
}
CWnd* CWndSystem::GetParentOwner() const {
    HWND hWnd = m_hWnd;
    while (::GetWindowLong(hWnd, GWL_STYLE) & WS_CHILD)
        hWnd = ::GetParent(hWnd);
    return CWnd::FromHandle(hWnd);
}
CWnd* CWndSystem::GetTopLevelOwner() const {
    HWND hWnd = m_hWnd;
    while (const HWND hOwner = ::GetWindow(hWnd, GW_OWNER))
        hWnd = hOwner;
    return CWnd::FromHandle(hWnd);
}
BOOL CWndSystem::IsTopParentActive() const {
    const HWND hTop = ::GetAncestor(m_hWnd, GA_ROOT);
    return hTop != nullptr && ::GetLastActivePopup(hTop) == ::GetForegroundWindow();
}
CWnd* CWndSystem::FindWindow(LPCTSTR lpszClassName, LPCTSTR lpszWindowName) {
    return CWnd::FromHandle(::FindWindow(lpszClassName, lpszWindowName));
}
CWnd* CWndSystem::FindWindowEx(HWND hwndParent, HWND hwndChildAfter, LPCTSTR lpszClass, LPCTSTR lpszWindow) {
    return CWnd::FromHandle(::FindWindowEx(hwndParent, hwndChildAfter, lpszClass, lpszWindow));
}

BOOL CWndSystem::FlashWindowEx(DWORD dwFlags, UINT uCount, DWORD dwTimeout) {
    FLASHWINFO info = {sizeof info, m_hWnd, dwFlags, uCount, dwTimeout};
    return ::FlashWindowEx(&info);
}
void CWndSystem::InvalidateRgn(CRgn* pRgn, BOOL bErase) {
    ::InvalidateRgn(m_hWnd, RegionOf(pRgn), bErase);
}
void CWndSystem::ValidateRgn(CRgn* pRgn) {
    ::ValidateRgn(m_hWnd, RegionOf(pRgn));
}
int CWndSystem::GetUpdateRgn(CRgn* pRgn, BOOL bErase) {
    return ::GetUpdateRgn(m_hWnd, RegionOf(pRgn), bErase);
}
CPoint CWndSystem::GetCaretPos() {
    POINT point = {};
    ::GetCaretPos(&point);
    return point;
}
CWnd* CWndSystem::GetClipboardOwner() {
    return CWnd::FromHandle(::GetClipboardOwner());
}

CDC* CWndSystem::GetDCEx(CRgn* prgnClip, DWORD flags) {
    return CDC::FromHandle(::GetDCEx(m_hWnd, RegionOf(prgnClip), flags));
}
void CWndSystem::Print(CDC* pDC, DWORD dwFlags) const {
    ::SendMessage(m_hWnd, WM_PRINT, reinterpret_cast<WPARAM>(pDC->m_hDC), static_cast<LPARAM>(dwFlags));
}
void CWndSystem::PrintClient(CDC* pDC, DWORD dwFlags) const {
    ::SendMessage(m_hWnd, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(pDC->m_hDC), static_cast<LPARAM>(dwFlags));
}
CWnd* CWndSystem::GetOpenClipboardWindow() {
    return CWnd::FromHandle(::GetOpenClipboardWindow());
}
CWnd* CWndSystem::GetClipboardViewer() {
    return CWnd::FromHandle(::GetClipboardViewer());
}
void CWndSystem::CreateCaret(CBitmap* pBitmap) {
    ::CreateCaret(m_hWnd, static_cast<HBITMAP>(pBitmap->GetSafeHandle()), 0, 0);
}
void CWndSystem::WinHelp(DWORD_PTR dwData, UINT nCmd) {
    if (CWinApp* pApp = AfxGetApp())
        ::WinHelp(::GetAncestor(m_hWnd, GA_ROOT), pApp->m_pszHelpFilePath, nCmd, dwData);
}
void CWndSystem::HtmlHelp(DWORD_PTR dwData, UINT nCmd) {
    if (CWinApp* pApp = AfxGetApp())
        pApp->HtmlHelp(dwData, nCmd);
}
