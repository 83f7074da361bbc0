// A program in a process of its own, used as somebody with a pen and a keyboard would.
#pragma once

#include "support/PenInput.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace drive {

inline std::wstring OwnFolder() {
    wchar_t szPath[MAX_PATH] = {};
    ::GetModuleFileNameW(nullptr, szPath, MAX_PATH);
    const std::wstring path = szPath;
    return path.substr(0, path.rfind(L'\\') + 1);
}

/// Until what another process does has happened; a program that hangs fails the test.
inline bool Until(const std::function<bool()>& done) {
    const ULONGLONG nEnd = ::GetTickCount64() + 20000;
    while (!done()) {
        if (::GetTickCount64() > nEnd)
            return false;
        ::Sleep(20);
    }
    return true;
}

inline std::wstring TextOf(HWND hWnd) {
    wchar_t szText[256] = {};
    ::SendMessageW(hWnd, WM_GETTEXT, 256, reinterpret_cast<LPARAM>(szText));
    return szText;
}

inline POINT MiddleOf(HWND hWnd) {
    RECT rect = {};
    ::GetWindowRect(hWnd, &rect);
    return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
}

/// Of any process.
inline bool HasFocus(HWND hWnd) {
    GUITHREADINFO info = {};
    info.cbSize = sizeof info;
    return ::GetGUIThreadInfo(::GetWindowThreadProcessId(hWnd, nullptr), &info) && info.hwndFocus == hWnd;
}

/// Taps into a control and waits for the focus. A window is visible before it is in front, and
/// what is typed until then goes to the window that was.
inline void FocusByTap(HWND hWnd) {
    const HWND hTop = ::GetAncestor(hWnd, GA_ROOT);
    EXPECT_TRUE(Until([&] { return ::GetForegroundWindow() == hTop; })) << "not in front";
    pen::Tap(MiddleOf(hWnd));
    EXPECT_TRUE(Until([&] { return HasFocus(hWnd); }));
}

/// Empties an edit control that has the focus, each key once the one before has done its work.
inline void Empty(HWND hEdit) {
    pen::TypeKeys({VK_HOME});
    EXPECT_TRUE(Until([&] { return ::SendMessageW(hEdit, EM_GETSEL, 0, 0) == 0; })) << "HOME is lost";
    for (size_t n = TextOf(hEdit).size(); n > 0; --n) {
        pen::TypeKeys({VK_DELETE});
        EXPECT_TRUE(Until([&] { return TextOf(hEdit).size() < n; })) << "DELETE is lost";
    }
}

class Program {
public:
    /// Starts the program and waits for its window. @param pszTitle null does not wait
    Program(const std::wstring& name, const wchar_t* pszTitle, const std::wstring& argument = {}) {
        STARTUPINFOW start = {};
        start.cb = sizeof start;
        std::wstring command = L"\"" + OwnFolder() + name + L".exe\" " + argument;
        EXPECT_TRUE(::CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                                     &start, &m_process));
        if (pszTitle != nullptr)
            m_hWnd = Window(pszTitle);
    }
    ~Program() {
        if (::WaitForSingleObject(m_process.hProcess, 0) == WAIT_TIMEOUT)
            ::TerminateProcess(m_process.hProcess, 1);
        ::CloseHandle(m_process.hThread);
        ::CloseHandle(m_process.hProcess);
    }
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    /// A visible window of this process with this title.
    HWND Window(const wchar_t* pszTitle) const {
        HWND hFound = nullptr;
        EXPECT_TRUE(Until([&] {
            hFound = ::FindWindowW(nullptr, pszTitle);
            DWORD nProcess = 0;
            ::GetWindowThreadProcessId(hFound, &nProcess);
            return nProcess == m_process.dwProcessId && ::IsWindowVisible(hFound);
        })) << "no window of this title";
        return hFound;
    }
    HWND Main() const { return m_hWnd; }
    HWND Item(int nID) const { return ::GetDlgItem(m_hWnd, nID); }
    std::wstring Text(int nID) const { return TextOf(Item(nID)); }
    void ExpectText(int nID, const std::wstring& text) const {
        EXPECT_TRUE(Until([&] { return Text(nID) == text; })) << testing::PrintToString(Text(nID));
    }
    void Tap(int nID) const { pen::Tap(MiddleOf(Item(nID))); }
    /// Replaces what is in a field.
    void Fill(int nID, std::initializer_list<WORD> keys) const {
        FocusByTap(Item(nID));
        Empty(Item(nID));
        pen::TypeKeys(keys);
        EXPECT_TRUE(Until([&] { return TextOf(Item(nID)).size() == keys.size(); }))
            << testing::PrintToString(Text(nID));
    }
    void Command(UINT nID) const { ::PostMessageW(m_hWnd, WM_COMMAND, nID, 0); }
    /// Its About box, from the system menu; closed by a tap on OK.
    void ShowAbout(const wchar_t* pszTitle) const {
        ::PostMessageW(m_hWnd, WM_SYSCOMMAND, 0x10, 0);
        const HWND hAbout = Window(pszTitle);
        pen::Tap(MiddleOf(::GetDlgItem(hAbout, IDOK)));
        EXPECT_TRUE(Until([&] { return !::IsWindow(hAbout); }));
    }
    /// @return the exit code once the program has ended
    DWORD End() const {
        DWORD nCode = STILL_ACTIVE;
        EXPECT_EQ(::WaitForSingleObject(m_process.hProcess, 20000), WAIT_OBJECT_0) << "does not end";
        ::GetExitCodeProcess(m_process.hProcess, &nCode);
        return nCode;
    }

private:
    PROCESS_INFORMATION m_process = {};
    HWND m_hWnd = nullptr;
};

} // namespace drive
