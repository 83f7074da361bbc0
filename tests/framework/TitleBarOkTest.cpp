// The OK button in the title bar and the field that has the focus.
#include "support/Form.h"
#include "testkit/TitleBar.h"
#include "testkit/Pen.h"
#include "testkit/Watchdog.h"

using namespace testkit;

namespace {

/// On the whole screen, with a record of who has the focus.
struct Form : fx::Form {
    Form() { m_bFullScreen = TRUE; }

    std::string m_log;

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
        if (wParam == MAKEWPARAM(FIELD, EN_KILLFOCUS))
            m_log += "left ";
        if (wParam == MAKEWPARAM(FIELD, EN_SETFOCUS))
            m_log += "entered ";
        return fx::Form::OnCommand(wParam, lParam);
    }
};

TEST(TitleBarOk, FieldIsLeftBeforeAndEnteredAgainIfTheDialogStays) {
    const Watchdog watchdog(30);
    const auto isAsking = [](Form& f) { return ::GetActiveWindow() != f.m_hWnd; };
    // nFocus: Afterwards; 0 if the dialog is over.
    const Rows<const char*, std::function<void(Form&)>, const char*, int> cases = {
        {"stays", [](Form&) {}, "left ok entered ", Form::FIELD},
        {"ends", [](Form& f) { f.EndDialog(8); }, "left ok ", 0},
        {"is destroyed", [](Form& f) { f.DestroyWindow(); }, "left ok ", 0},
        {"goes elsewhere", [](Form& f) { ::SetFocus(f.Item(Form::EDIT)); }, "left ok ", Form::EDIT},
        {"asks", [](Form&) { AfxMessageBox(L"?"); }, "left ok entered ", Form::FIELD},
    };
    for (const auto& [pszOk, act, pszLog, nFocus] : cases) {
        SCOPED_TRACE(pszOk);
        std::string log;
        Form form;
        form.m_onOk = [&] {
            form.m_log += "ok ";
            act(form);
        };
        Script script;
        script.Then([&] { ::SetFocus(form.Item(Form::FIELD)); }).Then([&] {
            form.m_log.clear();
            TapOk(form);
        });
        if (std::string(pszOk) == "asks")
            script.Until([&] { return isAsking(form); })
                .Then([] { ::PostMessage(::GetActiveWindow(), WM_COMMAND, IDOK, 0); })
                .Until([&] { return !isAsking(form); });
        if (nFocus != 0)
            script.Then([&] {
                EXPECT_EQ(form.Item(nFocus), ::GetFocus());
                log = form.m_log;
                form.EndDialog(1);
            });
        script.Run([&] { return form.DoModal(); });
        EXPECT_EQ(pszLog, nFocus != 0 ? log : form.m_log);
    }
}

} // namespace
