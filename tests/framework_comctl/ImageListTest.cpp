#include "support/FrameworkEnvironment.h"

#include "afxcmn.h"

namespace {

/// An image list, made by the system, that nobody owns yet.
HIMAGELIST ForeignList(int nImages) {
    const HIMAGELIST hList = ::ImageList_Create(16, 16, ILC_COLOR, 4, 4);
    ::ImageList_SetImageCount(hList, static_cast<UINT>(nImages));
    return hList;
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

TEST(ImageList, CreatingAgainReplacesTheImagesAndACopyKeepsThem) {
    CImageList list;
    ASSERT_TRUE(list.Create(16, 16, ILC_COLOR | ILC_MASK, 8, 8));
    EXPECT_EQ(list.GetImageCount(), 0) << "room is not images";
    EXPECT_EQ(list.Add(::LoadIcon(nullptr, IDI_APPLICATION)), 0);
    CImageList copy;
    ASSERT_TRUE(copy.Create(&list));
    ASSERT_TRUE(list.Create(32, 16, ILC_COLOR, 1, 1));
    EXPECT_EQ(list.GetImageCount(), 0);
    EXPECT_EQ(list.Add(HICON()), -1);
    EXPECT_EQ(copy.GetImageCount(), 1);
}

} // namespace
