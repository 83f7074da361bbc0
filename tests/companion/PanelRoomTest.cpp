// Dialogs keep the field into which the user types clear of the soft input panel.
#include "support/PanelPen.h"
#include "support/DialogTemplate.h"
#include "support/ModalScript.h"

#include "controls/nDialog.h"

namespace {

constexpr int FIELD_HEIGHT = 20;

/// A dialog of the library with fields at given heights.
class FieldDialog : public CnDialog {
public:
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

    CRect WindowRect() const {
        CRect rect;
        GetWindowRect(rect);
        return rect;
    }
    CRect FieldRect(int nField) const {
        CRect rect;
        m_fields[nField].GetWindowRect(rect);
        return rect;
    }
    /// Whether the panel is there and the field stands clear of it, inside the dialog.
    bool IsClear(int nField) const {
        const CRect field = FieldRect(nField);
        CRect client;
        GetClientRect(client);
        ClientToScreen(client);
        return panel::IsVisible() && field.bottom <= panel::Place().top && field.top >= client.top;
    }

    panel::Field m_fields[4];
    CButton m_other;

private:
    static inline const fx::DialogTemplate s_template{100, 80, WS_POPUP | WS_CAPTION};

    CRect m_window;
    std::vector<int> m_tops;
};

/// Runs the dialog with the script; the panel is closed afterwards.
void RunDialog(CDialog& dialog, fx::ModalScript& script) {
    script.Then([&] { dialog.EndDialog(IDOK); });
    EXPECT_EQ(script.Run([&] { return dialog.DoModal(); }), IDOK);
    panel::Close();
}

TEST(FullScreenDialogAndPanel, ScrollsByJustEnoughAndBack) {
    FieldDialog dialog({}, {20, 150, 230});
    CRect home;
    CRect bar;
    fx::ModalScript script;
    script
        .Then([&] {
            home = dialog.FieldRect(0);
            dialog.m_pWndEmptyCB->GetWindowRect(bar);
            dialog.m_fields[0].SetFocus(); // not covered
        })
        .Until([&] { return panel::IsVisible(); })
        .Then([&] {
            panel::PumpFor(100);
            EXPECT_EQ(dialog.FieldRect(0), home);
            dialog.m_fields[2].SetFocus();
        })
        .Until([&] { return dialog.IsClear(2); })
        .Then([&] {
            EXPECT_GE(dialog.FieldRect(2).bottom, panel::Place().top - 4) << "no more than needed";
            CRect barNow;
            dialog.m_pWndEmptyCB->GetWindowRect(barNow);
            EXPECT_EQ(barNow, bar);
            dialog.m_fields[1].SetFocus();
        })
        .Until([&] { return dialog.FieldRect(1).bottom >= panel::Place().top - 4; })
        .Then([&] {
            EXPECT_TRUE(dialog.IsClear(1));
            dialog.m_other.SetFocus();
        })
        .Until([&] { return dialog.FieldRect(0) == home; })
        .Then([&] { EXPECT_FALSE(panel::IsVisible()); });
    RunDialog(dialog, script);
}

TEST(FullScreenDialogAndPanel, FieldStaysUnderThePenUntilItIsLifted) {
    FieldDialog dialog({}, {20, 135}); // the panel leaves a strip of the second one
    CRect home;
    fx::ModalScript script;
    script.Then([&] { dialog.m_fields[0].SetFocus(); })
        .Until([] { return panel::IsVisible(); })
        .Then([&] {
            panel::PumpFor(100);
            home = dialog.FieldRect(1);
            ASSERT_LT(home.top + 4, panel::Place().top);
            pen::Down(CPoint(home.CenterPoint().x, home.top + 4));
        })
        .Until([&] { return ::GetFocus() == dialog.m_fields[1].m_hWnd; })
        .Then([&] {
            panel::PumpFor(100);
            EXPECT_EQ(dialog.FieldRect(1), home);
            pen::Up(CPoint(home.CenterPoint().x, home.top + 4));
        })
        .Until([&] { return dialog.IsClear(1); });
    RunDialog(dialog, script);
}

TEST(PopupDialogAndPanel, MovesUpWithItsButtonsAndBack) {
    const CRect home(20, 110, 220, 220);
    FieldDialog dialog(home, {50});
    fx::ModalScript script;
    script.Then([&] { dialog.m_fields[0].SetFocus(); })
        .Until([&] { return dialog.IsClear(0); })
        .Then([&] {
            EXPECT_EQ(dialog.WindowRect().bottom, panel::Place().top) << "all of it is clear";
            EXPECT_EQ(dialog.WindowRect().Size(), home.Size());
            dialog.m_other.SetFocus();
        })
        .Until([&] { return dialog.WindowRect() == home; });
    RunDialog(dialog, script);
}

TEST(PopupDialogAndPanel, TooTallForTheRoomScrollsTheRest) {
    const CRect home(20, 30, 220, 290);
    FieldDialog dialog(home, {10, 190});
    CRect field;
    fx::ModalScript script;
    script
        .Then([&] {
            field = dialog.FieldRect(1);
            dialog.m_fields[1].SetFocus();
        })
        .Until([&] { return dialog.IsClear(1); })
        .Then([&] {
            EXPECT_EQ(dialog.WindowRect().top, 0) << "not beyond the work area";
            EXPECT_EQ(dialog.WindowRect().Height(), home.Height());
            dialog.m_other.SetFocus();
        })
        .Until([&] { return dialog.WindowRect() == home && dialog.FieldRect(1) == field; });
    RunDialog(dialog, script);
}

TEST(PopupDialogAndPanel, StaysWhereTheUserPutsItMeanwhile) {
    FieldDialog dialog(CRect(20, 150, 220, 250), {20});
    const CRect place(30, 40, 230, 140);
    fx::ModalScript script;
    script.Then([&] { dialog.m_fields[0].SetFocus(); })
        .Until([&] { return dialog.IsClear(0); })
        .Then([&] {
            dialog.MoveWindow(place);
            dialog.m_other.SetFocus();
        })
        .Until([] { return !panel::IsVisible(); })
        .Then([&] {
            panel::PumpFor(100);
            EXPECT_EQ(dialog.WindowRect(), place);
        });
    RunDialog(dialog, script);
}

TEST(PopupDialogAndPanel, ButtonOfAMovedDialogIsClickedBeforeItGoesBack) {
    class Dialog : public FieldDialog {
    public:
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
    fx::ModalScript script;
    script.Then([&] { dialog.m_fields[0].SetFocus(); })
        .Until([&] { return dialog.IsClear(0); })
        .Then([&] { pen::Down(pen::Middle(dialog.m_other)); })
        .Until([&] { return ::GetFocus() == dialog.m_other.m_hWnd; })
        .Then([&] {
            panel::PumpFor(150);
            EXPECT_NE(dialog.WindowRect(), home);
            pen::Up(pen::Middle(dialog.m_other));
        })
        .Until([&] { return dialog.WindowRect() == home; });
    RunDialog(dialog, script);
    EXPECT_EQ(dialog.m_nClicks, 1);
}

TEST(PopupDialogAndPanel, OwnHandlerThatKeepsTheMessageKeepsTheDialog) {
    class Dialog : public FieldDialog {
    public:
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
    fx::ModalScript script;
    script.Then([&] { dialog.m_fields[0].SetFocus(); }).Until([&] { return dialog.m_bTold; }).Then([&] {
        panel::PumpFor(100);
        EXPECT_EQ(dialog.WindowRect(), home);
    });
    RunDialog(dialog, script);
}

TEST(PopupDialogAndPanel, DialogThatOpensUnderTheOpenPanelMovesTooAndItsOwnerGoesBack) {
    const CRect ownerHome(20, 150, 220, 250);
    FieldDialog owner(ownerHome, {20});
    FieldDialog popup(CRect(30, 160, 210, 240), {20}, &owner);
    fx::ModalScript script;
    script.Then([&] { owner.m_fields[0].SetFocus(); })
        .Until([&] { return owner.IsClear(0); })
        .Then([&] { popup.DoModal(); })
        .Then([&] { popup.m_fields[0].SetFocus(); })
        .Until([&] { return popup.IsClear(0); })
        .Then([&] { popup.EndDialog(IDCANCEL); }) // its field goes, the owner's takes over
        .Until([&] { return owner.IsClear(0) && ::GetFocus() == owner.m_fields[0].m_hWnd; })
        .Then([&] { owner.m_other.SetFocus(); })
        .Until([&] { return owner.WindowRect() == ownerHome; });
    RunDialog(owner, script);
}

TEST(PanelSwitch, ShowsAndHidesWhatIsReallyThereEvenBelowADialog) {
    FieldDialog main({}, {20});
    FieldDialog popup(CRect(20, 40, 220, 140), {20}, &main);
    const auto tapSwitch = [&main] {
        CRect bar;
        main.m_pWndEmptyCB->GetWindowRect(bar);
        pen::Tap(CPoint(bar.right - 14, bar.CenterPoint().y));
    };
    fx::ModalScript script;
    script
        .Then([&] { main.m_fields[0].SetFocus(); }) // the field has brought the panel already
        .Until([] { return panel::IsVisible(); })
        .Then(tapSwitch)
        .Until([] { return !panel::IsVisible(); })
        .Then(tapSwitch)
        .Until([] { return panel::IsVisible(); })
        .Then([&] { main.m_other.SetFocus(); })
        .Until([] { return !panel::IsVisible(); })
        .Then([&] { popup.DoModal(); })
        .Then([&] {
            EXPECT_FALSE(main.IsWindowEnabled());
            tapSwitch();
        })
        .Until([] { return panel::IsVisible(); })
        .Then([&] {
            EXPECT_EQ(::GetActiveWindow(), popup.m_hWnd);
            tapSwitch();
        })
        .Until([] { return !panel::IsVisible(); })
        .Then([&] { popup.EndDialog(IDCANCEL); });
    RunDialog(main, script);
}

} // namespace
