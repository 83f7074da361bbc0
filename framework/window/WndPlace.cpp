// CWnd: place, size and painting.
#include "Resolution.h"
#include "WndProc.h"

using namespace fieldkit::detail;

void CWnd::MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint) {
    ::MoveWindow(m_hWnd, x, y, nWidth, nHeight, bRepaint);
}
void CWnd::MoveWindow(LPCRECT lpRect, BOOL bRepaint) {
    MoveWindow(lpRect->left, lpRect->top, lpRect->right - lpRect->left, lpRect->bottom - lpRect->top,
               bRepaint);
}
BOOL CWnd::SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags) {
    return ::SetWindowPos(m_hWnd, HandleOf(pWndInsertAfter), x, y, cx, cy, nFlags);
}
void CWnd::GetWindowRect(LPRECT lpRect) const {
    ::GetWindowRect(m_hWnd, lpRect);
}
void CWnd::GetClientRect(LPRECT lpRect) const {
    ::GetClientRect(m_hWnd, lpRect);
}
void CWnd::ClientToScreen(LPPOINT lpPoint) const {
    ::ClientToScreen(m_hWnd, lpPoint);
}
void CWnd::ClientToScreen(LPRECT lpRect) const {
    ::MapWindowPoints(m_hWnd, nullptr, reinterpret_cast<LPPOINT>(lpRect), 2);
}
void CWnd::ScreenToClient(LPPOINT lpPoint) const {
    ::ScreenToClient(m_hWnd, lpPoint);
}
void CWnd::ScreenToClient(LPRECT lpRect) const {
    ::MapWindowPoints(nullptr, m_hWnd, reinterpret_cast<LPPOINT>(lpRect), 2);
}
void CWnd::MapWindowPoints(CWnd* pwndTo, LPPOINT lpPoint, UINT nCount) const {
    ::MapWindowPoints(m_hWnd, HandleOf(pwndTo), lpPoint, nCount);
}
void CWnd::MapWindowPoints(CWnd* pwndTo, LPRECT lpRect) const {
    MapWindowPoints(pwndTo, reinterpret_cast<LPPOINT>(lpRect), 2);
}

void CWnd::CalcWindowRect(LPRECT lpClientRect, UINT nAdjustType) {
    DWORD dwExStyle = GetExStyle() & ~WS_EX_CAPTIONOKBTN;
    if (nAdjustType == adjustBorder)
        dwExStyle &= ~static_cast<DWORD>(WS_EX_CLIENTEDGE);
    CResolution::AdjustRect(m_hWnd, lpClientRect, GetStyle(), dwExStyle);
}

void CWnd::CenterWindow(CWnd* pAlternateOwner) {
    const bool bChild = (GetStyle() & WS_CHILD) != 0;
    HWND hOwner = HandleOf(pAlternateOwner);
    if (hOwner == nullptr)
        hOwner = bChild ? ::GetParent(m_hWnd) : ::GetWindow(m_hWnd, GW_OWNER);
    if (!bChild && hOwner != nullptr && (!::IsWindowVisible(hOwner) || ::IsIconic(hOwner)))
        hOwner = nullptr;

    CRect area; // to stay inside
    CRect center;
    if (bChild) {
        ::GetClientRect(::GetParent(m_hWnd), area);
        ::GetClientRect(hOwner, center);
        ::MapWindowPoints(hOwner, ::GetParent(m_hWnd), reinterpret_cast<LPPOINT>(&center), 2);
    } else {
        area = AfxGetWorkArea(hOwner != nullptr ? hOwner : m_hWnd);
        center = area;
        if (hOwner != nullptr)
            ::GetWindowRect(hOwner, center);
    }
    CRect window;
    GetWindowRect(window);
    CPoint point((center.left + center.right - window.Width()) / 2,
                 (center.top + center.bottom - window.Height()) / 2);
    // The right and bottom edges give way first: the title bar must stay in reach.
    point.x = std::max(std::min(point.x, area.right - window.Width()), area.left);
    point.y = std::max(std::min(point.y, area.bottom - window.Height()), area.top);
    SetWindowPos(nullptr, point.x, point.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void CWnd::BringWindowToTop() {
    ::BringWindowToTop(m_hWnd);
}

// --- Painting ------------------------------------------------------------------------------

CDC* CWnd::GetDC() {
    return CDC::FromHandle(::GetDC(m_hWnd));
}
CDC* CWnd::GetWindowDC() {
    return CDC::FromHandle(::GetWindowDC(m_hWnd));
}
int CWnd::ReleaseDC(CDC* pDC) {
    return ::ReleaseDC(m_hWnd, pDC->m_hDC);
}
CDC* CWnd::BeginPaint(LPPAINTSTRUCT lpPaint) {
    return CDC::FromHandle(::BeginPaint(m_hWnd, lpPaint));
}
void CWnd::EndPaint(LPPAINTSTRUCT lpPaint) {
    ::EndPaint(m_hWnd, lpPaint);
}
void CWnd::Invalidate(BOOL bErase) {
    ::InvalidateRect(m_hWnd, nullptr, bErase);
}
void CWnd::InvalidateRect(LPCRECT lpRect, BOOL bErase) {
    ::InvalidateRect(m_hWnd, lpRect, bErase);
}
void CWnd::ValidateRect(LPCRECT lpRect) {
    ::ValidateRect(m_hWnd, lpRect);
}
void CWnd::UpdateWindow() {
    ::UpdateWindow(m_hWnd);
}
BOOL CWnd::RedrawWindow(LPCRECT lpRectUpdate, CRgn* prgnUpdate, UINT flags) {
    const auto hRegion = static_cast<HRGN>(prgnUpdate != nullptr ? prgnUpdate->m_hObject : nullptr);
    return ::RedrawWindow(m_hWnd, lpRectUpdate, hRegion, flags);
}
void CWnd::SetRedraw(BOOL bRedraw) {
    SendMessage(WM_SETREDRAW, static_cast<WPARAM>(bRedraw));
}
