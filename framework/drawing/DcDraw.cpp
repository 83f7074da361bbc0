// Device contexts: what is more than one call of the system.
#include "afxwin.h"

BOOL CDC::LineTo(int x, int y) {
    if (IsSplit())
        ::MoveToEx(m_hAttribDC, x, y, nullptr);
    return ::LineTo(m_hDC, x, y);
}

void CDC::FillSolidRect(LPCRECT lpRect, COLORREF clr) {
    const COLORREF clrPrevious = ::SetBkColor(m_hDC, clr);
    ::ExtTextOut(m_hDC, 0, 0, ETO_OPAQUE, lpRect, nullptr, 0, nullptr);
    ::SetBkColor(m_hDC, clrPrevious);
}

void CDC::Draw3dRect(int x, int y, int cx, int cy, COLORREF clrTopLeft, COLORREF clrBottomRight) {
    FillSolidRect(x, y, cx - 1, 1, clrTopLeft);
    FillSolidRect(x, y, 1, cy - 1, clrTopLeft);
    FillSolidRect(x + cx - 1, y, 1, cy, clrBottomRight);
    FillSolidRect(x, y + cy - 1, cx, 1, clrBottomRight);
}

BOOL CDC::ScrollDC(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, CRgn* pRgnUpdate,
                   LPRECT lpRectUpdate) {
    const HRGN hRgn = pRgnUpdate != nullptr ? static_cast<HRGN>(*pRgnUpdate) : nullptr;
    return ::ScrollDC(m_hDC, dx, dy, lpRectScroll, lpRectClip, hRgn, lpRectUpdate);
}

// --- States -------------------------------------------------------------------------------

namespace {

BOOL DrawPicture(HDC hDC, CPoint pt, CSize size, HANDLE hPicture, UINT nFlags, HBRUSH hBrush) {
    return ::DrawState(hDC, hBrush, nullptr, reinterpret_cast<LPARAM>(hPicture), 0, pt.x, pt.y, size.cx,
                       size.cy, nFlags);
}

HBRUSH HandleOf(const CBrush* pBrush) {
    return pBrush != nullptr ? static_cast<HBRUSH>(*pBrush) : nullptr;
}

} // namespace

BOOL CDC::DrawState(CPoint pt, CSize size, HBITMAP hBitmap, UINT nFlags, HBRUSH hBrush) {
    return DrawPicture(m_hDC, pt, size, hBitmap, nFlags | DST_BITMAP, hBrush);
}
BOOL CDC::DrawState(CPoint pt, CSize size, CBitmap* pBitmap, UINT nFlags, CBrush* pBrush) {
    return DrawState(pt, size, static_cast<HBITMAP>(*pBitmap), nFlags, HandleOf(pBrush));
}
BOOL CDC::DrawState(CPoint pt, CSize size, HICON hIcon, UINT nFlags, HBRUSH hBrush) {
    return DrawPicture(m_hDC, pt, size, hIcon, nFlags | DST_ICON, hBrush);
}
BOOL CDC::DrawState(CPoint pt, CSize size, HICON hIcon, UINT nFlags, CBrush* pBrush) {
    return DrawState(pt, size, hIcon, nFlags, HandleOf(pBrush));
}
BOOL CDC::DrawState(CPoint pt, CSize size, LPCTSTR lpszText, UINT nFlags, BOOL bPrefixText, int nTextLen,
                    HBRUSH hBrush) {
    nFlags |= bPrefixText ? DST_PREFIXTEXT : DST_TEXT;
    return ::DrawState(m_hDC, hBrush, nullptr, reinterpret_cast<LPARAM>(lpszText),
                       static_cast<WPARAM>(nTextLen), pt.x, pt.y, size.cx, size.cy, nFlags);
}
BOOL CDC::DrawState(CPoint pt, CSize size, LPCTSTR lpszText, UINT nFlags, BOOL bPrefixText, int nTextLen,
                    CBrush* pBrush) {
    return DrawState(pt, size, lpszText, nFlags, bPrefixText, nTextLen, HandleOf(pBrush));
}
BOOL CDC::DrawState(CPoint pt, CSize size, DRAWSTATEPROC lpDrawProc, LPARAM lData, UINT nFlags,
                    HBRUSH hBrush) {
    return ::DrawState(m_hDC, hBrush, lpDrawProc, lData, 0, pt.x, pt.y, size.cx, size.cy,
                       nFlags | DST_COMPLEX);
}
BOOL CDC::DrawState(CPoint pt, CSize size, DRAWSTATEPROC lpDrawProc, LPARAM lData, UINT nFlags,
                    CBrush* pBrush) {
    return DrawState(pt, size, lpDrawProc, lData, nFlags, HandleOf(pBrush));
}
