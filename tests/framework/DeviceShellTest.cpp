// What the device's shell does for windows: the OK button in the title bar, gestures. Full screen and the
// command bar are in tests/controls and tests/companion.
#include "support/TestApp.h"
#include "testkit/Drive.h"
#include "testkit/Form.h"
#include "testkit/Pen.h"
#include "testkit/Program.h"
#include "testkit/TitleBar.h"

using namespace testkit;

namespace {

TEST(PopupDialog, HasAnOkButtonOnlyWithTheExtendedStyle) {
    fx::Form dialog;
    const auto leave = [&] {
        EXPECT_LT(RectOf(dialog).Height(), WorkArea().Height());
        EXPECT_EQ(nullptr, dialog.m_pWndEmptyCB);
        EXPECT_EQ(-1, FindOkButton(dialog).x);
        EXPECT_TRUE(dialog.ModifyStyleEx(0, WS_EX_CAPTIONOKBTN));
        EXPECT_NE(0U, dialog.GetExStyle() & WS_EX_CAPTIONOKBTN);
        EXPECT_EQ(0U, static_cast<DWORD>(::GetWindowLong(dialog, GWL_EXSTYLE)) & WS_EX_CAPTIONOKBTN)
            << "the desktop must not see it";
        const CPoint button = FindOkButton(dialog);
        pen::Drag(button, button + CPoint(0, 60));
    };
    const auto tap = [&] {
        ASSERT_NE(nullptr, dialog.m_hWnd) << "a pen that has left the button does nothing";
        TapOk(dialog);
    };
    EXPECT_EQ(IDOK, Play(dialog, {leave, tap}));
}

TEST(TitleBarOk, FieldIsLeftBeforeAndEnteredAgainIfTheDialogStays) {
    using fx::Form;
    // What the handler of OK does, and where the focus is then; 0 if the dialog is over.
    const Rows<const char*, std::function<void(Form&)>, const char*, int> rows = {
        {"stays", [](Form&) {}, "left ok entered ", Form::FIELD},
        {"ends", [](Form& f) { f.EndDialog(8); }, "left ok ", 0},
        {"is destroyed", [](Form& f) { f.DestroyWindow(); }, "left ok ", 0},
        {"goes elsewhere", [](Form& f) { ::SetFocus(f.Item(Form::EDIT)); }, "left ok ", Form::EDIT},
        {"asks", [](Form&) { Play([] { return AfxMessageBox(L"?"); }, {[] { TypeKeys({VK_RETURN}); }}); },
         "left ok entered ", Form::FIELD},
    };
    for (const auto& [pszOk, act, pszLog, nFocus] : rows) {
        SCOPED_TRACE(pszOk);
        std::string log;
        Form form;
        form.m_bFullScreen = TRUE;
        form.m_onMessage = [&](UINT message, WPARAM wParam) {
            if (message == WM_COMMAND && wParam == MAKEWPARAM(Form::FIELD, EN_KILLFOCUS))
                log += "left ";
            if (message == WM_COMMAND && wParam == MAKEWPARAM(Form::FIELD, EN_SETFOCUS))
                log += "entered ";
        };
        form.m_onOk = [&, &does = act] {
            log += "ok ";
            does(form);
        };
        Script script;
        script.Then([&] {
            ::SetFocus(form.Item(Form::FIELD));
            log.clear();
            TapOk(form);
        });
        if (nFocus != 0)
            script.Then([&, nID = nFocus] {
                EXPECT_EQ(form.Item(nID), ::GetFocus());
                form.m_onMessage = nullptr;
                form.EndDialog(1);
            });
        script.Run([&] { return form.DoModal(); });
        EXPECT_EQ(pszLog, log);
    }
}

TEST(TitleBarOk, CountsWithoutAFocusToo) {
    fx::Form form;
    form.m_bFullScreen = TRUE;
    form.m_onOk = [&] { form.EndDialog(9); };
    const auto tap = [&] {
        ::SetFocus(nullptr);
        TapOk(form);
    };
    EXPECT_EQ(9, Play(form, {tap}));
}

TEST(FullScreenDialog, IsWhatPlainDialogsAreIfToldSo) {
    const DialogTemplate dialogTemplate;
    for (const BOOL bFullScreen : {TRUE, FALSE}) {
        AfxSetFullScreenDialogs(bFullScreen);
        CDialog dialog;
        ASSERT_TRUE(dialog.CreateIndirect(dialogTemplate.Get()));
        EXPECT_EQ(bFullScreen != FALSE, WorkArea() == RectOf(dialog));
    }
}

TEST(Gesture, NoWindowLetsThePenWaitForPressAndHoldUnlessItSaysSo) {
    class Patient : public CWnd {
        ULONG GetGestureStatus(CPoint ptTouch) override { return ptTouch == CPoint(3, 4) ? 0 : 1; }
    };
    Frame frame;
    EXPECT_EQ(static_cast<LRESULT>(AFX_TABLET_DISABLE_PRESSANDHOLD),
              frame.SendMessage(AFX_WM_TABLET_QUERYSYSTEMGESTURESTATUS, 0, 0));
    Child<Patient> child(frame, 0, CRect(5, 5, 50, 50));
    CPoint point(3, 4);
    child.ClientToScreen(&point);
    EXPECT_EQ(0, child.SendMessage(AFX_WM_TABLET_QUERYSYSTEMGESTURESTATUS, 0, MAKELPARAM(point.x, point.y)));
}

constexpr LPCTSTR IN_PLANTED_FOLDER = L"FK_TEST_IN_PLANTED_FOLDER";

TEST(ShellLibrary, OneThatLiesInTheCurrentFolderIsNotLoaded) {
    if (::GetEnvironmentVariable(IN_PLANTED_FOLDER, nullptr, 0) != 0) {
        SHDoneButton(nullptr, SHDB_HIDE);
        ASSERT_EQ(nullptr, ::GetModuleHandle(L"aygshell.dll"));
        return;
    }
    // A library is looked for once, and another test may have asked: so a process of its own.
    const Drive drive; // which is the current one
    wchar_t szPath[MAX_PATH];
    ::GetModuleFileName(nullptr, szPath, MAX_PATH);
    ASSERT_TRUE(::CopyFile(szPath, drive.Root() + L"aygshell.dll", FALSE)); // any module will do
    ::SetEnvironmentVariable(IN_PLANTED_FOLDER, L"1");
    EXPECT_EQ(0U, Program(L"test_framework", nullptr, L"--gtest_filter=ShellLibrary.*").End());
    ::SetEnvironmentVariable(IN_PLANTED_FOLDER, nullptr);
}

} // namespace
