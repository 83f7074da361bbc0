// A bitmap in memory to draw on and look at.
#pragma once

#include "support/TestApp.h"

#include <string>

namespace fx {

constexpr COLORREF RED = RGB(255, 0, 0), BLUE = RGB(0, 0, 255);

/// White at first.
struct Canvas {
    explicit Canvas(int cx = 40, int cy = 40) : m_size(cx, cy) {
        CWindowDC screen(nullptr);
        m_dc.CreateCompatibleDC(&screen);
        m_bitmap.CreateCompatibleBitmap(&screen, cx, cy);
        m_pOldBitmap = m_dc.SelectObject(&m_bitmap);
        m_dc.PatBlt(0, 0, cx, cy, WHITENESS);
    }
    ~Canvas() { m_dc.SelectObject(m_pOldBitmap); }

    CDC m_dc;

    /// One character a pixel, one line a row: '.' white, '#' black, 'x' any other.
    std::string Picture() {
        const int nSaved = m_dc.SaveDC(); // whatever origin and clipping the test has set
        m_dc.SelectClipRgn(nullptr);
        m_dc.SetViewportOrg(0, 0);
        std::string picture;
        for (int y = 0; y < m_size.cy; ++y) {
            for (int x = 0; x < m_size.cx; ++x) {
                const COLORREF color = m_dc.GetPixel(x, y);
                picture += color == RGB(255, 255, 255) ? '.' : color == RGB(0, 0, 0) ? '#' : 'x';
            }
            picture += '\n';
        }
        m_dc.RestoreDC(nSaved);
        return picture;
    }

    /// Pixels that are not white.
    int CountDrawn() {
        const std::string picture = Picture();
        return static_cast<int>(
            std::count_if(picture.begin(), picture.end(), [](char ch) { return ch == '#' || ch == 'x'; }));
    }

private:
    CSize m_size;
    CBitmap m_bitmap;
    CBitmap* m_pOldBitmap = nullptr;
};

} // namespace fx
