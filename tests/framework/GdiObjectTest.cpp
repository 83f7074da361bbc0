// Pens, brushes, fonts, bitmaps, regions: what they create and who deletes it.
#include "Canvas.h"

using namespace testkit;

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
    EXPECT_TRUE(!Exists(hOwned) && Exists(hForeign));
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
    EXPECT_TRUE(pObject->DeleteObject() && !Exists(hPen));
    CGdiObject::DeleteTempMap();
}

TEST(GdiObject, CreatingAgainDeletesWhatWasThere) {
    CPen pen(PS_SOLID, 1, RGB(9, 9, 9));
    const HPEN hFirst = pen;
    ASSERT_TRUE(pen.CreatePen(PS_DASH, 1, RGB(8, 8, 8)));
    EXPECT_FALSE(Exists(hFirst));
    const HPEN hSecond = pen;
    EXPECT_EQ(pen.Detach(), hSecond);
    EXPECT_TRUE(pen.Detach() == nullptr && !pen.DeleteObject());
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

} // namespace
