// What the members of the common controls send: something is set and read back.
#include "support/TestApp.h"
#include "testkit/Script.h"
#include "testkit/Pen.h"

#include "afxcmn.h"

using namespace testkit;

namespace {

struct ControlMessages : testing::Test {
    template <class Control>
    void Create(Control& control, DWORD dwStyle = 0) {
        ASSERT_TRUE(control.Create(WS_CHILD | WS_VISIBLE | dwStyle, CRect(0, 0, 150, 60), &m_frame, 1));
    }
    /// What a member writes into its two arguments.
    template <class Number = int, class Read>
    static CPoint Pair(Read read) {
        Number first = 0, second = 0;
        read(first, second);
        return {first, second};
    }
    Frame m_frame;
};

TEST_F(ControlMessages, ProgressBarAndSlider) {
    CProgressCtrl bar;
    Create(bar);
    bar.SetRange(-5, 20);
    EXPECT_EQ(CPoint(-5, 20), Pair([&](int& a, int& b) { bar.GetRange(a, b); }));
    bar.SetPos(3);
    bar.SetStep(4);
    EXPECT_TRUE(bar.StepIt() == 3 && bar.OffsetPos(-2) == 7 && bar.GetPos() == 5);

    CSliderCtrl slider;
    Create(slider, TBS_AUTOTICKS | TBS_ENABLESELRANGE);
    slider.SetRange(10, 50, TRUE);
    slider.SetTicFreq(10);
    slider.SetSelection(20, 30);
    slider.SetPos(99);
    EXPECT_EQ(CPoint(20, 30), Pair([&](int& a, int& b) { slider.GetSelection(a, b); }));
    EXPECT_TRUE(slider.GetPos() == 50 && slider.GetNumTics() == 5 && slider.GetTic(1) == 30);
    slider.SetLineSize(2);
    slider.SetPageSize(7);
    EXPECT_TRUE(slider.SetLineSize(3) == 2 && slider.GetPageSize() == 7);
    slider.SetBuddy(&bar, FALSE);
    EXPECT_TRUE(slider.GetBuddy(FALSE) == &bar && slider.GetBuddy(TRUE) == nullptr);
}

TEST_F(ControlMessages, SpinButton) {
    CSpinButtonCtrl spin;
    CEdit edit;
    Create(spin, UDS_SETBUDDYINT | UDS_NOTHOUSANDS);
    Create(edit);
    EXPECT_TRUE(spin.SetBuddy(&edit) == nullptr && spin.GetBuddy() == &edit);
    spin.SetRange(-5, 20);
    EXPECT_EQ(CPoint(-5, 20), Pair([&](int& a, int& b) { spin.GetRange(a, b); }));
    for (const auto& [nPos, nSet] : {std::pair(7, 7), {-3, -3}, {99, 20}, {-99, -5}}) {
        spin.SetPos(nPos);
        EXPECT_EQ(CPoint(nSet, nSet), CPoint(::_wtoi(TextOf(edit)), spin.GetPos32()));
    }
    edit.SetWindowText(L"abc");
    BOOL bError = FALSE;
    spin.GetPos32(&bError);
    EXPECT_TRUE(bError);
    spin.SetRange32(-70000, 80000);
    EXPECT_EQ(CPoint(-70000, 80000), Pair([&](int& a, int& b) { spin.GetRange32(a, b); }));
}

TEST_F(ControlMessages, TabsAndHeader) {
    struct Drawn : CTabCtrl {
        UINT m_nItem = 99;
        void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override { m_nItem = lpDrawItemStruct->itemID; }
    } tabs;
    Create(tabs, TCS_OWNERDRAWFIXED);
    tabs.InsertItem(0, L"b");
    tabs.UpdateWindow();
    EXPECT_EQ(0U, tabs.m_nItem);
    EXPECT_EQ(0, tabs.InsertItem(TCIF_TEXT | TCIF_PARAM, 0, L"a", 0, 42));
    TCITEM item = {};
    item.mask = TCIF_PARAM;
    EXPECT_TRUE(tabs.GetItem(0, &item) && item.lParam == 42);
    EXPECT_TRUE(tabs.SetCurSel(0) == 1 && tabs.GetCurSel() == 0) << "the first tab had been moved";
    CRect page(0, 0, 150, 60);
    tabs.AdjustRect(FALSE, page);
    EXPECT_GT(page.top, 10);

    CListCtrl list;
    Create(list, LVS_REPORT);
    list.InsertColumn(0, L"a", LVCFMT_LEFT, 30);
    list.InsertColumn(1, L"b", LVCFMT_LEFT, 40);
    CHeaderCtrl* pHeader = list.GetHeaderCtrl();
    ASSERT_TRUE(pHeader != nullptr && pHeader->GetItemCount() == 2);
    int order[] = {1, 0}, read[] = {9, 9};
    EXPECT_TRUE(list.SetColumnOrderArray(2, order) && list.GetColumnOrderArray(read));
    EXPECT_TRUE(read[0] == 1 && read[1] == 0 && pHeader->OrderToIndex(0) == 1);
    CRect rect;
    EXPECT_TRUE(pHeader->GetItemRect(0, rect) && rect.left == 40 && rect.right == 70);
    list.SetHoverTime(123);
    EXPECT_EQ(123U, list.GetHoverTime());
}

TEST_F(ControlMessages, ToolTipStatusBarAndToolBar) {
    CToolTipCtrl tip;
    ASSERT_TRUE(tip.Create(&m_frame));
    CStatusBarCtrl bar;
    Create(bar);
    EXPECT_TRUE(tip.AddTool(&bar, L"bar") && tip.AddTool(&m_frame, L"part", CRect(50, 50, 60, 60), 3));
    EXPECT_EQ(2, tip.GetToolCount());
    tip.UpdateTipText(L"other", &m_frame, 3);
    CString strText;
    tip.GetText(strText, &m_frame, 3);
    EXPECT_EQ(L"other", strText);
    CToolInfo info = {};
    EXPECT_TRUE(tip.GetToolInfo(info, &m_frame, 3) && CRect(info.rect) == CRect(50, 50, 60, 60));
    tip.DelTool(&bar);
    EXPECT_EQ(1, tip.GetToolCount());

    int edges[] = {50, -1}, nType = 0;
    EXPECT_TRUE(bar.SetParts(2, edges) && bar.SetText(L"right", 1, SBT_POPOUT));
    EXPECT_TRUE(bar.GetText(1, &nType) == L"right" && nType == SBT_POPOUT && bar.GetText(0) == L"");

    CToolBarCtrl tools;
    Create(tools);
    TBBUTTON buttons[2] = {{0, 5, TBSTATE_ENABLED, 0, {}, 0, 0}, {0, 6, TBSTATE_ENABLED, 0, {}, 0, 0}};
    EXPECT_TRUE(tools.AddButtons(2, buttons) && tools.CommandToIndex(6) == 1);
    EXPECT_TRUE(tools.EnableButton(6, FALSE) && !tools.IsButtonEnabled(6) && tools.HideButton(5));
    EXPECT_EQ(TBSTATE_ENABLED | TBSTATE_HIDDEN, tools.GetState(5));
}

TEST_F(ControlMessages, DatesKeysAndAddresses) {
    const SYSTEMTIME day = {2024, 2, 4, 29, 0, 0, 0, 0}, last = {2024, 3, 0, 31, 0, 0, 0, 0};
    CDateTimeCtrl field;
    Create(field, DTS_SHOWNONE);
    SYSTEMTIME read = {};
    EXPECT_TRUE(field.SetTime(&day) && field.GetTime(&read) == GDT_VALID);
    EXPECT_TRUE(read.wMonth == 2 && read.wDay == 29);
    EXPECT_TRUE(field.SetRange(nullptr, &last) && field.GetRange(nullptr, &read) == GDTR_MAX);
    EXPECT_EQ(31, read.wDay);
    EXPECT_TRUE(field.SetTime() && field.GetTime(&read) == GDT_NONE);

    CMonthCalCtrl month;
    Create(month, MCS_MULTISELECT);
    SYSTEMTIME until = day;
    until.wDay = 27;
    EXPECT_TRUE(month.SetMaxSelCount(5) && month.SetSelRange(&until, &day));
    EXPECT_TRUE(month.GetSelRange(&read, &until) && read.wDay == 27 && until.wDay == 29);

    CHotKeyCtrl key;
    Create(key);
    key.SetHotKey('K', HOTKEYF_CONTROL);
    EXPECT_EQ(CPoint('K', HOTKEYF_CONTROL), Pair<WORD>([&](WORD& a, WORD& b) { key.GetHotKey(a, b); }));

    CIPAddressCtrl address;
    Create(address);
    address.SetAddress(192, 168, 0, 7);
    BYTE fields[4] = {};
    EXPECT_EQ(4, address.GetAddress(fields[0], fields[1], fields[2], fields[3]));
    EXPECT_TRUE(fields[0] == 192 && fields[3] == 7);
}

TEST_F(ControlMessages, LinksHaveTextsAndStates) {
    CLinkCtrl link;
    ASSERT_TRUE(link.Create(L"see <a id=\"a\" href=\"p.htm\">points</a>", WS_CHILD, CRect(0, 0, 150, 60),
                            &m_frame, 1));
    CString strID, strUrl;
    EXPECT_TRUE(link.GetItemID(0, strID) && link.GetItemUrl(0, strUrl));
    EXPECT_EQ(L"a", strID);
    EXPECT_EQ(L"p.htm", strUrl);
    EXPECT_TRUE(link.SetItemID(0, L"points") && link.SetItemState(0, LIS_VISITED, LIS_VISITED));
    wchar_t szID[4] = L"";
    UINT nState = 0;
    EXPECT_TRUE(link.GetItemID(0, szID, 4) && link.GetItemState(0, &nState, LIS_VISITED));
    EXPECT_STREQ(L"poi", szID);
    EXPECT_EQ(UINT{LIS_VISITED}, nState);
    EXPECT_FALSE(link.GetItemUrl(1, strUrl));
    EXPECT_TRUE(strUrl.IsEmpty());
}

struct MenuOwner : Frame {
    WORD m_nItem = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_INITMENUPOPUP) {
            m_nItem = static_cast<WORD>(::GetMenuItemID(reinterpret_cast<HMENU>(wParam), 0));
            ::EndMenu();
        }
        return Frame::WindowProc(message, wParam, lParam);
    }
};

TEST(SplitButton, OpensItsMenu) {
    MenuOwner frame;
    CMenu menu;
    ASSERT_TRUE(menu.CreatePopupMenu() && menu.AppendMenu(MF_STRING, 77, L"x"));
    CSplitButton button(&menu);
    ASSERT_TRUE(button.Create(L"s", WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 20), &frame, 1));
    NMBCDROPDOWN drop = {{button, 1, BCN_DROPDOWN}, {}};
    frame.SendMessage(WM_NOTIFY, 1, reinterpret_cast<LPARAM>(&drop));
    EXPECT_EQ(77, frame.m_nItem);
    frame.m_nItem = 0;
    button.SetDropDownMenu(0xFFFF, 0); // there is none
    frame.SendMessage(WM_NOTIFY, 1, reinterpret_cast<LPARAM>(&drop));
    EXPECT_EQ(0, frame.m_nItem);
}

} // namespace
