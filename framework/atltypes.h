/// @file
/// CSize, CPoint and CRect. The same arithmetic in every build, without the system.
///
/// A temporary of these has an address, as compilers of the time gave it: `Draw(&CRect(0, 0, 8, 8))`.
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
    /// A size of the given width and height; of a point, its coordinates.
    ///@{
    CSize(int initCX, int initCY) noexcept : SIZE{initCX, initCY} {}
    CSize(SIZE initSize) noexcept : SIZE(initSize) {}
    CSize(POINT initPt) noexcept : SIZE{initPt.x, initPt.y} {}
    ///@}
    /// The low and the high word, both signed.
    CSize(DWORD dwSize) noexcept
        : SIZE{static_cast<short>(dwSize & 0xFFFF), static_cast<short>(dwSize >> 16 & 0xFFFF)} {}

    /// The address of a temporary, for the call that it is written in.
    CSize* operator&() && noexcept { return this; }
    /// Whether both are equal.
    ///@{
    BOOL operator==(SIZE size) const noexcept { return cx == size.cx && cy == size.cy ? TRUE : FALSE; }
    BOOL operator!=(SIZE size) const noexcept { return !(*this == size); }
    BOOL operator==(const CSize& size) const noexcept { return *this == static_cast<const SIZE&>(size); }
    BOOL operator!=(const CSize& size) const noexcept { return !(*this == size); }
    ///@}
    /// Adds or subtracts width and height.
    ///@{
    void operator+=(SIZE size) noexcept { SetSize(cx + size.cx, cy + size.cy); }
    void operator-=(SIZE size) noexcept { SetSize(cx - size.cx, cy - size.cy); }
    ///@}
    /// Sets width and height.
    void SetSize(int width, int height) noexcept {
        cx = width;
        cy = height;
    }
    /// The sum, the difference, or the size with both signs turned.
    ///@{
    CSize operator+(SIZE size) const noexcept { return {cx + size.cx, cy + size.cy}; }
    CSize operator-(SIZE size) const noexcept { return {cx - size.cx, cy - size.cy}; }
    CSize operator-() const noexcept { return {-cx, -cy}; }
    ///@}
    /// The point moved by the size; the minus takes the point from the size.
    ///@{
    CPoint operator+(POINT point) const noexcept;
    CPoint operator-(POINT point) const noexcept;
    ///@}
    /// The rectangle moved by the size, forth or back.
    ///@{
    CRect operator+(const RECT* lpRect) const noexcept;
    CRect operator-(const RECT* lpRect) const noexcept;
    ///@}
};

// CRect::TopLeft hands out a piece of a rectangle as a CPoint, which the optimizer must
// not take for a different object.
/// Marks a class whose objects may be parts of others.
#define AFX_MAY_ALIAS __attribute__((may_alias))

/// A point of a plane whose y grows downwards.
class AFX_MAY_ALIAS CPoint : public POINT {
public:
    CPoint() noexcept : POINT{0, 0} {}
    /// A point of the given coordinates; of a size, its width and height.
    ///@{
    CPoint(int initX, int initY) noexcept : POINT{initX, initY} {}
    CPoint(POINT initPt) noexcept : POINT(initPt) {}
    CPoint(SIZE initSize) noexcept : POINT{initSize.cx, initSize.cy} {}
    ///@}
    /// The low and the high word, both signed, as mouse messages carry them.
    CPoint(LPARAM dwPoint) noexcept
        : POINT{static_cast<short>(dwPoint & 0xFFFF), static_cast<short>(dwPoint >> 16 & 0xFFFF)} {}

    /// The address of a temporary, for the call that it is written in.
    CPoint* operator&() && noexcept { return this; }
    /// Moves the point.
    ///@{
    void Offset(int xOffset, int yOffset) noexcept { SetPoint(x + xOffset, y + yOffset); }
    void Offset(POINT point) noexcept { Offset(point.x, point.y); }
    void Offset(SIZE size) noexcept { Offset(size.cx, size.cy); }
    ///@}
    /// Sets both coordinates.
    void SetPoint(int newX, int newY) noexcept {
        x = newX;
        y = newY;
    }
    /// Whether both are equal.
    ///@{
    BOOL operator==(POINT point) const noexcept { return x == point.x && y == point.y ? TRUE : FALSE; }
    BOOL operator!=(POINT point) const noexcept { return !(*this == point); }
    BOOL operator==(const CPoint& point) const noexcept { return *this == static_cast<const POINT&>(point); }
    BOOL operator!=(const CPoint& point) const noexcept { return !(*this == point); }
    ///@}
    /// Moves the point, forth or back.
    ///@{
    void operator+=(SIZE size) noexcept { Offset(size); }
    void operator-=(SIZE size) noexcept { Offset(-size.cx, -size.cy); }
    void operator+=(POINT point) noexcept { Offset(point); }
    void operator-=(POINT point) noexcept { Offset(-point.x, -point.y); }
    ///@}
    /// The moved point, or the point with both signs turned.
    ///@{
    CPoint operator+(SIZE size) const noexcept { return {x + size.cx, y + size.cy}; }
    CPoint operator-(SIZE size) const noexcept { return {x - size.cx, y - size.cy}; }
    CPoint operator-() const noexcept { return {-x, -y}; }
    CPoint operator+(POINT point) const noexcept { return {x + point.x, y + point.y}; }
    ///@}
    /// From the other point to this one.
    CSize operator-(POINT point) const noexcept { return {x - point.x, y - point.y}; }
    /// The rectangle moved by the point, forth or back.
    ///@{
    CRect operator+(const RECT* lpRect) const noexcept;
    CRect operator-(const RECT* lpRect) const noexcept;
    ///@}
};

/// A rectangle; right and bottom lie just outside. Functions that look for common or
/// enclosing areas take normalised rectangles only.
class CRect : public RECT {
public:
    CRect() noexcept : RECT{0, 0, 0, 0} {}
    /// From its sides, another rectangle, its corner and size, or two corners.
    ///@{
    CRect(int l, int t, int r, int b) noexcept : RECT{l, t, r, b} {}
    CRect(const RECT& srcRect) noexcept : RECT(srcRect) {}
    CRect(LPCRECT lpSrcRect) noexcept : RECT(*lpSrcRect) {}
    CRect(POINT point, SIZE size) noexcept : RECT{point.x, point.y, point.x + size.cx, point.y + size.cy} {}
    CRect(POINT topLeft, POINT bottomRight) noexcept
        : RECT{topLeft.x, topLeft.y, bottomRight.x, bottomRight.y} {}
    ///@}

    /// The address of a temporary, for the call that it is written in.
    CRect* operator&() && noexcept { return this; }
    /// Right less left, bottom less top; negative for a rectangle that is not normalised.
    ///@{
    int Width() const noexcept { return right - left; }
    int Height() const noexcept { return bottom - top; }
    CSize Size() const noexcept { return {Width(), Height()}; }
    ///@}
    /// A corner, to be changed in place.
    ///@{
    CPoint& TopLeft() noexcept { return *reinterpret_cast<CPoint*>(this); }
    CPoint& BottomRight() noexcept { return *(reinterpret_cast<CPoint*>(this) + 1); }
    const CPoint& TopLeft() const noexcept { return *reinterpret_cast<const CPoint*>(this); }
    const CPoint& BottomRight() const noexcept { return *(reinterpret_cast<const CPoint*>(this) + 1); }
    ///@}
    /// The point in the middle, rounded toward zero.
    CPoint CenterPoint() const noexcept { return {(left + right) / 2, (top + bottom) / 2}; }
    /// Exchanges left and right.
    void SwapLeftRight() noexcept { std::swap(left, right); }
    /// The rectangle for a Win32 function; never null.
    ///@{
    operator LPRECT() noexcept { return this; }
    operator LPCRECT() const noexcept { return this; }
    ///@}

    /// Whether width or height is zero or negative.
    BOOL IsRectEmpty() const noexcept { return left >= right || top >= bottom ? TRUE : FALSE; }
    /// Whether all four sides are 0.
    BOOL IsRectNull() const noexcept { return EqualRect(CRect()); }
    /// Whether the point lies inside; right and bottom are outside.
    BOOL PtInRect(POINT point) const noexcept {
        return point.x >= left && point.x < right && point.y >= top && point.y < bottom ? TRUE : FALSE;
    }
    /// Whether all four sides are equal.
    BOOL EqualRect(LPCRECT lpRect) const noexcept {
        const bool equal =
            left == lpRect->left && top == lpRect->top && right == lpRect->right && bottom == lpRect->bottom;
        return equal ? TRUE : FALSE;
    }

    /// Sets all four sides.
    ///@{
    void SetRect(int x1, int y1, int x2, int y2) noexcept { *this = CRect(x1, y1, x2, y2); }
    void SetRect(POINT topLeft, POINT bottomRight) noexcept { *this = CRect(topLeft, bottomRight); }
    void SetRectEmpty() noexcept { *this = CRect(); }
    void CopyRect(LPCRECT lpSrcRect) noexcept { *this = CRect(lpSrcRect); }
    ///@}
    /// Exchanges sides so that neither width nor height is negative.
    void NormalizeRect() noexcept {
        *this =
            CRect(std::min(left, right), std::min(top, bottom), std::max(left, right), std::max(top, bottom));
    }

    /// Moves each side outwards (Deflate: inwards) by its number; width and height by twice the
    /// size.
    ///@{
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
    ///@}
    /// Moves the rectangle by a distance, or its upper left corner to a place.
    ///@{
    void OffsetRect(int x, int y) noexcept { SetRect(left + x, top + y, right + x, bottom + y); }
    void OffsetRect(POINT point) noexcept { OffsetRect(point.x, point.y); }
    void OffsetRect(SIZE size) noexcept { OffsetRect(size.cx, size.cy); }
    void MoveToX(int x) noexcept { OffsetRect(x - left, 0); }
    void MoveToY(int y) noexcept { OffsetRect(0, y - top); }
    void MoveToXY(int x, int y) noexcept { OffsetRect(x - left, y - top); }
    void MoveToXY(POINT point) noexcept { MoveToXY(point.x, point.y); }
    ///@}

    /// The common area; zero and all members 0 if there is none.
    BOOL IntersectRect(LPCRECT lpRect1, LPCRECT lpRect2) noexcept;
    /// The smallest rectangle around both, an empty one left out; zero if both are empty.
    BOOL UnionRect(LPCRECT lpRect1, LPCRECT lpRect2) noexcept;
    /// The first without the second, if a rectangle is left, else the first; zero if it is empty.
    BOOL SubtractRect(LPCRECT lpRectSrc1, LPCRECT lpRectSrc2) noexcept;

    /// Copies all four sides.
    void operator=(const RECT& srcRect) noexcept { static_cast<RECT&>(*this) = srcRect; }
    /// Whether both are equal.
    ///@{
    BOOL operator==(const RECT& rect) const noexcept { return EqualRect(&rect); }
    BOOL operator!=(const RECT& rect) const noexcept { return !EqualRect(&rect); }
    BOOL operator==(const CRect& rect) const noexcept { return EqualRect(&rect); }
    BOOL operator!=(const CRect& rect) const noexcept { return !EqualRect(&rect); }
    ///@}
    /// Moves the rectangle.
    ///@{
    void operator+=(POINT point) noexcept { OffsetRect(point); }
    void operator+=(SIZE size) noexcept { OffsetRect(size); }
    ///@}
    /// See InflateRect.
    void operator+=(LPCRECT lpRect) noexcept { InflateRect(lpRect); }
    /// Moves the rectangle back.
    ///@{
    void operator-=(POINT point) noexcept { OffsetRect(-point.x, -point.y); }
    void operator-=(SIZE size) noexcept { OffsetRect(-size.cx, -size.cy); }
    ///@}
    /// See DeflateRect.
    void operator-=(LPCRECT lpRect) noexcept { DeflateRect(lpRect); }
    /// Makes it the common area with, or the smallest rectangle around it and, the other one.
    ///@{
    void operator&=(const RECT& rect) noexcept { IntersectRect(CRect(*this), &rect); }
    void operator|=(const RECT& rect) noexcept { UnionRect(CRect(*this), &rect); }
    ///@}
    /// The result of the operator with = as a new rectangle.
    ///@{
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
    ///@}

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
