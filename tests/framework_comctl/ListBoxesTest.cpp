// List boxes with check boxes and with items to drag.
#include "support/Child.h"

#include "afxcmn.h"

using namespace testkit;

namespace {

using fx::Child;

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
    list.Enable(1, FALSE);
    list.SendMessage(WM_KEYDOWN, VK_SPACE);
    EXPECT_EQ(2, frame.m_nChanged);
    list.ResetContent();
    list.AddString(L"d");
    EXPECT_EQ(0, list.GetCheck(0));
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
    list.Dropped(2, first);
    CString order;
    for (int i = 0; i < list.GetCount(); ++i) {
        CString text;
        list.GetText(i, text);
        order += text;
        EXPECT_EQ(static_cast<DWORD_PTR>(text[0]), list.GetItemData(i));
    }
    EXPECT_EQ(L"cab", order);
}

} // namespace
