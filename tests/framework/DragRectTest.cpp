// The frame that follows what the user drags: it shows, moves, and leaves no trace.
#include "support/TestApp.h"
#include "testkit/Canvas.h"

using namespace testkit;

namespace {

const CSize THIN(1, 1);

std::vector<COLORREF> Pixels(const CDC& dc) {
    std::vector<COLORREF> pixels;
    for (int y = 0; y < 40; ++y)
        for (int x = 0; x < 40; ++x)
            pixels.push_back(dc.GetPixel(x, y));
    return pixels;
}

TEST(DragRect, IsAFrameOfTheGivenThicknessWithHalfOfItsPixels) {
    CBrush white(RGB(255, 255, 255));
    const Rows<CSize, CBrush*, int> rows = {
        {{1, 1}, nullptr, 42},    // 20 x 24 less 18 x 22, halved
        {{1, 1}, &white, 84},     // all of them by a brush without a pattern
        {{2, 3}, nullptr, 96},    // sides 2, top and bottom 3
        {{10, 10}, nullptr, 240}, // the sides meet: all of it
        {{15, 15}, nullptr, 240},
    };
    for (const auto& [size, pBrush, nPixels] : rows) {
        Canvas canvas;
        canvas.m_dc.SetViewportOrg(2, 1);
        canvas.m_dc.SetTextColor(RGB(255, 0, 0)); // the frame's are its own
        canvas.m_dc.SetBkColor(RGB(0, 0, 255));
        canvas.m_dc.DrawDragRect(CRect(8, 9, 28, 33), size, nullptr, size, pBrush);
        EXPECT_EQ(nPixels, canvas.CountDrawn()) << size.cx;
        const std::string picture = canvas.Text();
        EXPECT_EQ(picture.find_first_not_of(".\n"), picture.find('#'));
        EXPECT_GE(picture.find('#'), 10U * 41);
        for (size_t i = picture.find('#'); pBrush == nullptr && i != std::string::npos;
             i = picture.find('#', i + 1))
            EXPECT_EQ(picture.find('#') % 2, i % 2) << "every second pixel, in turn";
    }
}

// With the same brush all the way, a dialog is dragged in tests/controls.
TEST(DragRect, AnotherBrushAndThicknessAreTakenBackToo) {
    Canvas canvas;
    CDC& dc = canvas.m_dc;
    for (int i = 0; i < 40 * 40; ++i) // an inverted pixel is always seen
        dc.SetPixel(i % 40, i / 40, RGB(6 * (i % 40), 6 * (i / 40), 100));
    const auto before = Pixels(dc);
    CBrush white(RGB(255, 255, 255)), red(RGB(255, 0, 0));
    const CRect first(2, 2, 20, 20), second(8, 8, 35, 35);
    const CSize thick(3, 3);
    dc.DrawDragRect(first, thick, nullptr, THIN, &white);
    EXPECT_NE(before, Pixels(dc));
    dc.DrawDragRect(second, THIN, first, thick, &red, &white);
    dc.DrawDragRect(second, THIN, nullptr, THIN, &red);
    EXPECT_EQ(before, Pixels(dc));
}

} // namespace
