// Device contexts: ownership, state, and what appears on a bitmap.
#include "Canvas.h"

#include <functional>

namespace {

constexpr COLORREF RED = RGB(255, 0, 0);
constexpr COLORREF BLUE = RGB(0, 0, 255);
constexpr COLORREF WHITE = RGB(255, 255, 255);

TEST(DeviceContext, BelongsToItsObject) {
    HDC hMemory = nullptr;
    {
        CDC dc;
        ASSERT_TRUE(dc.CreateCompatibleDC(nullptr));
        hMemory = dc;
        EXPECT_EQ(dc.m_hAttribDC, hMemory);
        EXPECT_EQ(CDC::FromHandle(hMemory), &dc);
    }
    EXPECT_EQ(::GetObjectType(hMemory), 0U);
    CDC* volatile pNone = nullptr;
    EXPECT_EQ(pNone->GetSafeHdc(), nullptr);
}

TEST(DeviceContext, TemporaryObjectOfAForeignContextOwnsNothing) {
    const HDC hMemory = ::CreateCompatibleDC(nullptr);
    const CDC* const pDC = CDC::FromHandle(hMemory);
    EXPECT_EQ(pDC->m_hDC, hMemory);
    EXPECT_EQ(pDC->m_hAttribDC, hMemory);
    CDC::DeleteTempMap();
    EXPECT_EQ(::GetObjectType(hMemory), static_cast<DWORD>(OBJ_MEMDC));
    ::DeleteDC(hMemory);
}

TEST(DeviceContext, WindowContextsKnowTheirWindowAndPlace) {
    fx::Frame frame(CSize(100, 100), WS_POPUP | WS_VISIBLE | WS_CAPTION);
    CClientDC client(&frame);
    CWindowDC window(&frame);
    CWindowDC screen(nullptr);
    EXPECT_EQ(client.GetWindow(), &frame);
    CRect rect;
    screen.GetClipBox(rect);
    EXPECT_EQ(rect.Width(), ::GetSystemMetrics(SM_CXSCREEN));
    frame.GetWindowRect(rect);
    CPoint origin(0, 0);
    frame.ClientToScreen(&origin);
    const CPoint offset = origin - rect.TopLeft();
    EXPECT_GT(offset.y, 0) << "the title bar";
    client.FillSolidRect(3, 4, 1, 1, RED);
    EXPECT_EQ(window.GetPixel(CPoint(3, 4) + offset), RED);
    EXPECT_EQ(client.GetPixel(0, -1), CLR_INVALID) << "the title bar is not in the client area";
}

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

TEST(DeviceContext, SettersReturnThePreviousValueAndRestoringBringsAllBack) {
    fx::Canvas canvas;
    CDC& dc = canvas.m_dc;
    const int nSaved = dc.SaveDC();
    EXPECT_EQ(dc.SetTextColor(RED), RGB(0, 0, 0));
    EXPECT_EQ(dc.SetTextColor(BLUE), RED);
    EXPECT_EQ(dc.SetBkColor(RED), WHITE);
    EXPECT_EQ(dc.SetBkMode(TRANSPARENT), OPAQUE);
    EXPECT_EQ(dc.GetBkMode(), TRANSPARENT);
    EXPECT_EQ(dc.SetROP2(R2_NOT), R2_COPYPEN);
    EXPECT_EQ(dc.SetTextAlign(TA_RIGHT), static_cast<UINT>(TA_LEFT));
    EXPECT_EQ(dc.SetViewportOrg(5, 6), CPoint(0, 0));
    EXPECT_EQ(dc.GetViewportOrg(), CPoint(5, 6));
    EXPECT_EQ(dc.MoveTo(7, 8), CPoint(0, 0));
    EXPECT_EQ(dc.GetCurrentPosition(), CPoint(7, 8));
    EXPECT_TRUE(dc.RestoreDC(nSaved));
    EXPECT_EQ(dc.GetTextColor(), RGB(0, 0, 0));
    EXPECT_EQ(dc.GetBkColor(), WHITE);
    EXPECT_EQ(dc.GetBkMode(), OPAQUE);
    EXPECT_EQ(dc.GetROP2(), R2_COPYPEN);
    EXPECT_EQ(dc.GetViewportOrg(), CPoint(0, 0));
    EXPECT_FALSE(dc.RestoreDC(nSaved));
}

TEST(DeviceContext, DrawsShapesWhereTheyBelong) {
    const CRect rect(1, 1, 6, 4);
    CBrush black(RGB(0, 0, 0));
    const struct {
        const char* pszName;
        std::function<void(CDC&)> draw;
        const char* pszPicture;
    } cases[] = {
        {"rectangle", [&](CDC& dc) { dc.Rectangle(rect); }, ".......\n.#####.\n.#...#.\n.#####.\n.......\n"},
        {"fill", [&](CDC& dc) { dc.FillRect(rect, &black); },
         ".......\n.#####.\n.#####.\n.#####.\n.......\n"},
        {"frame", [&](CDC& dc) { dc.FrameRect(rect, &black); },
         ".......\n.#####.\n.#...#.\n.#####.\n.......\n"},
        {"invert", [&](CDC& dc) { dc.InvertRect(rect); }, ".......\n.#####.\n.#####.\n.#####.\n.......\n"},
        {"solid", [&](CDC& dc) { dc.FillSolidRect(2, 1, 2, 2, 0); },
         ".......\n..##...\n..##...\n.......\n.......\n"},
        {"3d", [&](CDC& dc) { dc.Draw3dRect(rect, 0, RED); },
         ".......\n.####x.\n.#...x.\n.xxxxx.\n.......\n"},
        {"line",
         [&](CDC& dc) {
             dc.MoveTo(1, 2);
             dc.LineTo(5, 2);
         },
         ".......\n.......\n.####..\n.......\n.......\n"},
        {"pattern", [&](CDC& dc) { dc.PatBlt(0, 4, 7, 1, BLACKNESS); },
         ".......\n.......\n.......\n.......\n#######\n"},
        {"pixel", [&](CDC& dc) { dc.SetPixel(CPoint(6, 0), RED); },
         "......x\n.......\n.......\n.......\n.......\n"},
        {"clipped",
         [&](CDC& dc) {
             dc.IntersectClipRect(CRect(2, 0, 7, 3));
             dc.ExcludeClipRect(4, 0, 5, 5);
             dc.FillRect(rect, &black);
         },
         ".......\n..##.#.\n..##.#.\n.......\n.......\n"},
        {"moved",
         [&](CDC& dc) {
             dc.SetViewportOrg(2, 1);
             dc.FillSolidRect(0, 0, 1, 1, 0);
         },
         ".......\n..#....\n.......\n.......\n.......\n"},
        {"polyline",
         [&](CDC& dc) {
             const POINT p[] = {{1, 1}, {4, 1}, {4, 4}};
             dc.Polyline(p, 3);
         },
         ".......\n.####..\n....#..\n....#..\n.......\n"},
    };
    for (const auto& c : cases) {
        fx::Canvas canvas(7, 5);
        c.draw(canvas.m_dc);
        EXPECT_EQ(canvas.Picture(), c.pszPicture) << c.pszName;
    }
}

TEST(DeviceContext, RoundShapesStayInTheirRectangle) {
    fx::Canvas full(40, 40);
    full.m_dc.SelectStockObject(BLACK_BRUSH);
    full.m_dc.Ellipse(CRect(0, 0, 40, 40));
    EXPECT_NEAR(full.CountDrawn(), 1257, 60) << "the area of a circle";
    fx::Canvas arc(40, 40);
    EXPECT_TRUE(arc.m_dc.Arc(CRect(0, 0, 40, 40), CPoint(40, 20), CPoint(0, 20)));
    EXPECT_GT(arc.CountDrawn(), 40);
    EXPECT_EQ(arc.Picture().find('#', 21 * 41), std::string::npos) << "the upper half, counter-clockwise";
}

TEST(DeviceContext, FillSolidRectKeepsTheBackgroundColour) {
    fx::Canvas canvas;
    canvas.m_dc.SetBkColor(BLUE);
    canvas.m_dc.FillSolidRect(CRect(0, 0, 5, 5), RED);
    EXPECT_EQ(canvas.m_dc.GetBkColor(), BLUE);
    EXPECT_EQ(canvas.m_dc.GetPixel(4, 4), RED);
}

TEST(DeviceContext, CopiesAndStretchesBitmaps) {
    fx::Canvas source(4, 4);
    source.m_dc.FillSolidRect(1, 1, 2, 2, RED);
    fx::Canvas copy(4, 4);
    ASSERT_TRUE(copy.m_dc.BitBlt(0, 0, 3, 3, &source.m_dc, 1, 1, SRCCOPY));
    EXPECT_EQ(copy.Picture(), "xx..\nxx..\n....\n....\n");
    fx::Canvas large(8, 8);
    large.m_dc.SetStretchBltMode(COLORONCOLOR);
    ASSERT_TRUE(large.m_dc.StretchBlt(0, 0, 8, 8, &source.m_dc, 0, 0, 4, 4, SRCCOPY));
    EXPECT_EQ(large.CountDrawn(), 16);
}

TEST(DeviceContext, TextHasTheExtentThatItTakes) {
    fx::Canvas canvas(120, 40);
    CDC& dc = canvas.m_dc;
    const CString str = L"測点 12";
    const CSize size = dc.GetTextExtent(str);
    TEXTMETRIC metrics = {};
    ASSERT_TRUE(dc.GetTextMetrics(&metrics));
    EXPECT_EQ(size.cy, metrics.tmHeight);
    EXPECT_EQ(dc.GetTextExtent(str, 2).cx + dc.GetTextExtent(str.Mid(2)).cx, size.cx);
    CRect rect(0, 0, 0, 0);
    EXPECT_EQ(dc.DrawText(str, rect, DT_CALCRECT | DT_SINGLELINE), size.cy);
    EXPECT_EQ(rect.Size(), size);
    EXPECT_EQ(canvas.CountDrawn(), 0);
    EXPECT_TRUE(dc.TextOut(0, 0, str));
    EXPECT_GT(canvas.CountDrawn(), 10);
    dc.SetBkColor(RED);
    EXPECT_TRUE(dc.ExtTextOut(0, 20, ETO_OPAQUE, CRect(0, 20, 120, 40), CString(), nullptr));
    EXPECT_EQ(dc.GetPixel(119, 39), RED);
}

TEST(DeviceContext, DrawsSystemParts) {
    const std::function<void(CDC&)> draws[] = {
        [](CDC& dc) { dc.DrawEdge(CRect(2, 2, 30, 30), EDGE_RAISED, BF_RECT); },
        [](CDC& dc) { dc.DrawFrameControl(CRect(2, 2, 30, 30), DFC_BUTTON, DFCS_BUTTONPUSH); },
        [](CDC& dc) { dc.DrawFocusRect(CRect(2, 2, 30, 30)); },
        [](CDC& dc) { dc.DrawIcon(CPoint(2, 2), ::LoadIcon(nullptr, IDI_INFORMATION)); },
    };
    for (size_t i = 0; i < std::size(draws); ++i) {
        fx::Canvas canvas;
        draws[i](canvas.m_dc);
        EXPECT_GT(canvas.CountDrawn(), 10) << i;
        EXPECT_EQ(canvas.m_dc.GetPixel(1, 1), WHITE) << i;
    }
}

} // namespace
