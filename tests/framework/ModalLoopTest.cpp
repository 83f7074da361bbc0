// Modal dialogs: their loop, their owner, their end.
#include "support/Child.h"
#include "support/Form.h"
#include "testkit/Pen.h"

using namespace testkit;

namespace {

using fx::Form;

TEST(ModalDialog, EndsWithWhatEndedIt) {
    const Rows<const char*, std::function<void(Form&)>, INT_PTR> cases = {
        {"EndDialog", [](Form& form) { form.EndDialog(77); }, 77},
        {"tap on OK", [](Form& form) { pen::Tap(*form.GetDlgItem(IDOK)); }, IDOK},
        {"Enter", [](Form&) { TypeKeys({VK_RETURN}); }, IDOK},
        {"Escape", [](Form&) { TypeKeys({VK_ESCAPE}); }, IDCANCEL},
        {"close", [](Form& form) { form.PostMessage(WM_CLOSE); }, IDCANCEL},
    };
    Form form; // the same one again and again
    for (const auto& [pszWay, end, nResult] : cases) {
        EXPECT_EQ(nResult, Play(form, {[&] { end(form); }})) << pszWay;
        EXPECT_EQ(nullptr, form.m_hWnd) << pszWay;
    }
}

TEST(ModalDialog, IsToldWhenItIsIdleAndNeverSeenIfItsInitialisationEndsIt) {
    int nIdle = 0;
    bool bSeen = false;
    Form form;
    form.m_onMessage = [&](UINT message, WPARAM) {
        nIdle += message == WM_KICKIDLE ? 1 : 0;
        bSeen = bSeen || form.IsWindowVisible();
    };
    EXPECT_EQ(1, Play(form, {[&] { return nIdle > 0; }, [&] { form.EndDialog(1); }}));
    EXPECT_TRUE(bSeen);
    nIdle = 0;
    bSeen = false;
    form.m_onInit = [&] { form.EndDialog(5); };
    EXPECT_EQ(5, Play(form, {}));
    EXPECT_FALSE(bSeen);
    EXPECT_EQ(0, nIdle);
}

TEST(ModalDialog, OwnerIsDisabledMeanwhileAndEnabledBeforeTheDialogGoes) {
    Frame owner;
    fx::Child<CEdit> field(owner);
    for (CWnd* const pParent : {static_cast<CWnd*>(&owner), static_cast<CWnd*>(&field)}) {
        std::optional<bool> bEnabledAtEnd;
        Form form(pParent);
        form.m_onMessage = [&](UINT message, WPARAM) {
            if (message == WM_DESTROY)
                bEnabledAtEnd = owner.IsWindowEnabled() != FALSE;
        };
        field.SetFocus();
        WhileOpen(form, [&] {
            EXPECT_FALSE(owner.IsWindowEnabled());
            EXPECT_EQ(owner.m_hWnd, ::GetWindow(form, GW_OWNER));
            EXPECT_EQ(form.Item(Form::EDIT), ::GetFocus());
        });
        EXPECT_EQ(true, bEnabledAtEnd);
        EXPECT_TRUE(owner.IsWindowEnabled());
        EXPECT_EQ(field.m_hWnd, ::GetFocus()) << "as before";
    }
    owner.EnableWindow(FALSE);
    WhileOpen(Form(&owner), [] {});
    EXPECT_FALSE(owner.IsWindowEnabled()) << "as before";
}

TEST(ModalDialog, WithoutItsTemplateFailsAndLeavesTheOwnerEnabled) {
    Frame owner;
    CDialog dialog(54321U, &owner);
    EXPECT_EQ(-1, dialog.DoModal());
    EXPECT_TRUE(owner.IsWindowEnabled());
}

/// A dialog that opens another one.
struct Nested : testing::Test {
    Nested() {
        m_outer.m_onDo = [this] {
            m_nInner = m_inner.DoModal();
            EXPECT_TRUE(::IsWindow(m_outer)) << "its handler still runs";
        };
    }
    Step Open() {
        return [this] { pen::Tap(*m_outer.GetDlgItem(Form::DO)); };
    }
    Step IsOpen() {
        return [this] { return m_inner.m_hWnd != nullptr && m_inner.IsWindowVisible(); };
    }

    Frame m_owner;
    Form m_outer{&m_owner}, m_inner{&m_outer};
    INT_PTR m_nInner = 0;
};

TEST_F(Nested, EndOfTheOuterDialogWaitsForTheInnerOne) {
    EXPECT_EQ(
        4, Play(m_outer, {Open(), IsOpen(), [&] { m_outer.EndDialog(4); }, [&] { m_inner.EndDialog(3); }}));
    EXPECT_EQ(3, m_nInner);
}

TEST_F(Nested, QuitEndsAllLoopsAndReachesTheOutermost) {
    m_outer.m_onDo = [this] { m_inner.DoModal(); };
    Play(m_outer, {Open(), IsOpen(), [] { AfxPostQuitMessage(7); }});
    EXPECT_EQ(nullptr, m_outer.m_hWnd);
    EXPECT_EQ(nullptr, m_inner.m_hWnd);
    MSG msg = {};
    ASSERT_TRUE(::PeekMessage(&msg, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(7U, msg.wParam);
}

TEST(ModalDialog, KeysPassTheirControlFirstAndThenTheDialogWhichMovesTheFocus) {
    class Swallowing : public CEdit {
        BOOL PreTranslateMessage(MSG* pMsg) override {
            return (pMsg->message == WM_KEYDOWN && pMsg->wParam == VK_RETURN) ||
                   CEdit::PreTranslateMessage(pMsg);
        }
    };
    Swallowing edit;
    Form form;
    form.m_onInit = [&] { EXPECT_TRUE(edit.SubclassDlgItem(Form::EDIT, &form)); };
    form.m_preTranslate = [](const MSG& msg) { return msg.message == WM_KEYDOWN && msg.wParam == 'A'; };
    const auto type = [] { TypeKeys({'X', 'A', 'Y', VK_RETURN, VK_TAB}); };
    const auto look = [&] {
        EXPECT_EQ(L"xy", TextOf(edit));
        EXPECT_EQ(form.Item(Form::FIELD), ::GetFocus());
        form.PrevDlgCtrl();
        EXPECT_EQ(edit.m_hWnd, ::GetFocus());
        form.NextDlgCtrl();
        form.GotoDlgCtrl(nullptr);
        EXPECT_EQ(form.Item(Form::FIELD), ::GetFocus());
        form.GotoDlgCtrl(&edit);
        EXPECT_EQ(edit.m_hWnd, ::GetFocus());
        EXPECT_EQ(IDOK, LOWORD(form.GetDefID()));
        form.SetDefID(Form::DO);
        EXPECT_EQ(Form::DO, LOWORD(form.GetDefID()));
        form.EndDialog(1);
    };
    EXPECT_EQ(1, Play(form, {type, look}));
}

TEST(ModalDialog, TemporaryObjectsOfTheCallerSurviveIt) {
    Frame owner;
    const HWND hForeign =
        ::CreateWindow(WC_STATIC, L"", WS_CHILD, 0, 0, 5, 5, owner, nullptr, nullptr, nullptr);
    CWnd* const pHeld = CWnd::FromHandle(hForeign);
    WhileOpen(Form(&owner), [&] { CWnd::FromHandle(hForeign); });
    EXPECT_EQ(pHeld, CWnd::FromHandle(hForeign));
    EXPECT_EQ(hForeign, pHeld->m_hWnd);
}

TEST(ModelessDialog, IsCreatedAndGoesWithItsObject) {
    const DialogTemplate dialogTemplate;
    HWND hWnd = nullptr;
    {
        CDialog dialog;
        dialog.m_bFullScreen = FALSE;
        ASSERT_TRUE(dialog.CreateIndirect(dialogTemplate.Get()));
        hWnd = dialog;
        EXPECT_TRUE(dialog.IsWindowVisible());
        EXPECT_EQ(&dialog, CWnd::FromHandlePermanent(hWnd));
        EXPECT_FALSE(dialog.CreateIndirect(dialogTemplate.Get())) << "it has a window already";
    }
    EXPECT_FALSE(::IsWindow(hWnd));
}

} // namespace
