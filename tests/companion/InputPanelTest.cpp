// The soft input panel as a window: when it comes and goes, and what it leaves alone.
#include "support/PanelKeys.h"
#include "testkit/Pen.h"

using namespace testkit;

namespace {

/// A window that keeps what it is told about the panel: shown or not.
struct ToldFrame : Frame {
    std::vector<bool> m_told;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        SIPINFO info = {};
        info.cbSize = sizeof info;
        if (message == WM_SETTINGCHANGE && wParam == SPI_SETSIPINFO && lParam == 0 && SipGetInfo(&info))
            m_told.push_back(info.fdwFlags & SIPF_ON);
        return Frame::WindowProc(message, wParam, lParam);
    }
};

/// A window with two entry fields that bring up the panel, and another control.
struct InputPanel : testing::Test {
    InputPanel() {
        m_letters.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 100, 20), &m_frame, 10);
        m_digits.Create(WS_CHILD | WS_VISIBLE, CRect(0, 30, 100, 50), &m_frame, 11);
        m_button.Create(L"", WS_CHILD | WS_VISIBLE, CRect(0, 60, 100, 80), &m_frame, 12);
        m_digits.m_nMode = 1;
        m_button.SetFocus();
        Pump();
        m_frame.m_told.clear();
    }
    ~InputPanel() override { panel::Close(); }

    ToldFrame m_frame;
    fx::PanelField m_letters, m_digits;
    CButton m_button;
};

TEST_F(InputPanel, ShowsTheModeAndComesAndGoes) {
    CEdit field; // tells nobody
    field.Create(WS_CHILD | WS_VISIBLE, CRect(0, 90, 100, 110), &m_frame, 13);
    field.SetFocus();
    const CRect area = WorkArea();
    const int nBottom = area.bottom - AFX_DEVICE_BAR_HEIGHT;
    TVShowSIP(1);
    const HWND hPanel = panel::OfThread();
    ASSERT_NE(nullptr, hPanel);
    for (const auto& [nMode, pszTitle] :
         {std::pair(0, L"ABC"), {1, L"123"}, {2, L"かな"}, {3, L"ABC"}, {-1, L"ABC"}}) {
        TVShowSIP(nMode);
        EXPECT_EQ(hPanel, panel::OfThread());
        EXPECT_TRUE(panel::IsVisible());
        EXPECT_EQ(pszTitle, panel::Title());
        EXPECT_EQ(CRect(area.left, nBottom - 125, area.right, nBottom), panel::Place());
        EXPECT_NE(0, ::GetWindowLongPtr(hPanel, GWL_EXSTYLE) & WS_EX_TOPMOST);
    }
    ::SetCursor(nullptr);
    ::SendMessage(hPanel, WM_SETCURSOR, reinterpret_cast<WPARAM>(hPanel), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    EXPECT_EQ(::LoadCursor(nullptr, IDC_ARROW), ::GetCursor());
    const CRect home = panel::Place();
    ::MoveWindow(hPanel, 0, 0, 50, 50, FALSE);
    EXPECT_EQ(0, ::SendMessage(hPanel, WM_DISPLAYCHANGE, 32, 0));
    EXPECT_EQ(home, panel::Place());
    EXPECT_EQ(0, ::SendMessage(hPanel, WM_CLOSE, 0, 0));
    panel::ExpectHidden();
    ::SendMessage(hPanel, WM_DISPLAYCHANGE, 32, 0);
    TVCloseSIP();
    fx::PumpFor(50);
    EXPECT_FALSE(panel::IsVisible());
    ::Sleep(150);
    MSG msg;
    EXPECT_FALSE(::PeekMessage(&msg, hPanel, WM_TIMER, WM_TIMER, PM_NOREMOVE))
        << "no watch while it is hidden";
    ::DestroyWindow(hPanel);
    TVCloseSIP();
    EXPECT_EQ(nullptr, panel::OfThread());
    SIPINFO info = {};
    info.cbSize = sizeof info;
    EXPECT_TRUE(SipGetInfo(&info));
    EXPECT_EQ(SIPF_OFF | SIPF_DOCKED, info.fdwFlags);
    EXPECT_TRUE(SipShowIM(SIPF_ON));
    EXPECT_EQ(L"ABC", panel::Title());
    TVShowSIP(2);
    Pump();
    pen::Tap(fx::PanelAt(0, 6, 12));
    EXPECT_TRUE(PumpUntil([&] { return TextOf(field) == L"あ"; })) << "hiragana";
    EXPECT_TRUE(panel::IsVisible()) << "made anew";
    EXPECT_EQ(L"かな", panel::Title());
}

TEST_F(InputPanel, FrameworkKnowsItsPlace) {
    const CRect area = WorkArea();
    SIPINFO info = {};
    EXPECT_FALSE(SipGetInfo(&info)) << "without a size";
    EXPECT_FALSE(SipGetInfo(nullptr));
    info.cbSize = sizeof info;
    ASSERT_TRUE(SipGetInfo(&info));
    EXPECT_EQ(info.fdwFlags, SIPF_OFF | SIPF_DOCKED);
    EXPECT_EQ(CRect(info.rcVisibleDesktop), area);
    EXPECT_TRUE(CRect(info.rcSipRect).IsRectEmpty());

    EXPECT_FALSE(SipShowIM(SIPF_DOCKED));
    EXPECT_TRUE(SipShowIM(SIPF_ON));
    EXPECT_TRUE(panel::IsVisible());
    ASSERT_TRUE(SipGetInfo(&info));
    EXPECT_EQ(info.fdwFlags, SIPF_ON | SIPF_DOCKED);
    EXPECT_EQ(CRect(info.rcSipRect), panel::Place());
    EXPECT_EQ(CRect(info.rcVisibleDesktop), CRect(area.left, area.top, area.right, panel::Place().top));

    EXPECT_TRUE(SipShowIM(SIPF_OFF));
    ASSERT_TRUE(SipGetInfo(&info));
    EXPECT_EQ(info.fdwFlags, SIPF_OFF | SIPF_DOCKED) << "it is on its way out";
}

TEST_F(InputPanel, StaysBelowWhatComesOverIt) {
    m_letters.SetFocus();
    panel::ExpectShown();
    CWnd list; // as a combo box drops it
    list.CreateEx(WS_EX_TOPMOST | WS_EX_NOACTIVATE, WC_LISTBOX, L"", WS_POPUP | WS_VISIBLE, panel::Place(),
                  &m_frame, 0);
    m_digits.SetFocus();
    fx::PumpFor(300);
    EXPECT_EQ(list.m_hWnd, ::WindowFromPoint(panel::Place().CenterPoint()));
    EXPECT_EQ(std::vector{true}, m_frame.m_told) << "on the way from field to field it has not gone";
}

TEST_F(InputPanel, TellsTheActiveWindowWhenItComesAndGoes) {
    m_letters.SetFocus();
    EXPECT_TRUE(PumpUntil([this] { return !m_frame.m_told.empty(); }));
    ToldFrame other;
    other.SetFocus();
    panel::ExpectHidden();
    EXPECT_EQ(other.m_told, std::vector{false});
    EXPECT_EQ(m_frame.m_told, (std::vector{true, false}));
    TVShowSIP(0);
    EXPECT_TRUE(PumpUntil([&] { return other.m_told == std::vector{false, true}; }));
    m_frame.SetFocus();
    EXPECT_TRUE(PumpUntil([this] { return m_frame.m_told == std::vector{true, false, true}; }));
    panel::Close();
    EXPECT_EQ(m_frame.m_told, (std::vector{true, false, true, false})) << "active again, below the panel";
}

TEST_F(InputPanel, GoesWithTheFieldThatHasTheFocus) {
    CEdit field; // these tell nobody
    CEdit next;
    field.Create(WS_CHILD | WS_VISIBLE, CRect(0, 90, 100, 110), &m_frame, 13);
    next.Create(WS_CHILD | WS_VISIBLE, CRect(0, 120, 100, 140), &m_frame, 14);
    field.SetFocus();
    TVShowSIP(0);
    fx::PumpFor(150);
    EXPECT_TRUE(panel::IsVisible());
    next.SetFocus();
    field.DestroyWindow();
    fx::PumpFor(250);
    EXPECT_TRUE(panel::IsVisible()) << "there is still something to type into";
    m_button.SetFocus();
    fx::PumpFor(250);
    next.DestroyWindow();
    fx::PumpFor(250);
    EXPECT_TRUE(panel::IsVisible()) << "the focus was not there any more";
    m_button.DestroyWindow();
    m_frame.SetFocus();
    panel::ExpectHidden();
    TVShowSIP(0);
    fx::PumpFor(150);
    EXPECT_TRUE(panel::IsVisible()) << "what had gone before does not count";
}

} // namespace
