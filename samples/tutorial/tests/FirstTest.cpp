// Runs the program in a process of its own and works its dialog from outside.
#include "Resource.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <functional>
#include <string>

namespace {

constexpr DWORD PATIENCE = 20000; ///< Milliseconds; Wine may have to start first.

bool Eventually(const std::function<bool()>& condition) {
    for (const ULONGLONG nEnd = ::GetTickCount64() + PATIENCE; !condition(); ::Sleep(20))
        if (::GetTickCount64() > nEnd)
            return false;
    return true;
}

/// The program is built into the folder above that of its test.
std::wstring ProgramPath() {
    wchar_t szPath[MAX_PATH];
    std::wstring path(szPath, ::GetModuleFileName(nullptr, szPath, MAX_PATH));
    for (int level = 0; level < 2; ++level)
        path.resize(path.rfind(L'\\'));
    return path + L"\\first.exe";
}

struct FirstDialog : testing::Test {
    void SetUp() override {
        STARTUPINFO start = {};
        start.cb = sizeof start;
        ASSERT_TRUE(::CreateProcess(ProgramPath().c_str(), nullptr, nullptr, nullptr, FALSE, 0, nullptr,
                                    nullptr, &start, &m_process));
        ASSERT_TRUE(Eventually([this] { return FindDialog(); }));
    }
    void TearDown() override {
        if (m_process.hProcess == nullptr)
            return;
        ::TerminateProcess(m_process.hProcess, 1); // one that has ended by itself takes no notice
        ::CloseHandle(m_process.hThread);
        ::CloseHandle(m_process.hProcess);
    }

    bool FindDialog() {
        m_hDialog = ::FindWindow(nullptr, L"距離");
        return m_hDialog != nullptr && ::IsWindowVisible(m_hDialog);
    }
    HWND Item(int nID) const { return ::GetDlgItem(m_hDialog, nID); }
    void Enter(int nID, const wchar_t* psz) const {
        ::SendMessage(Item(nID), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(psz));
    }
    std::wstring Text(int nID) const {
        wchar_t sz[64] = {};
        ::SendMessage(Item(nID), WM_GETTEXT, std::size(sz), reinterpret_cast<LPARAM>(sz));
        return sz;
    }
    /// Visible windows of the program that lie in front of its dialog or beside it.
    int OtherWindows() const {
        struct Count {
            HWND hDialog;
            int nOthers;
        } count = {m_hDialog, 0};
        const auto add = [](HWND hWnd, LPARAM lParam) -> BOOL {
            auto& found = *reinterpret_cast<Count*>(lParam);
            found.nOthers += hWnd != found.hDialog && ::IsWindowVisible(hWnd) ? 1 : 0;
            return TRUE;
        };
        ::EnumThreadWindows(m_process.dwThreadId, add, reinterpret_cast<LPARAM>(&count));
        return count.nOthers;
    }

    HWND m_hDialog = nullptr;
    PROCESS_INFORMATION m_process = {};
};

TEST_F(FirstDialog, ShowsTheDistanceOfWhatWasEntered) {
    EXPECT_EQ(Text(IDC_DISTANCE), L"");
    Enter(IDC_EAST, L"-30");
    Enter(IDC_NORTH, L"40.5");
    ::SendMessage(Item(IDC_COMPUTE), BM_CLICK, 0, 0);
    EXPECT_EQ(Text(IDC_DISTANCE), L"距離 50.401");
}

TEST_F(FirstDialog, HasTheInputPanelWhileAFieldHasTheFocus) {
    const auto focus = [this](int nID) {
        ::SendMessage(m_hDialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(Item(nID)), TRUE);
    };
    focus(IDC_NORTH);
    EXPECT_TRUE(Eventually([this] { return OtherWindows() == 1; }));
    focus(IDC_COMPUTE);
    EXPECT_TRUE(Eventually([this] { return OtherWindows() == 0; }));
}

TEST_F(FirstDialog, EndsByTheOkButtonOfItsTitleBar) {
    ::PostMessage(m_hDialog, WM_COMMAND, IDOK, 0);
    ASSERT_EQ(::WaitForSingleObject(m_process.hProcess, PATIENCE), WAIT_OBJECT_0);
    DWORD nExitCode = 1;
    ::GetExitCodeProcess(m_process.hProcess, &nExitCode);
    EXPECT_EQ(nExitCode, 0u);
}

} // namespace
