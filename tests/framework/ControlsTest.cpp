// Buttons, statics, scroll bars, owner-drawn controls.
#include "support/ModalScript.h"

namespace {

constexpr DWORD VISIBLE_CHILD = WS_CHILD | WS_VISIBLE;
const CRect PLACE(10, 10, 90, 40);

TEST(Button, HasStatesAndStyles) {
    fx::Frame frame;
    CButton button;
    ASSERT_TRUE(button.Create(L"確認", VISIBLE_CHILD | BS_AUTO3STATE, PLACE, &frame, 7));
    EXPECT_EQ(button.GetDlgCtrlID(), 7);
    EXPECT_EQ(button.GetButtonStyle(), static_cast<UINT>(BS_AUTO3STATE));
    for (const int nCheck : {BST_CHECKED, BST_INDETERMINATE, BST_UNCHECKED}) {
        button.SetCheck(nCheck);
        EXPECT_EQ(button.GetCheck(), nCheck);
    }
    button.SetState(TRUE);
    EXPECT_NE(button.GetState() & BST_PUSHED, 0U);
    button.SetState(FALSE);
    EXPECT_EQ(button.GetState() & BST_PUSHED, 0U);

    button.SetButtonStyle(BS_DEFPUSHBUTTON);
    EXPECT_EQ(button.GetButtonStyle(), static_cast<UINT>(BS_DEFPUSHBUTTON));
}

TEST(Button, ShowsAnIconOrABitmap) {
    fx::Frame frame;
    CButton icon;
    CButton bitmap;
    ASSERT_TRUE(icon.Create(L"", VISIBLE_CHILD | BS_ICON, PLACE, &frame, 1));
    ASSERT_TRUE(bitmap.Create(L"", VISIBLE_CHILD | BS_BITMAP, PLACE, &frame, 2));
    const HICON hIcon = ::LoadIcon(nullptr, IDI_WARNING);
    EXPECT_EQ(icon.SetIcon(hIcon), nullptr);
    EXPECT_EQ(icon.GetIcon(), hIcon);
    EXPECT_EQ(icon.SetIcon(nullptr), hIcon);
    CBitmap picture;
    picture.CreateBitmap(8, 8, 1, 1, nullptr);
    EXPECT_EQ(bitmap.SetBitmap(picture), nullptr);
    EXPECT_EQ(bitmap.GetBitmap(), static_cast<HBITMAP>(picture));
    bitmap.SetBitmap(nullptr);
}

TEST(Static, ShowsTextIconOrBitmap) {
    fx::Frame frame;
    CStatic text;
    CStatic icon;
    CStatic bitmap;
    ASSERT_TRUE(text.Create(L"見出し", VISIBLE_CHILD, PLACE, &frame));
    EXPECT_EQ(text.GetDlgCtrlID(), 0xFFFF);
    CString strText;
    text.GetWindowText(strText);
    EXPECT_EQ(strText, L"見出し");
    ASSERT_TRUE(icon.Create(nullptr, VISIBLE_CHILD | SS_ICON, PLACE, &frame));
    const HICON hIcon = ::LoadIcon(nullptr, IDI_ERROR);
    EXPECT_EQ(icon.SetIcon(hIcon), nullptr);
    EXPECT_EQ(icon.GetIcon(), hIcon);
    ASSERT_TRUE(bitmap.Create(nullptr, VISIBLE_CHILD | SS_BITMAP, PLACE, &frame));
    CBitmap picture;
    picture.CreateBitmap(8, 8, 1, 1, nullptr);
    bitmap.SetBitmap(picture);
    EXPECT_EQ(bitmap.GetBitmap(), static_cast<HBITMAP>(picture));
    bitmap.SetBitmap(nullptr);
}

TEST(ScrollBar, KeepsRangePageAndPosition) {
    fx::Frame frame;
    CScrollBar bar;
    ASSERT_TRUE(bar.Create(VISIBLE_CHILD | SBS_HORZ, PLACE, &frame, 3));
    bar.SetScrollRange(5, 50);
    int nMin = 0;
    int nMax = 0;
    bar.GetScrollRange(&nMin, &nMax);
    EXPECT_EQ(nMin, 5);
    EXPECT_EQ(nMax, 50);
    EXPECT_EQ(bar.SetScrollPos(20), 5);
    EXPECT_EQ(bar.SetScrollPos(500), 20);
    EXPECT_EQ(bar.GetScrollPos(), 50);
    EXPECT_EQ(bar.GetScrollLimit(), 50);
    SCROLLINFO info = {};
    info.fMask = SIF_PAGE | SIF_POS;
    info.nPage = 11;
    info.nPos = 15;
    EXPECT_TRUE(bar.SetScrollInfo(&info));
    EXPECT_EQ(bar.GetScrollLimit(), 40) << "the thumb is as long as a page";
    SCROLLINFO read = {};
    ASSERT_TRUE(bar.GetScrollInfo(&read));
    EXPECT_EQ(read.nPage, 11U);
    EXPECT_EQ(read.nPos, 15);
    bar.ShowScrollBar(FALSE);
    EXPECT_FALSE(bar.IsWindowVisible());
    EXPECT_TRUE(bar.EnableScrollBar(ESB_DISABLE_BOTH));
}

class ScrollParent : public fx::Frame {
public:
    CScrollBar* m_pBar = nullptr;
    UINT m_nCode = 99;

protected:
    afx_msg void OnHScroll(UINT nSBCode, UINT, CScrollBar* pScrollBar) {
        m_nCode = nSBCode;
        m_pBar = pScrollBar;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ScrollParent, CWnd)
ON_WM_HSCROLL()
END_MESSAGE_MAP()

TEST(ScrollBar, TellsItsParentWhichBarWasUsed) {
    ScrollParent parent;
    CScrollBar bar;
    ASSERT_TRUE(bar.Create(VISIBLE_CHILD | SBS_HORZ, PLACE, &parent, 3));
    bar.SetScrollRange(0, 10);
    parent.SendMessage(WM_HSCROLL, SB_LINERIGHT, reinterpret_cast<LPARAM>(bar.m_hWnd));
    EXPECT_EQ(parent.m_nCode, static_cast<UINT>(SB_LINERIGHT));
    EXPECT_EQ(parent.m_pBar, &bar);
}

// --- Owner draw -----------------------------------------------------------------------------

/// A control of any class that notes what it was asked to draw.
template <class Control>
class Drawn : public Control {
public:
    int m_nDrawn = 0;
    UINT m_nActions = 0;
    UINT m_nStates = 0;

    void DrawItem(LPDRAWITEMSTRUCT pItem) override {
        ++m_nDrawn;
        m_nActions |= pItem->itemAction;
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

class OwnCombo : public Drawn<CComboBox> {
public:
    int m_nMeasured = 0;

    void MeasureItem(LPMEASUREITEMSTRUCT pItem) override {
        ++m_nMeasured;
        pItem->itemHeight = 22;
    }
};

TEST(OwnerDraw, ComboMeasuresAndDrawsItsItems) {
    fx::Frame frame;
    OwnCombo combo;
    ASSERT_TRUE(combo.Create(VISIBLE_CHILD | CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS,
                             CRect(0, 0, 80, 100), &frame, 1));
    combo.AddString(L"a");
    combo.SetCurSel(0);
    combo.RedrawWindow();
    EXPECT_GT(combo.m_nMeasured, 0);
    EXPECT_GT(combo.m_nDrawn, 0);
    EXPECT_EQ(combo.GetItemHeight(0), 22);
}

} // namespace
