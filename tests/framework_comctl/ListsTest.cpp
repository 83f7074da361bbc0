// List views, tree views, image lists: texts, data, places, owners.
#include "support/TestApp.h"

#include "afxcmn.h"

using namespace testkit;

namespace {

struct Lists : testing::Test {
    Lists() {
        m_list.InsertColumn(0, L"名前", LVCFMT_LEFT, 80);
        m_list.InsertColumn(1, L"サイズ", LVCFMT_RIGHT, 60, 1);
        for (int i = 0; i < 4; ++i)
            m_list.InsertItem(LVIF_TEXT | LVIF_PARAM | LVIF_IMAGE, i, L"item", 0, 0, i + 5, i + 33);
        m_root = m_tree.InsertItem(L"ﾙｰﾄ", 2, 3);
        m_item = m_tree.InsertItem(L"beta", m_root);
        m_leaf = m_tree.InsertItem(TVIF_TEXT | TVIF_PARAM, L"leaf", 0, 0, 0, 0, 77, m_item, TVI_LAST);
    }

    Frame m_frame;
    Child<CListCtrl> m_list{m_frame, LVS_REPORT | LVS_SHOWSELALWAYS, CRect(0, 0, 180, 80)};
    Child<CTreeCtrl> m_tree{m_frame, TVS_HASBUTTONS, CRect(0, 80, 180, 160)};
    HTREEITEM m_root = nullptr, m_item = nullptr, m_leaf = nullptr;
};

TEST_F(Lists, GiveTextsOfAnyLength) {
    for (const int nLength : {0, 1, 126, 127, 128, 129, 255, 256}) {
        const CString strText(L'x', nLength);
        m_list.SetItemText(1, 1, strText);
        EXPECT_EQ(strText, m_list.GetItemText(1, 1));
        m_tree.SetItemText(m_item, strText.Left(255));
        EXPECT_EQ(strText.Left(255), m_tree.GetItemText(m_item));
    }
    EXPECT_EQ(L"", m_list.GetItemText(9, 0));
    TCHAR szText[4] = {};
    EXPECT_EQ(3, m_list.GetItemText(1, 0, szText, 4));
    EXPECT_STREQ(L"ite", szText);
}

TEST_F(Lists, ItemsHaveDataImagesAndState) {
    EXPECT_EQ(34U, m_list.GetItemData(1));
    LVITEM item = {};
    item.mask = LVIF_IMAGE;
    item.iItem = 1;
    EXPECT_TRUE(m_list.GetItem(&item));
    EXPECT_EQ(6, item.iImage);
    EXPECT_EQ(0U, m_list.GetItemData(9));
    EXPECT_EQ(77U, m_tree.GetItemData(m_leaf));
    constexpr auto kWide = ~DWORD_PTR{0} / 3;
    m_list.SetItemData(1, kWide);
    m_tree.SetItemData(m_leaf, kWide);
    EXPECT_EQ(kWide, m_list.GetItemData(1)) << "as wide as a pointer";
    EXPECT_EQ(kWide, m_tree.GetItemData(m_leaf));
    for (const CPoint images : {CPoint(2, 3), CPoint(4, 5)}) {
        int nImage = -1, nSelected = -1;
        ASSERT_TRUE(m_tree.GetItemImage(m_root, nImage, nSelected));
        EXPECT_EQ(images, CPoint(nImage, nSelected));
        EXPECT_TRUE(m_tree.SetItemImage(m_root, 4, 5));
    }
    EXPECT_TRUE(m_tree.SetItemState(m_leaf, TVIS_BOLD, TVIS_BOLD | TVIS_CUT));
    EXPECT_EQ(UINT{TVIS_BOLD}, m_tree.GetItemState(m_leaf, TVIS_BOLD | TVIS_CUT));
    EXPECT_TRUE(m_tree.ItemHasChildren(m_item));
    EXPECT_FALSE(m_tree.ItemHasChildren(m_leaf));
    m_list.SetExtendedStyle(LVS_EX_CHECKBOXES);
    m_tree.ModifyStyle(0, TVS_CHECKBOXES);
    for (const BOOL bCheck : {TRUE, FALSE}) {
        m_list.SetCheck(2, bCheck);
        EXPECT_EQ(bCheck, m_list.GetCheck(2));
        m_tree.SetCheck(m_leaf, bCheck);
        EXPECT_EQ(bCheck, m_tree.GetCheck(m_leaf));
    }
}

TEST_F(Lists, SelectedItemsAreWalkedOver) {
    m_list.SetItemState(0, LVIS_SELECTED, LVIS_SELECTED);
    m_list.SetItemState(2, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    POSITION pos = m_list.GetFirstSelectedItemPosition();
    for (const int nItem : {0, 2, -1})
        EXPECT_EQ(nItem, m_list.GetNextSelectedItem(pos));
}

TEST_F(Lists, ItemsHaveTheirPlaces) {
    CRect item, label, sub;
    ASSERT_TRUE(m_list.GetItemRect(1, item, LVIR_BOUNDS));
    ASSERT_TRUE(m_list.GetItemRect(1, label, LVIR_LABEL));
    EXPECT_EQ(item.right - 60, label.right);
    ASSERT_TRUE(m_list.GetSubItemRect(1, 1, LVIR_BOUNDS, sub));
    EXPECT_EQ(item.left + 80, sub.left) << "right of column 0";
    EXPECT_EQ(60, sub.Width());
    UINT nFlags = 0;
    EXPECT_EQ(1, m_list.HitTest(CPoint(5, item.CenterPoint().y), &nFlags));
    EXPECT_NE(0U, nFlags & LVHT_ONITEM);

    CRect rect(1, 2, 3, 4);
    EXPECT_FALSE(m_tree.GetItemRect(m_leaf, rect, TRUE));
    EXPECT_EQ(CRect(1, 2, 3, 4), rect) << "written only on success";
    m_tree.SelectItem(m_leaf); // opens its parents
    ASSERT_TRUE(m_tree.GetItemRect(m_leaf, rect, TRUE));
    EXPECT_EQ(m_leaf, m_tree.HitTest(rect.CenterPoint(), &nFlags));
    EXPECT_EQ(UINT{TVHT_ONITEMLABEL}, nFlags);
}

TEST_F(Lists, OnlyImageListsThatHaveNoOwnerAreDestroyed) {
    CImageList owned;
    owned.Create(16, 16, ILC_COLOR, 1, 1);
    owned.SetImageCount(2);
    EXPECT_EQ(nullptr, m_list.SetImageList(&owned, LVSIL_SMALL));
    EXPECT_EQ(&owned, m_list.GetImageList(LVSIL_SMALL));
    m_tree.SetImageList(&owned, TVSIL_NORMAL);
    EXPECT_EQ(&owned, m_tree.GetImageList(TVSIL_NORMAL));
    const HIMAGELIST hForeign = ::ImageList_Create(16, 16, ILC_COLOR, 1, 1);
    ::ImageList_SetImageCount(hForeign, 3);
    m_list.SetImageList(CImageList::FromHandle(hForeign), LVSIL_NORMAL);
    m_list.DestroyWindow();
    m_tree.DestroyWindow();
    EXPECT_EQ(2, owned.GetImageCount());
    EXPECT_EQ(0, ::ImageList_GetImageCount(hForeign)) << "gone with the control";
}

TEST(ImageList, HasOneOwnerWhichDestroysIt) {
    const HIMAGELIST hList = ::ImageList_Create(16, 16, ILC_COLOR, 4, 4);
    ::ImageList_SetImageCount(hList, 3);
    CImageList* const pTemporary = CImageList::FromHandle(hList);
    ASSERT_NE(nullptr, pTemporary);
    EXPECT_EQ(pTemporary, CImageList::FromHandle(hList));
    EXPECT_EQ(nullptr, CImageList::FromHandlePermanent(hList));
    CImageList::DeleteTempMap();
    {
        CImageList owner;
        EXPECT_FALSE(owner.Attach(nullptr));
        EXPECT_TRUE(owner.Attach(hList));
        EXPECT_EQ(&owner, CImageList::FromHandle(hList));
        EXPECT_EQ(hList, owner.Detach());
        EXPECT_EQ(nullptr, CImageList::FromHandlePermanent(hList));
        EXPECT_FALSE(owner.DeleteImageList());
    }
    EXPECT_EQ(3, ::ImageList_GetImageCount(hList)) << "neither a temporary owner's nor one's that gave it up";
    CImageList owner;
    owner.Attach(hList);
    CImageList copy;
    ASSERT_TRUE(copy.Create(&owner));
    ASSERT_TRUE(owner.Create(32, 16, ILC_COLOR, 1, 1));
    EXPECT_EQ(0, ::ImageList_GetImageCount(hList)) << "replaced";
    EXPECT_EQ(3, copy.GetImageCount());
    EXPECT_TRUE(owner.DeleteImageList());
    EXPECT_EQ(nullptr, owner.GetSafeHandle());
}

} // namespace
