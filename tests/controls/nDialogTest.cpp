#include "controls/nDialog.h"

#include "support/TestApp.h"
#include "testkit/Picture.h"
#include "testkit/DialogTemplate.h"
#include "testkit/Pen.h"
#include "testkit/Steps.h"

using namespace testkit;

namespace {

constexpr int IDC_TEXT = 100, IDC_EDIT = 101;
constexpr COLORREF YELLOW = RGB(255, 255, 160);

/// A dialog of 60 x 40 units with a static text, an edit field and an OK button.
struct Dialog : CnDialog {
    explicit Dialog(DWORD dwOption, CWnd* pOwner = nullptr) : CnDialog(0, pOwner) {
        constexpr DWORD STYLE = WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME;
        m_template = DialogTemplate(60, 40, STYLE, L"題名");
        m_template.Add(WC_STATIC, L"M", IDC_TEXT, SS_LEFT, 2, 2, 20, 10);
        m_template.Add(WC_EDIT, L"", IDC_EDIT, WS_TABSTOP | ES_MULTILINE | ES_AUTOVSCROLL | ES_WANTRETURN, 2,
                       14, 40, 10);
        m_template.Add(WC_BUTTON, L"OK", IDOK, BS_DEFPUSHBUTTON | WS_TABSTOP, 2, 26, 30, 12);
        InitModalIndirect(m_template.Get(), pOwner);
        SetOption(dwOption);
    }

    CRect Rect() const { return RectOf(m_hWnd); }
    bool HasOkButton() const { return (GetExStyle() & WS_EX_CAPTIONOKBTN) != 0; }
    HWND Bar() const { return m_pWndEmptyCB != nullptr ? m_pWndEmptyCB->m_hWnd : nullptr; }

private:
    DialogTemplate m_template;
};

TEST(nDialog, OptionsDecideScreenTitleBarAndVisibility) {
    constexpr DWORD OK = CnDialog::OptionOkButton, POPUP = CnDialog::OptionPopup;
    constexpr DWORD NO_BAR = CnDialog::OptionNoCommandBar, HIDDEN = CnDialog::OptionHidden;
    constexpr DWORD LARGE_BAR = CnDialog::OptionBarButtonSize;
    const Rows<DWORD, bool, bool, bool> rows = {
        {0, true, false, true},
        {LARGE_BAR, true, false, true},
        {OK, true, true, true},
        {POPUP, false, false, false},
        {POPUP | OK | NO_BAR, false, true, false},
        {OK | NO_BAR | HIDDEN, true, true, false},
        {POPUP | HIDDEN, false, false, false},
    };
    for (const auto& [options, full, okButton, bar] : rows) {
        Dialog dlg(options & ~OK);
        dlg.SetOption(options & OK); // they add up
        EXPECT_EQ(full, dlg.m_bFullScreen != FALSE) << "known before the window is made";
        dlg.m_hIcon = ::LoadIcon(nullptr, IDI_INFORMATION);
        WhileOpen(dlg, [&] {
            EXPECT_EQ(dlg.GetIcon(TRUE), dlg.m_hIcon);
            EXPECT_EQ(dlg.GetIcon(FALSE), dlg.m_hIcon);
            EXPECT_EQ(full, dlg.Rect() == Screen()) << options;
            EXPECT_EQ(full, (dlg.GetStyle() & WS_MAXIMIZEBOX) != 0) << options;
            EXPECT_EQ(okButton, dlg.HasOkButton()) << options;
            EXPECT_TRUE(dlg.GetExStyle() & WS_EX_DLGMODALFRAME) << options;
            EXPECT_EQ(bar, dlg.Bar() != nullptr) << options;
            const bool bLarge = LOWORD(::SendMessage(dlg.Bar(), TB_GETBUTTONSIZE, 0, 0)) == 32;
            EXPECT_EQ(options == LARGE_BAR, bLarge) << options;
            EXPECT_EQ((options & HIDDEN) == 0, dlg.IsWindowVisible() != FALSE) << options;
        });
    }
}

TEST(nDialog, SwallowsEnterAndEscapeOnlyWhenAsked) {
    const DWORD dwSwallow = CnDialog::OptionSwallowKeys;
    const Rows<DWORD, WORD, INT_PTR> rows = {{0, VK_RETURN, IDOK},
                                             {0, VK_ESCAPE, IDCANCEL},
                                             {dwSwallow, VK_RETURN, 77},
                                             {dwSwallow, VK_ESCAPE, 77}};
    for (const auto& [option, key, result] : rows) {
        Dialog dlg(CnDialog::OptionPopup | option);
        const auto focus = [&, nID = option == 0 ? IDOK : IDC_EDIT] { dlg.GetDlgItem(nID)->SetFocus(); };
        const auto end = [&] {
            EXPECT_EQ(L"", TextOf(*dlg.GetDlgItem(IDC_EDIT))) << "not the field's either";
            dlg.EndDialog(77);
        };
        EXPECT_EQ(result, result == 77 ? Play(dlg, {focus, Press({key}), [] {}, end})
                                       : Play(dlg, {focus, Press({key})}))
            << option << ' ' << key;
    }
}

TEST(nDialog, ClosingTakesTheCancelPathOfDerivedDialogs) {
    struct Asking : Dialog {
        using Dialog::Dialog;
        void OnCancel() override { EndDialog(77); }
    } dlg(CnDialog::OptionPopup);
    EXPECT_EQ(77, Play(dlg, {Close(dlg)}));
}

TEST(nDialog, BackgroundColourReachesSurfaceAndStaticsButNotEdits) {
    Dialog dlg(CnDialog::OptionPopup);
    for (const COLORREF color : {YELLOW, RGB(160, 255, 255)}) { // the same object may be shown again
        dlg.SetBKColor(color);
        WhileOpen(dlg, [&] {
            const Picture surface = Picture::Of(dlg), text = Picture::Of(*dlg.GetDlgItem(IDC_TEXT));
            EXPECT_EQ(color, surface.At(surface.Size().cx - 2, surface.Size().cy - 2));
            EXPECT_EQ(color, text.At(text.Size().cx - 3, text.Size().cy - 3));
            EXPECT_FALSE(text.Has(text.Rect(), ::GetSysColor(COLOR_BTNFACE))) << "nor around the letters";
            const Picture edit = Picture::Of(*dlg.GetDlgItem(IDC_EDIT));
            EXPECT_EQ(::GetSysColor(COLOR_WINDOW), edit.At(edit.Size().cx - 3, edit.Size().cy - 3));
        });
    }
}

/// Sends a press, a move and a release, all as client points of the dialog as it stands.
void DragBy(Dialog& dlg, CSize offset) {
    const CPoint press(10, 10), end = press + offset;
    dlg.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(press.x, press.y));
    dlg.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(end.x, end.y));
    dlg.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(end.x, end.y));
}

TEST(nDialog, DragKeepsTheFrameInReach) {
    Frame owner(CSize(200, 200)); // its coordinates have no part in it
    const CSize size(140, 100);
    constexpr DWORD DRAG = CnDialog::OptionDrag;
    const Rows<const char*, DWORD, CPoint, CPoint, CPoint> rows = {
        {"free", DRAG, {20, 40}, {60, 90}, {60, 90}},
        {"top", DRAG, {20, 40}, {20, 10}, {20, 26}},
        {"top edge itself", DRAG, {20, 40}, {20, 26}, {20, 26}},
        {"bottom", DRAG, {20, 40}, {20, 250}, {20, 194}},
        {"left", DRAG, {20, 40}, {-5, 40}, {0, 40}},
        {"hanging out at the right stays", DRAG, {20, 40}, {230, 40}, {230, 40}},
        {"left edge on the border stays", DRAG, {20, 40}, {240, 40}, {240, 40}},
        {"gone at the right comes back whole", DRAG, {20, 40}, {250, 40}, {100, 40}},
        {"without the option", 0, {20, 40}, {60, 90}, {20, 40}},
    };
    for (const auto& [what, option, from, to, stands] : rows) {
        Dialog dlg(CnDialog::OptionPopup | option, &owner);
        WhileOpen(dlg, [&] {
            dlg.MoveWindow(CRect(from, size));
            DragBy(dlg, to - from);
            EXPECT_EQ(dlg.Rect(), CRect(stands, size)) << what;
            EXPECT_NE(::GetCapture(), dlg.m_hWnd) << what;
        });
    }
}

/// Opens at a place of its own, so that what is beside it is never covered.
struct PlacedDialog : Dialog {
    inline static const CRect PLACE{60, 60, 200, 160};

    using Dialog::Dialog;

protected:
    BOOL OnInitDialog() override { return CnDialog::OnInitDialog(), MoveWindow(PLACE), TRUE; }
};

/// Whether the left edge of the screen shows nothing but the window behind: a frame crosses it
/// on its way, no window does.
bool EdgeIsBlank() {
    return Picture::OfScreen().IsAll(CRect(0, 0, 18, Screen().bottom), ::GetSysColor(COLOR_WINDOW));
}

TEST(nDialog, PenDragsTheDialogAndLeavesNoTraceOfTheFrame) {
    const auto openAnother = [](Dialog& dlg) {
        PlacedDialog child(CnDialog::OptionPopup, &dlg);
        WhileOpen(child, [] {});
    };
    const struct {
        const char* what;
        void (*interrupt)(Dialog&); ///< What comes in between before the pen is lifted.
        CSize moved;
    } rows[] = {{"nothing", [](Dialog&) {}, {-40, 60}},
                {"capture lost", [](Dialog&) { ::ReleaseCapture(); }, {0, 0}},
                {"cancelled", [](Dialog& dlg) { dlg.SendMessage(WM_CANCELMODE); }, {0, 0}},
                {"another dialog", openAnother, {0, 0}}};
    const CPoint press = PlacedDialog::PLACE.CenterPoint();
    Frame background; // the desktop draws itself in its own time
    background.MoveWindow(Screen());
    bool bSeen = false; // in one row is enough: the screen may be drawn over at any time
    for (const auto& row : rows) {
        PlacedDialog dlg(CnDialog::OptionPopup | CnDialog::OptionDrag, &background);
        const auto drag = [&] {
            pen::Down(press);
            pen::Move(press + CSize(-50, 40));
        };
        const auto interrupt = [&] {
            bSeen = bSeen || !EdgeIsBlank();
            row.interrupt(dlg);
        };
        const auto lift = [&] {
            EXPECT_TRUE(EdgeIsBlank() || row.moved != CSize()) << row.what;
            pen::Up(press + CSize(-40, 60));
            pen::Move(press + CSize(-60, 50)); // without contact
        };
        const auto look = [&] {
            EXPECT_EQ(PlacedDialog::PLACE + row.moved, dlg.Rect()) << row.what;
            EXPECT_TRUE(EdgeIsBlank()) << row.what;
            dlg.EndDialog(IDOK);
        };
        Play(dlg, {EdgeIsBlank, drag, interrupt, [&] { pen::Move(press + CSize(-55, 50)); }, lift, look});
    }
    EXPECT_TRUE(bSeen);
}

TEST(nDialog, ChildIsDraggedWithinItsParent) {
    Frame parent;
    Dialog dlg(CnDialog::OptionPopup | CnDialog::OptionDrag, &parent);
    WhileOpen(dlg, [&] {
        dlg.ModifyStyle(WS_POPUP, WS_CHILD);
        dlg.SetParent(&parent);
        dlg.MoveWindow(5, 5, 100, 80);
        const CRect home = dlg.Rect();
        DragBy(dlg, CSize(10, 20));
        EXPECT_EQ(home + CPoint(10, 20), dlg.Rect());
    });
}

TEST(nDialog, LiftWithoutAPressGoesToTheStoredFrameIfThereIsOne) {
    const CRect home(CPoint(20, 60), CSize(140, 100));
    Dialog dlg(CnDialog::OptionPopup | CnDialog::OptionDrag);
    WhileOpen(dlg, [&] {
        const auto lift = [&] {
            dlg.MoveWindow(home);
            dlg.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(30, 30));
            return dlg.Rect();
        };
        EXPECT_EQ(lift(), home) << "never dragged";
        DragBy(dlg, CSize(30, 40));
        EXPECT_EQ(lift(), home + CPoint(30, 40));
        dlg.MoveWindow(home + CSize(5, 5));
        dlg.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, 0);
        dlg.SendMessage(WM_LBUTTONUP);
        EXPECT_EQ(home + CSize(5, 5), dlg.Rect()) << "a tap";
        Dialog child(CnDialog::OptionPopup, &dlg);
        WhileOpen(child, [] {});
        dlg.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(90, 90));
        EXPECT_EQ(lift(), home) << "the pen came down on the child";
    });
}

} // namespace
