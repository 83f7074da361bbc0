// List boxes with check boxes, and data exchange with the common controls.
#include "support/TestApp.h"

#include "afxcmn.h"

using namespace testkit;

namespace {

enum : int { IDC_LIST = 10, IDC_SLIDER, IDC_SCROLL, IDC_DATE, IDC_CALENDAR, IDC_ADDRESS, IDC_NUMBER };

struct CheckFrame : Frame {
    int m_nChanged = 0;

protected:
    afx_msg void OnCheck() { ++m_nChanged; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CheckFrame, CWnd)
ON_CLBN_CHKCHANGE(IDC_LIST, &CheckFrame::OnCheck)
END_MESSAGE_MAP()

TEST(CheckList, StatesFollowTheirItemsAndATapChangesThem) {
    CheckFrame frame;
    CCheckListBox list;
    ASSERT_TRUE(list.Create(WS_CHILD | WS_VISIBLE | LBS_SORT, CRect(0, 0, 120, 120), &frame, IDC_LIST));
    list.AddString(L"b");
    list.AddString(L"c");
    list.SetCheck(0, 1); // b
    list.AddString(L"a");
    EXPECT_EQ(list.GetCheck(0), 0);
    EXPECT_EQ(list.GetCheck(1), 1);
    list.DeleteString(0);
    EXPECT_EQ(list.GetCheck(0), 1);
    EXPECT_EQ(list.GetCheck(5), 0);

    CRect item;
    list.GetItemRect(1, item);
    const LPARAM lBox = MAKELPARAM(item.left + 6, item.CenterPoint().y);
    const LPARAM lText = MAKELPARAM(item.left + 60, item.CenterPoint().y);
    for (const LPARAM lPoint : {lBox, lText}) {
        list.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, lPoint);
        list.SendMessage(WM_LBUTTONUP, 0, lPoint);
    }
    EXPECT_EQ(list.GetCheck(1), 1);
    EXPECT_EQ(frame.m_nChanged, 1) << "the text is not the box";
    list.SendMessage(WM_KEYDOWN, VK_SPACE);
    EXPECT_EQ(list.GetCheck(1), 0);
    list.Enable(1, FALSE);
    list.SendMessage(WM_KEYDOWN, VK_SPACE);
    EXPECT_EQ(frame.m_nChanged, 2);
    list.ResetContent();
    list.AddString(L"d");
    EXPECT_EQ(list.GetCheck(0), 0);
}

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
    CSliderCtrl slider;
    CScrollBar scroll;
    CDateTimeCtrl date;
    CMonthCalCtrl calendar;
    CIPAddressCtrl address;
    CEdit number;
    ASSERT_TRUE(slider.Create(WS_CHILD, rect, &frame, IDC_SLIDER) &&
                scroll.Create(WS_CHILD, rect, &frame, IDC_SCROLL) &&
                date.Create(WS_CHILD, rect, &frame, IDC_DATE) &&
                calendar.Create(WS_CHILD, rect, &frame, IDC_CALENDAR) &&
                address.Create(WS_CHILD, rect, &frame, IDC_ADDRESS) &&
                number.Create(WS_CHILD, rect, &frame, IDC_NUMBER));
    scroll.SetScrollRange(0, 20);
    ASSERT_TRUE(frame.UpdateData(FALSE));
    EXPECT_EQ(slider.GetRangeMax(), 9);
    CTime time;
    EXPECT_EQ(date.GetTime(time), DWORD{GDT_VALID});
    EXPECT_EQ(time, frame.m_date);

    const ExchangeFrame given;
    frame.m_nSlider = frame.m_nScroll = 0;
    frame.m_date = frame.m_day = CTime();
    frame.m_dwAddress = 0;
    frame.m_nNumber = 0;
    ASSERT_TRUE(frame.UpdateData());
    EXPECT_EQ(frame.m_nSlider, given.m_nSlider);
    EXPECT_EQ(frame.m_nScroll, given.m_nScroll);
    EXPECT_EQ(frame.m_date, given.m_date);
    EXPECT_EQ(frame.m_day, given.m_day);
    EXPECT_EQ(frame.m_dwAddress, given.m_dwAddress);
    EXPECT_EQ(frame.m_nNumber, given.m_nNumber);
}

} // namespace
