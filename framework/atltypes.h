/// @file
/// CSize, CPoint and CRect. The same arithmetic in every build, without the system.
///
/// Comparisons stand twice: with one only, C++20 finds a comparison of two equal types
/// ambiguous with itself turned round.
#pragma once

#include "afxtypes.h"

#include <algorithm>

class CPoint;
class CRect;

/// A width and a height.
class CSize : public SIZE {
public:
    CSize() noexcept : SIZE{0, 0} {}
    CSize(int initCX, int initCY) noexcept : SIZE{initCX, initCY} {}
    CSize(SIZE initSize) noexcept : SIZE(initSize) {}
    CSize(POINT initPt) noexcept : SIZE{initPt.x, initPt.y} {}
    /// The low and the high word, both signed.
    CSize(DWORD dwSize) noexcept
        : SIZE{static_cast<short>(dwSize & 0xFFFF), static_cast<short>(dwSize >> 16 & 0xFFFF)} {}

    BOOL operator==(SIZE size) const noexcept { return cx == size.cx && cy == size.cy ? TRUE : FALSE; }
    BOOL operator!=(SIZE size) const noexcept { return !(*this == size); }
    BOOL operator==(const CSize& size) const noexcept { return *this == static_cast<const SIZE&>(size); }
    BOOL operator!=(const CSize& size) const noexcept { return !(*this == size); }
    void operator+=(SIZE size) noexcept { SetSize(cx + size.cx, cy + size.cy); }
    void operator-=(SIZE size) noexcept { SetSize(cx - size.cx, cy - size.cy); }
    void SetSize(int width, int height) noexcept {
        cx = width;
        cy = height;
    }
    CSize operator+(SIZE size) const noexcept { return {cx + size.cx, cy + size.cy}; }
    CSize operator-(SIZE size) const noexcept { return {cx - size.cx, cy - size.cy}; }
    CSize operator-() const noexcept { return {-cx, -cy}; }
    CPoint operator+(POINT point) const noexcept;
    CPoint operator-(POINT point) const noexcept;
    CRect operator+(const RECT* lpRect) const noexcept;
    CRect operator-(const RECT* lpRect) const noexcept;
};

// CRect::TopLeft hands out a piece of a rectangle as a CPoint, which the optimizer must
// not take for a different object.
#define AFX_MAY_ALIAS __attribute__((may_alias))

/// A point of a plane whose y grows downwards.
class AFX_MAY_ALIAS CPoint : public POINT {
public:
    CPoint() noexcept : POINT{0, 0} {}
    CPoint(int initX, int initY) noexcept : POINT{initX, initY} {}
    CPoint(POINT initPt) noexcept : POINT(initPt) {}
    CPoint(SIZE initSize) noexcept : POINT{initSize.cx, initSize.cy} {}
    /// The low and the high word, both signed, as mouse messages carry them.
    CPoint(LPARAM dwPoint) noexcept
        : POINT{static_cast<short>(dwPoint & 0xFFFF), static_cast<short>(dwPoint >> 16 & 0xFFFF)} {}

    void Offset(int xOffset, int yOffset) noexcept { SetPoint(x + xOffset, y + yOffset); }
    void Offset(POINT point) noexcept { Offset(point.x, point.y); }
    void Offset(SIZE size) noexcept { Offset(size.cx, size.cy); }
    void SetPoint(int newX, int newY) noexcept {
        x = newX;
        y = newY;
    }
    BOOL operator==(POINT point) const noexcept { return x == point.x && y == point.y ? TRUE : FALSE; }
    BOOL operator!=(POINT point) const noexcept { return !(*this == point); }
    BOOL operator==(const CPoint& point) const noexcept { return *this == static_cast<const POINT&>(point); }
    BOOL operator!=(const CPoint& point) const noexcept { return !(*this == point); }
    void operator+=(SIZE size) noexcept { Offset(size); }
    void operator-=(SIZE size) noexcept { Offset(-size.cx, -size.cy); }
    void operator+=(POINT point) noexcept { Offset(point); }
    void operator-=(POINT point) noexcept { Offset(-point.x, -point.y); }
    CPoint operator+(SIZE size) const noexcept { return {x + size.cx, y + size.cy}; }
    CPoint operator-(SIZE size) const noexcept { return {x - size.cx, y - size.cy}; }
    CPoint operator-() const noexcept { return {-x, -y}; }
    CPoint operator+(POINT point) const noexcept { return {x + point.x, y + point.y}; }
    CSize operator-(POINT point) const noexcept { return {x - point.x, y - point.y}; }
    CRect operator+(const RECT* lpRect) const noexcept;
    CRect operator-(const RECT* lpRect) const noexcept;
};

/// A rectangle; right and bottom lie just outside. Functions that look for common or
/// enclosing areas take normalised rectangles only.
class CRect : public RECT {
public:
    CRect() noexcept : RECT{0, 0, 0, 0} {}
    CRect(int l, int t, int r, int b) noexcept : RECT{l, t, r, b} {}
    CRect(const RECT& srcRect) noexcept : RECT(srcRect) {}
    CRect(LPCRECT lpSrcRect) noexcept : RECT(*lpSrcRect) {}
    CRect(POINT point, SIZE size) noexcept : RECT{point.x, point.y, point.x + size.cx, point.y + size.cy} {}
    CRect(POINT topLeft, POINT bottomRight) noexcept
        : RECT{topLeft.x, topLeft.y, bottomRight.x, bottomRight.y} {}

    int Width() const noexcept { return right - left; }
    int Height() const noexcept { return bottom - top; }
    CSize Size() const noexcept { return {Width(), Height()}; }
    CPoint& TopLeft() noexcept { return *reinterpret_cast<CPoint*>(this); }
    CPoint& BottomRight() noexcept { return *(reinterpret_cast<CPoint*>(this) + 1); }
    const CPoint& TopLeft() const noexcept { return *reinterpret_cast<const CPoint*>(this); }
    const CPoint& BottomRight() const noexcept { return *(reinterpret_cast<const CPoint*>(this) + 1); }
    CPoint CenterPoint() const noexcept { return {(left + right) / 2, (top + bottom) / 2}; }
    void SwapLeftRight() noexcept { std::swap(left, right); }
    operator LPRECT() noexcept { return this; }
    operator LPCRECT() const noexcept { return this; }

    BOOL IsRectEmpty() const noexcept { return left >= right || top >= bottom ? TRUE : FALSE; }
    BOOL IsRectNull() const noexcept { return EqualRect(CRect()); }
    BOOL PtInRect(POINT point) const noexcept {
        return point.x >= left && point.x < right && point.y >= top && point.y < bottom ? TRUE : FALSE;
    }
    BOOL EqualRect(LPCRECT lpRect) const noexcept {
        const bool equal =
            left == lpRect->left && top == lpRect->top && right == lpRect->right && bottom == lpRect->bottom;
        return equal ? TRUE : FALSE;
    }

    void SetRect(int x1, int y1, int x2, int y2) noexcept { *this = CRect(x1, y1, x2, y2); }
    void SetRect(POINT topLeft, POINT bottomRight) noexcept { *this = CRect(topLeft, bottomRight); }
    void SetRectEmpty() noexcept { *this = CRect(); }
    void CopyRect(LPCRECT lpSrcRect) noexcept { *this = CRect(lpSrcRect); }
    void NormalizeRect() noexcept {
        *this =
            CRect(std::min(left, right), std::min(top, bottom), std::max(left, right), std::max(top, bottom));
    }

    void InflateRect(int l, int t, int r, int b) noexcept {
        SetRect(left - l, top - t, right + r, bottom + b);
    }
    void InflateRect(int x, int y) noexcept { InflateRect(x, y, x, y); }
    void InflateRect(SIZE size) noexcept { InflateRect(size.cx, size.cy); }
    void InflateRect(LPCRECT lpRect) noexcept {
        InflateRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
    }
    void DeflateRect(int l, int t, int r, int b) noexcept { InflateRect(-l, -t, -r, -b); }
    void DeflateRect(int x, int y) noexcept { InflateRect(-x, -y); }
    void DeflateRect(SIZE size) noexcept { DeflateRect(size.cx, size.cy); }
    void DeflateRect(LPCRECT lpRect) noexcept {
        DeflateRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
    }
    void OffsetRect(int x, int y) noexcept { SetRect(left + x, top + y, right + x, bottom + y); }
    void OffsetRect(POINT point) noexcept { OffsetRect(point.x, point.y); }
    void OffsetRect(SIZE size) noexcept { OffsetRect(size.cx, size.cy); }
    void MoveToX(int x) noexcept { OffsetRect(x - left, 0); }
    void MoveToY(int y) noexcept { OffsetRect(0, y - top); }
    void MoveToXY(int x, int y) noexcept { OffsetRect(x - left, y - top); }
    void MoveToXY(POINT point) noexcept { MoveToXY(point.x, point.y); }

    /// The common area; zero and all members 0 if there is none.
    BOOL IntersectRect(LPCRECT lpRect1, LPCRECT lpRect2) noexcept;
    /// The smallest rectangle around both, an empty one left out; zero if both are empty.
    BOOL UnionRect(LPCRECT lpRect1, LPCRECT lpRect2) noexcept;
    /// The first without the second, if a rectangle is left, else the first; zero if it is empty.
    BOOL SubtractRect(LPCRECT lpRectSrc1, LPCRECT lpRectSrc2) noexcept;

    void operator=(const RECT& srcRect) noexcept { static_cast<RECT&>(*this) = srcRect; }
    BOOL operator==(const RECT& rect) const noexcept { return EqualRect(&rect); }
    BOOL operator!=(const RECT& rect) const noexcept { return !EqualRect(&rect); }
    BOOL operator==(const CRect& rect) const noexcept { return EqualRect(&rect); }
    BOOL operator!=(const CRect& rect) const noexcept { return !EqualRect(&rect); }
    void operator+=(POINT point) noexcept { OffsetRect(point); }
    void operator+=(SIZE size) noexcept { OffsetRect(size); }
    void operator+=(LPCRECT lpRect) noexcept { InflateRect(lpRect); }
    void operator-=(POINT point) noexcept { OffsetRect(-point.x, -point.y); }
    void operator-=(SIZE size) noexcept { OffsetRect(-size.cx, -size.cy); }
    void operator-=(LPCRECT lpRect) noexcept { DeflateRect(lpRect); }
    void operator&=(const RECT& rect) noexcept { IntersectRect(CRect(*this), &rect); }
    void operator|=(const RECT& rect) noexcept { UnionRect(CRect(*this), &rect); }
    CRect operator+(POINT point) const noexcept {
        return Changed([&](CRect& r) { r += point; });
    }
    CRect operator-(POINT point) const noexcept {
        return Changed([&](CRect& r) { r -= point; });
    }
    CRect operator+(SIZE size) const noexcept {
        return Changed([&](CRect& r) { r += size; });
    }
    CRect operator-(SIZE size) const noexcept {
        return Changed([&](CRect& r) { r -= size; });
    }
    CRect operator+(LPCRECT lpRect) const noexcept {
        return Changed([&](CRect& r) { r += lpRect; });
    }
    CRect operator-(LPCRECT lpRect) const noexcept {
        return Changed([&](CRect& r) { r -= lpRect; });
    }
    CRect operator&(const RECT& rect2) const noexcept {
        return Changed([&](CRect& r) { r &= rect2; });
    }
    CRect operator|(const RECT& rect2) const noexcept {
        return Changed([&](CRect& r) { r |= rect2; });
    }

private:
    template <class Change>
    CRect Changed(Change change) const noexcept {
        CRect copy(*this);
        change(copy);
        return copy;
    }
};

inline BOOL CRect::IntersectRect(LPCRECT lpRect1, LPCRECT lpRect2) noexcept {
    const bool empty = CRect(lpRect1).IsRectEmpty() || CRect(lpRect2).IsRectEmpty();
    *this = CRect(std::max(lpRect1->left, lpRect2->left), std::max(lpRect1->top, lpRect2->top),
                  std::min(lpRect1->right, lpRect2->right), std::min(lpRect1->bottom, lpRect2->bottom));
    if (!empty && !IsRectEmpty())
        return TRUE;
    SetRectEmpty();
    return FALSE;
}

inline BOOL CRect::UnionRect(LPCRECT lpRect1, LPCRECT lpRect2) noexcept {
    const CRect first(lpRect1);
    const CRect second(lpRect2);
    if (first.IsRectEmpty())
        *this = second.IsRectEmpty() ? CRect() : second;
    else if (second.IsRectEmpty())
        *this = first;
    else
        *this = CRect(std::min(first.left, second.left), std::min(first.top, second.top),
                      std::max(first.right, second.right), std::max(first.bottom, second.bottom));
    return !IsRectEmpty();
}

inline BOOL CRect::SubtractRect(LPCRECT lpRectSrc1, LPCRECT lpRectSrc2) noexcept {
    CRect rest(lpRectSrc1);
    CRect common;
    if (common.IntersectRect(rest, lpRectSrc2)) {
        if (common.top == rest.top && common.bottom == rest.bottom) {
            if (common.left == rest.left)
                rest.left = common.right;
            else if (common.right == rest.right)
                rest.right = common.left;
        } else if (common.left == rest.left && common.right == rest.right) {
            if (common.top == rest.top)
                rest.top = common.bottom;
            else if (common.bottom == rest.bottom)
                rest.bottom = common.top;
        }
    }
    *this = rest.IsRectEmpty() ? CRect() : rest;
    return !IsRectEmpty();
}

inline CPoint CSize::operator+(POINT point) const noexcept {
    return {cx + point.x, cy + point.y};
}
inline CPoint CSize::operator-(POINT point) const noexcept {
    return {cx - point.x, cy - point.y};
}
inline CRect CSize::operator+(const RECT* lpRect) const noexcept {
    return CRect(lpRect) + *this;
}
inline CRect CSize::operator-(const RECT* lpRect) const noexcept {
    return CRect(lpRect) - *this;
}
inline CRect CPoint::operator+(const RECT* lpRect) const noexcept {
    return CRect(lpRect) + *this;
}
inline CRect CPoint::operator-(const RECT* lpRect) const noexcept {
    return CRect(lpRect) - *this;
}
