// Where the focus is when pages change, and sheets that are destroyed instead of ended.
#include "SheetProbe.h"

using namespace testkit;

namespace {

using fx::Sheet;

void TypeCtrlTab(Sheet&) {
    INPUT keys[4] = {};
    for (INPUT& key : keys)
        key.type = INPUT_KEYBOARD;
    keys[0].ki.wVk = keys[3].ki.wVk = VK_CONTROL;
    keys[1].ki.wVk = keys[2].ki.wVk = VK_TAB;
    keys[2].ki.dwFlags = keys[3].ki.dwFlags = KEYEVENTF_KEYUP;
    ::SendInput(4, keys, sizeof(INPUT));
}

TEST(SheetFocus, NeverStaysOnAPageThatIsHidden) {
    const auto setFocusByProgram = [](Sheet& s) {
        s.SetActivePage(1);
        ::SetFocus(::GetDlgItem(s.m_a, fx::IDC_NUMBER));
        ::PostMessage(::GetFocus(), WM_SYSCHAR, 'z', 0x20000001);
    };
    const Rows<const char*, std::function<void(Sheet&)>> cases = {
        {"Ctrl+Tab", TypeCtrlTab},
        {"tap on a tab", [](Sheet& s) { s.TapTab(1); }},
        {"SetActivePage", [](Sheet& s) { s.SetActivePage(1); }},
        {"RemovePage", [](Sheet& s) { s.RemovePage(0); }},
        {"by the application", setFocusByProgram}};
    for (const bool bWizard : {false, true}) {
        for (const auto& [pszWay, way] : cases) {
            SCOPED_TRACE(pszWay);
            Sheet sheet;
            if (bWizard)
                sheet.SetWizardMode();
            const auto change = [&] {
                sheet.m_a.GetDlgItem(fx::IDC_NUMBER)->SetFocus();
                way(sheet);
            };
            const auto look = [&] {
                if (bWizard)
                    sheet.SetActivePage(1); // the user cannot
                EXPECT_EQ(&sheet.m_b, sheet.GetActivePage());
                const HWND hFocus = ::GetFocus();
                EXPECT_TRUE(::IsWindowVisible(hFocus));
                EXPECT_TRUE(sheet.m_hWnd == hFocus || ::IsChild(sheet, hFocus));
                ::PostMessage(hFocus, WM_SYSCHAR, 'z', 0x20000001);
                ::PostMessage(hFocus, WM_KEYDOWN, '5', 1);
            };
            EXPECT_EQ(1, Play(sheet, {change, look, [&] { sheet.EndDialog(1); }}));
        }
    }
}

TEST(ModalSheet, DestroyedInsteadOfEndedIsOver) {
    struct Destroying : Sheet {
        using Sheet::Sheet;
        BOOL OnInitDialog() override {
            const BOOL bResult = Sheet::OnInitDialog();
            if (m_bDestroy)
                DestroyWindow();
            return bResult;
        }
        bool m_bDestroy = false;
    };
    Frame owner;
    const Rows<const char*, std::function<void(Sheet&)>> cases = {
        {"by the object", [](Sheet& s) { s.DestroyWindow(); }},
        {"by the system", [](Sheet& s) { ::DestroyWindow(s); }},
        {"its page destroyed it", [](Sheet& s) { s.m_a.GetParent()->DestroyWindow(); }},
        {"in OnInitDialog", nullptr},
    };
    for (const auto& [pszWay, go] : cases) {
        SCOPED_TRACE(pszWay);
        Destroying sheet(&owner);
        sheet.m_bDestroy = go == nullptr;
        EXPECT_EQ(-1, go ? Play(sheet, {[&] { go(sheet); }}) : Play(sheet, {}));
        EXPECT_EQ(nullptr, sheet.m_hWnd);
        EXPECT_EQ(nullptr, sheet.m_a.m_hWnd);
        EXPECT_TRUE(owner.IsWindowEnabled());
        sheet.m_bDestroy = false;
        WhileOpen(sheet, [] {});
    }
}

} // namespace
