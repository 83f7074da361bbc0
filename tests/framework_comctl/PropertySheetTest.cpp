// How property sheets run and end, and what their pages hear of it.
#include "SheetProbe.h"

#include "testkit/Leftovers.h"

using namespace testkit;

namespace {

using fx::Sheet;

void SetNumber(fx::Page& page, LPCTSTR psz) {
    page.SetDlgItemText(fx::IDC_NUMBER, psz);
}

TEST(ModalSheet, EveryWayOutTellsThePagesGivesItsResultAndEnablesTheOwner) {
    constexpr const char* APPLIED = "a.kill a.apply a.ok ";
    const Rows<const char*, std::function<void(Sheet&)>, INT_PTR, const char*> rows = {
        {"OK in the title bar", [](Sheet& s) { TapOk(s); }, IDOK, APPLIED},
        {"Close in the title bar", [](Sheet& s) { TapClose(s); }, IDCANCEL, "a.cancel "},
        {"Enter", [](Sheet&) { TypeKeys({VK_RETURN}); }, IDOK, APPLIED},
        {"Escape", [](Sheet&) { TypeKeys({VK_ESCAPE}); }, IDCANCEL, "a.cancel "},
        {"PressButton", [](Sheet& s) { s.PressButton(PSBTN_OK); }, IDOK, APPLIED},
        {"EndDialog of the sheet", [](Sheet& s) { s.EndDialog(77); }, 77, ""},
        {"EndDialog of a page", [](Sheet& s) { s.m_a.EndDialog(78); }, 78, ""},
        {"destroyed by the object", [](Sheet& s) { s.DestroyWindow(); }, -1, ""},
        {"destroyed by the system", [](Sheet& s) { ::DestroyWindow(s); }, -1, ""},
        {"destroyed by its page", [](Sheet& s) { s.m_a.GetParent()->DestroyWindow(); }, -1, ""},
        {"destroyed in OnInitDialog", nullptr, -1, "a.init a.set "},
    };
    Frame owner;
    fx::Child<CEdit> edit(owner);
    for (const auto& [pszWay, way, nResult, pszLog] : rows) {
        SCOPED_TRACE(pszWay);
        owner.SetActiveWindow();
        edit.SetFocus();
        Sheet sheet(&owner);
        const auto end = [&, &act = way] {
            EXPECT_EQ("a.init a.set ", sheet.TakeLog());
            EXPECT_EQ(-1, sheet.DoModal()) << "it runs already";
            EXPECT_FALSE(owner.IsWindowEnabled());
            EXPECT_EQ(owner.m_hWnd, ::GetParent(sheet));
            act(sheet);
        };
        if (!way)
            sheet.m_onInit = [&] { sheet.CPropertySheet::OnInitDialog(), sheet.DestroyWindow(); };
        EXPECT_EQ(nResult, way ? Play(sheet, {end}) : Play(sheet, {}));
        EXPECT_EQ(pszLog, sheet.TakeLog());
        EXPECT_EQ(nullptr, sheet.m_hWnd);
        EXPECT_EQ(nullptr, sheet.m_a.m_hWnd);
        EXPECT_TRUE(owner.IsWindowEnabled());
        EXPECT_EQ(edit.m_hWnd, ::GetFocus());
        sheet.m_onInit = [] {};
        WhileOpen(sheet, [] {}); // and then it works as if nothing had happened
    }
}

TEST(ModalSheet, PagesHearInOrderWhenTheUserChangesBetweenThem) {
    Sheet sheet;
    sheet.m_a.m_nNumber = 5;
    int nCreated = 0;
    sheet.m_hear = sheet.m_a.m_hear = sheet.m_b.m_hear = [&](UINT message, WPARAM, LPARAM) {
        nCreated += message == WM_NCCREATE ? 1 : 0;
        return std::optional<LRESULT>();
    };
    const auto change = [&] {
        EXPECT_EQ(0, sheet.GetActiveIndex());
        SetNumber(sheet.m_a, L"7");
        sheet.TakeLog();
        EXPECT_TRUE(sheet.SetActivePage(1));
        EXPECT_EQ("a.kill b.init b.set ", sheet.TakeLog());
        EXPECT_EQ(3, nCreated) << "all are attached before the first message";
        EXPECT_EQ(&sheet.m_b, sheet.GetActivePage());
        EXPECT_EQ(7, sheet.m_a.m_nNumber);
        sheet.m_a.m_nNumber = 8;
    };
    const auto back = [&] {
        EXPECT_EQ("b.kill a.set ", sheet.TakeLog());
        EXPECT_EQ(8U, sheet.m_a.GetDlgItemInt(fx::IDC_NUMBER)) << "loaded again";
        sheet.PressButton(PSBTN_OK);
    };
    EXPECT_EQ(IDOK, Play(sheet, {change, [&] { sheet.TapTab(0); }, back}));
    EXPECT_EQ("a.kill a.apply a.ok b.apply b.ok ", sheet.TakeLog());
}

TEST(ModalSheet, PagesRefuseValuesTheirEndAndToBeCancelled) {
    Sheet sheet;
    sheet.m_a.m_bApply = sheet.m_a.m_bCancel = FALSE;
    MessageRecorder recorder;
    const auto refusedValue = [&] {
        SetNumber(sheet.m_a, L"101");
        sheet.SetActivePage(1);
        EXPECT_EQ(0, sheet.GetActiveIndex());
        sheet.PressButton(PSBTN_OK);
    };
    const auto refusedEnd = [&] {
        EXPECT_EQ("a.init a.set a.kill a.kill ", sheet.TakeLog()) << "nothing applied";
        EXPECT_EQ(2U, recorder.m_prompts.size());
        SetNumber(sheet.m_a, L"100");
        sheet.PressButton(PSBTN_OK);
    };
    const auto refusedCancel = [&] {
        EXPECT_EQ("a.kill a.apply ", sheet.TakeLog());
        TypeKeys({VK_ESCAPE});
    };
    const auto cancel = [&] {
        EXPECT_EQ("", sheet.TakeLog());
        sheet.m_a.m_bCancel = TRUE;
        TypeKeys({VK_ESCAPE});
    };
    EXPECT_EQ(IDCANCEL, Play(sheet, {refusedValue, refusedEnd, refusedCancel, cancel}));
}

TEST(ModalSheet, ApplyTakesChangesOverAndStays) {
    Sheet sheet;
    const auto isEnabled = [&](UINT nID) { return ::IsWindowEnabled(sheet.Button(nID)) != FALSE; };
    const auto apply = [&] {
        EXPECT_FALSE(isEnabled(ID_APPLY_NOW));
        sheet.m_a.SetModified();
        EXPECT_TRUE(isEnabled(ID_APPLY_NOW));
        sheet.TakeLog();
        sheet.PressButton(PSBTN_APPLYNOW);
    };
    const auto look = [&] {
        // The system then tells the page once more that it is shown.
        EXPECT_EQ(0U, sheet.TakeLog().find("a.kill a.apply a.ok "));
        EXPECT_FALSE(isEnabled(ID_APPLY_NOW));
        sheet.m_a.SetModified();
        sheet.m_a.SetModified(FALSE);
        EXPECT_FALSE(isEnabled(ID_APPLY_NOW));
        sheet.m_a.CancelToClose();
        EXPECT_FALSE(isEnabled(IDCANCEL));
        sheet.PressButton(PSBTN_OK);
    };
    Play(sheet, {apply, look});
}

TEST(ModalSheet, TabsAreNamedByThePagesCaptionOrTemplate) {
    Sheet sheet;
    fx::Page named(sheet.m_log, "c", fx::ID_PAGE_VIEW, 40011);
    sheet.AddPage(&named);
    WhileOpen(sheet, [&] {
        int nTab = 0;
        for (const LPCTSTR pszName : {L"一般", L"表示", L"測点"}) {
            TCHAR szName[20] = {};
            TCITEM item = {};
            item.mask = TCIF_TEXT;
            item.pszText = szName;
            item.cchTextMax = 20;
            sheet.GetTabControl()->GetItem(nTab++, &item);
            EXPECT_STREQ(pszName, szName);
        }
        EXPECT_EQ(L"設定", TextOf(sheet));
        sheet.SetTitle(L"別の名");
        EXPECT_EQ(L"別の名", TextOf(sheet));
    });
    CPropertySheet fromId(40010, nullptr, 1);
    fromId.AddPage(&sheet.m_a);
    fromId.AddPage(&named);
    ASSERT_TRUE(fromId.Create());
    EXPECT_EQ(L"設定", TextOf(fromId));
    EXPECT_EQ(&named, fromId.GetActivePage());
}

TEST(ModalSheet, PagesCanBeChosenAddedAndRemovedBeforeAndWhileItRuns) {
    Sheet sheet;
    fx::Page c(sheet.m_log, "c", fx::ID_PAGE_VIEW), missing(sheet.m_log, "missing", 9999);
    EXPECT_TRUE(sheet.SetActivePage(1));
    EXPECT_EQ(&sheet.m_b, sheet.GetActivePage());
    EXPECT_FALSE(sheet.SetActivePage(2));
    WhileOpen(sheet, [&] {
        EXPECT_EQ("b.init b.set ", sheet.TakeLog());
        EXPECT_EQ(::GetDlgItem(sheet.m_b, fx::IDC_NUMBER), ::GetFocus());
    });
    sheet.RemovePage(&sheet.m_a);
    sheet.RemovePage(5);
    EXPECT_EQ(1, sheet.GetPageCount());
    EXPECT_EQ(0, sheet.GetPageIndex(&sheet.m_b));
    EXPECT_EQ(-1, sheet.GetPageIndex(&sheet.m_a));
    EXPECT_EQ(nullptr, sheet.GetPage(1));
    WhileOpen(sheet, [&] {
        sheet.AddPage(&c);
        sheet.AddPage(&missing);
        EXPECT_EQ(2, sheet.GetPageCount()) << "a page without a template is not added";
        EXPECT_TRUE(sheet.SetActivePage(&c));
        EXPECT_EQ(1, sheet.GetActiveIndex());
        sheet.RemovePage(0);
        EXPECT_EQ(1, sheet.GetTabControl()->GetItemCount());
        EXPECT_EQ(&c, sheet.GetActivePage());
        EXPECT_EQ(&c, sheet.GetPage(0));
    });
}

TEST(ModalSheet, WithoutPageOrTemplateIsNotShown) {
    CPropertySheet empty(L"");
    EXPECT_EQ(-1, empty.DoModal());
    Sheet sheet;
    fx::Page missing(sheet.m_log, "missing", 9999);
    sheet.AddPage(&missing);
    EXPECT_EQ(-1, sheet.DoModal());
    EXPECT_FALSE(sheet.Create());
    EXPECT_EQ(nullptr, sheet.m_hWnd);
}

TEST(ModalSheet, PageThatCannotBeMadeLeavesOtherWindowsAlone) {
    Sheet sheet;
    fx::Page broken(sheet.m_log, "broken", fx::ID_PAGE_UNKNOWN);
    sheet.AddPage(&broken);
    WhileOpen(sheet, [&] {
        sheet.SetActivePage(&broken);
        EXPECT_EQ(nullptr, broken.m_hWnd);
        const HWND hWnd =
            ::CreateWindow(WC_STATIC, L"", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
        EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(hWnd));
        ::DestroyWindow(hWnd);
    });
}

TEST(ModalSheet, FailedInitialisationEndsItAndTheNextCallWorks) {
    Sheet sheet;
    const auto showLater = [&] { sheet.SetActivePage(1); };
    std::function<void()>* const inits[] = {&sheet.m_onInit, &sheet.m_a.m_onInit, &sheet.m_b.m_onInit};
    for (std::function<void()>* pOnInit : inits) {
        SCOPED_TRACE(pOnInit == inits[0] ? "the sheet" : pOnInit == inits[1] ? "a page" : "a later page");
        MessageRecorder recorder;
        const int nWindows = Leftovers::Now().nWindows;
        *pOnInit = [] { throw std::bad_alloc(); };
        EXPECT_EQ(-1, pOnInit == inits[2] ? Play(sheet, {showLater}) : Play(sheet, {}));
        EXPECT_EQ(1U, recorder.m_prompts.size());
        EXPECT_EQ(nullptr, sheet.m_a.m_hWnd);
        EXPECT_EQ(nWindows, Leftovers::Now().nWindows);
        *pOnInit = [] {};
        EXPECT_EQ(IDOK, Play(sheet, {[&] { TapOk(sheet); }}));
    }
}

TEST(ModelessSheet, MenuCommandsThatItDoesNotKnowReachItsOwner) {
    constexpr UINT ID_MENU = 0x8000, ID_OTHER = 0x8001, ID_BUTTON = 0x7FFF;
    struct Owner : Frame {
        BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pInfo) override {
            m_commands.push_back(nID);
            return nID == ID_MENU || Frame::OnCmdMsg(nID, nCode, pExtra, pInfo);
        }
        std::vector<UINT> m_commands;
    };
    Owner owner;
    Sheet sheet;
    ASSERT_TRUE(sheet.Create(&owner));
    for (CWnd* pSource : {static_cast<CWnd*>(&sheet), static_cast<CWnd*>(&sheet.m_a)}) {
        pSource->SendMessage(WM_COMMAND, ID_MENU);
        pSource->SendMessage(WM_COMMAND, ID_BUTTON);
        EXPECT_FALSE(pSource->OnCmdMsg(ID_OTHER, CN_COMMAND, nullptr, nullptr))
            << "neither owner nor program";
        CCmdUI look;
        look.m_nID = ID_MENU;
        EXPECT_TRUE(pSource->OnCmdMsg(ID_MENU, CN_UPDATE_COMMAND_UI, &look, nullptr));
        EXPECT_EQ((std::vector{ID_MENU, ID_OTHER, ID_MENU}), std::exchange(owner.m_commands, {}));
    }
}

TEST(ModelessSheet, DestroysItselfWhenItEnds) {
    Sheet sheet;
    for (const UINT nID : {IDOK, IDCANCEL}) {
        ASSERT_TRUE(sheet.Create());
        EXPECT_FALSE(sheet.Create()) << "it exists already";
        EXPECT_TRUE(sheet.IsWindowVisible());
        Pump();
        sheet.SendMessage(WM_COMMAND, MAKEWPARAM(nID, BN_CLICKED));
        EXPECT_EQ(nullptr, sheet.m_hWnd);
        EXPECT_EQ(nullptr, sheet.m_a.m_hWnd);
    }
    EXPECT_EQ("a.init a.set a.kill a.apply a.ok a.init a.set a.cancel ", sheet.TakeLog());
}

TEST(ModalSheet, WizardGoesThroughItsPagesAndFinishes) {
    Sheet sheet;
    sheet.SetWizardMode();
    const auto next = [&] {
        EXPECT_EQ(&sheet.m_a, sheet.GetActivePage());
        sheet.SetWizardButtons(PSWIZB_NEXT);
        sheet.PressButton(PSBTN_NEXT);
    };
    const auto back = [&] {
        EXPECT_EQ(&sheet.m_b, sheet.GetActivePage());
        sheet.PressButton(PSBTN_BACK);
    };
    const auto finish = [&] {
        sheet.SetFinishText(L"終");
        EXPECT_EQ(L"終", TextOf(sheet.Button(ID_WIZFINISH)));
        sheet.SetWizardButtons(PSWIZB_BACK | PSWIZB_FINISH);
        sheet.TakeLog();
        sheet.PressButton(PSBTN_FINISH);
    };
    EXPECT_EQ(static_cast<INT_PTR>(ID_WIZFINISH), Play(sheet, {next, back, next, finish}));
    EXPECT_NE(std::string::npos, sheet.TakeLog().find("b.finish"));
}

// --- The focus ----------------------------------------------------------------------------------

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

} // namespace
