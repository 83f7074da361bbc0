// What full-screen dialogs do with more room than they need, with less, and with another screen.
#include "support/TestApp.h"
#include "testkit/Pen.h"
#include "testkit/Script.h"

#include "controls/nDialog.h"

#include <functional>

using namespace testkit;

namespace {

const CSize DEVICE_CLIENT(240, 320 - AFX_DEVICE_BAR_HEIGHT);

struct Dialog : CnDialog {
    using Init = std::function<void(Dialog&)>;

    explicit Dialog(UINT nTemplate = 210, Init before = {}, Init after = {})
        : CnDialog(nTemplate, nullptr), m_before(std::move(before)), m_after(std::move(after)) {}
    BOOL OnInitDialog() override {
        if (m_before)
            m_before(*this);
        CnDialog::OnInitDialog();
        if (m_after)
            m_after(*this);
        return TRUE;
    }
    /// In client coordinates.
    CRect RectOf(int nID) const {
        CRect rect;
        GetDlgItem(nID)->GetWindowRect(rect);
        ScreenToClient(rect);
        return rect;
    }
    /// How much wider and higher than the device's this screen is.
    CSize Spare() const {
        CRect client;
        GetClientRect(client);
        return CSize(std::max<int>(client.Width() - AfxScale(m_hWnd, DEVICE_CLIENT.cx), 0),
                     std::max<int>(client.Height() - AfxScale(m_hWnd, DEVICE_CLIENT.cy), 0));
    }
    bool HasScrollBar() const {
        const CWnd* const pBar = GetScrollBar();
        return pBar != nullptr && pBar->IsWindowVisible();
    }
    CWnd* GetScrollBar() const { return FromHandle(::FindWindowEx(m_hWnd, nullptr, WC_SCROLLBAR, nullptr)); }
    void NoteHomes() {
        for (int nID = 100; nID <= 105; ++nID)
            m_homes[nID - 100] = RectOf(nID);
    }
    CRect HomeOf(int nID) const { return m_homes[nID - 100]; }
    void ExpectHomes() const {
        for (int nID = 100; nID <= 105; ++nID)
            EXPECT_EQ(HomeOf(nID), RectOf(nID)) << nID;
    }
    /// Free ground in the middle of template 211, on the screen.
    CPoint Ground() const { return MiddleOf(m_hWnd) + CSize(AfxScale(m_hWnd, 20), 0); }

    // Steps of a script.
    Step UntilScrollable() {
        return [this] { return HasScrollBar(); };
    }
    Step Focus(int nID) {
        return [this, nID] { GotoDlgCtrl(GetDlgItem(nID)); };
    }
    /// Until a control can be seen between the bars.
    Step UntilSeen(int nID) {
        return [this, nID] {
            CRect client;
            GetClientRect(client);
            if (m_pWndEmptyCB != nullptr)
                client.bottom -= AfxScale(m_hWnd, AFX_DEVICE_BAR_HEIGHT);
            return RectOf(nID).top >= 0 && RectOf(nID).bottom <= client.bottom;
        };
    }

private:
    Init m_before, m_after;
    CRect m_homes[6];
};

TEST(Anchor, SharesOutWhatTheScreenHasMoreAndNothingElseMoves) {
    struct Row {
        int nID;
        AFX_ANCHOR anchor;
    };
    constexpr Row ROWS[] = {{101, {50, 0, 100, 0}},
                            {102, {0, 0, 100, 100}},
                            {103, {0, 100, 50, 100}},
                            {104, {50, 100, 100, 100}},
                            {105, {100, 100, 100, 100}}};
    const auto anchor = [&](Dialog& dialog) {
        for (const auto& [nID, a] : ROWS)
            EXPECT_TRUE(dialog.Anchor(nID, a.nLeft, a.nTop, a.nRight, a.nBottom));
    };
    const auto homesAndAnchors = [&](Dialog& dialog) { dialog.NoteHomes(), anchor(dialog); };
    const auto twice = [&](Dialog& dialog) {
        dialog.NoteHomes();
        for (const auto& row : ROWS)
            dialog.Anchor(row.nID, 100, 0, 100, 0);
        anchor(dialog);
    };
    Dialog before(210, homesAndAnchors), after(210, {}, homesAndAnchors), again(210, {}, twice);
    EXPECT_FALSE(before.Anchor(100, 0, 0, 100, 100)) << "without a window";
    for (Dialog* const pDialog : {&before, &after, &again})
        WhileOpen(*pDialog, [&] {
            EXPECT_FALSE(pDialog->Anchor(999, 0, 0, 100, 100));
            if (pDialog->HasScrollBar())
                return; // a lower screen: what it has more in width is the next test's
            const CSize spare = pDialog->Spare();
            EXPECT_EQ(pDialog->HomeOf(100), pDialog->RectOf(100)) << "without an anchor";
            for (const auto& [nID, a] : ROWS) {
                CRect wanted = pDialog->HomeOf(nID);
                wanted.left += spare.cx * a.nLeft / 100;
                wanted.right += spare.cx * a.nRight / 100;
                wanted.top += spare.cy * a.nTop / 100;
                wanted.bottom += spare.cy * a.nBottom / 100;
                EXPECT_EQ(wanted, pDialog->RectOf(nID)) << nID;
            }
        });
}

TEST(Anchor, ControlThatIsDestroyedOrMovedByTheProgramDoesNoHarm) {
    Dialog dialog(210, {}, [](Dialog& d) {
        d.Anchor(102, 0, 0, 100, 100);
        d.Anchor(103, 0, 100, 0, 100);
        d.GetDlgItem(102)->DestroyWindow();
    });
    WhileOpen(dialog, [&] {
        const CRect place(5, 6, 70, 30);
        dialog.GetDlgItem(103)->MoveWindow(place);
        dialog.SendMessage(WM_SIZE, SIZE_RESTORED, 0);
        EXPECT_EQ(place, dialog.RectOf(103));
    });
}

TEST(DialogThatIsTooHigh, ScrollsByPenAndKeepsTheFocusedFieldInView) {
    Dialog dialog(211);
    const auto tapDown = [&] {
        const CRect bar = testkit::RectOf(*dialog.GetScrollBar());
        pen::Tap(CPoint(bar.CenterPoint().x, bar.bottom - 4));
    };
    CRect bar, toolbar;
    const auto look = [&] {
        bar = testkit::RectOf(*dialog.GetScrollBar());
        toolbar = testkit::RectOf(*dialog.m_pWndEmptyCB);
    };
    const auto expectBarsInPlace = [&] {
        EXPECT_EQ(bar, testkit::RectOf(*dialog.GetScrollBar()));
        EXPECT_EQ(toolbar, testkit::RectOf(*dialog.m_pWndEmptyCB));
    };
    PlayAndEnd(dialog,
               {dialog.UntilScrollable(), look, dialog.Focus(102), dialog.UntilSeen(102), expectBarsInPlace,
                dialog.Focus(100), dialog.UntilSeen(100), tapDown, [&] { return dialog.RectOf(100).top < 0; },
                expectBarsInPlace, dialog.Focus(101), dialog.UntilSeen(101)});
}

TEST(DialogThatIsTooHigh, IsDraggedByItsGround) {
    constexpr int FAR_ENOUGH = 50;
    Dialog dialog(211);
    CPoint ground;
    int nHome = 0;
    const auto drag = [&](CPoint from, int nUp) { pen::Drag(from, from - CSize(0, nUp)); };
    const auto untilScrolled = [&](int nUp) {
        return [&dialog, &nHome, nUp] { return dialog.RectOf(100).top == nHome - nUp; };
    };
    const auto tapAndDragLittle = [&] {
        pen::Tap(ground);
        drag(ground, ::GetSystemMetrics(SM_CYDRAG));
    };
    const auto dragField = [&] { drag(MiddleOf(*dialog.GetDlgItem(100)), -FAR_ENOUGH); };
    const auto take = [&] {
        pen::Down(ground);
        pen::Move(ground - CSize(0, FAR_ENOUGH));
    };
    const auto lose = [&] {
        EXPECT_EQ(dialog.m_hWnd, ::GetCapture());
        ::ReleaseCapture();
        pen::Move(ground);
        pen::Up(ground);
    };
    PlayAndEnd(dialog,
               {dialog.UntilScrollable(), [&] { ground = dialog.Ground(), nHome = dialog.RectOf(100).top; },
                tapAndDragLittle, [&] { EXPECT_EQ(nHome, dialog.RectOf(100).top); }, dragField,
                [&] { EXPECT_EQ(nHome, dialog.RectOf(100).top); }, [&] { drag(ground, FAR_ENOUGH); },
                untilScrolled(FAR_ENOUGH), [&] { EXPECT_EQ(nullptr, ::GetCapture()); },
                [&] { drag(ground, -1000); }, untilScrolled(0), take, untilScrolled(FAR_ENOUGH), lose,
                [&] { EXPECT_EQ(nHome - FAR_ENOUGH, dialog.RectOf(100).top); }});
}

TEST(DialogThatIsTooHigh, IsLetGoByWhateverComesBetween) {
    /// Keeps the pen's lift for itself.
    struct Keeper : Dialog {
        using Dialog::Dialog;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            return message == WM_LBUTTONUP ? 0 : Dialog::WindowProc(message, wParam, lParam);
        }
    };
    Keeper dialog(211);
    Dialog other(210, {}, {});
    const auto press = [&] {
        pen::Down(dialog.Ground());
        pen::Move(dialog.Ground() - CSize(0, 20));
    };
    const Step captured = [&] { return ::GetCapture() == dialog.m_hWnd; };
    const Step free = [] { return ::GetCapture() == nullptr; };
    const auto lift = [&] { pen::Up(dialog.Ground()); };
    PlayAndEnd(dialog, {dialog.UntilScrollable(), press, captured, lift, free, press, captured,
                        [&] { other.DoModal(); }, free, [&] { other.EndDialog(IDOK); }, lift, free});
    Dialog destroyed(211);
    Play([&] { return destroyed.DoModal(); },
         {destroyed.UntilScrollable(), [&] { pen::Down(destroyed.Ground()); },
          [&] { return ::GetCapture() == destroyed.m_hWnd; }, [&] { destroyed.DestroyWindow(); }});
    EXPECT_EQ(nullptr, ::GetCapture());
    pen::Up(CPoint(0, 0));
}

TEST(PopupThatIsTooHigh, IsCutToTheScreenAndScrolls) {
    Dialog dialog(211);
    dialog.SetOption(CnDialog::OptionPopup);
    const auto look = [&] {
        const CRect place = testkit::RectOf(dialog), area = WorkArea();
        EXPECT_EQ(area & place, place);
        EXPECT_EQ(area.Height(), place.Height());
        dialog.SendMessage(WM_DISPLAYCHANGE, 32, 0);
        EXPECT_EQ(place, testkit::RectOf(dialog));
    };
    const auto drag = [&] { pen::Drag(dialog.Ground(), dialog.Ground() - CSize(0, 60)); };
    const auto makeLower = [&] {
        dialog.SetWindowPos(nullptr, 0, 0, 200, 100, SWP_NOMOVE | SWP_NOZORDER);
        dialog.SendMessage(WM_DISPLAYCHANGE, 32, 0);
        EXPECT_EQ(CSize(200, 100), testkit::RectOf(dialog).Size());
        EXPECT_FALSE(dialog.HasScrollBar()) << "what a program hides by its size stays hidden";
    };
    PlayAndEnd(dialog,
               {dialog.UntilScrollable(), look, dialog.Focus(102), dialog.UntilSeen(102), dialog.Focus(100),
                dialog.UntilSeen(100), drag, [&] { return dialog.RectOf(100).bottom < 0; }, makeLower});
}

TEST(AnotherScreen, IsCoveredAndAllThereIsScaledAndKeepsWhatTheUserHasDone) {
    Dialog dialog(210, {}, [](Dialog& d) { d.Anchor(102, 0, 0, 100, 100); });
    WhileOpen(dialog, [&] {
        auto& edit = *static_cast<CEdit*>(dialog.GetDlgItem(100));
        auto& list = *static_cast<CListBox*>(dialog.GetDlgItem(102));
        edit.SetWindowText(L"K12");
        list.AddString(L"a");
        list.SetCurSel(list.AddString(L"b"));
        edit.SetFocus();
        edit.SetSel(1, 2);
        dialog.NoteHomes();
        const CRect screen = WorkArea();
        for (const CSize other :
             {CSize(screen.Height(), screen.Width()), CSize(2000, 2000), CSize(100, 60)}) {
            dialog.SetWindowPos(nullptr, 0, 0, other.cx, other.cy, SWP_NOZORDER); // as it was before
            dialog.SendMessage(WM_DISPLAYCHANGE, 32, MAKELPARAM(screen.Width(), screen.Height()));
            EXPECT_EQ(screen, testkit::RectOf(dialog));
            dialog.ExpectHomes();
        }
        const int nDpi = AfxGetDpi(dialog);
        const CRect window = testkit::RectOf(dialog);
        const auto change = [&](int n, LPARAM lParam) {
            dialog.SendMessage(WM_DPICHANGED, MAKEWPARAM(n, n), lParam);
        };
        change(0, 0);
        EXPECT_EQ(nDpi, AfxGetDpi(dialog));
        change(0xFFFF, 0);
        EXPECT_GT(1000, AfxGetDpi(dialog));
        change(nDpi, 0);
        dialog.ExpectHomes();
        change(2 * nDpi, reinterpret_cast<LPARAM>(&window));
        EXPECT_EQ(2 * nDpi, AfxGetDpi(dialog));
        EXPECT_EQ(CSize(2 * dialog.HomeOf(103).Width(), 2 * dialog.HomeOf(103).Height()),
                  dialog.RectOf(103).Size());
        EXPECT_EQ(screen, testkit::RectOf(dialog));
        CRect client;
        dialog.GetClientRect(client);
        EXPECT_EQ(window.Height() - AfxScale(dialog, AFX_DEVICE_BAR_HEIGHT), client.Height());
        EXPECT_EQ(L"K12", TextOf(edit));
        EXPECT_EQ(MAKELONG(1, 2), static_cast<LONG>(edit.SendMessage(EM_GETSEL)));
        EXPECT_EQ(1, list.GetCurSel());
        EXPECT_EQ(&edit, CWnd::GetFocus());
        EXPECT_EQ(nDpi, AfxGetDpi(nullptr)) << "of this dialog only";
    });
}

} // namespace
