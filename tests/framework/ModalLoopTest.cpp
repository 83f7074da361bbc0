// Modal dialogs: their loop, their owner, their end.
#include "support/DialogTemplate.h"
#include "support/ModalScript.h"

#include <optional>

namespace {

constexpr int ID_EDIT = 10;
constexpr int ID_NESTED = 11;
constexpr int ID_THROW = 12;

fx::DialogTemplate FormTemplate() {
    return fx::DialogTemplate(100, 80)
        .Edit(ID_EDIT)
        .Button(IDOK, L"OK", BS_DEFPUSHBUTTON | WS_TABSTOP)
        .Button(ID_NESTED, L"nested")
        .Button(ID_THROW, L"throw");
}

class Form : public fx::TemplateDialog {
public:
    explicit Form(CWnd* pParentWnd = nullptr) : TemplateDialog(s_template, pParentWnd) {}

    std::function<void()> m_onInit;
    std::function<void()> m_onNested;
    std::function<bool(MSG*)> m_preTranslate;
    std::optional<bool> m_bOwnerEnabledAtEnd;
    int m_nKickIdle = 0;
    CException* m_pThrow = nullptr;

    CString Text() {
        CString str;
        GetDlgItemText(ID_EDIT, str);
        return str;
    }

    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        if (m_onInit)
            m_onInit();
        return TRUE;
    }
    BOOL PreTranslateMessage(MSG* pMsg) override {
        return (m_preTranslate && m_preTranslate(pMsg)) || CDialog::PreTranslateMessage(pMsg);
    }

protected:
    afx_msg void OnDestroy() {
        if (m_pParentWnd != nullptr)
            m_bOwnerEnabledAtEnd = m_pParentWnd->IsWindowEnabled() != FALSE;
        CDialog::OnDestroy();
    }
    afx_msg LRESULT OnKickIdle(WPARAM, LPARAM) {
        ++m_nKickIdle;
        return FALSE;
    }
    afx_msg void OnNested() { m_onNested(); }
    afx_msg void OnThrow() { throw m_pThrow; }
    DECLARE_MESSAGE_MAP()

private:
    static inline const fx::DialogTemplate s_template = FormTemplate();
};

BEGIN_MESSAGE_MAP(Form, CDialog)
ON_WM_DESTROY()
ON_MESSAGE(WM_KICKIDLE, &Form::OnKickIdle)
ON_COMMAND(ID_NESTED, &Form::OnNested)
ON_COMMAND(ID_THROW, &Form::OnThrow)
END_MESSAGE_MAP()

TEST(ModalDialog, EndsWithWhatEndedIt) {
    const struct {
        const char* pszWay;
        std::function<void(Form&)> end;
        INT_PTR nResult;
    } cases[] = {
        {"EndDialog", [](Form& form) { form.EndDialog(77); }, 77},
        {"tap on OK", [](Form& form) { pen::Tap(*form.GetDlgItem(IDOK)); }, IDOK},
        {"Enter", [](Form&) { pen::TypeKeys({VK_RETURN}); }, IDOK},
        {"Escape", [](Form&) { pen::TypeKeys({VK_ESCAPE}); }, IDCANCEL},
        {"close", [](Form& form) { form.PostMessage(WM_CLOSE); }, IDCANCEL},
    };
    Form form; // the same one again and again
    for (const auto& c : cases) {
        fx::ModalScript script;
        script.Then([&] { c.end(form); });
        EXPECT_EQ(script.Run([&] { return form.DoModal(); }), c.nResult) << c.pszWay;
        EXPECT_EQ(form.m_hWnd, nullptr) << c.pszWay;
    }
}

TEST(ModalDialog, EndedInOnInitDialogIsNeverSeen) {
    Form form;
    bool bSeen = false;
    form.m_onInit = [&] {
        form.EndDialog(5);
        bSeen = form.IsWindowVisible() != FALSE;
    };
    fx::ModalScript script;
    EXPECT_EQ(script.Run([&] { return form.DoModal(); }), 5);
    EXPECT_FALSE(bSeen);
    EXPECT_EQ(form.m_nKickIdle, 0);
}

TEST(ModalDialog, WithoutItsTemplateFailsAndLeavesTheOwnerEnabled) {
    fx::Frame owner;
    CDialog dialog(54321U, &owner);
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST(ModalDialog, OwnerIsDisabledMeanwhileAndEnabledBeforeTheDialogGoes) {
    fx::Frame owner;
    Form form(&owner);
    fx::WhileOpen(form, [&] {
        EXPECT_FALSE(owner.IsWindowEnabled());
        EXPECT_EQ(::GetWindow(form, GW_OWNER), owner.m_hWnd);
    });
    EXPECT_EQ(form.m_bOwnerEnabledAtEnd, true);
    EXPECT_TRUE(owner.IsWindowEnabled());
    EXPECT_EQ(::GetActiveWindow(), owner.m_hWnd);
}

TEST(ModalDialog, OwnerThatWasDisabledBeforeStaysDisabled) {
    fx::Frame owner;
    owner.EnableWindow(FALSE);
    Form form(&owner);
    fx::WhileOpen(form, [] {});
    EXPECT_FALSE(owner.IsWindowEnabled());
}

TEST(ModalDialog, ParentThatIsAChildIsReplacedByItsTopLevelWindow) {
    fx::Frame owner;
    CStatic child;
    ASSERT_TRUE(child.Create(L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 9, 9), &owner));
    Form form(&child);
    fx::WhileOpen(form, [&] {
        EXPECT_EQ(::GetWindow(form, GW_OWNER), owner.m_hWnd);
        EXPECT_FALSE(owner.IsWindowEnabled());
    });
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST(ModalDialog, FocusGoesBackToTheControlThatHadIt) {
    fx::Frame owner;
    CEdit first;
    CEdit second;
    ASSERT_TRUE(first.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 20), &owner, 1));
    ASSERT_TRUE(second.Create(WS_CHILD | WS_VISIBLE, CRect(0, 30, 50, 50), &owner, 2));
    second.SetFocus();
    Form form(&owner);
    fx::WhileOpen(form, [&] { EXPECT_EQ(::GetFocus(), ::GetDlgItem(form, ID_EDIT)); });
    EXPECT_EQ(::GetFocus(), second.m_hWnd);
}

TEST(ModalDialog, NestedDialogDisablesTheOuterOneOnly) {
    fx::Frame owner;
    Form outer(&owner);
    Form inner(&outer);
    INT_PTR nInner = 0;
    outer.m_onNested = [&] { nInner = inner.DoModal(); };
    fx::ModalScript script;
    script.Then([&] { pen::Tap(*outer.GetDlgItem(ID_NESTED)); })
        .Until([&] { return inner.m_hWnd != nullptr && inner.IsWindowVisible(); })
        .Then([&] {
            EXPECT_FALSE(outer.IsWindowEnabled());
            EXPECT_FALSE(owner.IsWindowEnabled());
            inner.EndDialog(3);
        })
        .Then([&] {
            EXPECT_EQ(nInner, 3);
            EXPECT_TRUE(outer.IsWindowEnabled());
            EXPECT_FALSE(owner.IsWindowEnabled());
            EXPECT_EQ(::GetActiveWindow(), outer.m_hWnd);
            outer.EndDialog(4);
        });
    EXPECT_EQ(script.Run([&] { return outer.DoModal(); }), 4);
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST(ModalDialog, EndOfTheOuterDialogWaitsForTheInnerOne) {
    Form outer;
    Form inner(&outer);
    outer.m_onNested = [&] {
        EXPECT_EQ(inner.DoModal(), 3);
        EXPECT_TRUE(::IsWindow(outer)) << "its handler still runs";
    };
    fx::ModalScript script;
    script.Then([&] { pen::Tap(*outer.GetDlgItem(ID_NESTED)); })
        .Until([&] { return inner.m_hWnd != nullptr && inner.IsWindowVisible(); })
        .Then([&] { outer.EndDialog(4); })
        .Then([&] { inner.EndDialog(3); });
    EXPECT_EQ(script.Run([&] { return outer.DoModal(); }), 4);
}

TEST(ModalDialog, SwallowsAKeyThatWasMeantForAChild) {
    Form form;
    form.m_preTranslate = [](const MSG* pMsg) { return pMsg->message == WM_KEYDOWN && pMsg->wParam == 'A'; };
    fx::ModalScript script;
    script.Then([] {
              pen::TypeKeys({'X', 'A', 'Y'});
          })
        .Then([&] {
            EXPECT_EQ(form.Text(), L"xy");
            form.EndDialog(1);
        });
    script.Run([&] { return form.DoModal(); });
}

TEST(ModalDialog, ControlIsAskedBeforeItsDialog) {
    class Swallowing : public CEdit {
        BOOL PreTranslateMessage(MSG* pMsg) override {
            return (pMsg->message == WM_KEYDOWN && pMsg->wParam == VK_RETURN) ||
                   CEdit::PreTranslateMessage(pMsg);
        }
    };
    Swallowing edit;
    Form form;
    form.m_onInit = [&] { EXPECT_TRUE(edit.SubclassDlgItem(ID_EDIT, &form)); };
    fx::ModalScript script;
    script.Then([] { pen::TypeKeys({VK_RETURN}); }).Then([&] {
        EXPECT_NE(form.m_hWnd, nullptr);
        form.EndDialog(1);
    });
    EXPECT_EQ(script.Run([&] { return form.DoModal(); }), 1);
}

TEST(ModalDialog, TabGoesThroughTheControls) {
    Form form;
    fx::ModalScript script;
    script.Then([] { pen::TypeKeys({VK_TAB}); }).Then([&] {
        EXPECT_EQ(::GetFocus(), ::GetDlgItem(form, IDOK));
        form.EndDialog(1);
    });
    script.Run([&] { return form.DoModal(); });
}

TEST(ModalDialog, QuitEndsAllLoopsAndReachesTheOutermost) {
    Form outer;
    Form inner(&outer);
    outer.m_onNested = [&] { inner.DoModal(); };
    fx::ModalScript script;
    script.Then([&] { pen::Tap(*outer.GetDlgItem(ID_NESTED)); })
        .Until([&] { return inner.m_hWnd != nullptr; })
        .Then([] { AfxPostQuitMessage(7); });
    script.Run([&] { return outer.DoModal(); });
    EXPECT_EQ(outer.m_hWnd, nullptr);
    EXPECT_EQ(inner.m_hWnd, nullptr);
    MSG msg = {};
    ASSERT_TRUE(::PeekMessage(&msg, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(msg.wParam, 7U);
}

TEST(ModalDialog, IsToldWhenItIsIdle) {
    Form form;
    fx::ModalScript script;
    script.Until([&] { return form.m_nKickIdle > 0; }).Then([&] {
        EXPECT_TRUE(form.IsWindowVisible());
        form.EndDialog(1);
    });
    script.Run([&] { return form.DoModal(); });
}

TEST(ModalDialog, TemporaryObjectsOfTheCallerSurviveIt) {
    fx::Frame owner;
    const HWND hForeign =
        ::CreateWindow(WC_STATIC, L"", WS_CHILD, 0, 0, 5, 5, owner, nullptr, nullptr, nullptr);
    CWnd* const pHeld = CWnd::FromHandle(hForeign);
    Form form(&owner);
    fx::WhileOpen(form, [&] { CWnd::FromHandle(hForeign); });
    EXPECT_EQ(CWnd::FromHandle(hForeign), pHeld);
    EXPECT_EQ(pHeld->m_hWnd, hForeign);
}

TEST(ModalDialog, ExceptionOfAHandlerIsToldAndTheDialogGoesOn) {
    const struct {
        CException* pException;
        size_t nPrompts;
    } cases[] = {
        {new CUserException, 0}, // the user has been told already
        {new CFileException(CFileException::fileNotFound), 1},
    };
    for (const auto& c : cases) {
        Form form;
        form.m_pThrow = c.pException;
        fx::MessageRecorder recorder;
        fx::ModalScript script;
        script.Then([&] { pen::Tap(*form.GetDlgItem(ID_THROW)); }).Then([&] { form.EndDialog(6); });
        EXPECT_EQ(script.Run([&] { return form.DoModal(); }), 6);
        EXPECT_EQ(recorder.m_prompts.size(), c.nPrompts);
    }
}

TEST(ModelessDialog, IsCreatedAndGoesWithItsObject) {
    const fx::DialogTemplate dialogTemplate = FormTemplate();
    HWND hWnd = nullptr;
    {
        CDialog dialog;
        dialog.m_bFullScreen = FALSE;
        ASSERT_TRUE(dialog.CreateIndirect(dialogTemplate.Get()));
        hWnd = dialog;
        EXPECT_TRUE(dialog.IsWindowVisible());
        EXPECT_EQ(CWnd::FromHandlePermanent(hWnd), &dialog);
        EXPECT_FALSE(dialog.CreateIndirect(dialogTemplate.Get())) << "it has a window already";
    }
    EXPECT_FALSE(::IsWindow(hWnd));
}

} // namespace
