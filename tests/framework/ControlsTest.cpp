// Scroll bars and owner-drawn controls.
#include "support/FrameworkEnvironment.h"

namespace {

constexpr DWORD VISIBLE_CHILD = WS_CHILD | WS_VISIBLE;

TEST(ScrollBar, LimitLeavesRoomForThePage) {
    fx::Frame frame;
    CScrollBar bar;
    ASSERT_TRUE(bar.Create(VISIBLE_CHILD | SBS_HORZ, CRect(10, 10, 90, 40), &frame, 3));
    bar.SetScrollRange(5, 50);
    EXPECT_EQ(bar.GetScrollLimit(), 50);
    SCROLLINFO info = {};
    info.fMask = SIF_PAGE;
    info.nPage = 11;
    EXPECT_TRUE(bar.SetScrollInfo(&info));
    EXPECT_EQ(bar.GetScrollLimit(), 40);
}

// --- Owner draw -----------------------------------------------------------------------------

/// A control of any class that notes what it was asked to draw.
template <class Control>
class Drawn : public Control {
public:
    int m_nDrawn = 0;
    UINT m_nStates = 0;

    void DrawItem(LPDRAWITEMSTRUCT pItem) override {
        ++m_nDrawn;
        m_nStates |= pItem->itemState;
        CDC* pDC = CDC::FromHandle(pItem->hDC);
        pDC->FillSolidRect(&pItem->rcItem, RGB(255, 0, 0));
    }
};

template <class Control>
void ExpectRed(Control& control) {
    CClientDC dc(&control);
    CRect rect;
    control.GetClientRect(rect);
    EXPECT_EQ(dc.GetPixel(rect.left + 3, rect.top + 3), RGB(255, 0, 0));
}

TEST(OwnerDraw, ButtonAndStaticDrawThemselves) {
    fx::Frame frame;
    Drawn<CButton> button;
    Drawn<CStatic> label;
    ASSERT_TRUE(button.Create(L"", VISIBLE_CHILD | BS_OWNERDRAW, CRect(0, 0, 50, 20), &frame, 1));
    ASSERT_TRUE(label.Create(L"", VISIBLE_CHILD | SS_OWNERDRAW, CRect(0, 30, 50, 50), &frame, 2));
    frame.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    EXPECT_GT(button.m_nDrawn, 0);
    EXPECT_GT(label.m_nDrawn, 0);
    ExpectRed(button);
    ExpectRed(label);
    button.m_nStates = 0;
    button.SetState(TRUE);
    button.UpdateWindow();
    EXPECT_NE(button.m_nStates & ODS_SELECTED, 0U);
}

class OwnList : public Drawn<CListBox> {
public:
    std::vector<UINT_PTR> m_deleted;
    int m_nCompared = 0;

    void MeasureItem(LPMEASUREITEMSTRUCT pItem) override { pItem->itemHeight = 10 + 5 * pItem->itemID; }
    int CompareItem(LPCOMPAREITEMSTRUCT pItem) override {
        ++m_nCompared;
        return pItem->itemData1 < pItem->itemData2 ? -1 : pItem->itemData1 > pItem->itemData2;
    }
    void DeleteItem(LPDELETEITEMSTRUCT pItem) override { m_deleted.push_back(pItem->itemData); }
};

TEST(OwnerDraw, ListMeasuresSortsDrawsAndDeletesItsItems) {
    fx::Frame frame;
    OwnList list;
    ASSERT_TRUE(
        list.Create(VISIBLE_CHILD | LBS_OWNERDRAWVARIABLE | LBS_SORT, CRect(0, 0, 80, 100), &frame, 1));
    const auto add = [&](UINT_PTR nData) { list.AddString(reinterpret_cast<LPCTSTR>(nData)); };
    add(20);
    add(10);
    add(30);
    EXPECT_GT(list.m_nCompared, 0);
    EXPECT_EQ(list.GetItemData(0), 10U);
    EXPECT_EQ(list.GetItemData(2), 30U);
    EXPECT_GE(list.GetItemHeight(0), 10);
    list.RedrawWindow();
    EXPECT_GE(list.m_nDrawn, 3);
    ExpectRed(list);
    list.DeleteString(0);
    list.ResetContent();
    EXPECT_EQ(list.m_deleted.size(), 3U);
    EXPECT_EQ(list.m_deleted.front(), 10U);
}

} // namespace
