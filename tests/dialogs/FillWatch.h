// Watches how a list or a tree is filled.
#pragma once

#include "support/TestApp.h"

/// Counts, while it exists, the items that come into one window class of this thread, and how often
/// all that shows is drawn.
struct FillWatch {
    explicit FillWatch(LPCTSTR pszClass) : m_strClass(pszClass) {
        s_pCurrent = this;
        m_hHook = ::SetWindowsHookEx(WH_CALLWNDPROC, OnMessage, nullptr, ::GetCurrentThreadId());
    }
    ~FillWatch() { ::UnhookWindowsHookEx(m_hHook); }

    int nInserted = 0;
    int nInsertedWithRedraw = 0; ///< Each of them makes the control lay itself out and draw.
    int nDrawings = 0;

private:
    static LRESULT CALLBACK OnMessage(int nCode, WPARAM wParam, LPARAM lParam) {
        const auto& message = *reinterpret_cast<const CWPSTRUCT*>(lParam);
        if (nCode == HC_ACTION && testkit::ClassOf(message.hwnd) == s_pCurrent->m_strClass.GetString())
            s_pCurrent->Count(message);
        return ::CallNextHookEx(nullptr, nCode, wParam, lParam);
    }

    void Count(const CWPSTRUCT& message) {
        const bool bInsert = message.message == LVM_INSERTITEM || message.message == TVM_INSERTITEM;
        if (message.message == WM_SETREDRAW)
            m_bPaused = message.wParam == FALSE;
        nInserted += bInsert;
        nInsertedWithRedraw += bInsert && !m_bPaused;
        nDrawings += message.message == WM_ERASEBKGND;
    }

    static inline FillWatch* s_pCurrent = nullptr;

    CString m_strClass;
    HHOOK m_hHook;
    bool m_bPaused = false;
};
