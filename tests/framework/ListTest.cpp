// List boxes and combo boxes.
#include "support/ModalScript.h"

namespace {

constexpr DWORD VISIBLE_CHILD = WS_CHILD | WS_VISIBLE;

template <class List>
class Filled : public List {
public:
    Filled(CWnd& parent, DWORD dwStyle) {
        EXPECT_TRUE(this->Create(VISIBLE_CHILD | WS_VSCROLL | dwStyle, CRect(5, 5, 150, 80), &parent, 1));
        for (const LPCTSTR psz : {L"beta", L"alpha", L"Gamma", L"al"})
            this->AddString(psz);
    }
};

TEST(ListBox, TextsAndDataGoWithTheirItem) {
    fx::Frame frame;
    Filled<CListBox> list(frame, 0);
    EXPECT_EQ(list.InsertString(1, L"挿入"), 1);
    EXPECT_EQ(list.InsertString(-1, L"last"), 5);
    CString str = L"before";
    list.GetText(99, str);
    EXPECT_EQ(str, L"");
    list.GetText(1, str);
    EXPECT_EQ(str, L"挿入");
    list.SetItemData(1, 0x1234567890ULL);
    list.DeleteString(0);
    EXPECT_EQ(list.GetItemData(0), 0x1234567890ULL) << "as wide as a pointer";
}

TEST(ListBox, SelectsRangesInEitherDirection) {
    fx::Frame frame;
    Filled<CListBox> list(frame, LBS_MULTIPLESEL);
    const auto selected = [&] {
        std::vector<int> items(static_cast<size_t>(list.GetSelCount()));
        EXPECT_EQ(list.GetSelItems(list.GetSelCount(), items.data()), list.GetSelCount());
        return items;
    };
    list.SelItemRange(TRUE, 3, 0);
    EXPECT_EQ(selected(), (std::vector<int>{0, 1, 2, 3}));
    list.SelItemRange(FALSE, 1, 2);
    EXPECT_EQ(selected(), (std::vector<int>{0, 3}));
    list.SelItemRange(FALSE, 3, 3);
    EXPECT_EQ(selected(), std::vector<int>{0});
}

TEST(ListBox, PointsAreFoundInItemsAndOutside) {
    fx::Frame frame;
    Filled<CListBox> list(frame, 0);
    CRect rect;
    EXPECT_NE(list.GetItemRect(2, rect), LB_ERR);
    BOOL bOutside = TRUE;
    EXPECT_EQ(list.ItemFromPoint(rect.CenterPoint(), bOutside), 2U);
    EXPECT_FALSE(bOutside);
    list.ItemFromPoint(CPoint(10, -40), bOutside);
    EXPECT_TRUE(bOutside);
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

TEST(ListBox, TapSelectsAnItemAndTellsTheParent) {
    Listening frame;
    Filled<CListBox> list(frame, LBS_NOTIFY);
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

TEST(ComboBox, TextsDataAndSelectionGoWithTheirItem) {
    fx::Frame frame;
    Filled<CComboBox> combo(frame, CBS_DROPDOWN);
    EXPECT_EQ(combo.InsertString(0, L"先頭"), 0);
    CString str = L"before";
    combo.GetLBText(99, str);
    EXPECT_EQ(str, L"");
    combo.GetLBText(0, str);
    EXPECT_EQ(str, L"先頭");
    combo.SetItemData(2, 0x1234567890ULL);
    EXPECT_EQ(combo.GetItemData(2), 0x1234567890ULL);
    EXPECT_EQ(combo.SelectString(-1, L"gam"), 3);
    EXPECT_EQ(fx::TextOf(combo), L"Gamma");
    EXPECT_TRUE(combo.SetEditSel(1, 3));
    EXPECT_EQ(combo.GetEditSel(), 0x00030001U);
}

} // namespace
