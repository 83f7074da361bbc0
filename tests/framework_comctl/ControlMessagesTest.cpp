// Members of the common controls that do more than send their message.
#include "support/TestApp.h"

#include "afxcmn.h"

using namespace testkit;

namespace {

struct ControlMessages : testing::Test {
    fx::MenuOwner m_frame;
};

/// What a member writes into its two arguments.
template <class Number = int, class Read>
CPoint Pair(Read read) {
    Number first = 0, second = 0;
    read(first, second);
    return {first, second};
}

TEST_F(ControlMessages, PositionsAndAddressesAreTakenApart) {
    Child<CProgressCtrl> bar(m_frame);
    bar.SetRange(-5, 20);
    EXPECT_EQ(CPoint(-5, 20), Pair([&](int& a, int& b) { bar.GetRange(a, b); }));
    Child<CSpinButtonCtrl> spin(m_frame);
    spin.SetRange(-5, 20);
    EXPECT_EQ(CPoint(-5, 20), Pair([&](int& a, int& b) { spin.GetRange(a, b); }));
    EXPECT_EQ(CPoint(-5, 20), Pair([&](int& a, int& b) { spin.GetRange32(a, b); }));
    Child<CIPAddressCtrl> address(m_frame);
    address.SetAddress(192, 168, 0, 7);
    std::vector<BYTE> fields(4);
    EXPECT_EQ(4, address.GetAddress(fields[0], fields[1], fields[2], fields[3]));
    EXPECT_EQ((std::vector<BYTE>{192, 168, 0, 7}), fields);
}

TEST_F(ControlMessages, TabsHaveDataAndColumnsAnOrder) {
    Child<CTabCtrl> tabs(m_frame);
    EXPECT_EQ(0, tabs.InsertItem(TCIF_TEXT | TCIF_PARAM, 0, L"a", 0, 42));
    TCITEM item = {};
    item.mask = TCIF_PARAM;
    ASSERT_TRUE(tabs.GetItem(0, &item));
    EXPECT_EQ(42, item.lParam);
    EXPECT_TRUE(tabs.SetItemState(0, TCIS_HIGHLIGHTED, TCIS_HIGHLIGHTED));
    EXPECT_EQ(DWORD{TCIS_HIGHLIGHTED}, tabs.GetItemState(0, TCIS_HIGHLIGHTED));
    EXPECT_EQ(0U, tabs.GetItemState(0, TCIS_BUTTONPRESSED));

    Child<CListCtrl> list(m_frame, LVS_REPORT);
    list.InsertColumn(0, L"a", LVCFMT_LEFT, 30);
    list.InsertColumn(1, L"b", LVCFMT_LEFT, 40);
    int order[] = {1, 0};
    list.SetColumnOrderArray(2, order);
    std::vector<int> read = {9, 9, 9};
    EXPECT_TRUE(list.GetColumnOrderArray(read.data()));
    EXPECT_EQ((std::vector<int>{1, 0, 9}), read);
}

TEST_F(ControlMessages, ToolTipsBelongToControlsOrToPartsOfAWindow) {
    CToolTipCtrl tip;
    ASSERT_TRUE(tip.Create(&m_frame));
    Child<CStatic> label(m_frame);
    const CRect part(50, 50, 60, 60);
    EXPECT_TRUE(tip.AddTool(&label, 40010U));
    EXPECT_TRUE(tip.AddTool(&m_frame, L"part", part, 3));
    EXPECT_EQ(2, tip.GetToolCount());
    tip.UpdateTipText(40011U, &m_frame, 3);
    CString strText, strLabel;
    tip.GetText(strText, &m_frame, 3);
    EXPECT_EQ(L"測点", strText);
    tip.GetText(strLabel, &label, 0);
    EXPECT_EQ(L"設定", strLabel);
    CToolInfo info = {};
    ASSERT_TRUE(tip.GetToolInfo(info, &m_frame, 3));
    EXPECT_EQ(part, CRect(info.rect));
    tip.SetToolRect(&m_frame, 3, CRect(70, 70, 80, 80));
    EXPECT_FALSE(tip.HitTest(&m_frame, part.CenterPoint(), &info));
    ASSERT_TRUE(tip.HitTest(&m_frame, CPoint(75, 75), &info));
    EXPECT_EQ(3U, info.uId);
    tip.DelTool(&label);
    EXPECT_EQ(1, tip.GetToolCount());
}

TEST_F(ControlMessages, BarsHaveTextsAndButtons) {
    Child<CStatusBarCtrl> bar(m_frame);
    int edges[] = {50, -1}, nType = 0;
    ASSERT_TRUE(bar.SetParts(2, edges));
    ASSERT_TRUE(bar.SetText(L"right", 1, SBT_POPOUT));
    EXPECT_EQ(L"right", bar.GetText(1, &nType));
    EXPECT_EQ(SBT_POPOUT, nType);
    EXPECT_EQ(L"", bar.GetText(0));
    int borders[3] = {}, nHorz = -1, nVert = -1, nSpacing = -1;
    ASSERT_TRUE(bar.GetBorders(borders));
    ASSERT_TRUE(bar.GetBorders(nHorz, nVert, nSpacing));
    EXPECT_EQ(std::vector<int>(borders, borders + 3), (std::vector<int>{nHorz, nVert, nSpacing}));

    Child<CToolBarCtrl> tools(m_frame);
    TBBUTTON buttons[2] = {{0, 5, TBSTATE_ENABLED, 0, {}, 0, 0}, {0, 6, TBSTATE_ENABLED, 0, {}, 0, 0}};
    ASSERT_TRUE(tools.AddButtons(2, buttons));
    EXPECT_EQ(1, tools.CommandToIndex(6));
    for (const UINT nID : {40010U, 40011U})
        EXPECT_EQ(static_cast<int>(nID) - 40010, tools.AddString(nID));
}

TEST_F(ControlMessages, DatesHaveLimitsAndSelections) {
    const SYSTEMTIME day = {2024, 2, 4, 29, 0, 0, 0, 0};
    const CTime first(2024, 2, 27, 0, 0, 0), last(2024, 2, 29, 0, 0, 0);
    SYSTEMTIME end = {};
    CTime from, to;
    Child<CDateTimeCtrl> field(m_frame);
    EXPECT_TRUE(field.SetRange(nullptr, &day));
    EXPECT_EQ(DWORD{GDTR_MAX}, field.GetRange(nullptr, &end));
    EXPECT_EQ(29, end.wDay);
    EXPECT_TRUE(field.SetRange(&first, static_cast<CTime*>(nullptr)));
    EXPECT_EQ(DWORD{GDTR_MIN}, field.GetRange(&from, static_cast<CTime*>(nullptr)));
    EXPECT_EQ(first, from);

    CMonthCalCtrl fitting;
    ASSERT_TRUE(fitting.Create(WS_CHILD, CPoint(3, 4), &m_frame, 9));
    CRect rect;
    fitting.GetMinReqRect(rect);
    EXPECT_EQ(rect.Size(), RectOf(fitting).Size());
    Child<CMonthCalCtrl> month(m_frame, MCS_MULTISELECT);
    month.SetMaxSelCount(5);
    EXPECT_TRUE(month.SetSelRange(first, last));
    EXPECT_TRUE(month.GetSelRange(from, to));
    EXPECT_EQ(first, from);
    EXPECT_EQ(last, to);
    EXPECT_TRUE(month.SetRange(&first, &last));
    EXPECT_EQ(DWORD{GDTR_MIN | GDTR_MAX}, month.GetRange(&to, &from));
    EXPECT_EQ(first, to);
    EXPECT_EQ(last, from);
    EXPECT_EQ(1, month.GetMonthRange(from, to, GMR_VISIBLE));
    EXPECT_EQ(2, from.GetMonth());
    month.SetFirstDayOfWeek(3);
    EXPECT_EQ(3, month.GetFirstDayOfWeek());
    month.SetToday(first);
    EXPECT_TRUE(month.GetToday(to));
    EXPECT_EQ(first, to);
    CRect least;
    EXPECT_TRUE(month.SizeMinReq());
    EXPECT_TRUE(month.GetMinReqRect(least));
    EXPECT_EQ(least.Size(), RectOf(month).Size());
}

TEST_F(ControlMessages, HotKeyHasTheNamesOfItsKeys) {
    Child<CHotKeyCtrl> field(m_frame);
    EXPECT_EQ(L"", field.GetHotKeyName());
    field.SetHotKey(VK_F5, HOTKEYF_CONTROL | HOTKEYF_SHIFT);
    EXPECT_EQ(L"F5", CHotKeyCtrl::GetKeyName(VK_F5, FALSE));
    EXPECT_EQ(CHotKeyCtrl::GetKeyName(VK_CONTROL, FALSE) + L" + " + CHotKeyCtrl::GetKeyName(VK_SHIFT, FALSE) +
                  L" + F5",
              field.GetHotKeyName());
    EXPECT_NE(CHotKeyCtrl::GetKeyName(VK_INSERT, FALSE), CHotKeyCtrl::GetKeyName(VK_INSERT, TRUE));
}

TEST_F(ControlMessages, LinksHaveTextsAndStates) {
    CLinkCtrl link;
    ASSERT_TRUE(link.Create(L"see <a id=\"a\" href=\"p.htm\">points</a>", WS_CHILD, CRect(), &m_frame, 1));
    CString strID, strUrl;
    EXPECT_TRUE(link.GetItemID(0, strID));
    EXPECT_EQ(L"a", strID);
    EXPECT_TRUE(link.GetItemUrl(0, strUrl));
    EXPECT_EQ(L"p.htm", strUrl);
    EXPECT_TRUE(link.SetItemID(0, L"points"));
    wchar_t szID[4] = L"";
    EXPECT_TRUE(link.GetItemID(0, szID, 4));
    EXPECT_STREQ(L"poi", szID);
    UINT nState = 0;
    EXPECT_TRUE(link.SetItemState(0, LIS_VISITED, LIS_VISITED));
    EXPECT_TRUE(link.GetItemState(0, &nState, LIS_VISITED));
    EXPECT_EQ(UINT{LIS_VISITED}, nState);
    EXPECT_FALSE(link.GetItemUrl(1, strUrl));
    EXPECT_EQ(L"", strUrl);
}

TEST_F(ControlMessages, SplitButtonOpensItsMenu) {
    CMenu menu;
    ASSERT_TRUE(menu.CreatePopupMenu());
    menu.AppendMenu(MF_STRING, 77, L"x");
    CSplitButton button(&menu);
    ASSERT_TRUE(button.Create(L"s", WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 20), &m_frame, 1));
    Notify(m_frame, button, 1, BCN_DROPDOWN);
    EXPECT_EQ(77U, std::exchange(m_frame.m_nItem, 0U));
    button.SetDropDownMenu(0xFFFF, 0); // there is none
    Notify(m_frame, button, 1, BCN_DROPDOWN);
    EXPECT_EQ(0U, m_frame.m_nItem);
    button.SetDropDownMenu(&menu);
    Notify(m_frame, button, 1, BCN_DROPDOWN);
    EXPECT_EQ(77U, m_frame.m_nItem);
}

TEST_F(ControlMessages, RichTextHasAFormatForEachPart) {
    Child<CRichEditCtrl> rich(m_frame, ES_MULTILINE);
    rich.ReplaceSel(L"one two");
    CHARFORMAT bold = {}, format = {};
    bold.dwMask = CFM_BOLD;
    bold.dwEffects = CFE_BOLD;
    rich.SetSel(4, 7);
    EXPECT_EQ(L"two", rich.GetSelText());
    EXPECT_TRUE(rich.SetSelectionCharFormat(bold));
    for (const auto& [nStart, dwEffects] : {std::pair(0, 0UL), {5, CFE_BOLD}}) {
        rich.SetSel(nStart, nStart + 1);
        rich.GetSelectionCharFormat(format);
        EXPECT_EQ(dwEffects, format.dwEffects & CFE_BOLD);
    }
    CString strText;
    EXPECT_EQ(3, rich.GetTextRange(0, 3, strText));
    EXPECT_EQ(L"one", strText);
    long nStart = 0, nEnd = 0;
    rich.SetSel(4, 7);
    rich.GetSel(nStart, nEnd);
    EXPECT_EQ(CPoint(4, 7), CPoint(nStart, nEnd));
    EXPECT_EQ(7, rich.GetTextLengthEx(GTL_NUMCHARS));
    TCHAR szLine[9] = {};
    EXPECT_EQ(0, rich.GetLine(0, szLine, 0));
    EXPECT_EQ(3, rich.GetLine(0, szLine, 3));
    EXPECT_STREQ(L"one", szLine);
    EXPECT_GT(rich.GetCharPos(4).x, rich.GetCharPos(0).x);
    EXPECT_EQ(rich.GetCharPos(4).y, rich.GetCharPos(0).y);
}

} // namespace
