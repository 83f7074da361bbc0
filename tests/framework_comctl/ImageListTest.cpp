#include "support/FrameworkEnvironment.h"

#include "afxcmn.h"

namespace {

HICON StockIcon() {
    return ::LoadIcon(nullptr, IDI_APPLICATION);
}

/// An image list, made by the system, that nobody owns yet.
HIMAGELIST ForeignList(int nImages) {
    const HIMAGELIST hList = ::ImageList_Create(16, 16, ILC_COLOR, 4, 4);
    ::ImageList_SetImageCount(hList, static_cast<UINT>(nImages));
    return hList;
}

CBitmap& FillBitmap(CBitmap& bitmap, int cx, int cy, COLORREF color) {
    CWindowDC screen(nullptr);
    bitmap.CreateCompatibleBitmap(&screen, cx, cy);
    CDC dc;
    dc.CreateCompatibleDC(&screen);
    CBitmap* pOld = dc.SelectObject(&bitmap);
    dc.FillSolidRect(0, 0, cx, cy, color);
    dc.SelectObject(pOld);
    return bitmap;
}

TEST(ImageList, HasOneOwnerWhichDestroysIt) {
    const HIMAGELIST hList = ForeignList(3);
    {
        CImageList* pTemporary = CImageList::FromHandle(hList);
        ASSERT_NE(pTemporary, nullptr);
        EXPECT_EQ(CImageList::FromHandle(hList), pTemporary);
        EXPECT_EQ(CImageList::FromHandlePermanent(hList), nullptr);
        CImageList::DeleteTempMap();
        EXPECT_EQ(::ImageList_GetImageCount(hList), 3) << "a temporary object owns nothing";
    }
    {
        CImageList owner;
        EXPECT_FALSE(owner.Attach(nullptr));
        EXPECT_TRUE(owner.Attach(hList));
        EXPECT_EQ(CImageList::FromHandle(hList), &owner);
        EXPECT_EQ(owner.Detach(), hList);
        EXPECT_EQ(CImageList::FromHandlePermanent(hList), nullptr);
        EXPECT_FALSE(owner.DeleteImageList());
    }
    EXPECT_EQ(::ImageList_GetImageCount(hList), 3) << "given up before the destructor";
    CImageList owner;
    owner.Attach(hList);
    EXPECT_TRUE(owner.DeleteImageList());
    EXPECT_EQ(owner.GetSafeHandle(), nullptr);
    EXPECT_EQ(CImageList::FromHandle(nullptr), nullptr);
}

TEST(ImageList, CountsOnlyTheImagesThatWereAdded) {
    CImageList list;
    ASSERT_TRUE(list.Create(16, 16, ILC_COLOR | ILC_MASK, 8, 8));
    EXPECT_EQ(list.GetImageCount(), 0);
    EXPECT_EQ(list.Add(StockIcon()), 0);
    EXPECT_EQ(list.Add(StockIcon()), 1);
    CBitmap wide;
    EXPECT_EQ(list.Add(&FillBitmap(wide, 32, 16, RGB(255, 0, 0)), RGB(255, 0, 255)), 2);
    EXPECT_EQ(list.GetImageCount(), 4) << "two images in one bitmap";
    CImageList copy;
    ASSERT_TRUE(copy.Create(&list));
    EXPECT_TRUE(list.Remove(0));
    EXPECT_FALSE(list.Remove(9));
    EXPECT_EQ(list.GetImageCount(), 3);
    EXPECT_EQ(copy.GetImageCount(), 4) << "a copy goes its own way";
    EXPECT_EQ(list.Replace(0, StockIcon()), 0);
    EXPECT_EQ(list.GetImageCount(), 3);
    ASSERT_TRUE(list.Create(32, 16, ILC_COLOR, 1, 1)) << "a new list in the place of the old one";
    EXPECT_EQ(list.GetImageCount(), 0);
    EXPECT_EQ(list.Add(HICON()), -1);
}

TEST(ImageList, TellsTheSizeOfItsImagesAndMakesIconsOfThem) {
    CImageList list;
    ASSERT_TRUE(list.Create(20, 12, ILC_COLOR | ILC_MASK, 1, 1));
    list.Add(StockIcon());
    IMAGEINFO info = {};
    ASSERT_TRUE(list.GetImageInfo(0, &info));
    EXPECT_EQ(CRect(info.rcImage).Size(), CSize(20, 12));
    EXPECT_FALSE(list.GetImageInfo(1, &info));
    const HICON hIcon = list.ExtractIcon(0);
    EXPECT_NE(hIcon, nullptr);
    EXPECT_TRUE(::DestroyIcon(hIcon));
}

TEST(ImageList, DrawsMaskedPixelsInItsBackgroundColour) {
    constexpr COLORREF BLUE = RGB(0, 0, 255);
    constexpr COLORREF MASK = RGB(255, 0, 255);
    CBitmap masked;
    CImageList list;
    ASSERT_TRUE(list.Create(16, 16, ILC_COLOR24 | ILC_MASK, 1, 1));
    list.Add(&FillBitmap(masked, 16, 16, MASK), MASK);

    CWindowDC screen(nullptr);
    CBitmap canvas;
    FillBitmap(canvas, 20, 20, RGB(255, 255, 255));
    CDC dc;
    dc.CreateCompatibleDC(&screen);
    CBitmap* pOld = dc.SelectObject(&canvas);
    EXPECT_TRUE(list.Draw(&dc, 0, CPoint(2, 2), ILD_TRANSPARENT));
    EXPECT_EQ(dc.GetPixel(10, 10), RGB(255, 255, 255));
    EXPECT_EQ(list.SetBkColor(BLUE), CLR_NONE);
    EXPECT_EQ(list.GetBkColor(), BLUE);
    EXPECT_TRUE(list.Draw(&dc, 0, CPoint(2, 2), ILD_NORMAL));
    EXPECT_EQ(dc.GetPixel(10, 10), BLUE);
    EXPECT_EQ(dc.GetPixel(1, 1), RGB(255, 255, 255)) << "drawn from the given corner on";
    EXPECT_FALSE(list.Draw(&dc, 1, CPoint(0, 0), ILD_NORMAL));
    dc.SelectObject(pOld);
}

} // namespace
