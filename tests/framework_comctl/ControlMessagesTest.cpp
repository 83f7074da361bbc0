// What the members of the common controls send: each row sets something and reads it back.
#include "support/ModalScript.h"

#include "afxcmn.h"

namespace {

class ControlMessages : public testing::Test {
protected:
    template <class Control>
    void Create(Control& control, DWORD dwStyle = 0) {
        ASSERT_TRUE(control.Create(WS_CHILD | WS_VISIBLE | dwStyle, CRect(0, 0, 150, 60), &m_frame, 1));
    }
    fx::Frame m_frame;
};

TEST_F(ControlMessages, ProgressBar) {
    CProgressCtrl bar;
    Create(bar);
    bar.SetRange(-5, 20);
    int nLower = 0;
    int nUpper = 0;
    bar.GetRange(nLower, nUpper);
    EXPECT_EQ(CPoint(nLower, nUpper), CPoint(-5, 20));
    bar.SetPos(3);
    bar.SetStep(4);
    EXPECT_EQ(bar.StepIt(), 3);
    EXPECT_EQ(bar.OffsetPos(-2), 7);
    EXPECT_EQ(bar.GetPos(), 5);
}

TEST_F(ControlMessages, SpinButton) {
    CSpinButtonCtrl spin;
    CEdit edit;
    Create(spin, UDS_SETBUDDYINT | UDS_NOTHOUSANDS);
    Create(edit);
    EXPECT_EQ(nullptr, spin.SetBuddy(&edit));
    EXPECT_EQ(&edit, spin.GetBuddy());
    spin.SetRange(-5, 20);
    int nLower = 0;
    int nUpper = 0;
    spin.GetRange(nLower, nUpper);
    EXPECT_EQ(CPoint(-5, 20), CPoint(nLower, nUpper));
    for (const auto& [nPos, nSet] : {std::pair(7, 7), {-3, -3}, {99, 20}, {-99, -5}}) {
        spin.SetPos(nPos);
        EXPECT_EQ(nSet, ::_wtoi(fx::TextOf(edit)));
        EXPECT_EQ(nSet, spin.GetPos32());
    }
    edit.SetWindowText(L"abc");
    BOOL bError = FALSE;
    spin.GetPos32(&bError);
    EXPECT_TRUE(bError);
    spin.SetRange32(-70000, 80000);
    spin.GetRange32(nLower, nUpper);
    EXPECT_EQ(CPoint(-70000, 80000), CPoint(nLower, nUpper));
}

TEST_F(ControlMessages, Slider) {
    CSliderCtrl slider;
    Create(slider, TBS_AUTOTICKS | TBS_ENABLESELRANGE);
    slider.SetRange(10, 50, TRUE);
    slider.SetTicFreq(10);
    slider.SetSelection(20, 30);
    slider.SetPos(99);
    int nMin = 0;
    int nMax = 0;
    slider.GetSelection(nMin, nMax);
    EXPECT_EQ(CPoint(nMin, nMax), CPoint(20, 30));
    EXPECT_EQ(slider.GetPos(), 50);
    EXPECT_EQ(slider.GetNumTics(), 5U);
    EXPECT_EQ(slider.GetTic(1), 30);
    slider.SetLineSize(2);
    EXPECT_EQ(slider.SetLineSize(3), 2);
    slider.SetPageSize(7);
    EXPECT_EQ(slider.GetPageSize(), 7);
    CStatic buddy;
    ASSERT_TRUE(buddy.Create(L"", WS_CHILD, CRect(0, 0, 9, 9), &m_frame));
    slider.SetBuddy(&buddy, FALSE);
    EXPECT_EQ(slider.GetBuddy(FALSE), &buddy);
    EXPECT_EQ(slider.GetBuddy(TRUE), nullptr);
}

TEST_F(ControlMessages, TabsAndHeader) {
    CTabCtrl tabs;
    Create(tabs);
    EXPECT_EQ(tabs.InsertItem(0, L"b"), 0);
    EXPECT_EQ(tabs.InsertItem(TCIF_TEXT | TCIF_PARAM, 0, L"a", 0, 42), 0);
    TCITEM item = {};
    item.mask = TCIF_PARAM;
    EXPECT_TRUE(tabs.GetItem(0, &item));
    EXPECT_EQ(item.lParam, 42);
    EXPECT_EQ(tabs.SetCurSel(0), 1) << "the first tab, which has been moved";
    EXPECT_EQ(tabs.GetCurSel(), 0);
    CRect page(0, 0, 150, 60);
    tabs.AdjustRect(FALSE, page);
    EXPECT_GT(page.top, 10);

    CListCtrl list;
    Create(list, LVS_REPORT);
    list.InsertColumn(0, L"a", LVCFMT_LEFT, 30);
    list.InsertColumn(1, L"b", LVCFMT_LEFT, 40);
    CHeaderCtrl* pHeader = list.GetHeaderCtrl();
    ASSERT_NE(pHeader, nullptr);
    EXPECT_EQ(pHeader->GetItemCount(), 2);
    int order[] = {1, 0};
    EXPECT_TRUE(list.SetColumnOrderArray(2, order));
    int read[] = {9, 9};
    EXPECT_TRUE(list.GetColumnOrderArray(read));
    EXPECT_EQ(CPoint(read[0], read[1]), CPoint(1, 0));
    EXPECT_EQ(pHeader->OrderToIndex(0), 1);
    CRect rect;
    EXPECT_TRUE(pHeader->GetItemRect(0, rect));
    EXPECT_EQ(CPoint(rect.left, rect.right), CPoint(40, 70));
    list.SetHoverTime(123);
    EXPECT_EQ(list.GetHoverTime(), 123U);
}

TEST_F(ControlMessages, ToolTipAndStatusBar) {
    CToolTipCtrl tip;
    ASSERT_TRUE(tip.Create(&m_frame));
    CButton button;
    ASSERT_TRUE(button.Create(L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 30, 20), &m_frame, 7));
    EXPECT_TRUE(tip.AddTool(&button, L"button"));
    EXPECT_TRUE(tip.AddTool(&m_frame, L"part", CRect(50, 50, 60, 60), 3));
    EXPECT_EQ(tip.GetToolCount(), 2);
    tip.UpdateTipText(L"other", &m_frame, 3);
    CString strText;
    tip.GetText(strText, &m_frame, 3);
    EXPECT_EQ(strText, L"other");
    CToolInfo info = {};
    EXPECT_TRUE(tip.GetToolInfo(info, &m_frame, 3));
    EXPECT_EQ(CRect(info.rect), CRect(50, 50, 60, 60));
    tip.DelTool(&button);
    EXPECT_EQ(tip.GetToolCount(), 1);

    CStatusBarCtrl bar;
    Create(bar);
    int edges[] = {50, -1};
    EXPECT_TRUE(bar.SetParts(2, edges));
    EXPECT_TRUE(bar.SetText(L"right", 1, SBT_POPOUT));
    int nType = 0;
    EXPECT_EQ(bar.GetText(1, &nType), L"right");
    EXPECT_EQ(nType, SBT_POPOUT);
    EXPECT_EQ(bar.GetText(0), L"");
}

TEST_F(ControlMessages, DatesKeysAndAddresses) {
    const SYSTEMTIME day = {2024, 2, 4, 29, 0, 0, 0, 0};
    const SYSTEMTIME last = {2024, 3, 0, 31, 0, 0, 0, 0};
    CDateTimeCtrl field;
    Create(field, DTS_SHOWNONE);
    SYSTEMTIME read = {};
    EXPECT_TRUE(field.SetTime(&day));
    EXPECT_EQ(field.GetTime(&read), static_cast<DWORD>(GDT_VALID));
    EXPECT_EQ(CPoint(read.wMonth, read.wDay), CPoint(2, 29));
    EXPECT_TRUE(field.SetRange(nullptr, &last));
    EXPECT_EQ(field.GetRange(nullptr, &read), static_cast<DWORD>(GDTR_MAX));
    EXPECT_EQ(read.wDay, 31);
    EXPECT_TRUE(field.SetTime());
    EXPECT_EQ(field.GetTime(&read), static_cast<DWORD>(GDT_NONE));

    CMonthCalCtrl month;
    Create(month, MCS_MULTISELECT);
    EXPECT_TRUE(month.SetMaxSelCount(5));
    SYSTEMTIME until = day;
    until.wDay = 27;
    EXPECT_TRUE(month.SetSelRange(&until, &day));
    EXPECT_TRUE(month.GetSelRange(&read, &until));
    EXPECT_EQ(CPoint(read.wDay, until.wDay), CPoint(27, 29));

    CHotKeyCtrl key;
    Create(key);
    key.SetHotKey('K', HOTKEYF_CONTROL);
    WORD wKey = 0;
    WORD wModifiers = 0;
    key.GetHotKey(wKey, wModifiers);
    EXPECT_EQ(CPoint(wKey, wModifiers), CPoint('K', HOTKEYF_CONTROL));

    CIPAddressCtrl address;
    Create(address);
    address.SetAddress(192, 168, 0, 7);
    BYTE fields[4] = {};
    EXPECT_EQ(address.GetAddress(fields[0], fields[1], fields[2], fields[3]), 4);
    EXPECT_EQ(CPoint(fields[0], fields[3]), CPoint(192, 7));
}

TEST_F(ControlMessages, ToolBar) {
    CToolBarCtrl bar;
    Create(bar);
    TBBUTTON buttons[2] = {};
    buttons[0].idCommand = 5;
    buttons[1].idCommand = 6;
    buttons[0].fsState = buttons[1].fsState = TBSTATE_ENABLED;
    EXPECT_TRUE(bar.AddButtons(2, buttons));
    EXPECT_EQ(bar.CommandToIndex(6), 1U);
    EXPECT_TRUE(bar.EnableButton(6, FALSE));
    EXPECT_FALSE(bar.IsButtonEnabled(6));
    EXPECT_TRUE(bar.HideButton(5));
    EXPECT_EQ(bar.GetState(5), TBSTATE_ENABLED | TBSTATE_HIDDEN);
}

TEST_F(ControlMessages, DrawItemOfTabIsReflected) {
    class Drawn : public CTabCtrl {
    public:
        UINT m_nItem = 99;
        void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override { m_nItem = lpDrawItemStruct->itemID; }
    };
    Drawn tabs;
    Create(tabs, TCS_OWNERDRAWFIXED);
    tabs.InsertItem(0, L"a");
    tabs.UpdateWindow();
    EXPECT_EQ(tabs.m_nItem, 0U);
}

} // namespace
