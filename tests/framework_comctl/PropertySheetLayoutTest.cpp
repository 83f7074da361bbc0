// Property sheets on the device's screen. What a derived class has set up by itself is in tests/controls.
#include "SheetProbe.h"

using namespace testkit;

namespace {

/// What title bar and command bar leave of the screen.
CRect InnerArea() {
    CRect rect = WorkArea();
    rect.DeflateRect(0, AFX_DEVICE_BAR_HEIGHT);
    return rect;
}

/// The tabs fill the inner area, and the pages what is left of the tabs.
void ExpectLaidOut(const fx::Sheet& sheet, const std::vector<const CPropertyPage*>& pages) {
    EXPECT_EQ(WorkArea(), RectOf(sheet.m_hWnd));
    const CRect tabs = RectOf(sheet.GetTabControl()->m_hWnd);
    EXPECT_EQ(InnerArea(), tabs);
    EXPECT_EQ(WorkArea().bottom, RectOf(sheet.Button(AFX_IDW_TOOLBAR)).bottom);
    CRect free(CPoint(0, 0), tabs.Size());
    sheet.GetTabControl()->AdjustRect(FALSE, free);
    free.OffsetRect(tabs.TopLeft());
    EXPECT_LT(free.Height(), tabs.Height() - 10) << "no room for the tabs' names";
    for (const CPropertyPage* pPage : pages)
        EXPECT_EQ(free, RectOf(pPage->m_hWnd));
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
        EXPECT_TRUE(wide.IsWindowVisible());
        EXPECT_FALSE(sheet.m_a.IsWindowVisible());
        sheet.AddPage(&added);
        sheet.SetActivePage(&added);
    };
    const auto last = [&] {
        ExpectLaidOut(sheet, {&sheet.m_a, &sheet.m_b, &wide, &added});
        sheet.ShowWindow(SW_SHOWMAXIMIZED);
        CWnd* const pField = added.GetDlgItem(fx::IDC_NUMBER);
        pField->SetFocus();
        added.MoveWindow(0, 0, 50, 50); // as systems do that keep the place of their own layout
        added.SetWindowPos(nullptr, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_FRAMECHANGED);
        EXPECT_EQ(pField->m_hWnd, ::GetFocus());
        ExpectLaidOut(sheet, {&added});
        sheet.EndDialog(1);
    };
    Play(sheet, {first, others, last});
    EXPECT_EQ(nullptr, sheet.m_pWndEmptyCB);
}

TEST(FullScreenSheet, WizardKeepsItsButtonsOnTheScreenAndHasNoOkButton) {
    fx::Sheet sheet;
    sheet.SetWizardMode();
    WhileOpen(sheet, [&] {
        EXPECT_EQ(-1, FindOkButton(sheet).x);
        std::vector<CRect> places = {RectOf(sheet.m_a.m_hWnd)};
        EXPECT_EQ(places[0], places[0] & InnerArea());
        for (const int nID : {ID_WIZBACK, ID_WIZNEXT, IDCANCEL}) {
            SCOPED_TRACE(nID);
            const CRect button = RectOf(sheet.Button(nID));
            EXPECT_TRUE(sheet.ShowsButton(nID));
            EXPECT_EQ(button, button & InnerArea());
            for (const CRect& other : places)
                EXPECT_EQ(CRect(), button & other);
            places.push_back(button);
        }
        EXPECT_EQ(RectOf(sheet.Button(ID_WIZNEXT)), RectOf(sheet.Button(ID_WIZFINISH)));
    });
}

TEST(PopupSheet, KeepsTheSystemsLayoutWithItsButtons) {
    fx::Sheet sheet;
    sheet.m_bFullScreen = FALSE;
    bool bSized = false;
    const auto look = [&] {
        EXPECT_EQ(nullptr, sheet.m_pWndEmptyCB);
        EXPECT_EQ(-1, FindOkButton(sheet).x);
        EXPECT_TRUE(sheet.ShowsButton(IDOK));
        sheet.m_a.m_hear = [&](UINT message, WPARAM, LPARAM) {
            bSized = bSized || message == WM_SIZE;
            return std::optional<LRESULT>();
        };
        sheet.m_a.MoveWindow(0, 0, 50, 50);
        EXPECT_TRUE(bSized) << "a page can lay itself out";
        EXPECT_EQ(CSize(50, 50), RectOf(sheet.m_a).Size());
        ::SendMessage(sheet.Button(IDOK), BM_CLICK, 0, 0);
    };
    EXPECT_EQ(IDOK, Play(sheet, {look}));
}

TEST(PopupSheet, ModelessOneHasNoButtonsAndEndsBelowItsTabs) {
    fx::Sheet sheet;
    sheet.m_bFullScreen = FALSE;
    ASSERT_TRUE(sheet.Create());
    EXPECT_FALSE(sheet.ShowsButton(IDOK));
    EXPECT_FALSE(sheet.ShowsButton(IDCANCEL));
    const int nBelow = RectOf(sheet.m_hWnd).bottom - RectOf(sheet.GetTabControl()->m_hWnd).bottom;
    EXPECT_LT(nBelow, 30);
    EXPECT_GT(nBelow, 0);
}

TEST(PopupSheet, CanBeAChildOfAWindow) {
    Frame frame(CSize(230, 250));
    fx::Sheet sheet;
    ASSERT_TRUE(sheet.Create(&frame, WS_CHILD | WS_VISIBLE));
    EXPECT_EQ(frame.m_hWnd, ::GetParent(sheet));
    EXPECT_TRUE(sheet.IsWindowVisible());
    EXPECT_EQ(0U, sheet.GetStyle() & WS_CAPTION);
    EXPECT_EQ(nullptr, sheet.m_pWndEmptyCB) << "never full screen";
}

} // namespace
