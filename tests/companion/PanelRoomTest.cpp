// Dialogs keep the field into which the user types clear of the soft input panel.
#include "support/PanelKeys.h"
#include "testkit/DialogTemplate.h"
#include "testkit/Script.h"
#include "testkit/Pen.h"

#include "controls/nDialog.h"

using namespace testkit;

namespace {

constexpr int FIELD_HEIGHT = 20;

/// A dialog of the library with fields at given heights.
struct FieldDialog : CnDialog {
    /// @param window place on the screen; empty for a full-screen dialog
    /// @param tops   upper edges of the fields, in pixels
    FieldDialog(CRect window, std::vector<int> tops, CWnd* pParent = nullptr)
        : CnDialog(0, pParent), m_window(window), m_tops(std::move(tops)) {
        InitModalIndirect(s_template.Get());
        if (!window.IsRectEmpty())
            SetOption(OptionPopup);
    }

    BOOL OnInitDialog() override {
        CnDialog::OnInitDialog();
        if (!m_bFullScreen)
            MoveWindow(m_window);
        for (size_t i = 0; i < m_tops.size(); ++i)
            m_fields[i].Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP,
                               CRect(10, m_tops[i], 150, m_tops[i] + FIELD_HEIGHT), this,
                               static_cast<UINT>(10 + i));
        m_other.Create(L"", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(160, 5, 200, 25), this, 30);
        m_other.SetFocus();
        ShowWindow(SW_SHOW);
        return FALSE;
    }

    CRect WindowRect() const { return RectOf(m_hWnd); }
    CRect FieldRect(int nField) const { return RectOf(m_fields[nField]); }
    /// Whether the panel is there and the field stands clear of it, inside the dialog.
    bool IsClear(int nField) const {
        const CRect field = FieldRect(nField);
        CRect client;
        GetClientRect(client);
        ClientToScreen(client);
        return panel::IsVisible() && field.bottom <= panel::Place().top && field.top >= client.top;
    }

    // Steps of a script.
    Step Enter(int nField) {
        return [this, nField] { m_fields[nField].SetFocus(); };
    }
    Step Leave() {
        return [this] { m_other.SetFocus(); };
    }
    Step UntilClear(int nField) {
        return [this, nField] { return IsClear(nField); };
    }
    Step UntilAt(CRect place) {
        return [this, place] { return WindowRect() == place; };
    }
    /// Runs the steps, ends the dialog and closes the panel.
    void Run(std::initializer_list<Step> steps) {
        PlayAndEnd(*this, steps);
        panel::Close();
    }

    fx::PanelField m_fields[3];
    CButton m_other;

private:
    static inline const DialogTemplate s_template{100, 80, WS_POPUP | WS_CAPTION};

    CRect m_window;
    std::vector<int> m_tops;
};

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
    const auto expectJustEnough = [&](int nField) {
        EXPECT_GE(dialog.FieldRect(nField).bottom, panel::Place().top - 4) << "no more than needed";
        EXPECT_EQ(bar, RectOf(*dialog.m_pWndEmptyCB));
    };
    dialog.Run({enterFirst, UNTIL_SHOWN, lookAtFirst, dialog.UntilClear(2), [&] { expectJustEnough(2); },
                dialog.Enter(1),
                [&] { return dialog.IsClear(1) && dialog.FieldRect(1).bottom >= panel::Place().top - 4; },
                dialog.Leave(), [&] { return dialog.FieldRect(0) == home; },
                [] { EXPECT_FALSE(panel::IsVisible()); }});
}

TEST(FullScreenDialogAndPanel, FieldStaysUnderThePenUntilItIsLifted) {
    FieldDialog dialog(NO_PLACE, {20, 135}); // the panel leaves a strip of the second one
    CRect home;
    CPoint strip;
    const auto press = [&] {
        fx::PumpFor(100);
        home = dialog.FieldRect(1);
        strip = CPoint(home.CenterPoint().x, home.top + 4);
        ASSERT_LT(strip.y, panel::Place().top);
        pen::Down(strip);
    };
    const auto lift = [&] {
        fx::PumpFor(100);
        EXPECT_EQ(home, dialog.FieldRect(1));
        pen::Up(strip);
    };
    dialog.Run({dialog.Enter(0), UNTIL_SHOWN, press,
                [&] { return ::GetFocus() == dialog.m_fields[1].m_hWnd; }, lift, dialog.UntilClear(1)});
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
        dialog.Run({enter, dialog.UntilClear(0), look, dialog.Leave(), dialog.UntilAt(home),
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
            m_nClicks += LOWORD(wParam) == 30 && HIWORD(wParam) == BN_CLICKED ? 1 : 0;
            return FieldDialog::OnCommand(wParam, lParam);
        }
    };
    const CRect home(20, 110, 220, 220);
    Dialog dialog(home, {50});
    const auto lift = [&] {
        fx::PumpFor(150);
        EXPECT_NE(home, dialog.WindowRect());
        pen::Up(MiddleOf(dialog.m_other));
    };
    dialog.Run({dialog.Enter(0), dialog.UntilClear(0), [&] { pen::Down(MiddleOf(dialog.m_other)); },
                [&] { return ::GetFocus() == dialog.m_other.m_hWnd; }, lift, dialog.UntilAt(home)});
    EXPECT_EQ(1, dialog.m_nClicks);
}

TEST(PopupDialogAndPanel, OwnHandlerThatKeepsTheMessageKeepsTheDialog) {
    struct Dialog : FieldDialog {
        using FieldDialog::FieldDialog;
        bool m_bTold = false;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            if (message != WM_SETTINGCHANGE || wParam != SPI_SETSIPINFO)
                return FieldDialog::WindowProc(message, wParam, lParam);
            m_bTold = true;
            return 0;
        }
    };
    const CRect home(20, 150, 220, 250);
    Dialog dialog(home, {20});
    const auto look = [&] {
        fx::PumpFor(100);
        EXPECT_EQ(home, dialog.WindowRect());
    };
    dialog.Run({dialog.Enter(0), [&] { return dialog.m_bTold; }, look});
}

TEST(PopupDialogAndPanel, DialogThatOpensUnderTheOpenPanelMovesTooAndItsOwnerGoesBack) {
    const CRect ownerHome(20, 150, 220, 250);
    FieldDialog owner(ownerHome, {20}), popup(CRect(30, 160, 210, 240), {20}, &owner);
    owner.Run({owner.Enter(0), owner.UntilClear(0), [&] { popup.DoModal(); }, popup.Enter(0),
               popup.UntilClear(0),
               [&] { popup.EndDialog(IDCANCEL); }, // its field goes, the owner's takes over
               [&] { return owner.IsClear(0) && ::GetFocus() == owner.m_fields[0].m_hWnd; }, owner.Leave(),
               owner.UntilAt(ownerHome)});
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
