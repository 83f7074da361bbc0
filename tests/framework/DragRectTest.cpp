// The frame that follows what the user drags: it shows, moves, and leaves no trace.
#include "Canvas.h"

using namespace testkit;

namespace {

const CSize THIN(1, 1);

/// A background on which an inverted pixel is always seen.
void Paint(CDC& dc) {
    for (int y = 0; y < 40; ++y)
        for (int x = 0; x < 40; ++x)
            dc.SetPixel(x, y, RGB(6 * x, 6 * y, 3 * (x + y)));
}

std::vector<COLORREF> Pixels(const CDC& dc) {
    std::vector<COLORREF> pixels;
    for (int y = 0; y < 40; ++y)
        for (int x = 0; x < 40; ++x)
            pixels.push_back(dc.GetPixel(x, y));
    return pixels;
}

TEST(DragRect, IsAFrameOfTheGivenThicknessWithHalfOfItsPixels) {
    const Rows<CSize, int> cases = {
        {{1, 1}, 38},    // 20 x 20 less 18 x 18, halved
        {{2, 3}, 88},    // sides 2, top and bottom 3
        {{10, 10}, 200}, // the sides meet: all of it
        {{15, 15}, 200},
    };
    for (const auto& [size, nPixels] : cases) {
        fx::Canvas canvas;
        canvas.m_dc.DrawDragRect(CRect(10, 10, 30, 30), size, nullptr, size);
        EXPECT_EQ(canvas.CountDrawn(), nPixels) << size.cx;
        EXPECT_EQ(canvas.Picture().find('#'), canvas.Picture().find_first_not_of(".\n"));
        EXPECT_GE(canvas.Picture().find('#'), 10U * 41);
    }
}

TEST(DragRect, AWholeDragLeavesThePictureAsItWas) {
    fx::Canvas canvas;
    Paint(canvas.m_dc);
    const auto before = Pixels(canvas.m_dc);
    const CRect first(2, 2, 20, 15);
    const CRect second(5, 3, 23, 16); // overlaps the first
    const CRect third(22, 20, 40, 38);
    canvas.m_dc.DrawDragRect(first, THIN, nullptr, THIN);
    EXPECT_NE(Pixels(canvas.m_dc), before);
    canvas.m_dc.DrawDragRect(second, THIN, first, THIN);
    canvas.m_dc.DrawDragRect(third, THIN, second, THIN);
    const auto shown = Pixels(canvas.m_dc);
    canvas.m_dc.DrawDragRect(third, THIN, nullptr, THIN);
    EXPECT_EQ(Pixels(canvas.m_dc), before);
    canvas.m_dc.DrawDragRect(third, THIN, nullptr, THIN);
    EXPECT_EQ(Pixels(canvas.m_dc), shown) << "only the last frame was on the screen";
}

TEST(DragRect, TakesOtherBrushesAndThicknessesBackToo) {
    fx::Canvas canvas;
    Paint(canvas.m_dc);
    const auto before = Pixels(canvas.m_dc);
    CBrush solid(RGB(255, 255, 255)), red(RGB(255, 0, 0));
    const CRect first(2, 2, 20, 20), second(8, 8, 35, 35);
    canvas.m_dc.DrawDragRect(first, CSize(3, 3), nullptr, THIN, &solid);
    EXPECT_NE(canvas.m_dc.GetPixel(2, 2), RGB(12, 12, 12));
    EXPECT_NE(canvas.m_dc.GetPixel(3, 2), RGB(18, 12, 15)) << "a solid brush inverts every pixel";
    canvas.m_dc.DrawDragRect(second, THIN, first, CSize(3, 3), &red, &solid);
    canvas.m_dc.DrawDragRect(second, THIN, nullptr, THIN, &red);
    EXPECT_EQ(Pixels(canvas.m_dc), before);
}

TEST(DragRect, DoesNotDependOnWhatElseIsSetInTheContext) {
    fx::Canvas canvas;
    CDC& dc = canvas.m_dc;
    const CRect rect(3, 3, 20, 20);
    dc.SetTextColor(RGB(255, 0, 0));
    dc.SetBkColor(RGB(0, 255, 0));
    dc.DrawDragRect(rect, THIN, nullptr, THIN);
    dc.SetTextColor(RGB(0, 0, 255));
    dc.DrawDragRect(rect, THIN, nullptr, THIN);
    EXPECT_EQ(canvas.CountDrawn(), 0);
    EXPECT_EQ(dc.GetBkColor(), RGB(0, 255, 0)) << "and leaves it alone";

    // Logical coordinates, and the application's own clipping, hold.
    dc.IntersectClipRect(0, 0, 40, 10);
    dc.SetViewportOrg(5, 5);
    dc.DrawDragRect(CRect(0, 0, 20, 20), THIN, nullptr, THIN);
    const std::string picture = canvas.Picture();
    EXPECT_EQ(picture.find('#') / 41, 5U) << "row of the frame's top";
    EXPECT_EQ(picture.rfind('#') / 41, 9U) << "last row inside the clipping";
}

} // namespace
