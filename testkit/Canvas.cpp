#include "testkit/Canvas.h"

#include <algorithm>

namespace testkit {

Canvas::Canvas(int cx, int cy) : m_size(cx, cy) {
    CWindowDC screen(nullptr);
    m_dc.CreateCompatibleDC(&screen);
    m_bitmap.CreateCompatibleBitmap(&screen, cx, cy);
    m_pOldBitmap = m_dc.SelectObject(&m_bitmap);
    m_dc.PatBlt(0, 0, cx, cy, WHITENESS);
}

Canvas::~Canvas() {
    m_dc.SelectObject(m_pOldBitmap);
}

Picture Canvas::Look() {
    const AfxSavedDC saved(m_dc);
    m_dc.SelectClipRgn(nullptr);
    m_dc.SetMapMode(MM_TEXT);
    m_dc.SetWindowOrg(0, 0);
    m_dc.SetViewportOrg(0, 0);
    return {m_dc, m_size};
}

std::string Canvas::Text() {
    const Picture picture = Look();
    std::string text;
    for (int y = 0; y < m_size.cy; ++y) {
        for (int x = 0; x < m_size.cx; ++x) {
            const COLORREF color = picture.At(x, y);
            text += color == RGB(255, 255, 255) ? '.' : color == RGB(0, 0, 0) ? '#' : 'x';
        }
        text += '\n';
    }
    return text;
}

int Canvas::CountDrawn() {
    const std::string text = Text();
    return static_cast<int>(text.size() - std::count(text.begin(), text.end(), '.')) - m_size.cy;
}

} // namespace testkit
