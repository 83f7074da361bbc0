// List boxes and combo boxes.
#include "support/ModalScript.h"

namespace {

constexpr DWORD VISIBLE_CHILD = WS_CHILD | WS_VISIBLE;

class ListBox : public testing::Test {
protected:
    void Create(DWORD dwStyle = 0) {
        ASSERT_TRUE(m_list.Create(VISIBLE_CHILD | WS_VSCROLL | dwStyle, CRect(5, 5, 150, 80), &m_frame, 1));
        for (const LPCTSTR psz : {L"beta", L"alpha", L"Gamma", L"al"})
            m_list.AddString(psz);
    }
    CString Item(int nIndex) const {
        CString str = L"before";
        m_list.GetText(nIndex, str);
        return str;
    }

    fx::Frame m_frame;
    CListBox m_list;
};

TEST_F(ListBox, KeepsItemsWithTheirTextAndData) {
    Create();
    EXPECT_EQ(m_list.GetCount(), 4);
    EXPECT_EQ(m_list.InsertString(1, L"挿入"), 1);
    EXPECT_EQ(m_list.InsertString(-1, L"last"), 5);
    EXPECT_EQ(m_list.InsertString(99, L"nowhere"), LB_ERR);
    EXPECT_EQ(Item(1), L"挿入");
    EXPECT_EQ(m_list.GetTextLen(1), 2);
    EXPECT_EQ(Item(99), L"");
    TCHAR szText[20] = {};
    EXPECT_EQ(m_list.GetText(3, szText), 5);
    EXPECT_EQ(CString(szText), L"Gamma");
    int nData = 0;
    EXPECT_NE(m_list.SetItemData(0, 0x1234567890ULL), LB_ERR);
    EXPECT_EQ(m_list.GetItemData(0), 0x1234567890ULL) << "as wide as a pointer";
    m_list.SetItemDataPtr(1, &nData);
    EXPECT_EQ(m_list.GetItemDataPtr(1), &nData);
    EXPECT_EQ(m_list.DeleteString(0), 5);
    EXPECT_EQ(m_list.GetItemDataPtr(0), &nData) << "data moves with its item";
    m_list.ResetContent();
    EXPECT_EQ(m_list.GetCount(), 0);
}

TEST_F(ListBox, FindsFromBehindAnItemAndAround) {
    Create();
    const struct {
        int nStartAfter;
        LPCTSTR pszText;
        int nPrefix;
        int nExact;
    } cases[] = {
        {-1, L"AL", 1, 3}, {1, L"al", 3, 3}, {3, L"al", 1, 3}, {-1, L"gamma", 2, 2}, {-1, L"delta", -1, -1},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(m_list.FindString(c.nStartAfter, c.pszText), c.nPrefix) << fx::Utf8(c.pszText);
        EXPECT_EQ(m_list.FindStringExact(c.nStartAfter, c.pszText), c.nExact) << fx::Utf8(c.pszText);
    }
    EXPECT_EQ(m_list.SelectString(-1, L"g"), 2);
    EXPECT_EQ(m_list.GetCurSel(), 2);
    EXPECT_EQ(m_list.SetCurSel(99), LB_ERR);
    m_list.SetCurSel(-1);
    EXPECT_EQ(m_list.GetCurSel(), LB_ERR);
}

TEST_F(ListBox, SortsWhenAskedTo) {
    Create(LBS_SORT);
    EXPECT_EQ(Item(0), L"al");
    EXPECT_EQ(Item(3), L"Gamma");
    EXPECT_EQ(m_list.AddString(L"b"), 2);
}

TEST_F(ListBox, SelectsSeveralItems) {
    Create(LBS_MULTIPLESEL);
    const auto selected = [&] {
        std::vector<int> items(static_cast<size_t>(m_list.GetSelCount()));
        EXPECT_EQ(m_list.GetSelItems(m_list.GetSelCount(), items.data()), m_list.GetSelCount());
        return items;
    };
    m_list.SetSel(3);
    m_list.SetSel(1);
    EXPECT_EQ(selected(), (std::vector<int>{1, 3}));
    EXPECT_GT(m_list.GetSel(1), 0);
    EXPECT_EQ(m_list.GetSel(0), 0);
    m_list.SetSel(1, FALSE);
    EXPECT_EQ(selected(), std::vector<int>{3});
    m_list.SelItemRange(TRUE, 2, 0);
    EXPECT_EQ(selected(), (std::vector<int>{0, 1, 2, 3}));
    m_list.SelItemRange(FALSE, 1, 2);
    EXPECT_EQ(selected(), (std::vector<int>{0, 3}));
    m_list.SelItemRange(FALSE, 3, 3);
    EXPECT_EQ(selected(), std::vector<int>{0});
    m_list.SetSel(-1, TRUE);
    EXPECT_EQ(m_list.GetSelCount(), 4);
    m_list.SetCaretIndex(2);
    EXPECT_EQ(m_list.GetCaretIndex(), 2);
}

TEST_F(ListBox, ScrollsAndFindsItemsByPlace) {
    Create(WS_HSCROLL);
    for (int i = 0; i < 30; ++i)
        m_list.AddString(L"more");
    m_list.SetItemHeight(0, 15);
    EXPECT_EQ(m_list.GetItemHeight(0), 15);
    m_list.SetTopIndex(8);
    EXPECT_EQ(m_list.GetTopIndex(), 8);
    CRect rect;
    EXPECT_NE(m_list.GetItemRect(9, rect), LB_ERR);
    EXPECT_EQ(rect.top, 15);
    EXPECT_EQ(rect.Height(), 15);
    BOOL bOutside = TRUE;
    EXPECT_EQ(m_list.ItemFromPoint(rect.CenterPoint(), bOutside), 9U);
    EXPECT_FALSE(bOutside);
    m_list.ItemFromPoint(CPoint(10, -40), bOutside);
    EXPECT_TRUE(bOutside);
    m_list.SetHorizontalExtent(400);
    EXPECT_EQ(m_list.GetHorizontalExtent(), 400);
}

class Listening : public fx::Frame {
public:
    int m_nChanges = 0;

protected:
    afx_msg void OnSelChange() { ++m_nChanges; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Listening, CWnd)
ON_LBN_SELCHANGE(1, &Listening::OnSelChange)
END_MESSAGE_MAP()

TEST(ListBoxPen, TapSelectsAnItemAndTellsTheParent) {
    Listening frame;
    CListBox list;
    ASSERT_TRUE(list.Create(VISIBLE_CHILD | LBS_NOTIFY, CRect(5, 5, 150, 80), &frame, 1));
    list.AddString(L"one");
    list.AddString(L"two");
    frame.SetForegroundWindow();
    fx::Pump();
    CRect rect;
    list.GetItemRect(1, rect);
    list.ClientToScreen(rect);
    pen::Tap(rect.CenterPoint());
    fx::Pump();
    EXPECT_EQ(list.GetCurSel(), 1);
    EXPECT_EQ(frame.m_nChanges, 1);
}

// --- Combo boxes ------------------------------------------------------------------------------

class ComboBox : public testing::Test {
protected:
    void Create(DWORD dwStyle) {
        ASSERT_TRUE(m_combo.Create(VISIBLE_CHILD | WS_VSCROLL | dwStyle, CRect(5, 5, 150, 120), &m_frame, 1));
        for (const LPCTSTR psz : {L"beta", L"alpha", L"Gamma", L"al"})
            m_combo.AddString(psz);
    }
    CString Text() const {
        CString str;
        m_combo.GetWindowText(str);
        return str;
    }

    fx::Frame m_frame;
    CComboBox m_combo;
};

TEST_F(ComboBox, KeepsItemsWithTheirTextAndData) {
    Create(CBS_DROPDOWN);
    EXPECT_EQ(m_combo.GetCount(), 4);
    EXPECT_EQ(m_combo.InsertString(0, L"先頭"), 0);
    CString str;
    m_combo.GetLBText(0, str);
    EXPECT_EQ(str, L"先頭");
    m_combo.GetLBText(99, str);
    EXPECT_EQ(str, L"");
    EXPECT_EQ(m_combo.GetLBTextLen(3), 5);
    m_combo.SetItemData(2, 0x1234567890ULL);
    EXPECT_EQ(m_combo.GetItemData(2), 0x1234567890ULL);
    EXPECT_EQ(m_combo.FindString(-1, L"al"), 2);
    EXPECT_EQ(m_combo.FindStringExact(-1, L"AL"), 4);
    EXPECT_EQ(m_combo.DeleteString(0), 4);
    m_combo.ResetContent();
    EXPECT_EQ(m_combo.GetCount(), 0);
}

TEST_F(ComboBox, SelectionShowsInTheEditPart) {
    Create(CBS_DROPDOWN);
    EXPECT_EQ(m_combo.SetCurSel(1), 1);
    EXPECT_EQ(Text(), L"alpha");
    EXPECT_EQ(m_combo.SelectString(-1, L"gam"), 2);
    EXPECT_EQ(Text(), L"Gamma");
    EXPECT_EQ(m_combo.SetCurSel(-1), CB_ERR);
    EXPECT_EQ(Text(), L"");
    m_combo.SetWindowText(L"free");
    EXPECT_EQ(m_combo.GetCurSel(), CB_ERR);
    EXPECT_TRUE(m_combo.SetEditSel(1, 3));
    EXPECT_EQ(m_combo.GetEditSel(), 0x00030001U);
    m_combo.Clear();
    EXPECT_EQ(Text(), L"fe");
}

TEST_F(ComboBox, ListDropsDownWhereItSays) {
    Create(CBS_DROPDOWNLIST);
    EXPECT_FALSE(m_combo.GetDroppedState());
    m_combo.ShowDropDown();
    EXPECT_TRUE(m_combo.GetDroppedState());
    CRect rect;
    CRect control;
    m_combo.GetDroppedControlRect(rect);
    m_combo.GetWindowRect(control);
    EXPECT_GE(rect.bottom, control.bottom);
    m_combo.ShowDropDown(FALSE);
    EXPECT_FALSE(m_combo.GetDroppedState());
    EXPECT_NE(m_combo.SetDroppedWidth(300), CB_ERR);
    EXPECT_EQ(m_combo.GetDroppedWidth(), 300);
    EXPECT_EQ(m_combo.SetExtendedUI(), CB_OKAY);
    EXPECT_TRUE(m_combo.GetExtendedUI());
    m_combo.SetItemHeight(-1, 30);
    EXPECT_GE(m_combo.GetItemHeight(-1), 30);
    COMBOBOXINFO info = {};
    ASSERT_TRUE(m_combo.GetComboBoxInfo(&info));
    EXPECT_EQ(info.hwndCombo, m_combo.m_hWnd);
    EXPECT_NE(info.hwndList, nullptr);
}

} // namespace
