// How property sheets run and end, and what their pages hear of it.
#include "SheetProbe.h"

#include "support/Leftovers.h"

namespace {

using Step = std::function<void(fx::Sheet&)>;

/// Runs the sheet modally: each step in it, when the one before has been dealt with.
INT_PTR RunSheet(fx::Sheet& sheet, std::initializer_list<Step> steps) {
    fx::ModalScript script;
    for (const Step& step : steps)
        script.Then([&sheet, step] { step(sheet); });
    return script.Run([&] { return sheet.DoModal(); });
}

void SetNumber(fx::Page& page, LPCTSTR psz) {
    page.SetDlgItemText(fx::IDC_NUMBER, psz);
}

TEST(ModalSheet, EveryWayOutTellsThePagesAndGivesItsResult) {
    const struct {
        const char* pszWay;
        Step step;
        INT_PTR nResult;
        const char* pszLog;
    } cases[] = {
        {"OK in the title bar", [](fx::Sheet& s) { fx::TapOk(s); }, IDOK, "a.kill a.apply a.ok "},
        {"Close in the title bar", [](fx::Sheet& s) { fx::TapClose(s); }, IDCANCEL, "a.cancel "},
        {"Enter", [](fx::Sheet&) { pen::TypeKeys({VK_RETURN}); }, IDOK, "a.kill a.apply a.ok "},
        {"Escape", [](fx::Sheet&) { pen::TypeKeys({VK_ESCAPE}); }, IDCANCEL, "a.cancel "},
        {"PressButton", [](fx::Sheet& s) { s.PressButton(PSBTN_OK); }, IDOK, "a.kill a.apply a.ok "},
        {"push button", [](fx::Sheet& s) { ::SendMessage(s.Button(IDOK), BM_CLICK, 0, 0); }, IDOK,
         "a.kill a.apply a.ok "},
        {"EndDialog of the sheet", [](fx::Sheet& s) { s.EndDialog(77); }, 77, ""},
        {"EndDialog of a page", [](fx::Sheet& s) { s.m_a.EndDialog(78); }, 78, ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.pszWay);
        fx::Sheet sheet;
        EXPECT_EQ(RunSheet(sheet, {[](fx::Sheet& s) { EXPECT_EQ(s.TakeLog(), "a.init a.set "); }, c.step}),
                  c.nResult);
        EXPECT_EQ(sheet.TakeLog(), c.pszLog);
        EXPECT_EQ(sheet.m_hWnd, nullptr);
        EXPECT_EQ(sheet.m_a.m_hWnd, nullptr);
    }
}

TEST(ModalSheet, PagesHearInOrderWhenTheUserChangesBetweenThem) {
    fx::Sheet sheet;
    sheet.m_a.m_nNumber = 5;
    EXPECT_EQ(RunSheet(sheet, {[](fx::Sheet& s) {
                                   EXPECT_TRUE(s.m_bSawCreation) << "attached before the first message";
                                   EXPECT_EQ(s.GetActiveIndex(), 0);
                                   SetNumber(s.m_a, L"7");
                                   s.TakeLog();
                                   EXPECT_TRUE(s.SetActivePage(1));
                                   EXPECT_EQ(s.TakeLog(), "a.kill b.init b.set ");
                                   EXPECT_TRUE(s.m_a.m_bSawCreation && s.m_b.m_bSawCreation);
                                   EXPECT_EQ(s.GetActivePage(), &s.m_b);
                                   EXPECT_EQ(s.m_a.m_nNumber, 7);
                                   s.m_a.m_nNumber = 8;
                               },
                               [](fx::Sheet& s) {
                                   CRect tab;
                                   s.GetTabControl()->SendMessage(
                                       TCM_GETITEMRECT, 0,
                                       reinterpret_cast<LPARAM>(static_cast<LPRECT>(tab)));
                                   s.GetTabControl()->ClientToScreen(tab);
                                   pen::Tap(tab.CenterPoint());
                               },
                               [](fx::Sheet& s) {
                                   EXPECT_EQ(s.TakeLog(), "b.kill a.set ");
                                   EXPECT_EQ(s.m_a.GetDlgItemInt(fx::IDC_NUMBER), 8U) << "loaded again";
                                   s.PressButton(PSBTN_OK);
                               }}),
              IDOK);
    EXPECT_EQ(sheet.TakeLog(), "a.kill a.apply a.ok b.apply b.ok ");
}

TEST(ModalSheet, PageWithARefusedValueIsNotLeft) {
    fx::Sheet sheet;
    fx::MessageRecorder recorder;
    EXPECT_EQ(RunSheet(sheet, {[](fx::Sheet& s) {
                                   SetNumber(s.m_a, L"101");
                                   s.SetActivePage(1);
                                   EXPECT_EQ(s.GetActiveIndex(), 0);
                                   s.PressButton(PSBTN_OK);
                               },
                               [](fx::Sheet& s) {
                                   EXPECT_EQ(s.TakeLog(), "a.init a.set a.kill a.kill ") << "nothing applied";
                                   SetNumber(s.m_a, L"100");
                                   s.PressButton(PSBTN_OK);
                               }}),
              IDOK);
    EXPECT_EQ(recorder.m_prompts.size(), 2U);
}

TEST(ModalSheet, PagesCanRefuseToApplyAndToCancel) {
    fx::Sheet sheet;
    sheet.m_a.m_bApply = FALSE;
    sheet.m_a.m_bCancel = FALSE;
    EXPECT_EQ(RunSheet(sheet, {[](fx::Sheet& s) { s.PressButton(PSBTN_OK); },
                               [](fx::Sheet& s) {
                                   EXPECT_EQ(s.TakeLog(), "a.init a.set a.kill a.apply ");
                                   pen::TypeKeys({VK_ESCAPE});
                               },
                               [](fx::Sheet& s) {
                                   EXPECT_EQ(s.TakeLog(), "");
                                   s.m_a.m_bCancel = TRUE;
                                   pen::TypeKeys({VK_ESCAPE});
                               }}),
              IDCANCEL);
}

TEST(ModalSheet, ApplyTakesChangesOverAndStays) {
    fx::Sheet sheet;
    RunSheet(sheet, {[](fx::Sheet& s) {
                         EXPECT_FALSE(::IsWindowEnabled(s.Button(ID_APPLY_NOW)));
                         s.m_a.SetModified();
                         EXPECT_TRUE(::IsWindowEnabled(s.Button(ID_APPLY_NOW)));
                         s.TakeLog();
                         s.PressButton(PSBTN_APPLYNOW);
                     },
                     [](fx::Sheet& s) {
                         // The system then tells the page once more that it is shown.
                         EXPECT_TRUE(s.TakeLog().starts_with("a.kill a.apply a.ok "));
                         EXPECT_FALSE(::IsWindowEnabled(s.Button(ID_APPLY_NOW)));
                         s.m_a.SetModified();
                         s.m_a.SetModified(FALSE);
                         EXPECT_FALSE(::IsWindowEnabled(s.Button(ID_APPLY_NOW)));
                         s.m_a.CancelToClose();
                         EXPECT_FALSE(::IsWindowEnabled(s.Button(IDCANCEL)));
                         s.PressButton(PSBTN_OK);
                     }});
}

TEST(ModalSheet, TabsAreNamedByThePagesCaptionOrTemplate) {
    fx::Sheet sheet;
    fx::Page named(sheet.m_log, "c", fx::ID_PAGE_VIEW, 40011);
    sheet.AddPage(&named);
    RunSheet(sheet, {[](fx::Sheet& s) {
                 const LPCTSTR names[] = {L"一般", L"表示", L"測点"};
                 for (int i = 0; i < 3; ++i) {
                     TCHAR szName[20] = {};
                     TCITEM item = {};
                     item.mask = TCIF_TEXT;
                     item.pszText = szName;
                     item.cchTextMax = 20;
                     s.GetTabControl()->SendMessage(TCM_GETITEM, static_cast<WPARAM>(i),
                                                    reinterpret_cast<LPARAM>(&item));
                     EXPECT_STREQ(szName, names[i]);
                 }
                 EXPECT_EQ(fx::TextOf(s), L"設定");
                 s.SetTitle(L"別の名");
                 EXPECT_EQ(fx::TextOf(s), L"別の名");
                 s.EndDialog(1);
             }});
    CPropertySheet fromId(40010);
    fromId.AddPage(&named);
    ASSERT_TRUE(fromId.Create());
    EXPECT_EQ(fx::TextOf(fromId), L"設定");
}

TEST(ModalSheet, PagesCanBeAddedAndRemovedBeforeAndWhileItRuns) {
    fx::Sheet sheet;
    fx::Page c(sheet.m_log, "c", fx::ID_PAGE_VIEW);
    fx::Page missing(sheet.m_log, "missing", 9999);
    sheet.RemovePage(&sheet.m_a);
    sheet.RemovePage(5);
    EXPECT_EQ(sheet.GetPageCount(), 1);
    EXPECT_EQ(sheet.GetPageIndex(&sheet.m_b), 0);
    EXPECT_EQ(sheet.GetPageIndex(&sheet.m_a), -1);
    EXPECT_EQ(sheet.GetPage(1), nullptr);
    RunSheet(sheet, {[&](fx::Sheet& s) {
                 EXPECT_EQ(s.TakeLog(), "b.init b.set ");
                 s.AddPage(&c);
                 s.AddPage(&missing);
                 EXPECT_EQ(s.GetPageCount(), 2) << "a page without a template is not added";
                 EXPECT_TRUE(s.SetActivePage(&c));
                 EXPECT_EQ(s.GetActiveIndex(), 1);
                 s.RemovePage(0);
                 EXPECT_EQ(s.GetTabControl()->SendMessage(TCM_GETITEMCOUNT), 1);
                 EXPECT_EQ(s.GetActivePage(), &c);
                 EXPECT_EQ(s.GetPage(0), &c);
                 s.EndDialog(1);
             }});
}

TEST(ModalSheet, StartsWithThePageThatWasChosen) {
    fx::Sheet sheet;
    EXPECT_TRUE(sheet.SetActivePage(1));
    EXPECT_EQ(sheet.GetActivePage(), &sheet.m_b);
    EXPECT_FALSE(sheet.SetActivePage(2));
    RunSheet(sheet, {[](fx::Sheet& s) {
                 EXPECT_EQ(s.TakeLog(), "b.init b.set ");
                 EXPECT_EQ(CWnd::GetFocus()->GetSafeHwnd(), s.m_b.GetDlgItem(fx::IDC_NUMBER)->GetSafeHwnd());
                 s.EndDialog(1);
             }});
}

TEST(ModalSheet, WithoutPageOrTemplateIsNotShown) {
    CPropertySheet empty(L"");
    EXPECT_EQ(empty.DoModal(), -1);
    fx::Sheet sheet;
    fx::Page missing(sheet.m_log, "missing", 9999);
    sheet.AddPage(&missing);
    EXPECT_EQ(sheet.DoModal(), -1);
    EXPECT_FALSE(sheet.Create());
    EXPECT_EQ(sheet.m_hWnd, nullptr);
}

TEST(ModalSheet, PageThatCannotBeMadeLeavesOtherWindowsAlone) {
    fx::Sheet sheet;
    fx::Page broken(sheet.m_log, "broken", fx::ID_PAGE_UNKNOWN);
    sheet.AddPage(&broken);
    RunSheet(sheet, {[&](fx::Sheet& s) {
                 s.SetActivePage(&broken);
                 EXPECT_EQ(broken.m_hWnd, nullptr);
                 const HWND hWnd =
                     ::CreateWindow(WC_STATIC, L"", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
                 EXPECT_EQ(CWnd::FromHandlePermanent(hWnd), nullptr);
                 ::DestroyWindow(hWnd);
                 s.EndDialog(1);
             }});
}

TEST(ModalSheet, FailedInitialisationEndsItAndTheNextCallWorks) {
    const struct {
        const char* pszWhere;
        std::function<void()> fx::Sheet::*pSheet;
        fx::Page fx::Sheet::*pPage;
        std::vector<Step> steps;
    } cases[] = {
        {"sheet", &fx::Sheet::m_onInit, nullptr, {}},
        {"first page", nullptr, &fx::Sheet::m_a, {}},
        {"page shown later", nullptr, &fx::Sheet::m_b, {[](fx::Sheet& s) { s.SetActivePage(1); }}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.pszWhere);
        fx::MessageRecorder recorder;
        const int nWindows = fx::Leftovers::Now().nWindows;
        fx::Sheet sheet;
        std::function<void()>& onInit = c.pSheet != nullptr ? sheet.*c.pSheet : (sheet.*c.pPage).m_onInit;
        onInit = [] { throw std::bad_alloc(); };
        fx::ModalScript script;
        for (const Step& step : c.steps)
            script.Then([&] { step(sheet); });
        EXPECT_EQ(script.Run([&] { return sheet.DoModal(); }), -1);
        EXPECT_EQ(recorder.m_prompts.size(), 1U);
        EXPECT_EQ(sheet.m_a.m_hWnd, nullptr);
        EXPECT_EQ(fx::Leftovers::Now().nWindows, nWindows);
        onInit = [] {};
        EXPECT_EQ(RunSheet(sheet, {[](fx::Sheet& s) { fx::TapOk(s); }}), IDOK);
    }
}

TEST(ModalSheet, DisablesItsOwnerAndGivesTheFocusBack) {
    fx::Frame frame;
    CEdit edit;
    ASSERT_TRUE(edit.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 20), &frame, 1));
    frame.SetActiveWindow();
    edit.SetFocus();
    class Owned : public fx::Sheet {
    public:
        explicit Owned(CWnd* pParentWnd) { m_pParentWnd = pParentWnd; }
    };
    Owned sheet(&frame);
    RunSheet(sheet, {[&](fx::Sheet& s) {
                 EXPECT_FALSE(frame.IsWindowEnabled());
                 EXPECT_EQ(s.GetParent()->GetSafeHwnd(), frame.m_hWnd);
                 s.EndDialog(1);
             }});
    EXPECT_TRUE(frame.IsWindowEnabled());
    EXPECT_EQ(::GetFocus(), edit.m_hWnd);
}

TEST(ModelessSheet, MenuCommandsThatItDoesNotKnowReachItsOwner) {
    constexpr UINT ID_MENU = 0x8001;
    constexpr UINT ID_BUTTON = 0x1001;
    class Owner : public fx::Frame {
    public:
        BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pInfo) override {
            m_commands.push_back(nID);
            return nID == ID_MENU || Frame::OnCmdMsg(nID, nCode, pExtra, pInfo);
        }
        std::vector<UINT> m_commands;
    };
    Owner owner;
    fx::Sheet sheet;
    ASSERT_TRUE(sheet.Create(&owner));
    for (CWnd* pSource : {static_cast<CWnd*>(&sheet), static_cast<CWnd*>(&sheet.m_a)}) {
        pSource->SendMessage(WM_COMMAND, ID_MENU);
        pSource->SendMessage(WM_COMMAND, ID_BUTTON);
        EXPECT_EQ(std::exchange(owner.m_commands, {}), std::vector<UINT>{ID_MENU});
    }
}

TEST(ModelessSheet, DestroysItselfWhenItEnds) {
    fx::Sheet sheet;
    for (const UINT nID : {IDOK, IDCANCEL}) {
        ASSERT_TRUE(sheet.Create());
        EXPECT_FALSE(sheet.Create()) << "it exists already";
        EXPECT_TRUE(sheet.IsWindowVisible());
        fx::Pump();
        sheet.SendMessage(WM_COMMAND, MAKEWPARAM(nID, BN_CLICKED));
        EXPECT_EQ(sheet.m_hWnd, nullptr);
        EXPECT_EQ(sheet.m_a.m_hWnd, nullptr);
    }
    EXPECT_EQ(sheet.TakeLog(), "a.init a.set a.kill a.apply a.ok a.init a.set a.cancel ");
}

TEST(ModalSheet, WizardGoesThroughItsPagesAndFinishes) {
    fx::Sheet sheet;
    sheet.SetWizardMode();
    EXPECT_EQ(RunSheet(sheet, {[](fx::Sheet& s) {
                                   s.SetWizardButtons(PSWIZB_NEXT);
                                   s.PressButton(PSBTN_NEXT);
                               },
                               [](fx::Sheet& s) {
                                   EXPECT_EQ(s.GetActivePage(), &s.m_b);
                                   s.PressButton(PSBTN_BACK);
                               },
                               [](fx::Sheet& s) {
                                   EXPECT_EQ(s.GetActivePage(), &s.m_a);
                                   s.PressButton(PSBTN_NEXT);
                               },
                               [](fx::Sheet& s) {
                                   s.SetWizardButtons(PSWIZB_BACK | PSWIZB_FINISH);
                                   s.TakeLog();
                                   s.PressButton(PSBTN_FINISH);
                               }}),
              static_cast<INT_PTR>(ID_WIZFINISH));
    EXPECT_NE(sheet.TakeLog().find("b.finish"), std::string::npos);
}

TEST(ModalSheet, OpenedTwoHundredTimesLeavesNothing) {
    fx::ExpectNothingLeft([] {
        fx::Sheet sheet;
        RunSheet(sheet, {[](fx::Sheet& s) {
                     s.SetActivePage(1);
                     s.PressButton(PSBTN_OK);
                 }});
    });
}

} // namespace
