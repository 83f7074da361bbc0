#include "support/FrameworkEnvironment.h"

#include "afxcmn.h"

namespace {

constexpr DWORD REPORT = WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_SHOWSELALWAYS;

class ListCtrl : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(m_list.Create(REPORT, CRect(0, 0, 180, 150), &m_frame, 1));
        m_list.InsertColumn(0, L"名前", LVCFMT_LEFT, 80);
        m_list.InsertColumn(1, L"サイズ", LVCFMT_RIGHT, 60, 1);
    }
    std::vector<int> Selected() const {
        std::vector<int> items;
        for (POSITION pos = m_list.GetFirstSelectedItemPosition(); pos != nullptr;)
            items.push_back(m_list.GetNextSelectedItem(pos));
        return items;
    }

    fx::Frame m_frame;
    CListCtrl m_list;
};

TEST_F(ListCtrl, ItemsHaveTheirTextsAndDataAndOthersNone) {
    EXPECT_EQ(m_list.InsertItem(LVIF_TEXT | LVIF_PARAM, 0, L"b.csv", 0, 0, 0, 33), 0);
    EXPECT_EQ(m_list.InsertItem(0, L"a.csv", 2), 0);
    EXPECT_TRUE(m_list.SetItemText(1, 1, L"120"));
    EXPECT_EQ(m_list.GetItemText(1, 0), L"b.csv");
    EXPECT_EQ(m_list.GetItemText(1, 1), L"120");
    EXPECT_EQ(m_list.GetItemText(9, 0), L"");
    EXPECT_EQ(m_list.GetItemData(1), 33U);
    EXPECT_EQ(m_list.GetItemData(9), 0U);
    EXPECT_TRUE(m_list.SetItemData(1, 0x1234567890ULL));
    EXPECT_EQ(m_list.GetItemData(1), 0x1234567890ULL) << "as wide as a pointer";
    TCHAR szText[4] = {};
    EXPECT_EQ(m_list.GetItemText(0, 0, szText, 4), 3);
    EXPECT_STREQ(szText, L"a.c");
}

TEST_F(ListCtrl, SubItemRectanglesAreThoseOfTheirColumns) {
    m_list.InsertItem(0, L"a");
    CRect item;
    CRect sub;
    ASSERT_TRUE(m_list.GetItemRect(0, item, LVIR_BOUNDS));
    ASSERT_TRUE(m_list.GetSubItemRect(0, 1, LVIR_BOUNDS, sub));
    EXPECT_EQ(sub.left, item.left + 80) << "right of column 0";
    EXPECT_EQ(sub.Width(), 60);
}

TEST_F(ListCtrl, ReadsTextsOfAnyLength) {
    m_list.InsertItem(0, L"");
    for (const int nLength : {0, 1, 126, 127, 128, 129, 255, 256}) {
        const CString strText(L'x', nLength);
        m_list.SetItemText(0, 0, strText);
        EXPECT_EQ(m_list.GetItemText(0, 0), strText);
    }
}

TEST_F(ListCtrl, WalksOverTheSelectedItems) {
    for (const LPCTSTR psz : {L"a", L"b", L"c", L"d"})
        m_list.InsertItem(m_list.GetItemCount(), psz);
    EXPECT_EQ(Selected(), std::vector<int>{});
    m_list.SetItemState(0, LVIS_SELECTED, LVIS_SELECTED);
    m_list.SetItemState(2, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    EXPECT_EQ(Selected(), (std::vector<int>{0, 2}));
    m_list.SetItemState(-1, 0, LVIS_SELECTED);
    EXPECT_EQ(Selected(), std::vector<int>{});
    POSITION pos = nullptr;
    EXPECT_EQ(m_list.GetNextSelectedItem(pos), -1);
}

TEST_F(ListCtrl, DestroysOnlyImageListsThatHaveNoOwner) {
    CImageList owned;
    owned.Create(16, 16, ILC_COLOR, 1, 1);
    owned.SetImageCount(2);
    EXPECT_EQ(m_list.SetImageList(&owned, LVSIL_SMALL), nullptr);
    EXPECT_EQ(m_list.GetImageList(LVSIL_SMALL), &owned);
    const HIMAGELIST hForeign = ::ImageList_Create(16, 16, ILC_COLOR, 1, 1);
    ::ImageList_SetImageCount(hForeign, 3);
    m_list.SetImageList(CImageList::FromHandle(hForeign), LVSIL_NORMAL);
    m_list.DestroyWindow();
    EXPECT_EQ(owned.GetImageCount(), 2);
    EXPECT_EQ(::ImageList_GetImageCount(hForeign), 0) << "gone with the control";
}

TEST(ListCtrlOwnerDraw, ListDrawsItsItemsItself) {
    class Drawer : public CListCtrl {
    public:
        std::vector<UINT> m_drawn;
        void DrawItem(LPDRAWITEMSTRUCT pDraw) override { m_drawn.push_back(pDraw->itemID); }
    };
    fx::Frame frame;
    Drawer list;
    ASSERT_TRUE(list.Create(REPORT | LVS_OWNERDRAWFIXED, CRect(0, 0, 180, 150), &frame, 1));
    list.InsertColumn(0, L"", LVCFMT_LEFT, 160);
    list.InsertItem(0, L"a");
    list.InsertItem(1, L"b");
    list.m_drawn.clear();
    list.RedrawWindow();
    EXPECT_EQ(list.m_drawn, (std::vector<UINT>{0, 1}));
}

} // namespace
