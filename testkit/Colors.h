/// @file
/// Colors that tests of drawing look for, and an icon to look for.
#pragma once

#include "afxwin.h"

#include <vector>

namespace testkit {

constexpr COLORREF BLACK = RGB(0, 0, 0);
constexpr COLORREF WHITE = RGB(255, 255, 255);
constexpr COLORREF RED = RGB(255, 0, 0);
constexpr COLORREF BLUE = RGB(0, 0, 255);
constexpr COLORREF MAGENTA = RGB(255, 0, 255);

/// An icon that is one square of magenta, as long as this object.
struct SquareIcon {
    /// @param nSize its width and height, in pixels
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

} // namespace testkit
