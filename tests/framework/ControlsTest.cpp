// Entry fields, lists, scroll bars: members that do more than send their message.
#include "support/TestApp.h"

#include <string>

using namespace testkit;

namespace {

struct Controls : testing::Test {
    template <class Control>
    void Create(Control& control, DWORD dwStyle) {
        ASSERT_TRUE(control.Create(WS_CHILD | WS_VISIBLE | dwStyle, CRect(0, 0, 150, 80), &m_frame, 1));
    }
    Frame m_frame;
};

TEST_F(Controls, EditTakesASelectionInEitherFormAndGivesLinesAsFarAsTheyFit) {
    CEdit edit;
    Create(edit, ES_MULTILINE | ES_AUTOHSCROLL);
    edit.SetWindowText(L"01234\r\nsecond line\r\n\r\n4");
    edit.SetSel(3, 1000);
    int nStart = -1, nEnd = -1;
    edit.GetSel(nStart, nEnd);
    EXPECT_EQ(CPoint(3, 23), CPoint(nStart, nEnd)) << "to the end";
    edit.SetSel(static_cast<DWORD>(MAKELONG(2, 4)));
    EXPECT_EQ(static_cast<DWORD>(MAKELONG(2, 4)), edit.GetSel());
    edit.SetSel(static_cast<DWORD>(MAKELONG(0, -1)));
    EXPECT_EQ(static_cast<DWORD>(MAKELONG(0, 23)), edit.GetSel());
    TCHAR szLine[20] = {};
    EXPECT_EQ(6, edit.GetLine(1, szLine, 6));
    EXPECT_EQ(L"second", CString(szLine, 6));
    EXPECT_EQ(0, edit.GetLine(2, szLine, 20));
    EXPECT_EQ(0, edit.GetLine(0, szLine, 0));
    EXPECT_EQ(edit.PosFromChar(7).x, edit.PosFromChar(0).x);
    EXPECT_GT(edit.PosFromChar(7).y, edit.PosFromChar(0).y);
}

TEST_F(Controls, ListsGiveTextsAndDataOfTheirItems) {
    CListBox list;
    CComboBox combo;
    Create(list, LBS_MULTIPLESEL);
    Create(combo, CBS_DROPDOWN);
    const auto check = [](auto& box, auto read) {
        for (const LPCTSTR psz : {L"beta", L"挿入", L"Gamma", L"al"})
            box.AddString(psz);
        CString str = L"before";
        read(99, str);
        EXPECT_EQ(L"", str);
        read(1, str);
        EXPECT_EQ(L"挿入", str);
        constexpr auto kWide = ~DWORD_PTR{0} / 3;
        box.SetItemData(1, kWide);
        EXPECT_EQ(kWide, box.GetItemData(1)) << "as wide as a pointer";
    };
    check(list, [&](int nItem, CString& str) { list.GetText(nItem, str); });
    check(combo, [&](int nItem, CString& str) { combo.GetLBText(nItem, str); });

    const auto select = [&](BOOL bSelect, int nFirst, int nLast) {
        list.SelItemRange(bSelect, nFirst, nLast);
        std::string selected;
        for (int i = 0; i < list.GetCount(); ++i)
            selected += list.GetSel(i) > 0 ? 'x' : '.';
        return selected;
    };
    EXPECT_EQ("xxxx", select(TRUE, 3, 0)) << "in either direction";
    EXPECT_EQ("x..x", select(FALSE, 1, 2));
    EXPECT_EQ("x...", select(FALSE, 3, 3));
    EXPECT_EQ("xx..", select(TRUE, 1, 1));
    CRect rect;
    list.GetItemRect(2, rect);
    BOOL bOutside = TRUE;
    EXPECT_EQ(2U, list.ItemFromPoint(rect.CenterPoint(), bOutside));
    EXPECT_FALSE(bOutside);
    list.ItemFromPoint(CPoint(10, -40), bOutside);
    EXPECT_TRUE(bOutside);
}

TEST_F(Controls, ScrollBarsLimitLeavesRoomForThePage) {
    CScrollBar bar;
    Create(bar, SBS_HORZ);
    bar.SetScrollRange(5, 50);
    EXPECT_EQ(50, bar.GetScrollLimit());
    SCROLLINFO info = {};
    info.fMask = SIF_PAGE;
    info.nPage = 11;
    EXPECT_TRUE(bar.SetScrollInfo(&info));
    EXPECT_EQ(40, bar.GetScrollLimit());
}

// --- Owner draw -----------------------------------------------------------------------------

/// A control of any class that notes what it was asked to draw.
template <class Control>
struct Drawn : Control {
    UINT m_nStates = 0;

    void DrawItem(LPDRAWITEMSTRUCT pItem) override {
        m_nStates |= pItem->itemState;
        CDC::FromHandle(pItem->hDC)->FillSolidRect(&pItem->rcItem, RGB(255, 0, 0));
    }
    COLORREF Color() {
        this->RedrawWindow();
        CClientDC dc(this);
        return dc.GetPixel(3, 3);
    }
};

TEST_F(Controls, ButtonAndStaticDrawThemselves) {
    Drawn<CButton> button;
    Drawn<CStatic> label;
    ASSERT_TRUE(button.Create(L"", WS_CHILD | WS_VISIBLE | BS_OWNERDRAW, CRect(0, 0, 50, 20), &m_frame, 1));
    ASSERT_TRUE(label.Create(L"", WS_CHILD | WS_VISIBLE | SS_OWNERDRAW, CRect(0, 30, 50, 50), &m_frame, 2));
    EXPECT_EQ(RGB(255, 0, 0), button.Color());
    EXPECT_EQ(RGB(255, 0, 0), label.Color());
    button.SetState(TRUE);
    button.UpdateWindow();
    EXPECT_NE(0U, button.m_nStates & ODS_SELECTED);
}

/// A list box or a combo box that does everything itself.
template <class Box>
struct OwnBox : Drawn<Box> {
    std::vector<UINT_PTR> m_deleted;

    void MeasureItem(LPMEASUREITEMSTRUCT pItem) override { pItem->itemHeight = 37; }
    int CompareItem(LPCOMPAREITEMSTRUCT pItem) override {
        return pItem->itemData1 < pItem->itemData2 ? -1 : pItem->itemData1 > pItem->itemData2;
    }
    void DeleteItem(LPDELETEITEMSTRUCT pItem) override { m_deleted.push_back(pItem->itemData); }
};

TEST_F(Controls, ListsMeasureSortDrawAndDeleteTheirItems) {
    OwnBox<CListBox> list;
    OwnBox<CComboBox> combo;
    Create(list, LBS_OWNERDRAWVARIABLE | LBS_SORT);
    Create(combo, CBS_SIMPLE | CBS_OWNERDRAWVARIABLE | CBS_SORT);
    const auto check = [](auto& box) {
        for (const UINT_PTR nData : {20, 10, 30})
            box.AddString(reinterpret_cast<LPCTSTR>(nData));
        EXPECT_EQ(10U, box.GetItemData(0));
        EXPECT_EQ(30U, box.GetItemData(2));
        EXPECT_EQ(37, box.GetItemHeight(0));
        box.DeleteString(0);
        box.ResetContent();
        EXPECT_EQ(3U, box.m_deleted.size());
        EXPECT_EQ(10U, box.m_deleted.front());
    };
    list.AddString(reinterpret_cast<LPCTSTR>(5));
    EXPECT_EQ(RGB(255, 0, 0), list.Color());
    list.ResetContent();
    list.m_deleted.clear();
    check(list);
    check(combo);
}

} // namespace
