/// @file
/// A user who wants to go back from every window.
#pragma once

#include <afxwin.h>

/// While it exists, the active window of the thread is told to close, again and again.
struct CWindowCloser {
    CWindowCloser() : m_nTimer(::SetTimer(nullptr, 0, USER_TIMER_MINIMUM, CloseActiveWindow)) {}
    ~CWindowCloser() { ::KillTimer(nullptr, m_nTimer); }

private:
    static void CALLBACK CloseActiveWindow(HWND, UINT, UINT_PTR, DWORD) {
        ::PostMessage(::GetActiveWindow(), WM_CLOSE, 0, 0);
    }

    UINT_PTR m_nTimer;
};
