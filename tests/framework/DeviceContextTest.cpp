// Device contexts: their state, and what appears on a bitmap.
#include "Canvas.h"

#include <functional>

namespace {

constexpr COLORREF RED = RGB(255, 0, 0);
constexpr COLORREF BLUE = RGB(0, 0, 255);

TEST(DeviceContext, PaintContextValidatesTheWindow) {
    class Painted : public fx::Frame {
    public:
        int m_nPaints = 0;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            if (message != WM_PAINT)
                return CWnd::WindowProc(message, wParam, lParam);
            CPaintDC dc(this);
            EXPECT_EQ(CRect(dc.m_ps.rcPaint), CRect(10, 10, 20, 20));
            dc.FillSolidRect(0, 0, 100, 100, RED);
            ++m_nPaints;
            return 0;
        }
    };
    Painted wnd;
    wnd.ValidateRect(nullptr);
    wnd.InvalidateRect(CRect(10, 10, 20, 20), FALSE);
    wnd.UpdateWindow();
    wnd.UpdateWindow();
    EXPECT_EQ(wnd.m_nPaints, 1);
    CClientDC dc(&wnd);
    EXPECT_EQ(dc.GetPixel(19, 19), RED);
    EXPECT_NE(dc.GetPixel(20, 20), RED) << "outside of what was invalid";
}

TEST(DeviceContext, SelectingGivesThePreviousObjectBack) {
    fx::Canvas canvas;
    CDC& dc = canvas.m_dc;
    CPen pen(PS_SOLID, 1, RED);
    CBrush brush(BLUE);
    CFont font;
    font.CreatePointFont(90, L"System");
    CPen* const pOldPen = dc.SelectObject(&pen);
    CBrush* const pOldBrush = dc.SelectObject(&brush);
    CFont* const pOldFont = dc.SelectObject(&font);
    EXPECT_EQ(dc.GetCurrentPen(), &pen);
    EXPECT_EQ(dc.GetCurrentBrush(), &brush);
    EXPECT_EQ(dc.GetCurrentFont(), &font);
    EXPECT_EQ(dc.SelectObject(pOldPen), &pen);
    EXPECT_EQ(dc.SelectObject(pOldBrush), &brush);
    EXPECT_EQ(dc.SelectObject(pOldFont), &font);
    EXPECT_EQ(dc.SelectStockObject(BLACK_PEN)->m_hObject, pOldPen->m_hObject);
}

TEST(DeviceContext, DrawsShapesWhereTheyBelong) {
    const CRect rect(1, 1, 6, 4);
    CBrush black(RGB(0, 0, 0));
    const struct {
        const char* pszName;
        std::function<void(CDC&)> draw;
        const char* pszPicture;
    } cases[] = {
        {"frame", [&](CDC& dc) { dc.FrameRect(rect, &black); },
         ".......\n.#####.\n.#...#.\n.#####.\n.......\n"},
        {"solid", [&](CDC& dc) { dc.FillSolidRect(2, 1, 2, 2, 0); },
         ".......\n..##...\n..##...\n.......\n.......\n"},
        {"3d", [&](CDC& dc) { dc.Draw3dRect(rect, 0, RED); },
         ".......\n.####x.\n.#...x.\n.xxxxx.\n.......\n"},
        {"clipped",
         [&](CDC& dc) {
             dc.IntersectClipRect(CRect(2, 0, 7, 3));
             dc.ExcludeClipRect(4, 0, 5, 5);
             dc.FillRect(rect, &black);
         },
         ".......\n..##.#.\n..##.#.\n.......\n.......\n"},
    };
    for (const auto& c : cases) {
        fx::Canvas canvas(7, 5);
        c.draw(canvas.m_dc);
        EXPECT_EQ(canvas.Picture(), c.pszPicture) << c.pszName;
    }
}

TEST(DeviceContext, FillSolidRectKeepsTheBackgroundColour) {
    fx::Canvas canvas;
    canvas.m_dc.SetBkColor(BLUE);
    canvas.m_dc.FillSolidRect(CRect(0, 0, 5, 5), RED);
    EXPECT_EQ(canvas.m_dc.GetBkColor(), BLUE);
    EXPECT_EQ(canvas.m_dc.GetPixel(4, 4), RED);
}

} // namespace
