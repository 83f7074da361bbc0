// Dialogs keep the field into which the user types clear of the soft input panel.
#include "FieldDialog.h"

using namespace testkit;
using fx::FieldDialog;

namespace {

const Step UNTIL_SHOWN = [] { return panel::IsVisible(); };
const Step UNTIL_HIDDEN = [] { return !panel::IsVisible(); };
const CRect NO_PLACE;

TEST(FullScreenDialogAndPanel, ScrollsByJustEnoughAndBack) {
    FieldDialog dialog(NO_PLACE, {20, 150, 230});
    CRect home, bar;
    const auto enterFirst = [&] {
        home = dialog.FieldRect(0);
        bar = RectOf(*dialog.m_pWndEmptyCB);
        dialog.m_fields[0].SetFocus();
    };
    const auto lookAtFirst = [&] {
        fx::PumpFor(100);
        EXPECT_EQ(home, dialog.FieldRect(0)) << "not covered";
        dialog.m_fields[2].SetFocus(); // here: another step could come while this one pumps
    };
    const auto untilJustClear = [&](int nField) {
        return [&dialog, nField] {
            return dialog.IsClear(nField) && dialog.FieldRect(nField).bottom >= panel::Place().top - 4;
        };
    };
    dialog.Run({enterFirst, UNTIL_SHOWN, lookAtFirst, untilJustClear(2),
                [&] { EXPECT_EQ(bar, RectOf(*dialog.m_pWndEmptyCB)); }, dialog.Enter(1), untilJustClear(1),
                dialog.Leave(), [&] { return dialog.FieldRect(0) == home; },
                [] { EXPECT_FALSE(panel::IsVisible()); }});
}

TEST(PopupDialogAndPanel, MovesUpAsFarAsTheWorkAreaScrollsTheRestAndGoesBack) {
    // nTop: Of the field.
    const Rows<CRect, int, bool> rows = {{{20, 110, 220, 220}, 50, true}, {{20, 30, 220, 290}, 190, false}};
    for (const auto& [home, nTop, bWholly] : rows) {
        FieldDialog dialog(home, {nTop});
        CRect field;
        const auto enter = [&] {
            field = dialog.FieldRect(0);
            dialog.m_fields[0].SetFocus();
        };
        const auto look = [&] {
            EXPECT_EQ(home.Size(), dialog.WindowRect().Size());
            EXPECT_EQ(bWholly ? panel::Place().top - home.Height() : 0, dialog.WindowRect().top);
        };
        dialog.Run({enter, dialog.UntilClear(0), look, dialog.Leave(), dialog.UntilHome(),
                    [&] { return dialog.FieldRect(0) == field; }});
    }
}

TEST(PopupDialogAndPanel, StaysWhereTheUserPutsItMeanwhile) {
    FieldDialog dialog(CRect(20, 150, 220, 250), {20});
    const CRect place(30, 40, 230, 140);
    const auto look = [&] {
        fx::PumpFor(100);
        EXPECT_EQ(place, dialog.WindowRect());
    };
    dialog.Run({dialog.Enter(0), dialog.UntilClear(0), [&] { dialog.MoveWindow(place); }, dialog.Leave(),
                UNTIL_HIDDEN, look});
}

TEST(PopupDialogAndPanel, ButtonOfAMovedDialogIsClickedBeforeItGoesBack) {
    struct Dialog : FieldDialog {
        using FieldDialog::FieldDialog;
        int m_nClicks = 0;

    protected:
        BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
            m_nClicks += wParam == MAKEWPARAM(OTHER, BN_CLICKED) ? 1 : 0;
            return FieldDialog::OnCommand(wParam, lParam);
        }
    };
    Dialog dialog(CRect(20, 110, 220, 220), {50});
    const auto lift = [&] {
        fx::PumpFor(150);
        EXPECT_NE(dialog.m_home, dialog.WindowRect());
        EXPECT_TRUE(panel::IsVisible());
        pen::Up(MiddleOf(dialog.m_other));
    };
    dialog.Run({dialog.Enter(0), dialog.UntilClear(0), [&] { pen::Down(MiddleOf(dialog.m_other)); },
                [&] { return ::GetFocus() == dialog.m_other.m_hWnd; }, lift, dialog.UntilHome()});
    EXPECT_EQ(1, dialog.m_nClicks);
}

TEST(PopupDialogAndPanel, DialogThatOpensUnderTheOpenPanelMovesTooAndItsOwnerGoesBack) {
    FieldDialog owner(CRect(20, 150, 220, 250), {20}), popup(CRect(30, 160, 210, 240), {20}, &owner);
    owner.Run({owner.Enter(0), owner.UntilClear(0), [&] { popup.DoModal(); }, popup.Enter(0),
               popup.UntilClear(0),
               [&] { popup.EndDialog(IDCANCEL); }, // its field goes, the owner's takes over
               [&] { return owner.IsClear(0) && ::GetFocus() == owner.m_fields[0].m_hWnd; }, owner.Leave(),
               owner.UntilHome()});
}

TEST(PanelSwitch, ShowsAndHidesWhatIsReallyThereEvenBelowADialog) {
    FieldDialog main(NO_PLACE, {20}), popup(CRect(20, 40, 220, 140), {20}, &main);
    const auto tapSwitch = [&main] {
        const CRect bar = RectOf(*main.m_pWndEmptyCB);
        pen::Tap(CPoint(bar.right - 14, bar.CenterPoint().y));
    };
    const auto tapBelow = [&] {
        EXPECT_FALSE(main.IsWindowEnabled());
        EXPECT_EQ(popup.m_hWnd, ::GetActiveWindow());
        tapSwitch();
    };
    main.Run({main.Enter(0), UNTIL_SHOWN, // the field has brought the panel already
              tapSwitch, UNTIL_HIDDEN, tapSwitch, UNTIL_SHOWN, main.Leave(), UNTIL_HIDDEN,
              [&] { popup.DoModal(); }, tapBelow, UNTIL_SHOWN, tapBelow, UNTIL_HIDDEN,
              [&] { popup.EndDialog(IDCANCEL); }});
}

} // namespace
