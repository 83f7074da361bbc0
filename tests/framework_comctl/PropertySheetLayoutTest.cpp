// Property sheets on the device's screen.
#include "SheetProbe.h"

using namespace testkit;

namespace {

/// What title bar and command bar leave of the screen.
CRect InnerArea() {
    CRect rect = WorkArea();
    rect.DeflateRect(0, AFX_DEVICE_BAR_HEIGHT);
    return rect;
}

bool Contains(const CRect& outer, const CRect& inner) {
    CRect both;
    both.UnionRect(outer, inner);
    return both == outer && !inner.IsRectEmpty();
}

int CountCommandBars(const CWnd& wnd) {
    int nCount = 0;
    for (HWND h = ::GetWindow(wnd, GW_CHILD); h != nullptr; h = ::GetWindow(h, GW_HWNDNEXT))
        nCount += ::GetDlgCtrlID(h) == static_cast<int>(AFX_IDW_TOOLBAR) ? 1 : 0;
    return nCount;
}

/// The tabs fill the inner area, and the pages what is left of the tabs.
void ExpectLaidOut(const fx::Sheet& sheet, const std::vector<const CPropertyPage*>& pages) {
    EXPECT_EQ(RectOf(sheet.m_hWnd), WorkArea());
    const CRect tabs = RectOf(sheet.GetTabControl()->m_hWnd);
    EXPECT_EQ(tabs, InnerArea());
    const CRect bar = RectOf(sheet.GetDlgItem(static_cast<int>(AFX_IDW_TOOLBAR))->m_hWnd);
    EXPECT_EQ(bar.bottom, WorkArea().bottom);
    CRect free(CPoint(0, 0), tabs.Size());
    sheet.GetTabControl()->AdjustRect(FALSE, free);
    free.OffsetRect(tabs.TopLeft());
    EXPECT_LT(free.Height(), tabs.Height() - 10) << "no room for the tabs' names";
    for (const CPropertyPage* pPage : pages)
        EXPECT_EQ(RectOf(pPage->m_hWnd), free);
}

TEST(FullScreenSheet, GivesItsPagesTheAreaBetweenTheBars) {
    fx::Sheet sheet;
    fx::Page wide(sheet.m_log, "wide", fx::ID_PAGE_WIDE), added(sheet.m_log, "added", fx::ID_PAGE_VIEW);
    sheet.AddPage(&wide);
    const auto first = [&] {
        ExpectLaidOut(sheet, {&sheet.m_a});
        EXPECT_TRUE(sheet.m_a.IsWindowVisible());
        for (const int nID : {IDOK, IDCANCEL, ID_APPLY_NOW})
            EXPECT_FALSE(sheet.ShowsButton(nID)) << nID;
        EXPECT_NE(nullptr, sheet.m_pWndEmptyCB);
        sheet.SetActivePage(1);
        sheet.SetActivePage(&wide);
    };
    const auto others = [&] {
        ExpectLaidOut(sheet, {&sheet.m_a, &sheet.m_b, &wide});
        EXPECT_TRUE(wide.IsWindowVisible() && !sheet.m_a.IsWindowVisible());
        sheet.AddPage(&added);
        sheet.SetActivePage(&added);
    };
    const auto last = [&] {
        ExpectLaidOut(sheet, {&sheet.m_a, &sheet.m_b, &wide, &added});
        sheet.ShowWindow(SW_SHOWMAXIMIZED);
        added.MoveWindow(0, 0, 50, 50); // as systems do that keep the place of their own layout
        ExpectLaidOut(sheet, {&added});
        sheet.EndDialog(1);
    };
    Play(sheet, {first, others, last});
    EXPECT_EQ(sheet.m_pWndEmptyCB, nullptr);
}

/// What a full-screen sheet class of an application does: all its own settings first, the
/// base class last.
struct EarlySheet : fx::Sheet {
    bool m_bOkButton = false, m_bOwnBar = true;
    int m_nShow = SW_SHOWMAXIMIZED;
    BOOL m_bResult = FALSE;
    CCeCommandBar m_bar;

    BOOL OnInitDialog() override {
        ModifyStyle(0, WS_MAXIMIZEBOX, SWP_NOSIZE);
        if (m_bOwnBar)
            m_bar.Create(this, 0x50002800, AFX_IDW_TOOLBAR);
        if (!m_bOkButton)
            SHDoneButton(m_hWnd, SHDB_HIDE);
        ShowWindow(m_nShow);
        m_bResult = CPropertySheet::OnInitDialog();
        return m_bResult;
    }

protected:
    afx_msg void OnCancel() { m_log += "sheet.cancel "; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(EarlySheet, CPropertySheet)
ON_COMMAND(IDCANCEL, &EarlySheet::OnCancel)
END_MESSAGE_MAP()

TEST(FullScreenSheet, KeepsWhatADerivedClassHasSetUpBeforeTheBaseClass) {
    const Rows<bool, bool, int> cases = {{false, true, SW_SHOWMAXIMIZED},
                                         {true, true, SW_SHOWMAXIMIZED},
                                         {true, false, SW_SHOWMAXIMIZED},
                                         {true, true, SW_HIDE}};
    for (const auto& [bOkButton, bOwnBar, nShow] : cases) {
        EarlySheet sheet;
        sheet.m_bOkButton = bOkButton;
        sheet.m_bOwnBar = bOwnBar;
        sheet.m_nShow = nShow;
        WhileOpen(sheet, [&] {
            EXPECT_TRUE(sheet.m_bResult);
            EXPECT_EQ(nShow != SW_HIDE, sheet.IsWindowVisible() != FALSE);
            EXPECT_EQ(bOkButton, FindOkButton(sheet).x != -1);
            EXPECT_EQ(1, CountCommandBars(sheet));
            EXPECT_EQ(bOwnBar, sheet.m_pWndEmptyCB == nullptr);
            ExpectLaidOut(sheet, {&sheet.m_a});
        });
    }
}

TEST(FullScreenSheet, HandlerForCancelReplacesItForTheTitleBarAndTheKeyToo) {
    EarlySheet sheet;
    const auto look = [&] {
        EXPECT_EQ("a.init a.set sheet.cancel sheet.cancel sheet.cancel ", sheet.TakeLog());
        sheet.PressButton(PSBTN_OK);
    };
    EXPECT_EQ(IDOK, Play(sheet, {[&] { TapClose(sheet); }, [] { TypeKeys({VK_ESCAPE}); },
                                 [&] { sheet.PressButton(PSBTN_CANCEL); }, look}));
}

TEST(FullScreenSheet, WizardKeepsItsButtonsOnTheScreenAndHasNoOkButton) {
    fx::Sheet sheet;
    sheet.SetWizardMode();
    WhileOpen(sheet, [&] {
        EXPECT_EQ(-1, FindOkButton(sheet).x);
        const CRect page = RectOf(sheet.m_a.m_hWnd);
        EXPECT_TRUE(Contains(InnerArea(), page));
        CRect last;
        for (const int nID : {ID_WIZBACK, ID_WIZNEXT, IDCANCEL}) {
            const CRect button = RectOf(sheet.Button(nID));
            EXPECT_TRUE(sheet.ShowsButton(nID)) << nID;
            EXPECT_TRUE(Contains(InnerArea(), button)) << nID;
            CRect overlap;
            EXPECT_FALSE(overlap.IntersectRect(button, page)) << nID;
            EXPECT_FALSE(overlap.IntersectRect(button, last)) << nID;
            last = button;
        }
        EXPECT_EQ(RectOf(sheet.Button(ID_WIZFINISH)), RectOf(sheet.Button(ID_WIZNEXT)));
    });
}

TEST(PopupSheet, KeepsTheSystemsLayoutWithItsButtons) {
    fx::Sheet sheet;
    sheet.m_bFullScreen = FALSE;
    const auto look = [&] {
        EXPECT_EQ(nullptr, sheet.m_pWndEmptyCB);
        EXPECT_EQ(-1, FindOkButton(sheet).x);
        EXPECT_TRUE(sheet.ShowsButton(IDOK));
        ::SendMessage(sheet.Button(IDOK), BM_CLICK, 0, 0);
    };
    EXPECT_EQ(IDOK, Play(sheet, {look}));
}

TEST(PopupSheet, ModelessOneHasNoButtonsAndEndsBelowItsTabs) {
    fx::Sheet sheet;
    sheet.m_bFullScreen = FALSE;
    ASSERT_TRUE(sheet.Create());
    EXPECT_TRUE(!sheet.ShowsButton(IDOK) && !sheet.ShowsButton(IDCANCEL));
    const CRect window = RectOf(sheet.m_hWnd), tabs = RectOf(sheet.GetTabControl()->m_hWnd);
    EXPECT_LT(window.bottom - tabs.bottom, 30);
    EXPECT_GT(window.bottom, tabs.bottom);
}

TEST(PopupSheet, CanBeAChildOfAWindow) {
    Frame frame(CSize(230, 250));
    fx::Sheet sheet;
    ASSERT_TRUE(sheet.Create(&frame, WS_CHILD | WS_VISIBLE));
    EXPECT_EQ(::GetParent(sheet), frame.m_hWnd);
    EXPECT_TRUE(sheet.IsWindowVisible());
    EXPECT_EQ(sheet.GetStyle() & WS_CAPTION, 0U);
    EXPECT_EQ(sheet.m_pWndEmptyCB, nullptr) << "never full screen";
}

} // namespace
