// Modal dialogs: their loop, their owner, their end.
#include "support/TestApp.h"
#include "testkit/Form.h"
#include "testkit/Pen.h"

using namespace testkit;

namespace {

using fx::Form;

TEST(ModalDialog, EveryWayOutGivesItsResultAndEnablesTheOwner) {
    const auto destroyWhenTold = [](Form& f) { f.m_onDo = [&f] { f.DestroyWindow(); }; };
    // Before DoModal, and inside it.
    const Rows<const char*, std::function<void(Form&)>, std::function<void(Form&)>, INT_PTR> cases = {
        {"tap on OK", {}, [](Form& f) { pen::Tap(*f.GetDlgItem(IDOK)); }, IDOK},
        {"Enter", {}, [](Form&) { TypeKeys({VK_RETURN}); }, IDOK},
        {"Escape", {}, [](Form&) { TypeKeys({VK_ESCAPE}); }, IDCANCEL},
        {"close", {}, [](Form& f) { f.PostMessage(WM_CLOSE); }, IDCANCEL},
        {"destroyed by the system", {}, [](Form& f) { ::DestroyWindow(f); }, -1},
        {"destroyed by the object", {}, [](Form& f) { f.DestroyWindow(); }, -1},
        {"detached", {}, [](Form& f) { ::DestroyWindow(f.UnsubclassWindow()); }, -1},
        {"ended, then destroyed", {}, [](Form& f) { f.EndDialog(5), f.DestroyWindow(); }, 5},
        {"destroyed, then ended", {}, [](Form& f) { f.DestroyWindow(), f.EndDialog(6); }, 6},
        {"in its own handler", destroyWhenTold, [](Form& f) { f.SendDo(); }, -1},
        {"in a posted message", destroyWhenTold, [](Form& f) { f.PostDo(); }, -1},
        {"ended in OnInitDialog", [](Form& f) { f.m_onInit = [&f] { f.EndDialog(7); }; }, {}, 7},
        {"destroyed in OnInitDialog", [](Form& f) { f.m_onInit = [&f] { f.DestroyWindow(); }; }, {}, -1},
        {"opened again by its own handler",
         [](Form& f) {
             f.m_onDo = [&f] {
                 f.DestroyWindow();
                 EXPECT_EQ(-1, f.DoModal()) << "its first loop still runs";
             };
         },
         [](Form& f) { f.SendDo(); }, -1},
    };
    Frame owner;
    Child<CEdit> field(owner);
    for (const auto& [pszWay, prepare, act, nResult] : cases) {
        SCOPED_TRACE(pszWay);
        bool bIdle = false, bSeen = false, bEnabledAtEnd = false;
        Form form(&field);
        form.m_onMessage = [&](UINT message, WPARAM) {
            bIdle = bIdle || message == WM_KICKIDLE;
            bSeen = bSeen || form.IsWindowVisible();
            if (message == WM_DESTROY)
                bEnabledAtEnd = owner.IsWindowEnabled() != FALSE;
        };
        field.SetFocus();
        if (prepare)
            prepare(form);
        const auto go = [&] {
            EXPECT_FALSE(owner.IsWindowEnabled());
            EXPECT_EQ(owner.m_hWnd, ::GetWindow(form, GW_OWNER));
            EXPECT_EQ(form.Item(Form::EDIT), ::GetFocus());
            act(form);
        };
        EXPECT_EQ(nResult, act ? Play(form, {[&] { return bIdle; }, go}) : Play(form, {}));
        EXPECT_EQ(nullptr, form.m_hWnd);
        EXPECT_EQ(act != nullptr, bIdle) << "never if its initialisation ends it";
        EXPECT_EQ(act != nullptr, bSeen);
        EXPECT_TRUE(owner.IsWindowEnabled());
        EXPECT_EQ(field.m_hWnd, ::GetFocus()) << "as before";
        form.m_onInit = nullptr;
        WhileOpen(form, [] {}); // and then it works as if nothing had happened
        EXPECT_TRUE(bEnabledAtEnd);
    }
    owner.EnableWindow(FALSE);
    WhileOpen(Form(&owner), [] {});
    EXPECT_FALSE(owner.IsWindowEnabled()) << "as before";
}

TEST(ModalDialog, WithoutItsTemplateOrValuesFailsAndLeavesTheOwnerEnabled) {
    struct Failing : Form {
        using Form::Form;
        void DoDataExchange(CDataExchange* pDX) override { pDX->Fail(); }
    };
    Frame owner;
    CDialog dialog(54321U, &owner);
    EXPECT_EQ(-1, dialog.DoModal());
    EXPECT_EQ(-1, Play(Failing(&owner), {}));
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST(ModalDialog, QuitEndsAllLoopsAndReachesTheOutermost) {
    Form outer, inner(&outer);
    outer.m_onDo = [&] { inner.DoModal(); };
    const auto isOpen = [&] { return inner.m_hWnd != nullptr && inner.IsWindowVisible(); };
    EXPECT_EQ(5, Play(outer, {[&] { outer.EndDialog(5); }}));
    EXPECT_EQ(-1, Play(outer, {[&] { outer.PostDo(); }, isOpen, [] { AfxPostQuitMessage(7); }}));
    EXPECT_EQ(nullptr, outer.m_hWnd);
    EXPECT_EQ(nullptr, inner.m_hWnd);
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
