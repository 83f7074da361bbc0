// Windows that a test makes in a line, and sees the messages of.
#pragma once

#include "support/TestApp.h"

#include <functional>
#include <optional>

namespace fx {

/// A visible child window, made with its object.
template <class Control>
struct Child : Control {
    explicit Child(CWnd& parent, DWORD dwStyle = 0, const CRect& rect = CRect(0, 0, 150, 80), UINT nID = 1) {
        dwStyle |= WS_CHILD | WS_VISIBLE;
        if constexpr (requires { this->Create(dwStyle, rect, &parent, nID); })
            EXPECT_TRUE(this->Create(dwStyle, rect, &parent, nID));
        else if constexpr (requires { this->Create(L"", dwStyle, rect, &parent, nID); })
            EXPECT_TRUE(this->Create(L"", dwStyle, rect, &parent, nID));
        else
            EXPECT_TRUE(this->Create(WC_STATIC, L"", dwStyle, rect, &parent, nID));
    }
};

/// A window whose messages a function sees first, and may answer.
template <class Window>
struct Heard : Window {
    using Window::Window;

    std::function<std::optional<LRESULT>(UINT, WPARAM, LPARAM)> m_hear;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        const auto lAnswer = m_hear ? m_hear(message, wParam, lParam) : std::nullopt;
        return lAnswer ? *lAnswer : Window::WindowProc(message, wParam, lParam);
    }
};

/// A window that closes its menus as soon as they open.
struct MenuOwner : Frame {
    using Frame::Frame;

    UINT m_nItem = 0; ///< The first one of the last menu.

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_INITMENUPOPUP) {
            m_nItem = ::GetMenuItemID(reinterpret_cast<HMENU>(wParam), 0);
            ::EndMenu();
        }
        return Frame::WindowProc(message, wParam, lParam);
    }
};

/// Sends a notification as a control would. @return the answer
inline LRESULT Notify(CWnd& parent, HWND hControl, UINT_PTR nID, int nCode) {
    NMHDR header = {hControl, nID, static_cast<UINT>(nCode)};
    return parent.SendMessage(WM_NOTIFY, nID, reinterpret_cast<LPARAM>(&header));
}

} // namespace fx
