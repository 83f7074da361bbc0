// Device contexts: lines, shapes, bitmaps, text.
#include "afxwin.h"

// --- Lines and shapes ---------------------------------------------------------------------

CPoint CDC::GetCurrentPosition() const {
    POINT point = {};
    ::GetCurrentPositionEx(m_hAttribDC, &point);
    return point;
}

CPoint CDC::MoveTo(int x, int y) {
    POINT previous = {};
    ::MoveToEx(m_hDC, x, y, &previous);
    return previous;
}

BOOL CDC::LineTo(int x, int y) {
    return ::LineTo(m_hDC, x, y);
}
BOOL CDC::Polyline(const POINT* lpPoints, int nCount) {
    return ::Polyline(m_hDC, lpPoints, nCount);
}
BOOL CDC::Polygon(const POINT* lpPoints, int nCount) {
    return ::Polygon(m_hDC, lpPoints, nCount);
}

BOOL CDC::Arc(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4) {
    return ::Arc(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
}

BOOL CDC::Arc(LPCRECT lpRect, POINT ptStart, POINT ptEnd) {
    return Arc(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, ptStart.x, ptStart.y, ptEnd.x,
               ptEnd.y);
}

BOOL CDC::Rectangle(int x1, int y1, int x2, int y2) {
    return ::Rectangle(m_hDC, x1, y1, x2, y2);
}

BOOL CDC::Rectangle(LPCRECT lpRect) {
    return Rectangle(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

BOOL CDC::Ellipse(int x1, int y1, int x2, int y2) {
    return ::Ellipse(m_hDC, x1, y1, x2, y2);
}

BOOL CDC::Ellipse(LPCRECT lpRect) {
    return Ellipse(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

void CDC::FillRect(LPCRECT lpRect, CBrush* pBrush) {
    ::FillRect(m_hDC, lpRect, *pBrush);
}

void CDC::FillSolidRect(LPCRECT lpRect, COLORREF clr) {
    const COLORREF clrPrevious = ::SetBkColor(m_hDC, clr);
    ::ExtTextOut(m_hDC, 0, 0, ETO_OPAQUE, lpRect, nullptr, 0, nullptr);
    ::SetBkColor(m_hDC, clrPrevious);
}

void CDC::FillSolidRect(int x, int y, int cx, int cy, COLORREF clr) {
    const RECT rect = {x, y, x + cx, y + cy};
    FillSolidRect(&rect, clr);
}

void CDC::FrameRect(LPCRECT lpRect, CBrush* pBrush) {
    ::FrameRect(m_hDC, lpRect, *pBrush);
}
void CDC::InvertRect(LPCRECT lpRect) {
    ::InvertRect(m_hDC, lpRect);
}
BOOL CDC::DrawIcon(int x, int y, HICON hIcon) {
    return ::DrawIcon(m_hDC, x, y, hIcon);
}

BOOL CDC::DrawEdge(LPRECT lpRect, UINT nEdge, UINT nFlags) {
    return ::DrawEdge(m_hDC, lpRect, nEdge, nFlags);
}

BOOL CDC::DrawFrameControl(LPRECT lpRect, UINT nType, UINT nState) {
    return ::DrawFrameControl(m_hDC, lpRect, nType, nState);
}

void CDC::DrawFocusRect(LPCRECT lpRect) {
    ::DrawFocusRect(m_hDC, lpRect);
}

void CDC::Draw3dRect(LPCRECT lpRect, COLORREF clrTopLeft, COLORREF clrBottomRight) {
    Draw3dRect(lpRect->left, lpRect->top, lpRect->right - lpRect->left, lpRect->bottom - lpRect->top,
               clrTopLeft, clrBottomRight);
}

void CDC::Draw3dRect(int x, int y, int cx, int cy, COLORREF clrTopLeft, COLORREF clrBottomRight) {
    FillSolidRect(x, y, cx - 1, 1, clrTopLeft);
    FillSolidRect(x, y, 1, cy - 1, clrTopLeft);
    FillSolidRect(x + cx - 1, y, 1, cy, clrBottomRight);
    FillSolidRect(x, y + cy - 1, cx, 1, clrBottomRight);
}

// --- Bitmaps and pixels -------------------------------------------------------------------

BOOL CDC::PatBlt(int x, int y, int nWidth, int nHeight, DWORD dwRop) {
    return ::PatBlt(m_hDC, x, y, nWidth, nHeight, dwRop);
}

BOOL CDC::BitBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, DWORD dwRop) {
    return ::BitBlt(m_hDC, x, y, nWidth, nHeight, pSrcDC->GetSafeHdc(), xSrc, ySrc, dwRop);
}

BOOL CDC::StretchBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, int nSrcWidth,
                     int nSrcHeight, DWORD dwRop) {
    return ::StretchBlt(m_hDC, x, y, nWidth, nHeight, pSrcDC->GetSafeHdc(), xSrc, ySrc, nSrcWidth, nSrcHeight,
                        dwRop);
}

COLORREF CDC::GetPixel(int x, int y) const {
    return ::GetPixel(m_hDC, x, y);
}
COLORREF CDC::SetPixel(int x, int y, COLORREF crColor) {
    return ::SetPixel(m_hDC, x, y, crColor);
}

// --- Text ---------------------------------------------------------------------------------

BOOL CDC::TextOut(int x, int y, LPCTSTR lpszString, int nCount) {
    return ::TextOut(m_hDC, x, y, lpszString, nCount);
}

BOOL CDC::TextOut(int x, int y, const CString& str) {
    return TextOut(x, y, str, str.GetLength());
}

BOOL CDC::ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, LPCTSTR lpszString, UINT nCount,
                     LPINT lpDxWidths) {
    return ::ExtTextOut(m_hDC, x, y, nOptions, lpRect, lpszString, nCount, lpDxWidths);
}

BOOL CDC::ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, const CString& str, LPINT lpDxWidths) {
    return ExtTextOut(x, y, nOptions, lpRect, str, static_cast<UINT>(str.GetLength()), lpDxWidths);
}

int CDC::DrawText(LPCTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat) {
    return ::DrawText(m_hDC, lpszString, nCount, lpRect, nFormat);
}

int CDC::DrawText(const CString& str, LPRECT lpRect, UINT nFormat) {
    return DrawText(str, str.GetLength(), lpRect, nFormat);
}

CSize CDC::GetTextExtent(LPCTSTR lpszString, int nCount) const {
    SIZE size = {};
    ::GetTextExtentPoint32(m_hAttribDC, lpszString, nCount, &size);
    return size;
}

CSize CDC::GetTextExtent(const CString& str) const {
    return GetTextExtent(str, str.GetLength());
}
BOOL CDC::GetTextMetrics(LPTEXTMETRIC lpMetrics) const {
    return ::GetTextMetrics(m_hAttribDC, lpMetrics);
}
