// Drawing: the state of device contexts, what appears on a bitmap, who deletes pens and brushes.
#include "testkit/Colors.h"
#include "support/TestApp.h"
#include "testkit/Canvas.h"

#include <algorithm>

using namespace testkit;

namespace {

TEST(DeviceContext, DrawsWhereItBelongs) {
    const CRect all(0, 0, 7, 5);
    const WORD wBits = 0xA0; // white, black, white
    CBitmap picture;
    picture.CreateBitmap(3, 1, 1, 1, &wBits);
    const auto solid = [](CDC& dc) {
        dc.SetBkColor(BLUE);
        dc.FillSolidRect(2, 1, 2, 2, 0);
        EXPECT_EQ(BLUE, dc.GetBkColor());
    };
    const auto scroll = [&](CDC& dc) {
        dc.FillSolidRect(0, 0, 1, 1, 0);
        dc.ScrollDC(2, 1, all, all, nullptr, nullptr);
    };
    const Rows<std::function<void(CDC&)>, std::string> rows = {
        {solid, "....... ..##... ..##... ....... ......."},
        {[](CDC& dc) { dc.Draw3dRect(2, 1, 5, 3, 0, RED); }, "....... ..####x ..#...x ..xxxxx ......."},
        {scroll, "#...... ..#.... ....... ....... ......."},
        {[&](CDC& dc) { dc.DrawState(CPoint(1, 1), CSize(3, 1), &picture, DSS_NORMAL); },
         "....... ..#.... ....... ....... ......."},
    };
    for (const auto& [draw, wanted] : rows) {
        Canvas canvas(7, 5);
        draw(canvas.m_dc);
        std::string drawn = canvas.Text();
        std::replace(drawn.begin(), drawn.end(), '\n', ' ');
        EXPECT_EQ(wanted + ' ', drawn);
    }
}

TEST(DeviceContext, SizesHaveNoOriginAndNoDirection) {
    Canvas canvas;
    CDC& dc = canvas.m_dc;
    dc.SetMapMode(MM_ANISOTROPIC);
    dc.SetWindowExt(200, 100);
    dc.SetViewportExt(CSize(50, -400));
    dc.SetWindowOrg(8, 5);
    CSize size(8, 3);
    dc.LPtoDP(&size);
    EXPECT_EQ(CSize(2, 12), size);
    dc.DPtoLP(&size);
    EXPECT_EQ(CSize(8, 3), size);
    const CSize dotsPerInch(dc.GetDeviceCaps(LOGPIXELSX), dc.GetDeviceCaps(LOGPIXELSY));
    CSize inches(254000, 254000);
    dc.HIMETRICtoLP(&inches);
    EXPECT_EQ(CSize(dotsPerInch.cx * 400, dotsPerInch.cy * 25), inches);
    dc.LPtoHIMETRIC(&inches);
    EXPECT_EQ(CSize(254000, 254000), inches);
}

TEST(DeviceContext, AnotherContextAnswersQuestions) {
    Canvas drawn, asked;
    CDC dc;
    dc.SetOutputDC(drawn.m_dc);
    dc.SetAttribDC(asked.m_dc);
    asked.m_dc.SetTextColor(RED);
    EXPECT_EQ(RED, dc.SetTextColor(BLUE)) << "the previous value as the attribute context had it";
    EXPECT_EQ(BLUE, drawn.m_dc.GetTextColor());
    EXPECT_EQ(BLUE, asked.m_dc.GetTextColor());
    EXPECT_EQ(-1, dc.SaveDC());
    dc.SelectStockObject(BLACK_BRUSH);
    dc.MoveTo(0, 1);
    dc.LineTo(4, 1);
    EXPECT_EQ(CPoint(4, 1), dc.GetCurrentPosition());
    EXPECT_EQ(4, drawn.CountDrawn());
    EXPECT_EQ(0, asked.CountDrawn());
    EXPECT_TRUE(dc.RestoreDC(-1));
    EXPECT_EQ(::GetStockObject(WHITE_BRUSH), asked.m_dc.GetCurrentBrush()->m_hObject);
    asked.m_dc.SaveDC();
    EXPECT_FALSE(dc.RestoreDC(-1)) << "only one of them was saved";
    CString strFace;
    EXPECT_GT(dc.GetTextFace(strFace), 0);
    dc.ReleaseOutputDC();
    dc.ReleaseAttribDC();
}

TEST(DeviceContext, GoesWithItsObject) {
    HDC hFirst = nullptr, hLast = nullptr;
    {
        CDC dc, given;
        EXPECT_TRUE(dc.CreateCompatibleDC(nullptr));
        hFirst = dc;
        EXPECT_TRUE(dc.CreateCompatibleDC(&dc));
        EXPECT_EQ(0U, ::GetObjectType(hFirst));
        hLast = dc;
        EXPECT_EQ(&dc, CDC::FromHandle(hLast));
        given.Attach(dc.Detach());
        EXPECT_EQ(&given, CDC::FromHandle(hLast));
        EXPECT_EQ(nullptr, dc.m_hAttribDC);
        given.Detach();
        EXPECT_NE(&given, CDC::FromHandle(hLast));
        EXPECT_EQ(hLast, CDC::FromHandle(hLast)->m_hAttribDC);
        dc.Attach(hLast);
    }
    EXPECT_EQ(0U, ::GetObjectType(hLast));
    Frame frame;
    HDC all[3] = {};
    {
        CClientDC client(&frame);
        CWindowDC window(&frame);
        CPaintDC paint(&frame);
        all[0] = client, all[1] = window, all[2] = paint;
    }
    for (const HDC hDC : all)
        EXPECT_EQ(nullptr, ::WindowFromDC(hDC)) << "given back";
}

// --- Pens, brushes, fonts -----------------------------------------------------------------------

bool Exists(HGDIOBJ hObject) {
    return ::GetObjectType(hObject) != 0;
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
    CPen pen(PS_SOLID, 3, RGB(9, 9, 9));
    const HPEN hFirst = pen;
    LOGPEN look = {};
    pen.GetLogPen(&look);
    EXPECT_EQ(3, look.lopnWidth.x);
    ASSERT_TRUE(pen.CreatePen(PS_DASH, 1, RGB(8, 8, 8)));
    EXPECT_FALSE(Exists(hFirst));
    const HPEN hSecond = pen;
    EXPECT_EQ(hSecond, pen.Detach());
    EXPECT_NE(&pen, CGdiObject::FromHandle(hSecond));
    EXPECT_EQ(nullptr, pen.Detach());
    EXPECT_FALSE(pen.DeleteObject());
    EXPECT_TRUE(CPen::FromHandle(hSecond)->DeleteObject()) << "given up, so still there";
    const HGDIOBJ hGone = CPen(PS_DASH, 1, RED).m_hObject;
    EXPECT_FALSE(Exists(hGone));
    EXPECT_FALSE(pen.Attach(nullptr));
    EXPECT_FALSE(CDC().Attach(nullptr));
    EXPECT_FALSE(CMenu().Attach(nullptr));
}

TEST(GdiObject, IsMadeByItsConstructor) {
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.CreateBitmap(8, 8, 1, 1, nullptr));
    EXPECT_EQ(CSize(0, 0), bitmap.SetBitmapDimension(30, 40));
    EXPECT_EQ(CSize(30, 40), bitmap.GetBitmapDimension());
    const LOGBRUSH inside = {BS_SOLID, BLUE, 0};
    const DWORD lengths[] = {3, 4};
    EXPECT_TRUE(Exists(CBrush(HS_CROSS, RED)));
    EXPECT_TRUE(Exists(CBrush(&bitmap)));
    EXPECT_TRUE(Exists(CPen(PS_GEOMETRIC | PS_USERSTYLE, 5, &inside, 2, lengths)));
    EXPECT_THROW(CBrush(static_cast<CBitmap*>(nullptr)), CResourceException*);
}

TEST(GdiObject, RegionIsCombinedOfTwoOthers) {
    CRgn all, top, rest;
    all.CreateRectRgn(0, 0, 5, 5);
    top.CreateRectRgn(0, 0, 5, 2);
    rest.CreateRectRgn(0, 0, 1, 1);
    rest.CombineRgn(&all, &top, RGN_DIFF);
    EXPECT_TRUE(rest.PtInRegion(3, 3));
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
    screen.SetViewportOrg(3, 7); // which makes no letter larger
    screen.SetMapMode(MM_ANISOTROPIC);
    screen.SetWindowExt(CSize(2, 2));
    for (CDC* pDC : {static_cast<CDC*>(&screen), static_cast<CDC*>(nullptr)}) {
        CFont font;
        LOGFONT logFont = {};
        ASSERT_TRUE(font.CreatePointFont(180, L"A face name that is longer than thirty-two characters", pDC));
        font.GetLogFont(&logFont);
        const int nUnits = pDC != nullptr ? 2 : 1; // for a pixel
        EXPECT_EQ(-nUnits * screen.GetDeviceCaps(LOGPIXELSY) / 4, logFont.lfHeight)
            << "18 of 72 points in an inch";
        EXPECT_EQ(DEFAULT_CHARSET, logFont.lfCharSet);
        EXPECT_EQ(L"A face name that is longer than", CString(logFont.lfFaceName));
    }
}

} // namespace
