// Entry fields, lists, scroll bars: members that do more than send their message, and owner draw.
#include "support/TestApp.h"
#include "testkit/Picture.h"

#include "afxcmn.h"

#include <set>
#include <string>

using namespace testkit;

namespace {

TEST(Controls, EditTakesASelectionInEitherFormAndGivesLinesAsFarAsTheyFit) {
    Frame frame;
    Child<CEdit> edit(frame, ES_MULTILINE | ES_AUTOHSCROLL);
    edit.SetWindowText(L"01234\r\nsecond line\r\n\r\n4");
    edit.SetSel(3, 1000);
    int nStart = -1, nEnd = -1;
    edit.GetSel(nStart, nEnd);
    EXPECT_EQ(CPoint(3, 23), CPoint(nStart, nEnd)) << "to the end";
    for (const auto& [nLast, nSelected] : {std::pair(4, 4), {-1, 23}}) {
        edit.SetSel(static_cast<DWORD>(MAKELONG(2, nLast)));
        EXPECT_EQ(static_cast<DWORD>(MAKELONG(2, nSelected)), edit.GetSel());
    }
    TCHAR szLine[20] = {};
    EXPECT_EQ(6, edit.GetLine(1, szLine, 6));
    EXPECT_EQ(L"second", CString(szLine, 6));
    EXPECT_EQ(0, edit.GetLine(2, szLine, 20));
    EXPECT_EQ(0, edit.GetLine(0, szLine, 0));
    EXPECT_EQ(edit.PosFromChar(7).x, edit.PosFromChar(0).x);
    EXPECT_GT(edit.PosFromChar(7).y, edit.PosFromChar(0).y);
}

TEST(Controls, ListsGiveTextsAndDataOfTheirItems) {
    Frame frame;
    Child<CListBox> list(frame, LBS_MULTIPLESEL);
    Child<CComboBox> combo(frame, CBS_DROPDOWN);
    const auto check = [](auto& box, auto read) {
        for (const LPCTSTR psz : {L"beta", L"挿入", L"Gamma", L"al"})
            box.AddString(psz);
        CString str = L"before";
        read(99, str);
        EXPECT_EQ(L"", str);
        read(1, str);
        EXPECT_EQ(L"挿入", str);
    };
    check(list, [&](int nItem, CString& str) { list.GetText(nItem, str); });
    check(combo, [&](int nItem, CString& str) { combo.GetLBText(nItem, str); });

    const Rows<BOOL, int, int, std::string> rows = {
        {TRUE, 3, 0, "xxxx"}, // in either direction
        {FALSE, 1, 2, "x..x"},
        {FALSE, 3, 3, "x..."},
        {TRUE, 1, 1, "xx.."},
    };
    for (const auto& [bSelect, nFirst, nLast, wanted] : rows) {
        list.SelItemRange(bSelect, nFirst, nLast);
        std::string selected;
        for (int i = 0; i < list.GetCount(); ++i)
            selected += list.GetSel(i) > 0 ? 'x' : '.';
        EXPECT_EQ(wanted, selected);
    }
    CRect rect;
    list.GetItemRect(2, rect);
    BOOL bOutside = TRUE;
    EXPECT_EQ(2U, list.ItemFromPoint(rect.CenterPoint(), bOutside));
    EXPECT_FALSE(bOutside);
    list.ItemFromPoint(CPoint(10, -40), bOutside);
    EXPECT_TRUE(bOutside);
}

using Items = std::set<UINT>;

/// A control of any class that notes which items it was asked to draw.
template <class Control>
struct Drawn : Control {
    Items m_items;

    void DrawItem(LPDRAWITEMSTRUCT pItem) override { m_items.insert(pItem->itemID); }
    Items Redraw() {
        m_items.clear();
        this->RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
        return m_items;
    }
};

TEST(Controls, DrawThemselvesWhenTheirOwnerIsAsked) {
    Frame frame;
    EXPECT_FALSE(Child<Drawn<CButton>>(frame, BS_OWNERDRAW).Redraw().empty());
    EXPECT_FALSE(Child<Drawn<CStatic>>(frame, SS_OWNERDRAW).Redraw().empty());
    Child<Drawn<CTabCtrl>> tabs(frame, TCS_OWNERDRAWFIXED);
    tabs.InsertItem(0, L"a");
    EXPECT_EQ((Items{0}), tabs.Redraw());
    Child<Drawn<CListCtrl>> list(frame, LVS_REPORT | LVS_OWNERDRAWFIXED);
    list.InsertColumn(0, L"", LVCFMT_LEFT, 100);
    list.InsertItem(0, L"a");
    list.InsertItem(1, L"b");
    EXPECT_EQ((Items{0, 1}), list.Redraw());
}

/// A list box or a combo box that does everything itself.
template <class Box>
struct OwnBox : Drawn<Box> {
    std::multiset<UINT_PTR> m_deleted;

    void MeasureItem(LPMEASUREITEMSTRUCT pItem) override { pItem->itemHeight = 37; }
    int CompareItem(LPCOMPAREITEMSTRUCT pItem) override {
        return pItem->itemData1 < pItem->itemData2 ? -1 : pItem->itemData1 > pItem->itemData2;
    }
    void DeleteItem(LPDELETEITEMSTRUCT pItem) override { m_deleted.insert(pItem->itemData); }
};

TEST(Controls, ListsMeasureSortDrawAndDeleteTheirItems) {
    Frame frame;
    Child<OwnBox<CListBox>> list(frame, LBS_OWNERDRAWVARIABLE | LBS_SORT);
    Child<OwnBox<CComboBox>> combo(frame, CBS_SIMPLE | CBS_OWNERDRAWVARIABLE | CBS_SORT);
    const auto check = [](auto& box) {
        for (const UINT_PTR nData : {20, 10, 30})
            box.AddString(reinterpret_cast<LPCTSTR>(nData));
        EXPECT_EQ(10U, box.GetItemData(0));
        EXPECT_EQ(30U, box.GetItemData(2));
        EXPECT_EQ(37, box.GetItemHeight(0));
        EXPECT_FALSE(box.Redraw().empty());
        box.DeleteString(0);
        EXPECT_EQ((std::multiset<UINT_PTR>{10}), box.m_deleted);
        box.ResetContent();
        EXPECT_EQ((std::multiset<UINT_PTR>{10, 20, 30}), box.m_deleted);
    };
    check(list);
    check(combo);
}

// --- List boxes that do more --------------------------------------------------------------------

struct CheckFrame : Frame {
    int m_nChanged = 0;

protected:
    afx_msg void OnCheck() { ++m_nChanged; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CheckFrame, CWnd)
ON_CLBN_CHKCHANGE(1, &CheckFrame::OnCheck)
END_MESSAGE_MAP()

TEST(CheckList, StatesFollowTheirItemsAndATapChangesThem) {
    CheckFrame frame;
    Child<CCheckListBox> list(frame, LBS_SORT);
    list.AddString(L"b");
    list.AddString(L"c");
    list.SetCheck(0, 1); // b
    list.AddString(L"a");
    EXPECT_EQ(0, list.GetCheck(0));
    EXPECT_EQ(1, list.GetCheck(1));
    list.DeleteString(0);
    EXPECT_EQ(1, list.GetCheck(0));
    EXPECT_EQ(0, list.GetCheck(5));

    CRect item;
    list.GetItemRect(1, item);
    for (const int nBeside : {6, 60}) { // the box, the text
        const LPARAM lPoint = MAKELPARAM(item.left + nBeside, item.CenterPoint().y);
        list.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, lPoint);
        list.SendMessage(WM_LBUTTONUP, 0, lPoint);
    }
    EXPECT_EQ(1, list.GetCheck(1));
    EXPECT_EQ(1, frame.m_nChanged) << "the text is not the box";
    list.SendMessage(WM_KEYDOWN, VK_SPACE);
    EXPECT_EQ(0, list.GetCheck(1));
    const CRect text(item.left + 25, item.top, item.right, item.bottom);
    EXPECT_TRUE(Picture::Of(list).Has(text, ::GetSysColor(COLOR_HIGHLIGHTTEXT)));
    EXPECT_TRUE(Picture::Of(list).Has(text - CPoint(0, item.Height()), ::GetSysColor(COLOR_WINDOWTEXT)));
    list.Enable(1, FALSE);
    EXPECT_TRUE(Picture::Of(list).Has(text, ::GetSysColor(COLOR_GRAYTEXT)));
    list.SendMessage(WM_KEYDOWN, VK_SPACE);
    EXPECT_EQ(2, frame.m_nChanged);
    list.ResetContent();
    list.AddString(L"d");
    EXPECT_EQ(0, list.GetCheck(0));
    list.SetCheckStyle(BS_AUTO3STATE);
    list.SetCurSel(0);
    for (const int nCheck : {1, 2, 0}) {
        list.SendMessage(WM_KEYDOWN, VK_SPACE);
        EXPECT_EQ(nCheck, list.GetCheck(0));
    }
}

TEST(DragList, ADroppedItemMovesWithItsData) {
    Frame frame;
    Child<CDragListBox> list(frame, LBS_HASSTRINGS);
    for (const LPCTSTR psz : {L"a", L"b", L"c"})
        list.SetItemData(list.AddString(psz), *psz);
    CRect item;
    list.GetItemRect(0, item);
    list.ClientToScreen(item);
    const CPoint first = item.CenterPoint();
    EXPECT_EQ(0, list.ItemFromPt(first));
    EXPECT_EQ(-1, list.ItemFromPt(CPoint(first.x + 500, first.y)));
    const auto drag = [&](UINT nNotification, CPoint point) {
        DRAGLISTINFO info = {nNotification, list, point};
        return frame.SendMessage(::RegisterWindowMessage(DRAGLISTMSGSTRING), 1,
                                 reinterpret_cast<LPARAM>(&info));
    };
    EXPECT_EQ(TRUE, drag(DL_BEGINDRAG, first));
    EXPECT_EQ(DL_MOVECURSOR, drag(DL_DRAGGING, first));
    EXPECT_EQ(DL_STOPCURSOR, drag(DL_DRAGGING, first + CPoint(500, 0)));
    const Rows<int, CPoint, const wchar_t*> drops = {{2, first, L"cab"},
                                                     {0, first + CPoint(0, 2 * item.Height()), L"acb"},
                                                     {0, first + CPoint(500, 0), L"acb"}}; // beside the list
    for (const auto& [nItem, point, pszOrder] : drops) {
        list.Dropped(nItem, point);
        CString order;
        for (int i = 0; i < list.GetCount(); ++i) {
            CString text;
            list.GetText(i, text);
            order += text;
            EXPECT_EQ(static_cast<DWORD_PTR>(text[0]), list.GetItemData(i));
        }
        EXPECT_EQ(pszOrder, order);
    }
}

} // namespace
