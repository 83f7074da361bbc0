// Exceptions that nobody catches, and memory that runs out.
#include "support/TestApp.h"
#include "testkit/Form.h"

#include <stdexcept>

using namespace testkit;

namespace {

using Thrower = void (*)();

/// Throws in one place.
struct Form : fx::Form {
    enum Place { Nowhere, Command, Exchange, Init, InitMessage, Translate, Attaching, End };

    Form(Place place, Thrower raise, CWnd* pParentWnd = nullptr)
        : fx::Form(pParentWnd), m_place(place), m_raise(raise) {
        m_onDo = [this] {
            Raise(Command);
            if (m_place == Exchange)
                OnOK();
        };
        m_onInit = [this] { Raise(Init); };
        m_onMessage = [this](UINT message, WPARAM) {
            Raise(message == WM_INITDIALOG ? InitMessage : message == WM_NCDESTROY ? End : Nowhere);
        };
        m_preTranslate = [this](const MSG& msg) {
            Raise(msg.message == WM_USER ? Translate : Nowhere);
            return false;
        };
    }
    void PreSubclassWindow() override { Raise(Attaching); }

    Place m_place;

protected:
    void DoDataExchange(CDataExchange* pDX) override { Raise(pDX->m_bSaveAndValidate ? Exchange : Nowhere); }

private:
    void Raise(Place place) {
        if (place != Nowhere && place == m_place)
            m_raise();
    }
    Thrower m_raise;
};

TEST(Uncaught, IsToldWhereverTheSystemCallsAndNothingIsLeft) {
    constexpr LPCTSTR NOTHING = nullptr;
    const Rows<const char*, Thrower, LPCTSTR> exceptions = {
        {"CException", [] { AfxThrowNotSupportedException(); }, L"この操作はできません。"},
        {"user", [] { AfxThrowUserException(); }, NOTHING},
        {"memory", [] { AfxThrowMemoryException(); }, L"メモリーが足りません。"},
        {"bad_alloc", [] { throw std::bad_alloc(); }, L"メモリーが足りません。"},
        {"standard", [] { throw std::runtime_error("no fix"); }, L"no fix"},
        {"foreign", [] { throw 5; }, L"エラーが起きました。"},
    };
    // Whether the dialog comes up all the same, and whether the user is told.
    const Rows<Form::Place, bool, bool> places = {
        {Form::Command, true, true},      {Form::Exchange, true, true},  {Form::Init, false, true},
        {Form::InitMessage, false, true}, {Form::Translate, true, true}, {Form::End, true, true},
        {Form::Attaching, false, false}};
    Frame owner;
    for (const auto& [pszName, raise, pszPrompt] : exceptions) {
        for (const auto& [place, bOpens, bTells] : places) {
            SCOPED_TRACE(std::string(pszName) + " " + std::to_string(place));
            Form form(place, raise, &owner);
            MessageRecorder recorder;
            const auto doAll = [&] {
                form.PostDo();
                form.PostMessage(WM_USER);
            };
            const auto end = [&] { // by a command, which comes through again
                form.m_onDo = [&] { form.EndDialog(6); };
                form.SendDo();
            };
            EXPECT_EQ(bOpens ? 6 : -1, bOpens ? Play(form, {doAll, end}) : Play(form, {}));
            const bool bTold = bTells && pszPrompt != NOTHING;
            EXPECT_EQ(bTold ? std::vector<CString>{pszPrompt} : std::vector<CString>(), recorder.m_prompts);
            EXPECT_EQ(nullptr, form.m_hWnd);
            EXPECT_TRUE(owner.IsWindowEnabled());
            form.m_place = Form::Nowhere;
            WhileOpen(form, [] {});
        }
    }
}

TEST(Uncaught, ModelessDialogThatCannotBeInitialisedIsNotThere) {
    const DialogTemplate dialogTemplate;
    class Failing : public CDialog {
        BOOL OnInitDialog() override { throw std::bad_alloc(); }
    };
    Failing dialog;
    dialog.m_bFullScreen = FALSE;
    MessageRecorder recorder;
    EXPECT_FALSE(dialog.CreateIndirect(dialogTemplate.Get()));
    EXPECT_EQ(nullptr, dialog.m_hWnd);
}

/// The handler fails each time it is called, also while the box about the first time is open.
TEST(Uncaught, HandlerThatAlwaysFailsShowsOneBoxAtATime) {
    int nFailures = 0;
    fx::Form form;
    form.m_onMessage = [&](UINT message, WPARAM) {
        if (message == WM_TIMER) {
            ++nFailures;
            throw std::bad_alloc();
        }
    };
    const auto box = [](HWND hAfter) { return ::FindWindowEx(nullptr, hAfter, L"#32770", L"test"); };
    const auto look = [&] {
        EXPECT_NE(nullptr, box(nullptr));
        EXPECT_EQ(nullptr, box(box(nullptr)));
        form.KillTimer(1);
        ::PostMessage(box(nullptr), WM_COMMAND, IDOK, 0);
    };
    EXPECT_EQ(1, Play(form, {[&] { form.SetTimer(1, 10); }, [&] { return nFailures > 10; }, look,
                             [&] { return box(nullptr) == nullptr; }, [&] { form.EndDialog(1); }}));
}

/// The application's own way to tell needs memory that is not there.
TEST(Uncaught, ThreadThatThrowsAgainDoesNotLetItOut) {
    fx::g_app.m_bThrowAgain = true;
    Form form(Form::Command, [] { throw std::bad_alloc(); });
    HWND hForm = nullptr;
    const auto send = [&] {
        hForm = form;
        form.SendDo();
    };
    EXPECT_EQ(2, Play(form, {send, [&] { form.EndDialog(2); }}));
    fx::g_app.m_bThrowAgain = false;
    const MSG& failed = fx::g_app.m_failed;
    EXPECT_EQ(UINT{WM_COMMAND}, failed.message);
    EXPECT_EQ(WPARAM{Form::DO}, failed.wParam);
    EXPECT_EQ(hForm, failed.hwnd);
}

TEST(Uncaught, FailingNewIsAMemoryException) {
    const std::new_handler pfnBefore = std::get_new_handler();
    AfxInstallNewHandler(); // as each of the modules has done for itself
    volatile size_t nBytes = SIZE_MAX / 4;
    void* pBlock = nullptr;
    EXPECT_THROW(pBlock = ::operator new(nBytes), CMemoryException*);
    EXPECT_EQ(nullptr, pBlock);
    EXPECT_EQ(nullptr, ::operator new(nBytes, std::nothrow));
    std::set_new_handler(pfnBefore);
}

} // namespace
