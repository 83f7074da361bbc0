// Pens, brushes, fonts: what they create and who deletes it.
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
    EXPECT_FALSE(Exists(hOwned));
    EXPECT_TRUE(Exists(hForeign));
    ::DeleteObject(hForeign);
}

TEST(GdiObject, HandleHasOneObjectOfTheClassThatFits) {
    CBrush brush(RGB(1, 2, 3));
    EXPECT_EQ(&brush, CBrush::FromHandle(brush));
    EXPECT_EQ(&brush, CGdiObject::FromHandle(brush.m_hObject));
    EXPECT_EQ(nullptr, CBrush::FromHandle(nullptr));

    const HPEN hPen = ::CreatePen(PS_SOLID, 1, 0);
    CGdiObject* const pObject = CGdiObject::FromHandle(hPen);
    EXPECT_TRUE(pObject->IsKindOf(RUNTIME_CLASS(CPen)));
    EXPECT_EQ(pObject, CPen::FromHandle(hPen));
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
    EXPECT_EQ(hSecond, pen.Detach());
    EXPECT_EQ(nullptr, pen.Detach());
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
        EXPECT_EQ(last, first);
    }
    EXPECT_EQ(&last, CBrush::FromHandle(last));
}

TEST(GdiObject, PointFontHasThePixelsOfItsPointsOnTheDevice) {
    CWindowDC screen(nullptr);
    for (CDC* pDC : {static_cast<CDC*>(&screen), static_cast<CDC*>(nullptr)}) {
        CFont font;
        LOGFONT logFont = {};
        ASSERT_TRUE(font.CreatePointFont(180, L"A face name that is longer than thirty-two characters", pDC));
        font.GetLogFont(&logFont);
        EXPECT_EQ(-screen.GetDeviceCaps(LOGPIXELSY) / 4, logFont.lfHeight) << "18 of 72 points in an inch";
        EXPECT_EQ(L"A face name that is longer than", CString(logFont.lfFaceName));
    }
}

} // namespace
