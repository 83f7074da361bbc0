// Pens, brushes, fonts, bitmaps, regions: what they create and who deletes it.
#include "Canvas.h"
#include "support/GdiHandles.h"

namespace {

bool Exists(HGDIOBJ hObject) {
    return ::GetObjectType(hObject) != 0;
}

TEST(GdiObject, OwnerDeletesItsHandleAndAForeignOneStays) {
    HBRUSH hOwned = nullptr;
    const HBRUSH hForeign = ::CreateSolidBrush(RGB(4, 5, 6));
    {
        CBrush brush(RGB(1, 2, 3));
        hOwned = brush;
        CBrush::FromHandle(hForeign);
        CGdiObject::DeleteTempMap();
    }
    EXPECT_FALSE(Exists(hOwned));
    EXPECT_TRUE(Exists(hForeign));
    ::DeleteObject(hForeign);
}

TEST(GdiObject, HandleHasOneObjectOfTheClassThatFits) {
    CBrush brush(RGB(1, 2, 3));
    EXPECT_EQ(CBrush::FromHandle(brush), &brush);
    EXPECT_EQ(CGdiObject::FromHandle(brush.m_hObject), &brush);
    EXPECT_EQ(CBrush::FromHandle(nullptr), nullptr);

    const HPEN hPen = ::CreatePen(PS_SOLID, 1, 0);
    CGdiObject* const pObject = CGdiObject::FromHandle(hPen);
    EXPECT_TRUE(pObject->IsKindOf(RUNTIME_CLASS(CPen)));
    EXPECT_EQ(CPen::FromHandle(hPen), pObject);
    EXPECT_TRUE(pObject->DeleteObject());
    EXPECT_FALSE(Exists(hPen));
    CGdiObject::DeleteTempMap();
}

TEST(GdiObject, CreatingAgainDeletesWhatWasThere) {
    CPen pen(PS_SOLID, 1, RGB(9, 9, 9));
    const HPEN hFirst = pen;
    ASSERT_TRUE(pen.CreatePen(PS_DASH, 1, RGB(8, 8, 8)));
    EXPECT_FALSE(Exists(hFirst));
    const HPEN hSecond = pen;
    EXPECT_EQ(pen.Detach(), hSecond);
    EXPECT_EQ(pen.Detach(), nullptr);
    EXPECT_FALSE(pen.DeleteObject());
    EXPECT_TRUE(::DeleteObject(hSecond)) << "given up, so still there";
    EXPECT_FALSE(pen.Attach(nullptr));
}

TEST(GdiObject, StockObjectHasSeveralOwnersWithoutHarm) {
    CBrush last;
    {
        CBrush first;
        ASSERT_TRUE(first.CreateStockObject(GRAY_BRUSH));
        ASSERT_TRUE(last.CreateStockObject(GRAY_BRUSH));
        EXPECT_EQ(first, last);
    }
    EXPECT_EQ(CBrush::FromHandle(last), &last);
    LOGBRUSH logBrush = {};
    EXPECT_NE(last.GetLogBrush(&logBrush), 0);
    EXPECT_EQ(logBrush.lbColor, RGB(128, 128, 128));
}

TEST(GdiObject, PointFontHasThePixelsOfItsPointsOnTheDevice) {
    CWindowDC screen(nullptr);
    const int nDotsPerInch = screen.GetDeviceCaps(LOGPIXELSY);
    CFont font;
    LOGFONT logFont = {};
    ASSERT_TRUE(font.CreatePointFont(180, L"MS UI Gothic", &screen));
    ASSERT_NE(font.GetLogFont(&logFont), 0);
    EXPECT_EQ(logFont.lfHeight, -nDotsPerInch / 4) << "18 of 72 points in an inch";
    EXPECT_EQ(CString(logFont.lfFaceName), L"MS UI Gothic");
    ASSERT_TRUE(font.CreatePointFont(90, L"A face name that is longer than thirty-two characters"));
    ASSERT_NE(font.GetLogFont(&logFont), 0);
    EXPECT_EQ(logFont.lfHeight, -nDotsPerInch / 8);
}

TEST(GdiObject, NothingIsLeftBehind) {
    fx::Frame frame;
    const auto draw = [&frame](int i) {
        fx::Canvas canvas;
        CBrush brush(RGB(i, 2, 3));
        CPen pen(PS_SOLID, 1, RGB(i, 0, 0));
        CFont font;
        font.CreatePointFont(90, L"System");
        canvas.m_dc.SelectObject(&font);
        canvas.m_dc.FillRect(CRect(0, 0, 9, 9), &brush);
        canvas.m_dc.FillSolidRect(0, 0, 5, 5, RGB(i, 1, 1));
        canvas.m_dc.DrawDragRect(CRect(0, 0, 20, 20), CSize(1, 1), CRect(2, 2, 22, 22), CSize(2, 2));
        canvas.m_dc.SelectStockObject(SYSTEM_FONT);
        const CClientDC client(&frame);
        const CWindowDC screen(nullptr);
        frame.InvalidateRect(nullptr);
        const CPaintDC paint(&frame);
    };
    draw(0); // the framework keeps a brush, the system some contexts and a font, for the next time
    const int nBefore = fx::CountGdiHandles();
    const HBRUSH hProbe = ::CreateSolidBrush(RGB(5, 6, 7));
    ASSERT_GT(fx::CountGdiHandles(), nBefore) << "the count must notice a leak";
    ::DeleteObject(hProbe);
    for (int i = 1; i < 20; ++i)
        draw(i);
    CDC::DeleteTempMap();
    CGdiObject::DeleteTempMap();
    EXPECT_EQ(fx::CountGdiHandles(), nBefore);
}

} // namespace
