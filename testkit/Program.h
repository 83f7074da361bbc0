/// @file
/// A program in a process of its own, used as somebody with a pen and a keyboard would use it.
/// Needs nothing of the framework, and the program need not know of it.
///
///     const Program program(L"Heights", L"Heights");
///     program.Fill(IDC_SIGHT, L"1.5");
///     program.Tap(IDC_ADD);
///     program.ExpectText(IDC_RESULT, L"101.500");
///     program.Tap(IDCANCEL);
///     EXPECT_EQ(program.End(), 0U);
#pragma once

#include "testkit/Failure.h"
#include "testkit/Window.h"

#include <functional>
#include <string>

namespace testkit {

/// The folder of this program, with a backslash at its end.
std::wstring OwnFolder();

/// Waits for what another process or thread does, without handling messages.
/// @return false if it has not come in time
bool Until(const std::function<bool()>& done, DWORD nMilliseconds = 20000);

/// Taps into a control and waits for the focus; before, it waits until the window is in front: it
/// is visible earlier, and what is typed until then goes to the window that was.
void FocusByTap(HWND hWnd, const Place& place = {});

/// A running program. Each function waits for up to 20 seconds for what it needs, and fails if that
/// does not come; after a failure the others wait for one. What the program prints goes where the
/// output of this one goes.
class Program {
public:
    /// Starts the program and waits for its main window.
    /// @param name     a path, or the name of a program in the folder of this one; ".exe" is added
    ///                 if it has no ending
    /// @param pszTitle of the main window; null does not wait
    /// @param argument the rest of the command line
    Program(const std::wstring& name, const wchar_t* pszTitle, const std::wstring& argument = {},
            const Place& place = {});
    /// Ends it by force if it still runs.
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    /// The main window.
    HWND Main() const { return m_hMain; }
    /// A visible window of the program with this title.
    HWND Window(const wchar_t* pszTitle, const Place& place = {}) const;
    /// A control of the main window, null if there is none.
    HWND Item(int nID) const { return ::GetDlgItem(m_hMain, nID); }
    /// Its text.
    std::wstring Text(int nID) const { return TextOf(Item(nID)); }
    /// Waits until a control has this text.
    void ExpectText(int nID, const std::wstring& text, const Place& place = {}) const;

    /// Taps a control of the main window, or of another window of the program, once it can be
    /// tapped.
    ///@{
    void Tap(int nID, const Place& place = {}) const;
    void Tap(HWND hWnd, const Place& place = {}) const;
    ///@}
    /// Types a text into a field instead of what it has, each key once the one before has arrived.
    void Fill(int nID, const std::wstring& text, const Place& place = {}) const;
    /// Sends a command to the main window as its menu does.
    void Command(UINT nID) const;
    /// Closes a window as its X does, and waits until it has gone.
    void Close(HWND hWnd, const Place& place = {}) const;

    /// False once it has ended.
    bool IsRunning() const;
    /// Waits until the program has ended. @return its exit code
    DWORD End(const Place& place = {}) const;
    /// The same of a program that may take this long.
    DWORD End(DWORD nMilliseconds, const Place& place = {}) const;
    /// Of its first thread, which has the main window.
    DWORD Thread() const { return m_process.dwThreadId; }

private:
    bool Wait(const std::function<bool()>& done, const std::string& failure, const Place& place,
              DWORD nMilliseconds = 20000) const;

    PROCESS_INFORMATION m_process = {};
    HWND m_hMain = nullptr;
    mutable bool m_bFailed = false;
};

} // namespace testkit
