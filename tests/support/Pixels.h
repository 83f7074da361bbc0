// What stands on the screen, to look at pixel by pixel.
#pragma once

#include "support/FrameworkEnvironment.h"

#include <algorithm>
#include <vector>

namespace fx {

constexpr COLORREF BLACK = RGB(0, 0, 0);
constexpr COLORREF WHITE = RGB(255, 255, 255);
constexpr COLORREF MAGENTA = RGB(255, 0, 255);

/// A copy of the pixels of a window's client area or of a device context.
struct Image {
    /// Draws the window before.
    static Image Of(CWnd& wnd) {
        wnd.RedrawWindow();
        CClientDC dc(&wnd);
        CRect client;
        wnd.GetClientRect(client);
        return Image(dc, client.Size());
    }

    Image(CDC& dc, CSize size) : m_size(size), m_pixels(static_cast<size_t>(size.cx * size.cy)) {
        CDC memory;
        memory.CreateCompatibleDC(&dc);
        CBitmap bitmap;
        bitmap.CreateCompatibleBitmap(&dc, size.cx, size.cy);
        CBitmap* const pOld = memory.SelectObject(&bitmap);
        memory.BitBlt(0, 0, size.cx, size.cy, &dc, 0, 0, SRCCOPY);
        memory.SelectObject(pOld);
        BITMAPINFO info = {};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = size.cx;
        info.bmiHeader.biHeight = -size.cy; // top row first
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        ::GetDIBits(memory, bitmap, 0, static_cast<UINT>(size.cy), m_pixels.data(), &info, DIB_RGB_COLORS);
    }

    CRect Rect() const { return CRect(CPoint(0, 0), m_size); }

    COLORREF At(int x, int y) const {
        const DWORD dw = m_pixels[static_cast<size_t>(y * m_size.cx + x)];
        return RGB(dw >> 16 & 0xFF, dw >> 8 & 0xFF, dw & 0xFF);
    }

    /// The smallest rectangle around all pixels within another one that a test holds for;
    /// empty if there are none.
    template <class Test>
    CRect Around(CRect within, Test test) const {
        CRect around(0, 0, 0, 0);
        for (int y = within.top; y < within.bottom; ++y)
            for (int x = within.left; x < within.right; ++x)
                if (test(CPoint(x, y)))
                    around.UnionRect(around, CRect(CPoint(x, y), CSize(1, 1)));
        return around;
    }
    CRect Around(CRect within, COLORREF color) const {
        return Around(within, [&](CPoint p) { return At(p.x, p.y) == color; });
    }
    /// Around what is in this image and not in another one of the same size.
    CRect Difference(const Image& other) const {
        return Around(Rect(), [&](CPoint p) { return At(p.x, p.y) != other.At(p.x, p.y); });
    }
    bool Has(CRect within, COLORREF color) const { return !Around(within, color).IsRectEmpty(); }
    /// Whether nothing but one color is within a rectangle.
    bool IsAll(CRect within, COLORREF color) const {
        return Around(within, [&](CPoint p) { return At(p.x, p.y) != color; }).IsRectEmpty();
    }

private:
    CSize m_size;
    std::vector<DWORD> m_pixels;
};

/// An icon that is one square of magenta.
struct SquareIcon {
    explicit SquareIcon(int nSize = 16) {
        CBitmap mask; // all 0: nothing shines through
        const std::vector<BYTE> bits(static_cast<size_t>(nSize * nSize), 0);
        mask.CreateBitmap(nSize, nSize, 1, 1, bits.data());
        CBitmap color;
        const std::vector<DWORD> pixels(static_cast<size_t>(nSize * nSize), 0xFFFF00FF);
        color.CreateBitmap(nSize, nSize, 1, 32, pixels.data());
        ICONINFO info = {TRUE, 0, 0, mask, color};
        m_hIcon = ::CreateIconIndirect(&info);
    }
    ~SquareIcon() { ::DestroyIcon(m_hIcon); }
    operator HICON() const { return m_hIcon; }

private:
    HICON m_hIcon = nullptr;
};

} // namespace fx
