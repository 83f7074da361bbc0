// The OK button in the title bar and the field that has the focus.
#include "support/DialogTemplate.h"
#include "support/ModalScript.h"
#include "support/TitleBar.h"
#include "support/Watchdog.h"

#include <string>

namespace {

constexpr int ID_FIRST = 10;
constexpr int ID_FIELD = 11;

class Form : public fx::TemplateDialog {
public:
    Form() : TemplateDialog(s_template) { m_bFullScreen = TRUE; }

    std::string m_log;
    std::function<void(Form&)> m_onOk;

    HWND Item(int nID) { return ::GetDlgItem(m_hWnd, nID); }

protected:
    void OnOK() override {
        m_log += "ok ";
        m_onOk(*this);
    }
    afx_msg void OnLeft() { m_log += "left "; }
    afx_msg void OnEntered() { m_log += "entered "; }
    DECLARE_MESSAGE_MAP()

private:
    static inline const fx::DialogTemplate s_template =
        fx::DialogTemplate(100, 80).Edit(ID_FIRST).Edit(ID_FIELD);
};

BEGIN_MESSAGE_MAP(Form, CDialog)
ON_EN_KILLFOCUS(ID_FIELD, &Form::OnLeft)
ON_EN_SETFOCUS(ID_FIELD, &Form::OnEntered)
END_MESSAGE_MAP()

TEST(TitleBarOk, FieldIsLeftBeforeAndEnteredAgainIfTheDialogStays) {
    const fx::Watchdog watchdog(30);
    const struct {
        const char* pszOk;
        std::function<void(Form&)> onOk;
        const char* pszLog;
        int nFocus; ///< Afterwards; 0 if the dialog is over.
    } cases[] = {
        {"stays", [](Form&) {}, "left ok entered ", ID_FIELD},
        {"ends", [](Form& f) { f.EndDialog(8); }, "left ok ", 0},
        {"is destroyed", [](Form& f) { f.DestroyWindow(); }, "left ok ", 0},
        {"goes elsewhere", [](Form& f) { ::SetFocus(f.Item(ID_FIRST)); }, "left ok ", ID_FIRST},
        {"asks", [](Form&) { AfxMessageBox(L"?"); }, "left ok entered ", ID_FIELD},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.pszOk);
        Form form;
        form.m_onOk = c.onOk;
        const bool bAsks = std::string(c.pszOk) == "asks";
        fx::ModalScript script;
        script.Then([&] { ::SetFocus(form.Item(ID_FIELD)); }).Then([&] {
            form.m_log.clear();
            fx::TapOk(form);
        });
        if (bAsks)
            script.Until([&] { return ::GetActiveWindow() != form.m_hWnd; })
                .Then([] { ::PostMessage(::GetActiveWindow(), WM_COMMAND, IDOK, 0); })
                .Until([&] { return ::GetActiveWindow() == form.m_hWnd; });
        if (c.nFocus != 0)
            script.Then([&] {
                EXPECT_EQ(form.m_log, c.pszLog);
                EXPECT_EQ(::GetFocus(), form.Item(c.nFocus));
                form.EndDialog(1);
            });
        script.Run([&] { return form.DoModal(); });
        if (c.nFocus == 0) {
            EXPECT_EQ(form.m_log, c.pszLog);
        }
    }
}

} // namespace
