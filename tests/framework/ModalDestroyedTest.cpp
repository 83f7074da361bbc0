// Modal dialogs whose windows go without having been ended.
#include "support/DialogTemplate.h"
#include "support/ModalScript.h"
#include "support/Watchdog.h"

#include <memory>
#include <optional>

namespace {

constexpr int ID_EDIT = 10;
constexpr int ID_DO = 11;

class Form : public fx::TemplateDialog {
public:
    explicit Form(CWnd* pParentWnd = nullptr) : TemplateDialog(s_template, pParentWnd) {}

    std::function<void()> m_onInit;
    std::function<void()> m_onDo;

    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        if (m_onInit)
            m_onInit();
        return TRUE;
    }

protected:
    afx_msg void OnDo() { m_onDo(); }
    DECLARE_MESSAGE_MAP()

private:
    static inline const fx::DialogTemplate s_template =
        fx::DialogTemplate(100, 80).Edit(ID_EDIT).Button(IDOK).Button(ID_DO);
};

BEGIN_MESSAGE_MAP(Form, CDialog)
ON_COMMAND(ID_DO, &Form::OnDo)
END_MESSAGE_MAP()

/// The steps run by themselves, since a script waits for a window to be ready.
class Ticker {
public:
    explicit Ticker(std::function<void()> step) {
        s_step = std::move(step);
        m_nTimer = ::SetTimer(nullptr, 0, USER_TIMER_MINIMUM, OnTimer);
    }
    ~Ticker() { ::KillTimer(nullptr, m_nTimer); }
    Ticker(const Ticker&) = delete;
    Ticker& operator=(const Ticker&) = delete;

private:
    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD) {
        if (const auto step = std::exchange(s_step, nullptr))
            step();
    }
    static inline std::function<void()> s_step;
    UINT_PTR m_nTimer = 0;
};

TEST(ModalDestroyed, DialogIsOverAndItsOwnerEnabled) {
    const fx::Watchdog watchdog(20);
    const struct {
        const char* pszWay;
        std::function<void(Form&)> prepare; ///< Before DoModal.
        std::function<void(Form&)> go;      ///< Inside it.
        INT_PTR nResult;
    } cases[] = {
        {"by the system", {}, [](Form& f) { ::DestroyWindow(f); }, -1},
        {"by the object", {}, [](Form& f) { f.DestroyWindow(); }, -1},
        {"detached", {}, [](Form& f) { ::DestroyWindow(f.UnsubclassWindow()); }, -1},
        {"ended, then destroyed",
         {},
         [](Form& f) {
             f.EndDialog(5);
             f.DestroyWindow();
         },
         5},
        {"destroyed, then ended",
         {},
         [](Form& f) {
             f.DestroyWindow();
             f.EndDialog(6);
         },
         6},
        {"in its own handler", [](Form& f) { f.m_onDo = [&f] { f.DestroyWindow(); }; },
         [](Form& f) { f.SendMessage(WM_COMMAND, ID_DO); }, -1},
        {"in a posted message", [](Form& f) { f.m_onDo = [&f] { f.DestroyWindow(); }; },
         [](Form& f) { f.PostMessage(WM_COMMAND, ID_DO); }, -1},
        {"in OnInitDialog", [](Form& f) { f.m_onInit = [&f] { f.DestroyWindow(); }; }, {}, -1},
        {"opened again by its own handler",
         [](Form& f) {
             f.m_onDo = [&f] {
                 f.DestroyWindow();
                 EXPECT_EQ(f.DoModal(), -1) << "its first loop still runs";
             };
         },
         [](Form& f) { f.SendMessage(WM_COMMAND, ID_DO); }, -1},
    };
    fx::Frame owner;
    for (const auto& c : cases) {
        SCOPED_TRACE(c.pszWay);
        Form form(&owner);
        if (c.prepare)
            c.prepare(form);
        {
            const Ticker ticker([&] { c.go(form); });
            EXPECT_EQ(form.DoModal(), c.nResult);
        }
        EXPECT_EQ(form.m_hWnd, nullptr);
        EXPECT_TRUE(owner.IsWindowEnabled());
        EXPECT_EQ(::GetActiveWindow(), owner.m_hWnd);
        form.m_onInit = nullptr;
        fx::ModalScript script; // and then it works as if nothing had happened
        script.Then([&] { form.EndDialog(7); });
        EXPECT_EQ(script.Run([&] { return form.DoModal(); }), 7);
    }
}

TEST(ModalDestroyed, OwnerTakesAllDialogsAboveItAlong) {
    const fx::Watchdog watchdog(20);
    auto pOwner = std::make_unique<fx::Frame>();
    Form outer(pOwner.get());
    Form inner(&outer);
    INT_PTR nInner = 0;
    outer.m_onDo = [&] { nInner = inner.DoModal(); };
    inner.m_onInit = [&] { inner.PostMessage(WM_COMMAND, ID_DO); };
    inner.m_onDo = [&] { pOwner.reset(); };
    const Ticker ticker([&] { outer.SendMessage(WM_COMMAND, ID_DO); });
    EXPECT_EQ(outer.DoModal(), -1);
    EXPECT_EQ(nInner, -1);
    EXPECT_EQ(outer.m_hWnd, nullptr);
    EXPECT_EQ(inner.m_hWnd, nullptr);
}

TEST(ModalDestroyed, OuterDialogThatGoesLeavesTheInnerOneToItsUser) {
    const fx::Watchdog watchdog(20);
    fx::Frame frame;
    Form outer;
    Form inner(&frame); // not owned by the outer one
    INT_PTR nInner = 0;
    outer.m_onDo = [&] { nInner = inner.DoModal(); };
    inner.m_onInit = [&] { inner.PostMessage(WM_COMMAND, ID_DO); };
    inner.m_onDo = [&] {
        outer.DestroyWindow();
        EXPECT_NE(inner.m_hWnd, nullptr);
        inner.EndDialog(3);
    };
    const Ticker ticker([&] { outer.SendMessage(WM_COMMAND, ID_DO); });
    EXPECT_EQ(outer.DoModal(), -1);
    EXPECT_EQ(nInner, 3);
}

TEST(ModalDestroyed, QuitOnTheWayStillReachesTheProgram) {
    const fx::Watchdog watchdog(20);
    Form form;
    const Ticker ticker([&] {
        AfxPostQuitMessage(9);
        form.DestroyWindow();
    });
    EXPECT_EQ(form.DoModal(), -1);
    MSG msg = {};
    ASSERT_TRUE(::PeekMessage(&msg, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(msg.wParam, 9U);
}

TEST(ModalDestroyed, ObjectThatItsOwnerDeletesDoesNotHang) {
    const fx::Watchdog watchdog(20);
    fx::Frame owner;
    auto pForm = std::make_unique<Form>(&owner);
    const Ticker ticker([&] { pForm.reset(); });
    EXPECT_EQ(pForm->DoModal(), -1);
    EXPECT_TRUE(owner.IsWindowEnabled());
}

/// A message that another thread sends is handled inside the wait for the next one, which does not
/// come to an end by it.
TEST(ModalDestroyed, MessageOfAnotherThreadEndsTheLoopAtOnce) {
    const fx::Watchdog watchdog(20);
    Form form;
    form.m_onDo = [&] {
        Form inner(&form);
        inner.m_onInit = [&] { form.DestroyWindow(); };
        inner.DoModal();
    };
    HANDLE hThread = nullptr;
    form.m_onInit = [&] {
        hThread = ::CreateThread(
            nullptr, 0,
            [](void* hWnd) -> DWORD {
                ::SendMessage(static_cast<HWND>(hWnd), WM_COMMAND, ID_DO, 0);
                return 0;
            },
            form.m_hWnd, 0, nullptr);
    };
    EXPECT_EQ(form.DoModal(), -1);
    ::WaitForSingleObject(hThread, INFINITE);
    ::CloseHandle(hThread);
}

} // namespace
