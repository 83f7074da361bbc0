/// @file
/// CSecondTapFilter: a hand that trembles does nothing twice.
#pragma once

#include <afxwin.h>

/// Takes out of the thread's messages what a quick second tap or Enter would do to something else than
/// the first one: whatever a first tap has opened or uncovered is under the pen then, and a push button
/// has done its work. What can be meant twice stays: keys of the panel, arrows, scroll bars, headings,
/// plans, and the caret in a field.
///
/// Quick is within the system's double-click time, near is the size of a button. One object, for the
/// thread's whole run; it hears the message boxes of the system as well.
class CSecondTapFilter {
public:
    CSecondTapFilter();
    ~CSecondTapFilter();
    CSecondTapFilter(const CSecondTapFilter&) = delete;
    CSecondTapFilter& operator=(const CSecondTapFilter&) = delete;

private:
    /// A press or an Enter that counted.
    struct CTap {
        HWND hWnd = nullptr; ///< What was pressed; of an Enter the dialog.
        CPoint place;
        DWORD dwTime = 0; ///< In milliseconds, as of messages.
    };

    static LRESULT CALLBACK OnMessage(int nCode, WPARAM wParam, LPARAM lParam);
    bool IsSecond(const MSG& msg, HWND hWnd, CTap& last) const;

    static inline CSecondTapFilter* s_pFilter = nullptr;

    HHOOK m_hHook;
    CTap m_press;
    CTap m_enter;
};
