#include <gtest/gtest.h>

#include "Tesuvo.h"

#include <string>
#include <thread>

namespace {

HWND PanelOf(DWORD thread) {
    HWND panel = nullptr;
    const auto find = [](HWND window, LPARAM found) -> BOOL {
        wchar_t name[64];
        if (::GetClassNameW(window, name, 64) == 0 || std::wstring(name) != L"TesuvoInputPanel")
            return TRUE;
        *reinterpret_cast<HWND*>(found) = window;
        return FALSE;
    };
    ::EnumThreadWindows(thread, find, reinterpret_cast<LPARAM>(&panel));
    return panel;
}

HWND OwnPanel() {
    return PanelOf(::GetCurrentThreadId());
}

std::wstring Label(HWND panel) {
    wchar_t text[32] = L"";
    ::GetWindowTextW(panel, text, 32);
    return text;
}

void Pump() {
    MSG message;
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
        ::DispatchMessageW(&message);
}

/// An application window with an entry field that has the focus.
class InputPanel : public testing::Test {
protected:
    void SetUp() override {
        m_frame = ::CreateWindowExW(0, L"STATIC", L"frame", WS_POPUP | WS_VISIBLE, 10, 10, 200, 200, nullptr,
                                    nullptr, nullptr, nullptr);
        m_field = ::CreateWindowExW(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE, 0, 0, 100, 20, m_frame, nullptr,
                                    nullptr, nullptr);
        ::SetFocus(m_field);
        Pump();
        ASSERT_EQ(::GetFocus(), m_field);
    }

    void TearDown() override {
        TVCloseSIP();
        ::DestroyWindow(m_frame);
    }

    HWND m_frame = nullptr;
    HWND m_field = nullptr;
};

TEST_F(InputPanel, ShowsTheModeAndComesAndGoes) {
    struct Row {
        int mode;
        const wchar_t* label;
    };
    const Row rows[] = {{0, L"ABC"}, {1, L"123"}, {2, L"かな"}, {3, L"ABC"}, {-1, L"ABC"}};
    TVShowSIP(1);
    const HWND panel = OwnPanel();
    ASSERT_NE(panel, nullptr);
    for (const Row& row : rows) {
        TVShowSIP(row.mode);
        EXPECT_EQ(OwnPanel(), panel);
        EXPECT_TRUE(::IsWindowVisible(panel));
        EXPECT_EQ(Label(panel), row.label);
    }
    TVCloseSIP();
    EXPECT_FALSE(::IsWindowVisible(panel));
    TVCloseSIP();
    EXPECT_FALSE(::IsWindowVisible(panel));
}

TEST_F(InputPanel, LiesAtTheBottomOfTheWorkArea) {
    TVShowSIP(0);
    RECT area{};
    ASSERT_TRUE(::SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0));
    RECT panel{};
    ASSERT_TRUE(::GetWindowRect(OwnPanel(), &panel));
    EXPECT_EQ(panel.left, area.left);
    EXPECT_EQ(panel.right, area.right);
    EXPECT_EQ(panel.bottom, area.bottom);
    EXPECT_EQ(panel.bottom - panel.top, 80);
    EXPECT_NE(::GetWindowLongPtrW(OwnPanel(), GWL_EXSTYLE) & WS_EX_TOPMOST, 0);
}

TEST_F(InputPanel, NeverTakesTheFocus) {
    const HWND active = ::GetActiveWindow();
    TVShowSIP(0);
    Pump();
    EXPECT_EQ(::GetFocus(), m_field);
    EXPECT_EQ(::GetActiveWindow(), active);

    const LRESULT answer = ::SendMessageW(OwnPanel(), WM_MOUSEACTIVATE, reinterpret_cast<WPARAM>(OwnPanel()),
                                          MAKELPARAM(HTCLIENT, WM_LBUTTONDOWN));
    EXPECT_EQ(answer, MA_NOACTIVATE);

    TVCloseSIP();
    Pump();
    EXPECT_EQ(::GetFocus(), m_field);
    EXPECT_EQ(::GetActiveWindow(), active);
}

TEST_F(InputPanel, IsMadeAnewAfterItWasDestroyed) {
    TVShowSIP(0);
    ::DestroyWindow(OwnPanel());
    TVCloseSIP();
    EXPECT_EQ(OwnPanel(), nullptr);
    TVShowSIP(2);
    EXPECT_TRUE(::IsWindowVisible(OwnPanel()));
    EXPECT_EQ(Label(OwnPanel()), L"かな");
}

TEST(InputPanelThreads, PanelEndsWithItsThread) {
    for (int round = 0; round < 2; ++round) {
        HWND panel = nullptr;
        std::thread([&panel] {
            TVShowSIP(1);
            panel = OwnPanel();
            EXPECT_TRUE(::IsWindowVisible(panel));
        }).join();
        ASSERT_NE(panel, nullptr);
        EXPECT_FALSE(::IsWindow(panel));
    }
    TVCloseSIP();
}

} // namespace
