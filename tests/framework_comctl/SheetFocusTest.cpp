// Where the focus is when pages change, and sheets that are destroyed instead of ended.
#include "SheetProbe.h"

#include "support/Watchdog.h"

namespace {

using Step = std::function<void(fx::Sheet&)>;

TEST(SheetFocus, NeverStaysOnAPageThatIsHidden) {
    const fx::Watchdog watchdog(20);
    const struct {
        const char* pszWay;
        Step change;
    } cases[] = {
        {"Ctrl+Tab",
         [](fx::Sheet&) {
             INPUT keys[4] = {};
             for (INPUT& key : keys)
                 key.type = INPUT_KEYBOARD;
             keys[0].ki.wVk = keys[3].ki.wVk = VK_CONTROL;
             keys[1].ki.wVk = keys[2].ki.wVk = VK_TAB;
             keys[2].ki.dwFlags = keys[3].ki.dwFlags = KEYEVENTF_KEYUP;
             ::SendInput(4, keys, sizeof(INPUT));
         }},
        {"tap on a tab",
         [](fx::Sheet& s) {
             CRect tab;
             s.GetTabControl()->SendMessage(TCM_GETITEMRECT, 1,
                                            reinterpret_cast<LPARAM>(static_cast<LPRECT>(tab)));
             s.GetTabControl()->ClientToScreen(tab);
             pen::Tap(tab.CenterPoint());
         }},
        {"SetActivePage", [](fx::Sheet& s) { s.SetActivePage(1); }},
        {"RemovePage", [](fx::Sheet& s) { s.RemovePage(0); }},
    };
    for (const bool bWizard : {false, true}) {
        for (const auto& c : cases) {
            SCOPED_TRACE(c.pszWay);
            fx::Sheet sheet;
            if (bWizard)
                sheet.SetWizardMode();
            fx::ModalScript script;
            script
                .Then([&] {
                    sheet.m_a.GetDlgItem(fx::IDC_NUMBER)->SetFocus();
                    c.change(sheet);
                })
                .Then([&] {
                    if (bWizard)
                        sheet.SetActivePage(1); // the user cannot
                    EXPECT_EQ(sheet.GetActivePage(), &sheet.m_b);
                    const HWND hFocus = ::GetFocus();
                    EXPECT_TRUE(::IsWindowVisible(hFocus));
                    EXPECT_TRUE(sheet.m_hWnd == hFocus || ::IsChild(sheet, hFocus));
                    ::PostMessage(hFocus, WM_SYSCHAR, 'z', 0x20000001);
                    ::PostMessage(hFocus, WM_KEYDOWN, '5', 1);
                })
                .Then([&] { sheet.EndDialog(1); });
            EXPECT_EQ(script.Run([&] { return sheet.DoModal(); }), 1);
        }
    }
}

/// The focus may come there by the application, too.
TEST(SheetFocus, KeysForAHiddenPageGoRoundNoMore) {
    const fx::Watchdog watchdog(20);
    fx::Sheet sheet;
    fx::ModalScript script;
    script
        .Then([&] {
            sheet.SetActivePage(1);
            const HWND hHidden = ::GetDlgItem(sheet.m_a, fx::IDC_NUMBER);
            ::SetFocus(hHidden);
            ::PostMessage(hHidden, WM_SYSCHAR, 'z', 0x20000001);
        })
        .Then([&] {
            EXPECT_FALSE(::IsChild(sheet.m_a, ::GetFocus()));
            sheet.EndDialog(1);
        });
    EXPECT_EQ(script.Run([&] { return sheet.DoModal(); }), 1);
}

TEST(ModalSheet, DestroyedInsteadOfEndedIsOver) {
    const fx::Watchdog watchdog(20);
    class Owned : public fx::Sheet {
    public:
        explicit Owned(CWnd* pParentWnd) { m_pParentWnd = pParentWnd; }
        BOOL OnInitDialog() override {
            const BOOL bResult = Sheet::OnInitDialog();
            if (m_bDestroy)
                DestroyWindow();
            return bResult;
        }
        bool m_bDestroy = false;
    };
    fx::Frame owner;
    const struct {
        const char* pszWay;
        std::function<void(Owned&)> go;
    } cases[] = {
        {"by the object", [](Owned& s) { s.DestroyWindow(); }},
        {"by the system", [](Owned& s) { ::DestroyWindow(s); }},
        {"its page destroyed it", [](Owned& s) { s.m_a.GetParent()->DestroyWindow(); }},
        {"in OnInitDialog", nullptr},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.pszWay);
        Owned sheet(&owner);
        sheet.m_bDestroy = c.go == nullptr;
        fx::ModalScript script;
        if (c.go)
            script.Then([&] { c.go(sheet); });
        EXPECT_EQ(script.Run([&] { return sheet.DoModal(); }), -1);
        EXPECT_EQ(sheet.m_hWnd, nullptr);
        EXPECT_EQ(sheet.m_a.m_hWnd, nullptr);
        EXPECT_TRUE(owner.IsWindowEnabled());
        sheet.m_bDestroy = false;
        fx::WhileOpen(sheet, [] {});
    }
}

} // namespace
