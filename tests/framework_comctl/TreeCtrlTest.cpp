#include "support/FrameworkEnvironment.h"

#include "afxcmn.h"

namespace {

class TreeCtrl : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(
            m_tree.Create(WS_CHILD | WS_VISIBLE | TVS_HASBUTTONS | TVS_LINESATROOT | TVS_SHOWSELALWAYS,
                          CRect(0, 0, 180, 150), &m_frame, 1));
        m_root = m_tree.InsertItem(L"ﾙｰﾄ", 2, 3);
        m_beta = m_tree.InsertItem(L"beta", m_root);
        m_alpha = m_tree.InsertItem(L"alpha", m_root, TVI_FIRST);
        m_leaf = m_tree.InsertItem(TVIF_TEXT | TVIF_PARAM, L"leaf", 0, 0, 0, 0, 77, m_beta, TVI_LAST);
    }

    fx::Frame m_frame;
    CTreeCtrl m_tree;
    HTREEITEM m_root = nullptr;
    HTREEITEM m_alpha = nullptr;
    HTREEITEM m_beta = nullptr;
    HTREEITEM m_leaf = nullptr;
};

TEST_F(TreeCtrl, ItemsStandWhereTheyWereInsertedWithTextDataAndImages) {
    EXPECT_EQ(m_tree.GetChildItem(m_root), m_alpha) << "inserted last, but in the first place";
    EXPECT_EQ(m_tree.GetNextSiblingItem(m_alpha), m_beta);
    EXPECT_EQ(m_tree.GetParentItem(m_leaf), m_beta);
    EXPECT_TRUE(m_tree.ItemHasChildren(m_beta));
    EXPECT_FALSE(m_tree.ItemHasChildren(m_alpha));
    for (const int nLength : {0, 127, 128, 255}) {
        const CString strText(L'x', nLength);
        EXPECT_TRUE(m_tree.SetItemText(m_alpha, strText));
        EXPECT_EQ(m_tree.GetItemText(m_alpha), strText);
    }
    EXPECT_EQ(m_tree.GetItemData(m_leaf), 77U);
    EXPECT_TRUE(m_tree.SetItemData(m_root, 0x1234567890ULL));
    EXPECT_EQ(m_tree.GetItemData(m_root), 0x1234567890ULL) << "as wide as a pointer";
    int nImage = -1;
    int nSelected = -1;
    ASSERT_TRUE(m_tree.GetItemImage(m_root, nImage, nSelected));
    EXPECT_EQ(nImage, 2);
    EXPECT_EQ(nSelected, 3);
}

TEST_F(TreeCtrl, OnlyVisibleItemsHaveARectangle) {
    CRect rect(1, 2, 3, 4);
    EXPECT_FALSE(m_tree.GetItemRect(m_leaf, rect, TRUE));
    EXPECT_EQ(rect, CRect(1, 2, 3, 4)) << "written only on success";
    m_tree.SelectItem(m_leaf); // opens its parents
    ASSERT_TRUE(m_tree.GetItemRect(m_leaf, rect, TRUE));
    EXPECT_EQ(m_tree.HitTest(rect.CenterPoint()), m_leaf);
}

TEST_F(TreeCtrl, LeavesItsImageListToTheOwner) {
    CImageList list;
    list.Create(16, 16, ILC_COLOR, 1, 1);
    list.SetImageCount(2);
    EXPECT_EQ(m_tree.SetImageList(&list, TVSIL_NORMAL), nullptr);
    EXPECT_EQ(m_tree.GetImageList(TVSIL_NORMAL), &list);
    m_tree.DestroyWindow();
    EXPECT_EQ(list.GetImageCount(), 2);
}

} // namespace
