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

TEST_F(TreeCtrl, ItemsKnowTheirRelations) {
    EXPECT_EQ(m_tree.GetCount(), 4U);
    EXPECT_EQ(m_tree.GetRootItem(), m_root);
    EXPECT_EQ(m_tree.GetChildItem(m_root), m_alpha) << "inserted last, but in the first place";
    EXPECT_EQ(m_tree.GetNextSiblingItem(m_alpha), m_beta);
    EXPECT_EQ(m_tree.GetPrevSiblingItem(m_beta), m_alpha);
    EXPECT_EQ(m_tree.GetNextSiblingItem(m_beta), nullptr);
    EXPECT_EQ(m_tree.GetParentItem(m_leaf), m_beta);
    EXPECT_EQ(m_tree.GetParentItem(m_root), nullptr);
    EXPECT_TRUE(m_tree.ItemHasChildren(m_beta));
    EXPECT_FALSE(m_tree.ItemHasChildren(m_alpha));
    const HTREEITEM hFirst = m_tree.InsertItem(L"aardvark", m_root);
    EXPECT_TRUE(m_tree.SortChildren(m_root));
    EXPECT_EQ(m_tree.GetChildItem(m_root), hFirst);
    EXPECT_TRUE(m_tree.DeleteItem(m_beta));
    EXPECT_EQ(m_tree.GetCount(), 3U) << "with its child";
    EXPECT_TRUE(m_tree.DeleteAllItems());
    EXPECT_EQ(m_tree.GetRootItem(), nullptr);
}

TEST_F(TreeCtrl, ItemsKeepTextDataImageAndState) {
    EXPECT_EQ(m_tree.GetItemText(m_root), L"ﾙｰﾄ");
    for (const int nLength : {0, 127, 128, 255}) {
        const CString strText(L'x', nLength);
        EXPECT_TRUE(m_tree.SetItemText(m_alpha, strText));
        EXPECT_EQ(m_tree.GetItemText(m_alpha), strText);
    }
    EXPECT_EQ(m_tree.GetItemData(m_leaf), 77U);
    EXPECT_EQ(m_tree.GetItemData(m_root), 0U);
    EXPECT_TRUE(m_tree.SetItemData(m_root, 0x1234567890ULL));
    EXPECT_EQ(m_tree.GetItemData(m_root), 0x1234567890ULL) << "as wide as a pointer";
    int nImage = -1;
    int nSelected = -1;
    ASSERT_TRUE(m_tree.GetItemImage(m_root, nImage, nSelected));
    EXPECT_EQ(nImage, 2);
    EXPECT_EQ(nSelected, 3);
    EXPECT_TRUE(m_tree.SetItemImage(m_root, 1, 0));
    m_tree.GetItemImage(m_root, nImage, nSelected);
    EXPECT_EQ(nImage, 1);
    EXPECT_EQ(nSelected, 0);
    EXPECT_TRUE(m_tree.SetItemState(m_alpha, TVIS_BOLD, TVIS_BOLD));
    EXPECT_EQ(m_tree.GetItemState(m_alpha, TVIS_BOLD), static_cast<UINT>(TVIS_BOLD));
    EXPECT_EQ(m_tree.GetItemState(m_alpha, TVIS_CUT), 0U) << "only the bits asked for";
}

TEST_F(TreeCtrl, SelectingAnItemOpensItsParents) {
    EXPECT_EQ(m_tree.GetSelectedItem(), nullptr);
    EXPECT_FALSE(m_tree.GetItemState(m_root, TVIS_EXPANDED));
    EXPECT_TRUE(m_tree.SelectItem(m_leaf));
    EXPECT_EQ(m_tree.GetSelectedItem(), m_leaf);
    EXPECT_TRUE(m_tree.GetItemState(m_root, TVIS_EXPANDED));
    EXPECT_TRUE(m_tree.GetItemState(m_beta, TVIS_EXPANDED));
    EXPECT_TRUE(m_tree.SelectItem(nullptr));
    EXPECT_EQ(m_tree.GetSelectedItem(), nullptr);
    EXPECT_TRUE(m_tree.Expand(m_root, TVE_COLLAPSE));
    EXPECT_FALSE(m_tree.GetItemState(m_root, TVIS_EXPANDED));
    EXPECT_TRUE(m_tree.SelectDropTarget(m_root));
    EXPECT_EQ(m_tree.GetDropHilightItem(), m_root);
}

TEST_F(TreeCtrl, PointsAreFoundInTheRectanglesOfVisibleItems) {
    CRect rect(1, 2, 3, 4);
    EXPECT_FALSE(m_tree.GetItemRect(m_leaf, rect, TRUE));
    EXPECT_EQ(rect, CRect(1, 2, 3, 4)) << "written only on success";
    m_tree.EnsureVisible(m_leaf);
    ASSERT_TRUE(m_tree.GetItemRect(m_leaf, rect, TRUE));
    UINT nFlags = 0;
    EXPECT_EQ(m_tree.HitTest(rect.CenterPoint(), &nFlags), m_leaf);
    EXPECT_EQ(nFlags, static_cast<UINT>(TVHT_ONITEMLABEL));
    EXPECT_EQ(m_tree.HitTest(CPoint(10, 140)), nullptr);
    EXPECT_EQ(m_tree.GetFirstVisibleItem(), m_root);
    EXPECT_EQ(m_tree.GetNextVisibleItem(m_root), m_alpha);
    EXPECT_EQ(m_tree.GetPrevVisibleItem(m_alpha), m_root);
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

TEST_F(TreeCtrl, SettersReturnWhatTheyReplace) {
    m_tree.SetBkColor(RGB(1, 2, 3));
    EXPECT_EQ(m_tree.SetBkColor(RGB(3, 2, 1)), RGB(1, 2, 3));
    EXPECT_EQ(m_tree.GetBkColor(), RGB(3, 2, 1));
    m_tree.SetTextColor(RGB(4, 5, 6));
    EXPECT_EQ(m_tree.GetTextColor(), RGB(4, 5, 6));
    m_tree.SetItemHeight(24);
    EXPECT_EQ(m_tree.SetItemHeight(30), 24);
    EXPECT_EQ(m_tree.GetItemHeight(), 30);
    m_tree.SetIndent(25);
    EXPECT_EQ(m_tree.GetIndent(), 25U);
}

TEST_F(TreeCtrl, SelectionChangesComeBackToTheControl) {
    class Watcher : public CTreeCtrl {
    public:
        HTREEITEM m_selected = nullptr;
        BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override {
            const auto* pTree = reinterpret_cast<const NMTREEVIEW*>(lParam);
            if (message == WM_NOTIFY && pTree->hdr.code == TVN_SELCHANGED)
                m_selected = pTree->itemNew.hItem;
            return CTreeCtrl::OnChildNotify(message, wParam, lParam, pResult);
        }
    };
    Watcher watcher;
    ASSERT_TRUE(watcher.SubclassWindow(m_tree.UnsubclassWindow()));
    watcher.SelectItem(m_alpha);
    EXPECT_EQ(watcher.m_selected, m_alpha);
}

} // namespace
