// The tip that the framework shows for a window by itself.
#include "support/Child.h"

using namespace testkit;

namespace {

struct Tipped : Frame {
    Tipped() { EnableToolTips(); }

    /// As the message loop does before it dispatches a message.
    void Hear(UINT message, CPoint screenPoint) {
        MSG msg = {m_hWnd, message, 0, 0, 0, screenPoint};
        PreTranslateMessage(&msg);
    }
    /// The control that the tip belongs to; null for none.
    HWND Tool() const {
        const HWND hTip = Tip();
        TOOLINFO tool = {};
        tool.cbSize = TTTOOLINFOW_V2_SIZE;
        EXPECT_GE(1, ::SendMessage(hTip, TTM_GETTOOLCOUNT, 0, 0));
        const bool bFound = ::SendMessage(hTip, TTM_ENUMTOOLS, 0, reinterpret_cast<LPARAM>(&tool)) != 0;
        EXPECT_EQ(bFound ? m_hWnd : nullptr, tool.hwnd);
        return reinterpret_cast<HWND>(tool.uId);
    }
    HWND Tip() const {
        HWND hTip = nullptr;
        while ((hTip = ::FindWindowEx(nullptr, hTip, TOOLTIPS_CLASS, nullptr)) != nullptr)
            if (::GetWindow(hTip, GW_OWNER) == m_hWnd)
                return hTip;
        return nullptr;
    }
};

TEST(ToolTips, BelongToTheControlThatThePenIsOn) {
    Tipped frame;
    const fx::Child<CStatic> first(frame, 0, CRect(0, 0, 50, 50), 5),
        second(frame, 0, CRect(50, 0, 99, 50), 6);
    frame.Hear(WM_KEYDOWN, MiddleOf(first));
    EXPECT_EQ(nullptr, frame.Tip());
    const Rows<UINT, CPoint, HWND> rows = {
        {WM_MOUSEFIRST, MiddleOf(first), first},  {WM_MOUSELAST, MiddleOf(first), first},
        {WM_MOUSEMOVE, MiddleOf(second), second}, {WM_MOUSELAST + 1, MiddleOf(first), second},
        {WM_MOUSEMOVE, MiddleOf(frame), nullptr}, {WM_LBUTTONDOWN, MiddleOf(first), first},
        {WM_MOUSEMOVE, CPoint(-1, -1), nullptr},
    };
    for (const auto& [message, point, hTool] : rows) {
        frame.Hear(message, point);
        EXPECT_EQ(hTool, frame.Tool()) << message;
    }
    EXPECT_EQ(6, frame.OnToolHitTest(CPoint(60, 10), nullptr));
    frame.EnableToolTips(FALSE);
    frame.Hear(WM_MOUSEMOVE, MiddleOf(first));
    EXPECT_EQ(nullptr, frame.Tool());
}

TEST(ToolTips, GoWithTheWindowThatThePenWasOn) {
    Tipped frame, other;
    const fx::Child<CStatic> first(frame), second(other);
    frame.Hear(WM_MOUSEMOVE, MiddleOf(first));
    const HWND hTip = frame.Tip();
    frame.Hear(WM_MOUSEMOVE, MiddleOf(first));
    EXPECT_EQ(hTip, frame.Tip());
    other.Hear(WM_MOUSEMOVE, MiddleOf(second));
    EXPECT_EQ(nullptr, frame.Tip());
    EXPECT_EQ(second.m_hWnd, other.Tool());
    other.DestroyWindow();
    frame.Hear(WM_MOUSEMOVE, MiddleOf(first));
    EXPECT_EQ(first.m_hWnd, frame.Tool());
}

} // namespace
