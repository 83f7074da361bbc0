/// @file
/// What stands on the screen, to look at pixel by pixel, and to keep for a look. Needs nothing of
/// the framework.
#pragma once

#include "testkit/Failure.h"
#include "testkit/Window.h"

#include <string>
#include <vector>

namespace testkit {

/// A copy of pixels. Coordinates are its own, from (0, 0).
class Picture {
public:
    /// Of a window's client area, which is drawn anew before. The window must be of this thread.
    static Picture Of(HWND hWnd);
    /// Of the whole screen.
    static Picture OfScreen();
    /// Of the upper left of a device context.
    Picture(HDC hDC, CSize size);

    /// Width and height.
    CSize Size() const { return m_size; }
    /// All of it.
    CRect Rect() const { return {CPoint(0, 0), m_size}; }
    /// The color of a pixel within it.
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
    /// Around all pixels of a color.
    CRect Around(CRect within, COLORREF color) const;
    /// Around what is in this picture and not in another one of the same size.
    CRect Difference(const Picture& other) const;
    /// Whether there is a pixel of a color.
    bool Has(CRect within, COLORREF color) const { return !Around(within, color).IsRectEmpty(); }
    /// Whether nothing but one color is within a rectangle.
    bool IsAll(CRect within, COLORREF color) const;

    /// Saves it as PNG. @return false if the file cannot be written
    bool Save(const std::wstring& path) const;

private:
    CSize m_size;
    std::vector<DWORD> m_pixels; ///< 0x00RRGGBB, the top row first.
};

/// Where SaveScreen() puts its files, which are otherwise in the current folder; empty for nowhere.
void SetPictureFolder(const std::wstring& folder);

/// Saves what is on the screen beside the program's name: "test_dialogs-failure-1.png", and so on
/// up to 20 of them; reporters call this for each failure. Prints where it is.
void SaveScreen();

/// Keeps what is on the screen if the environment variable FIELDKIT_PICTURES names a folder, as
/// "101-NAME.png" and so on: all screens that a test has come by, to be looked at after it.
void KeepScreen(std::string name);

} // namespace testkit
