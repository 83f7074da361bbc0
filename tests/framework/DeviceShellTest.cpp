// What the device's shell does for dialogs: full screen, the OK button in the title bar,
// the command bar. The screen is the device's or larger.
#include "support/DialogTemplate.h"
#include "support/ModalScript.h"
#include "support/TitleBar.h"

namespace {

constexpr UINT ID_FULL_SCREEN = 300;

TEST(FullScreenDialog, CoversTheWorkAreaAndItsOkButtonSendsIdOk) {
    CDialog dialog(ID_FULL_SCREEN);
    dialog.m_bFullScreen = TRUE;
    fx::ModalScript script;
    script.Then([&] {
        const CRect rect = fx::RectOf(dialog);
        EXPECT_EQ(rect, fx::WorkArea());
        CRect client;
        dialog.GetClientRect(client);
        dialog.ClientToScreen(client);
        EXPECT_EQ(client.top, rect.top + AFX_DEVICE_BAR_HEIGHT);
        EXPECT_NE(dialog.m_pWndEmptyCB, nullptr);
        fx::TapOk(dialog);
    });
    EXPECT_EQ(script.Run([&] { return dialog.DoModal(); }), IDOK);
    EXPECT_EQ(dialog.m_pWndEmptyCB, nullptr);
}

TEST(FullScreenDialog, OkButtonIsHiddenAndShownByTheDoneButtonCall) {
    CDialog dialog(ID_FULL_SCREEN);
    dialog.m_bFullScreen = TRUE;
    fx::ModalScript script;
    script.Then([&] {
        EXPECT_GT(fx::FindOkButton(dialog).x, 0);
        EXPECT_TRUE(SHDoneButton(dialog, SHDB_HIDE));
        EXPECT_EQ(fx::FindOkButton(dialog).x, -1);
        EXPECT_TRUE(SHDoneButton(dialog, SHDB_SHOW));
        EXPECT_GT(fx::FindOkButton(dialog).x, 0);
        dialog.EndDialog(1);
    });
    script.Run([&] { return dialog.DoModal(); });
}

TEST(FullScreenDialog, CommandBarStandsAtTheBottomAndItsSwitchShowsThePanel) {
    static std::vector<BOOL> calls;
    calls.clear();
    const AFX_SIP_HANDLER handler = {[](BOOL bShow) { calls.push_back(bShow); },
                                     [](LPRECT) -> BOOL { return !calls.empty() && calls.back(); }};
    const AFX_SIP_HANDLER* const pOld = AfxSetSipHandler(&handler);
    CDialog dialog(ID_FULL_SCREEN);
    dialog.m_bFullScreen = TRUE;
    fx::ModalScript script;
    CPoint sip;
    script
        .Then([&] {
            const CRect bar = fx::RectOf(*dialog.m_pWndEmptyCB);
            EXPECT_EQ(bar, CRect(fx::WorkArea().left, fx::WorkArea().bottom - AFX_DEVICE_BAR_HEIGHT,
                                 fx::WorkArea().right, fx::WorkArea().bottom));
            sip = CPoint(bar.right - 14, bar.CenterPoint().y);
            pen::Tap(sip);
        })
        .Then([&] { pen::Tap(sip); })
        .Then([&] { dialog.EndDialog(1); });
    script.Run([&] { return dialog.DoModal(); });
    AfxSetSipHandler(pOld);
    EXPECT_EQ(calls, (std::vector<BOOL>{TRUE, FALSE}));
}

TEST(PopupDialog, HasAnOkButtonOnlyWithTheExtendedStyle) {
    const fx::DialogTemplate dialogTemplate = fx::DialogTemplate(100, 60).Edit(10);
    fx::TemplateDialog dialog(dialogTemplate);
    fx::ModalScript script;
    script.Then([&] {
        EXPECT_LT(fx::RectOf(dialog).Height(), fx::WorkArea().Height());
        EXPECT_EQ(dialog.m_pWndEmptyCB, nullptr);
        EXPECT_EQ(fx::FindOkButton(dialog).x, -1);
        EXPECT_TRUE(dialog.ModifyStyleEx(0, WS_EX_CAPTIONOKBTN));
        EXPECT_NE(dialog.GetExStyle() & WS_EX_CAPTIONOKBTN, 0U);
        EXPECT_EQ(static_cast<DWORD>(::GetWindowLong(dialog, GWL_EXSTYLE)) & WS_EX_CAPTIONOKBTN, 0U)
            << "the desktop must not see it";
        fx::TapOk(dialog);
    });
    EXPECT_EQ(script.Run([&] { return dialog.DoModal(); }), IDOK);
}

TEST(PopupDialog, OkButtonLeftWithThePenDownDoesNothing) {
    const fx::DialogTemplate dialogTemplate = fx::DialogTemplate(100, 60).Edit(10);
    fx::TemplateDialog dialog(dialogTemplate);
    bool bEnded = false;
    fx::ModalScript script;
    script
        .Then([&] {
            dialog.ModifyStyleEx(0, WS_EX_CAPTIONOKBTN);
            const CPoint button = fx::FindOkButton(dialog);
            pen::Drag(button, button + CPoint(0, 60));
        })
        .Then([&] {
            bEnded = dialog.m_hWnd == nullptr;
            dialog.EndDialog(9);
        });
    EXPECT_EQ(script.Run([&] { return dialog.DoModal(); }), 9);
    EXPECT_FALSE(bEnded);
}

TEST(Gesture, NoWindowLetsThePenWaitForPressAndHoldUnlessItSaysSo) {
    class Patient : public CWnd {
        ULONG GetGestureStatus(CPoint ptTouch) override { return ptTouch == CPoint(3, 4) ? 0 : 1; }
    };
    fx::Frame frame;
    EXPECT_EQ(frame.SendMessage(AFX_WM_TABLET_QUERYSYSTEMGESTURESTATUS, 0, 0),
              static_cast<LRESULT>(AFX_TABLET_DISABLE_PRESSANDHOLD));
    Patient child;
    ASSERT_TRUE(child.Create(WC_STATIC, L"", WS_CHILD, CRect(5, 5, 50, 50), &frame, 1));
    CPoint point(3, 4);
    child.ClientToScreen(&point);
    EXPECT_EQ(child.SendMessage(AFX_WM_TABLET_QUERYSYSTEMGESTURESTATUS, 0, MAKELPARAM(point.x, point.y)), 0);
}

/// The folder that the program was started in, with a library of the shell's name in it.
class PlantedFolder {
public:
    PlantedFolder() {
        wchar_t szPath[MAX_PATH];
        ::GetTempPath(MAX_PATH, szPath);
        m_strFolder.Format(L"%sfk-planted%u", szPath, ::GetCurrentProcessId());
        ::CreateDirectory(m_strFolder, nullptr);
        ::GetModuleFileName(nullptr, szPath, MAX_PATH);
        EXPECT_TRUE(::CopyFile(szPath, Library(), FALSE)); // any module will do
    }
    ~PlantedFolder() {
        ::DeleteFile(Library());
        ::RemoveDirectory(m_strFolder);
    }
    PlantedFolder(const PlantedFolder&) = delete;
    PlantedFolder& operator=(const PlantedFolder&) = delete;

    CString m_strFolder;

private:
    CString Library() const { return m_strFolder + L"\\aygshell.dll"; }
};

constexpr LPCTSTR IN_PLANTED_FOLDER = L"FK_TEST_IN_PLANTED_FOLDER";

TEST(ShellLibrary, OneThatLiesInTheCurrentFolderIsNotLoaded) {
    if (::GetEnvironmentVariable(IN_PLANTED_FOLDER, nullptr, 0) != 0) {
        SHDoneButton(nullptr, SHDB_HIDE);
        ASSERT_EQ(::GetModuleHandle(L"aygshell.dll"), nullptr);
        return;
    }
    // A library is looked for once, and another test may have asked: so a process of its own.
    const PlantedFolder planted;
    wchar_t szCommand[] = L"test --gtest_filter=ShellLibrary.*";
    wchar_t szProgram[MAX_PATH];
    ::GetModuleFileName(nullptr, szProgram, MAX_PATH);
    ::SetEnvironmentVariable(IN_PLANTED_FOLDER, L"1");
    STARTUPINFO startup = {};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process = {};
    const BOOL bStarted = ::CreateProcess(szProgram, szCommand, nullptr, nullptr, FALSE, 0, nullptr,
                                          planted.m_strFolder, &startup, &process);
    ::SetEnvironmentVariable(IN_PLANTED_FOLDER, nullptr);
    ASSERT_TRUE(bStarted);
    ::WaitForSingleObject(process.hProcess, INFINITE);
    DWORD nExitCode = 1;
    ::GetExitCodeProcess(process.hProcess, &nExitCode);
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
    EXPECT_EQ(nExitCode, 0U);
}

} // namespace
