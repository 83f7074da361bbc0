/// @file
/// For tests of one's own controls: a control made in a line, a window that shows it to pen and keys and
/// notes what it tells its parent, and an ear for its messages.
///
///     Stage stage;
///     Child<CMyButton> button(stage, WS_TABSTOP, CRect(10, 10, 70, 34), 5);
///     stage.Tap(button);
///     EXPECT_EQ(1, stage.Count(5, BN_CLICKED));
#pragma once

#include "testkit/Application.h"
#include "testkit/Pen.h"

#include <initializer_list>
#include <optional>
#include <utility>

namespace testkit {

namespace detail {

// Each control has a Create of its own: a choice by what can be called.
template <class Control>
auto Create(Control& control, DWORD dwStyle, const CRect& rect, CWnd& parent, UINT nID, int)
    -> decltype(control.Create(dwStyle, rect, &parent, nID)) {
    return control.Create(dwStyle, rect, &parent, nID);
}
template <class Control>
auto Create(Control& control, DWORD dwStyle, const CRect& rect, CWnd& parent, UINT nID, long)
    -> decltype(control.Create(L"", dwStyle, rect, &parent, nID)) {
    return control.Create(L"", dwStyle, rect, &parent, nID);
}
template <class Control>
BOOL Create(Control& control, DWORD dwStyle, const CRect& rect, CWnd& parent, UINT nID, ...) {
    return control.Create(WC_STATIC, L"", dwStyle, rect, &parent, nID);
}

} // namespace detail

/// A visible child window of any class of the framework, made with its object; a failure if it cannot be
/// made. It goes with its parent or with this object, whichever is first.
template <class Control>
struct Child : Control {
    /// @param rect where it is in the client area of its parent
    explicit Child(CWnd& parent, DWORD dwStyle = 0, const CRect& rect = CRect(0, 0, 150, 80), UINT nID = 1,
                   const Place& place = {}) {
        if (!detail::Create(static_cast<Control&>(*this), dwStyle | WS_CHILD | WS_VISIBLE, rect, parent, nID,
                            0))
            Fail("the child window cannot be made", place);
    }
};

/// A window whose messages a function sees first.
template <class Window>
struct Heard : Window {
    using Window::Window;

    /// Its answer is the window's; without one the message goes on to the window.
    std::function<std::optional<LRESULT>(UINT, WPARAM, LPARAM)> m_hear;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        const auto lAnswer = m_hear ? m_hear(message, wParam, lParam) : std::nullopt;
        return lAnswer ? *lAnswer : Window::WindowProc(message, wParam, lParam);
    }
};

/// Sends a notification as a control would. @return the parent's answer
LRESULT Notify(CWnd& parent, HWND hControl, int nID, UINT nCode);

/// An active window for controls, which notes the commands and notifications that they let through to it.
struct Stage : Frame {
    explicit Stage(CSize size = {220, 180});

    /// Makes a control of the system, which a test attaches to an object, as if a template had made it.
    /// @param rect where it is in the client area
    void CreateItem(LPCTSTR pszClass, int nID, DWORD dwStyle, CRect rect, LPCTSTR pszText = L"");

    /// Real input (testkit/Pen.h), after which all that it caused is handled.
    ///@{
    void Tap(CPoint screenPoint);
    void Tap(const CWnd& wnd);
    void Drag(CPoint from, CPoint to);
    void Type(std::initializer_list<WORD> keys);
    ///@}

    /// How often a command or a notification with this code has come through.
    int Count(int nID, UINT nCode) const;

protected:
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pInfo) override;

private:
    std::vector<std::pair<int, UINT>> m_seen;
};

} // namespace testkit
