// List boxes with check boxes and with items to drag, and data exchange with the common controls.
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

enum : UINT { IDC_SLIDER = 11, IDC_SCROLL, IDC_DATE, IDC_CALENDAR, IDC_ADDRESS, IDC_NUMBER };

struct ExchangeFrame : Frame {
    int m_nSlider = 7, m_nScroll = 8;
    CTime m_date{2024, 5, 6, 7, 8, 9}, m_day{2023, 4, 3, 0, 0, 0};
    DWORD m_dwAddress = 0x7F000001;
    LONGLONG m_nNumber = -5000000000;

protected:
    void DoDataExchange(CDataExchange* pDX) override {
        DDX_Slider(pDX, IDC_SLIDER, m_nSlider);
        DDV_MinMaxSlider(pDX, static_cast<DWORD>(m_nSlider), 5, 9);
        DDX_Scroll(pDX, IDC_SCROLL, m_nScroll);
        DDX_DateTimeCtrl(pDX, IDC_DATE, m_date);
        DDX_MonthCalCtrl(pDX, IDC_CALENDAR, m_day);
        DDX_IPAddress(pDX, IDC_ADDRESS, m_dwAddress);
        DDX_Text(pDX, IDC_NUMBER, m_nNumber);
    }
};

TEST(DataExchange, CommonControlsGiveBackWhatTheyWereGiven) {
    ExchangeFrame frame;
    const CRect rect(0, 0, 100, 20);
    Child<CSliderCtrl> slider(frame, 0, rect, IDC_SLIDER);
    Child<CScrollBar> scroll(frame, 0, rect, IDC_SCROLL);
    const Child<CDateTimeCtrl> date(frame, 0, rect, IDC_DATE);
    const Child<CMonthCalCtrl> calendar(frame, 0, rect, IDC_CALENDAR);
    const Child<CIPAddressCtrl> address(frame, 0, rect, IDC_ADDRESS);
    const Child<CEdit> number(frame, 0, rect, IDC_NUMBER);
    scroll.SetScrollRange(0, 20);
    ASSERT_TRUE(frame.UpdateData(FALSE));
    EXPECT_EQ(9, slider.GetRangeMax());

    const ExchangeFrame given;
    frame.m_nSlider = frame.m_nScroll = 0;
    frame.m_date = frame.m_day = CTime();
    frame.m_dwAddress = 0;
    frame.m_nNumber = 0;
    ASSERT_TRUE(frame.UpdateData());
    EXPECT_EQ(given.m_nSlider, frame.m_nSlider);
    EXPECT_EQ(given.m_nScroll, frame.m_nScroll);
    EXPECT_EQ(given.m_date, frame.m_date);
    EXPECT_EQ(given.m_day, frame.m_day);
    EXPECT_EQ(given.m_dwAddress, frame.m_dwAddress);
    EXPECT_EQ(given.m_nNumber, frame.m_nNumber);
}

} // namespace
