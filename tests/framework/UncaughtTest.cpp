// Exceptions that nobody catches, and memory that runs out.
#include "support/DialogTemplate.h"
#include "support/ModalScript.h"
#include "support/Watchdog.h"

#include <optional>
#include <stdexcept>

namespace {

constexpr int ID_DO = 11;

using Thrower = void (*)();

const struct {
    const char* pszName;
    Thrower raise;
    LPCTSTR pszPrompt; ///< Null for none.
} EXCEPTIONS[] = {
    {"CException", [] { AfxThrowNotSupportedException(); }, L"An unsupported operation was attempted."},
    {"user", [] { AfxThrowUserException(); }, nullptr},
    {"memory", [] { AfxThrowMemoryException(); }, L"Out of memory."},
    {"bad_alloc", [] { throw std::bad_alloc(); }, L"Out of memory."},
    {"standard", [] { throw std::runtime_error("no fix"); }, L"no fix"},
    {"foreign", [] { throw 5; }, L"An unknown error occurred."},
};

/// Throws where it is told to.
class Form : public fx::TemplateDialog {
public:
    enum Place { Nowhere, Command, Init, InitMessage, Translate, Attaching, End };

    explicit Form(CWnd* pParentWnd = nullptr) : TemplateDialog(s_template, pParentWnd) {}

    Place m_place = Nowhere;
    Thrower m_raise = nullptr;

    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        Raise(Init);
        return TRUE;
    }
    BOOL PreTranslateMessage(MSG* pMsg) override {
        if (pMsg->message == WM_USER)
            Raise(Translate);
        return CDialog::PreTranslateMessage(pMsg);
    }
    void PreSubclassWindow() override { Raise(Attaching); }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_INITDIALOG)
            Raise(InitMessage);
        if (message == WM_NCDESTROY)
            Raise(End);
        return CDialog::WindowProc(message, wParam, lParam);
    }
    afx_msg void OnDo() { Raise(Command); }
    DECLARE_MESSAGE_MAP()

private:
    void Raise(Place place) {
        if (place == m_place)
            m_raise();
    }
    static inline const fx::DialogTemplate s_template = fx::DialogTemplate(100, 80).Edit(10).Button(ID_DO);
};

BEGIN_MESSAGE_MAP(Form, CDialog)
ON_COMMAND(ID_DO, &Form::OnDo)
END_MESSAGE_MAP()

TEST(Uncaught, IsToldWhereverTheSystemCallsAndNothingIsLeft) {
    const fx::Watchdog watchdog(30);
    const struct {
        Form::Place place;
        bool bOpens; ///< The dialog comes up all the same.
        bool bTold;
    } places[] = {{Form::Command, true, true},   {Form::Init, false, true}, {Form::InitMessage, false, true},
                  {Form::Translate, true, true}, {Form::End, true, true},   {Form::Attaching, false, false}};
    fx::Frame owner;
    for (const auto& e : EXCEPTIONS) {
        for (const auto& p : places) {
            SCOPED_TRACE(std::string(e.pszName) + " " + std::to_string(p.place));
            Form form(&owner);
            form.m_place = p.place;
            form.m_raise = e.raise;
            fx::MessageRecorder recorder;
            fx::ModalScript script;
            if (p.bOpens)
                script
                    .Then([&] {
                        form.PostMessage(WM_COMMAND, ID_DO);
                        form.PostMessage(WM_USER);
                    })
                    .Then([&] { form.EndDialog(6); });
            EXPECT_EQ(script.Run([&] { return form.DoModal(); }), p.bOpens ? 6 : -1);
            const bool bTold = p.bTold && e.pszPrompt != nullptr;
            ASSERT_EQ(recorder.m_prompts.size(), bTold ? 1U : 0U);
            if (bTold) {
                EXPECT_EQ(recorder.m_prompts[0], e.pszPrompt);
            }
            EXPECT_EQ(form.m_hWnd, nullptr);
            EXPECT_TRUE(owner.IsWindowEnabled());
            form.m_place = Form::Nowhere;
            fx::WhileOpen(form, [] {});
        }
    }
}

TEST(Uncaught, ModelessDialogThatCannotBeInitialisedIsNotThere) {
    const fx::DialogTemplate dialogTemplate = fx::DialogTemplate(100, 80).Edit(10);
    class Failing : public CDialog {
        BOOL OnInitDialog() override { throw std::bad_alloc(); }
    };
    Failing dialog;
    dialog.m_bFullScreen = FALSE;
    fx::MessageRecorder recorder;
    EXPECT_FALSE(dialog.CreateIndirect(dialogTemplate.Get()));
    EXPECT_EQ(dialog.m_hWnd, nullptr);
}

/// The handler fails each time it is called, also while the box about the first time is open.
TEST(Uncaught, HandlerThatAlwaysFailsShowsOneBoxAtATime) {
    const fx::Watchdog watchdog(20);
    class Failing : public fx::TemplateDialog {
    public:
        using TemplateDialog::TemplateDialog;
        int m_nFailures = 0;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            if (message == WM_TIMER) {
                ++m_nFailures;
                throw std::bad_alloc();
            }
            return CDialog::WindowProc(message, wParam, lParam);
        }
    };
    const fx::DialogTemplate dialogTemplate = fx::DialogTemplate(100, 80).Edit(10);
    Failing dialog(dialogTemplate);
    const auto boxes = [] {
        int nBoxes = 0;
        for (HWND h = nullptr; (h = ::FindWindowEx(nullptr, h, L"#32770", L"test")) != nullptr;)
            ++nBoxes;
        return nBoxes;
    };
    fx::ModalScript script;
    script.Then([&] { dialog.SetTimer(1, 10); })
        .Until([&] { return dialog.m_nFailures > 10; })
        .Then([&] {
            EXPECT_EQ(boxes(), 1);
            dialog.KillTimer(1);
            ::PostMessage(::FindWindow(L"#32770", L"test"), WM_COMMAND, IDOK, 0);
        })
        .Until([&] { return boxes() == 0; })
        .Then([&] { dialog.EndDialog(1); });
    EXPECT_EQ(script.Run([&] { return dialog.DoModal(); }), 1);
}

/// The application's own way to tell needs memory that is not there.
TEST(Uncaught, ThreadThatThrowsAgainDoesNotLetItOut) {
    fx::g_app.m_bThrowAgain = true;
    Form form;
    form.m_place = Form::Command;
    form.m_raise = [] { throw std::runtime_error("first"); };
    fx::ModalScript script;
    script.Then([&] { form.SendMessage(WM_COMMAND, ID_DO); }).Then([&] { form.EndDialog(2); });
    EXPECT_EQ(script.Run([&] { return form.DoModal(); }), 2);
    fx::g_app.m_bThrowAgain = false;
}

TEST(Uncaught, FailedExchangeLetsCommandsThroughAgain) {
    class Exchanging : public fx::TemplateDialog {
    public:
        using TemplateDialog::TemplateDialog;
        int m_nCommands = 0;

    protected:
        void DoDataExchange(CDataExchange* pDX) override {
            if (pDX->m_bSaveAndValidate)
                throw std::bad_alloc();
        }
        BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
            const BOOL bResult = TemplateDialog::OnCommand(wParam, lParam);
            m_nCommands += LOWORD(wParam) == 999 && !bResult ? 1 : 0; // handled while data are exchanged
            return bResult;
        }
    };
    const fx::DialogTemplate dialogTemplate = fx::DialogTemplate(100, 80).Edit(10);
    Exchanging dialog(dialogTemplate);
    fx::MessageRecorder recorder;
    fx::ModalScript script;
    script.Then([&] {
        dialog.SendMessage(WM_COMMAND, IDOK);
        EXPECT_EQ(recorder.m_prompts.size(), 1U);
        dialog.SendMessage(WM_COMMAND, 999);
        EXPECT_EQ(dialog.m_nCommands, 1);
        dialog.EndDialog(1);
    });
    EXPECT_EQ(script.Run([&] { return dialog.DoModal(); }), 1);
}

TEST(Uncaught, FailingNewIsAMemoryException) {
    const std::new_handler pfnBefore = std::get_new_handler();
    AfxInstallNewHandler(); // as each of the modules has done for itself
    volatile size_t nBytes = SIZE_MAX / 4;
    void* pBlock = nullptr;
    EXPECT_THROW(pBlock = ::operator new(nBytes), CMemoryException*);
    EXPECT_EQ(pBlock, nullptr);
    EXPECT_EQ(::operator new(nBytes, std::nothrow), nullptr);
    std::set_new_handler(pfnBefore);
}

} // namespace
