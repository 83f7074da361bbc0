// Keys in dialogs whose focus is where the system's search for dialog keys never comes by.
#include "support/DialogTemplate.h"
#include "support/ModalScript.h"
#include "support/Watchdog.h"

namespace {

constexpr int ID_EDIT = 10;
constexpr int ID_GROUP = 20;
constexpr int ID_INNER = 21;
constexpr int ID_COMBO = 30;

/// A dialog with a container of controls, as sheets and forms have them.
class Form : public fx::TemplateDialog {
public:
    Form() : TemplateDialog(s_template) {}

    CWnd m_group;
    CButton m_inner;

    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        m_group.CreateEx(WS_EX_CONTROLPARENT, nullptr, L"", WS_CHILD | WS_VISIBLE, CRect(0, 80, 90, 110),
                         this, ID_GROUP);
        m_inner.Create(L"inner", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 0, 40, 20), &m_group, ID_INNER);
        return TRUE;
    }
    void PostNcDestroy() override {
        m_group.m_hWnd = nullptr;
        CDialog::PostNcDestroy();
    }

    HWND Item(int nID) { return ::GetDlgItem(m_hWnd, nID); }

private:
    static inline const fx::DialogTemplate s_template =
        fx::DialogTemplate(100, 110)
            .Edit(ID_EDIT)
            .Button(IDOK, L"&ok")
            .Add(WC_COMBOBOX, L"", ID_COMBO, CBS_DROPDOWN | WS_TABSTOP, 2, 30, 60, 60);
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
    const fx::Watchdog watchdog(20);
    const struct {
        const char* pszName;
        std::function<HWND(Form&)> focus;
        std::function<void(Form&)> spoil;
    } cases[] = {
        {"in a hidden container", [](Form& f) { return f.m_inner.m_hWnd; },
         [](Form& f) { f.m_group.ShowWindow(SW_HIDE); }},
        {"in a disabled container", [](Form& f) { return f.m_inner.m_hWnd; },
         [](Form& f) { f.m_group.EnableWindow(FALSE); }},
        {"hidden in a container", [](Form& f) { return f.m_inner.m_hWnd; },
         [](Form& f) { f.m_inner.ShowWindow(SW_HIDE); }},
        {"container without a tab stop", [](Form& f) { return f.m_inner.m_hWnd; },
         [](Form& f) { f.m_inner.ModifyStyle(WS_TABSTOP, 0); }},
        {"hidden control", [](Form& f) { return f.Item(ID_EDIT); },
         [](Form& f) { ::ShowWindow(f.Item(ID_EDIT), SW_HIDE); }},
        {"disabled control", [](Form& f) { return f.Item(IDOK); },
         [](Form& f) { ::EnableWindow(f.Item(IDOK), FALSE); }},
        {"hidden combo box", [](Form& f) { return ::GetWindow(f.Item(ID_COMBO), GW_CHILD); },
         [](Form& f) { ::ShowWindow(f.Item(ID_COMBO), SW_HIDE); }},
        {"disabled combo box", [](Form& f) { return ::GetWindow(f.Item(ID_COMBO), GW_CHILD); },
         [](Form& f) { ::EnableWindow(f.Item(ID_COMBO), FALSE); }},
        {"all disabled", [](Form& f) { return f.Item(ID_EDIT); }, [](Form& f) { DisableAll(f); }},
        {"all disabled, focus on the dialog", [](Form& f) { return f.m_hWnd; },
         [](Form& f) { DisableAll(f); }},
        {"all disabled but an empty container", [](Form& f) { return f.m_inner.m_hWnd; },
         [](Form& f) {
             DisableAll(f);
             f.m_group.EnableWindow();
             f.m_inner.EnableWindow(FALSE);
         }},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.pszName);
        std::printf("%s\n", c.pszName); // what hung
        Form form;
        fx::ModalScript script;
        script
            .Then([&] {
                const HWND hFocus = c.focus(form);
                ::SetFocus(hFocus);
                c.spoil(form);
                ::SetFocus(hFocus); // as the system may leave it
                PostKeys(hFocus);
            })
            .Then([&] {
                const HWND hFocus = ::GetFocus();
                for (HWND h = hFocus; h != nullptr && h != form.m_hWnd; h = ::GetParent(h))
                    EXPECT_TRUE(::IsWindowEnabled(h) && ::IsWindowVisible(h)) << "keys have another place";
                form.EndDialog(1);
            });
        EXPECT_EQ(script.Run([&] { return form.DoModal(); }), 1);
    }
}

} // namespace
