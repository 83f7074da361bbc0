/// @file
/// A bitmap in memory for tests of what a program draws: a plan, a control, a print. It is looked at as a
/// text of characters, or pixel by pixel.
///
///     Canvas canvas(5, 3);
///     DrawStation(canvas.m_dc, CPoint(2, 1));
///     EXPECT_EQ("..#..\n"
///               ".#x#.\n"
///               "..#..\n", canvas.Text());
#pragma once

#include "testkit/Picture.h"

#include "afxwin.h"

#include <string>

namespace testkit {

/// White at first, in the colors of the screen.
class Canvas {
public:
    /// @param cx width, in pixels
    /// @param cy height
    explicit Canvas(int cx = 40, int cy = 40);
    ~Canvas();
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    CDC m_dc; ///< To draw on.

    /// What has been drawn, whatever origin and clipping the context has by now. A character a pixel, a line
    /// a row, each with its end: '.' is white, '#' black, 'x' any other color.
    std::string Text();

    /// The same with its colors.
    Picture Look();

    /// How many pixels are not white.
    int CountDrawn();

private:
    CSize m_size;
    CBitmap m_bitmap;
    CBitmap* m_pOldBitmap;
};

} // namespace testkit
