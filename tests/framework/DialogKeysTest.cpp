// Keys in dialogs whose focus is where the system's search for dialog keys never comes by.
#include "support/TestApp.h"
#include "testkit/Form.h"

using namespace testkit;

namespace {

/// A dialog with a container of controls, as sheets and forms have them.
struct Form : fx::Form {
    Form() {
        m_onInit = [this] {
            m_group.CreateEx(WS_EX_CONTROLPARENT, nullptr, L"", WS_CHILD | WS_VISIBLE, CRect(0, 80, 90, 110),
                             this, 20);
            m_inner.Create(L"inner", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 0, 40, 20), &m_group, 21);
        };
    }

    CWnd m_group;
    CButton m_inner;
};

void DisableAll(HWND hWnd) {
    for (HWND h = ::GetWindow(hWnd, GW_CHILD); h != nullptr; h = ::GetWindow(h, GW_HWNDNEXT))
        ::EnableWindow(h, FALSE);
}

/// Posted as the system does, so that no other window can get in between.
void PostKeys(HWND hWnd) {
    for (const WPARAM key : {VK_TAB, VK_LEFT, VK_DOWN, VK_UP, static_cast<int>('5')}) {
        ::PostMessage(hWnd, WM_KEYDOWN, key, 1);
        ::PostMessage(hWnd, WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
    }
    ::PostMessage(hWnd, WM_CHAR, '5', 1);
    ::PostMessage(hWnd, WM_SYSKEYDOWN, 'Z', 0x20000001);
    ::PostMessage(hWnd, WM_SYSCHAR, 'z', 0x20000001);
    ::PostMessage(hWnd, WM_SYSKEYUP, 'Z', static_cast<LPARAM>(0xE0000001));
}

TEST(DialogKeys, NeverGoRoundForEver) {
    const auto hide = [](HWND hWnd) { ::ShowWindow(hWnd, SW_HIDE); };
    const auto disable = [](HWND hWnd) { ::EnableWindow(hWnd, FALSE); };
    const auto inner = [](Form& f) { return f.m_inner.m_hWnd; };
    const auto edit = [](Form& f) { return f.Item(Form::EDIT); };
    const Rows<const char*, std::function<HWND(Form&)>, std::function<void(Form&)>> cases = {
        {"in a hidden container", inner, [=](Form& f) { hide(f.m_group); }},
        {"in a disabled container", inner, [=](Form& f) { disable(f.m_group); }},
        {"hidden control", edit, [=](Form& f) { hide(edit(f)); }},
        {"disabled control", edit, [=](Form& f) { disable(edit(f)); }},
        {"all disabled", edit, [](Form& f) { DisableAll(f); }},
        {"all disabled, focus on the dialog", [](Form& f) { return f.m_hWnd; },
         [](Form& f) { DisableAll(f); }},
        {"all disabled but an empty container", inner,
         [=](Form& f) {
             DisableAll(f);
             f.m_group.EnableWindow();
             disable(f.m_inner);
         }},
    };
    for (const auto& [pszName, focus, change] : cases) {
        SCOPED_TRACE(pszName);
        std::printf("%s\n", pszName); // what hung
        Form form;
        const auto spoil = [&] {
            const HWND hFocus = focus(form);
            ::SetFocus(hFocus);
            change(form);
            ::SetFocus(hFocus); // as the system may leave it
            PostKeys(hFocus);
        };
        const auto look = [&] {
            for (HWND h = ::GetFocus(); h != nullptr && h != form.m_hWnd; h = ::GetParent(h)) {
                EXPECT_TRUE(::IsWindowEnabled(h)) << "keys have another place";
                EXPECT_TRUE(::IsWindowVisible(h)) << "keys have another place";
            }
            form.EndDialog(1);
        };
        EXPECT_EQ(1, Play(form, {spoil, look}));
    }
}

} // namespace
