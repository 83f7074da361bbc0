// Device contexts: their state, and what appears on a bitmap.
#include "Canvas.h"

#include <algorithm>
#include <functional>

using namespace testkit;

namespace {

constexpr COLORREF RED = RGB(255, 0, 0);
constexpr COLORREF BLUE = RGB(0, 0, 255);

TEST(DeviceContext, PaintContextValidatesTheWindow) {
    struct Painted : Frame {
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
    EXPECT_TRUE(dc.GetCurrentPen() == &pen && dc.GetCurrentBrush() == &brush && dc.GetCurrentFont() == &font);
    EXPECT_TRUE(dc.SelectObject(pOldPen) == &pen && dc.SelectObject(pOldBrush) == &brush);
    EXPECT_EQ(&font, dc.SelectObject(pOldFont));
    EXPECT_EQ(pOldPen->m_hObject, dc.SelectStockObject(BLACK_PEN)->m_hObject);
}

TEST(DeviceContext, DrawsWhereItBelongs) {
    const CRect rect(1, 1, 6, 4), all(0, 0, 7, 5);
    CBrush black(RGB(0, 0, 0));
    CRgn rgn, other;
    rgn.CreateRectRgn(1, 1, 3, 3);
    other.CreateRectRgn(0, 0, 2, 5);
    rgn.CombineRgn(&rgn, &other, RGN_DIFF);
    rgn.OffsetRgn(3, 0);
    fx::Canvas source(3, 1);
    source.m_dc.SetPixelV(1, 0, RED);
    const WORD wBits = 0xA0; // white, black, white
    CBitmap picture;
    picture.CreateBitmap(3, 1, 1, 1, &wBits);
    TRIVERTEX corners[] = {{0, 0, 0, 0, 0, 0}, {7, 5, 0, 0, 0, 0}};
    GRADIENT_RECT whole = {0, 1};
    const POINT points[] = {{1, 1}, {4, 1}, {4, 4}, {1, 4}};
    const auto solid = [](CDC& dc) {
        dc.SetBkColor(BLUE);
        dc.FillSolidRect(2, 1, 2, 2, 0);
        EXPECT_EQ(BLUE, dc.GetBkColor());
    };
    const auto clipped = [&](CDC& dc) {
        dc.IntersectClipRect(CRect(2, 0, 7, 3));
        dc.ExcludeClipRect(4, 0, 5, 5);
        dc.FillRect(rect, &CBrush(RGB(0, 0, 0)));
    };
    const auto transparent = [&](CDC& dc) {
        dc.PatBlt(0, 0, 7, 5, BLACKNESS);
        dc.TransparentBlt(2, 1, 3, 1, &source.m_dc, 0, 0, 3, 1, RED);
    };
    const auto path = [&](CDC& dc) {
        dc.SelectStockObject(BLACK_BRUSH);
        dc.BeginPath();
        dc.MoveTo(points[0]);
        dc.PolylineTo(points + 1, 3);
        dc.CloseFigure();
        dc.EndPath();
        dc.FillPath();
    };
    const auto scroll = [&](CDC& dc) {
        dc.FillSolidRect(0, 0, 1, 1, 0);
        dc.ScrollDC(2, 1, all, all, nullptr, nullptr);
    };
    const Rows<std::function<void(CDC&)>, std::string> rows = {
        {[&](CDC& dc) { dc.FrameRect(rect, &black); }, "....... .#####. .#...#. .#####. ......."},
        {solid, "....... ..##... ..##... ....... ......."},
        {[&](CDC& dc) { dc.Draw3dRect(rect, 0, RED); }, "....... .####x. .#...x. .xxxxx. ......."},
        {clipped, "....... ..##.#. ..##.#. ....... ......."},
        {[&](CDC& dc) { dc.FillRgn(&rgn, &black); }, "....... .....#. .....#. ....... ......."},
        {transparent, "####### ##.#.## ####### ####### #######"},
        {[&](CDC& dc) { dc.GradientFill(corners, 2, &whole, 1, GRADIENT_FILL_RECT_H); },
         "####### ####### ####### ####### #######"},
        {path, "....... .###... .###... .###... ......."},
        {scroll, "#...... ..#.... ....... ....... ......."},
        {[&](CDC& dc) { dc.DrawState(CPoint(1, 1), CSize(3, 1), &picture, DSS_NORMAL); },
         "....... ..#.... ....... ....... ......."},
    };
    for (const auto& [draw, wanted] : rows) {
        fx::Canvas canvas(7, 5);
        draw(canvas.m_dc);
        std::string drawn = canvas.Picture();
        std::replace(drawn.begin(), drawn.end(), '\n', ' ');
        EXPECT_EQ(wanted + ' ', drawn);
    }
}

TEST(DeviceContext, MapsLogicalUnitsToTheDevice) {
    fx::Canvas canvas;
    CDC& dc = canvas.m_dc;
    EXPECT_EQ(dc.SetMapMode(MM_ANISOTROPIC), MM_TEXT);
    dc.SetWindowExt(100, 200);
    EXPECT_EQ(dc.SetViewportExt(CSize(50, -400)), CSize(1, 1));
    EXPECT_EQ(dc.ScaleWindowExt(2, 1, 1, 2), CSize(100, 200));
    EXPECT_EQ(dc.GetWindowExt(), CSize(200, 100));
    EXPECT_EQ(dc.SetWindowOrg(8, 4), CPoint(0, 0));
    EXPECT_EQ(dc.OffsetWindowOrg(0, 1), CPoint(8, 4));
    EXPECT_EQ(dc.OffsetViewportOrg(3, 5), CPoint(0, 0));
    CPoint point(16, 6);
    dc.LPtoDP(&point);
    EXPECT_EQ(point, CPoint(5, 1)) << "3 + 8 / 4, 5 - 1 * 4";
    CSize size(8, 3);
    dc.LPtoDP(&size);
    EXPECT_EQ(size, CSize(2, 12)) << "a size has no origin and no direction";
    CSize inch(2540, 2540);
    dc.HIMETRICtoDP(&inch);
    EXPECT_EQ(inch, CSize(dc.GetDeviceCaps(LOGPIXELSX), dc.GetDeviceCaps(LOGPIXELSY)));
}

TEST(DeviceContext, AnotherContextAnswersQuestions) {
    fx::Canvas drawn, asked;
    CDC dc;
    dc.SetOutputDC(drawn.m_dc);
    dc.SetAttribDC(asked.m_dc);
    asked.m_dc.SetTextColor(RED);
    EXPECT_EQ(dc.SetTextColor(BLUE), RED) << "the previous value as the attribute context had it";
    EXPECT_EQ(drawn.m_dc.GetTextColor(), BLUE);
    EXPECT_EQ(asked.m_dc.GetTextColor(), BLUE);
    EXPECT_EQ(dc.SaveDC(), -1);
    dc.SelectStockObject(BLACK_BRUSH);
    dc.MoveTo(1, 1);
    dc.LineTo(4, 1);
    EXPECT_EQ(dc.GetCurrentPosition(), CPoint(4, 1));
    EXPECT_EQ(drawn.CountDrawn(), 3);
    EXPECT_EQ(asked.CountDrawn(), 0);
    EXPECT_TRUE(dc.RestoreDC(-1));
    EXPECT_EQ(asked.m_dc.GetCurrentBrush()->m_hObject, ::GetStockObject(WHITE_BRUSH));
    dc.ReleaseOutputDC();
    dc.ReleaseAttribDC();
}

TEST(DeviceContext, MeasuresTexts) {
    fx::Canvas canvas;
    CDC& dc = canvas.m_dc;
    TEXTMETRIC metrics = {};
    ASSERT_TRUE(dc.GetTextMetrics(&metrics));
    const CString strText(L"12");
    const CSize size = dc.GetTextExtent(strText);
    EXPECT_EQ(size.cy, metrics.tmHeight);
    int nStop = 100;
    EXPECT_EQ(dc.GetTabbedTextExtent(L"\t12", 1, &nStop), CSize(100 + size.cx, size.cy));
    EXPECT_EQ(dc.TabbedTextOut(0, 0, L"\t12", 1, &nStop, 0).cx, 100 + size.cx);
    int widths[2] = {};
    ASSERT_TRUE(dc.GetCharWidth('1', '2', widths));
    EXPECT_EQ(widths[0] + widths[1], size.cx);
    CString strFace;
    const int nLength = dc.GetTextFace(strFace);
    EXPECT_EQ(strFace.GetLength(), nLength);
    EXPECT_GT(nLength, 0);
}

} // namespace
