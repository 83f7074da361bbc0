// The user of a dialog that may fail to open.
#pragma once

#include "support/AllDialogs.h"

#include <cwchar>

namespace fx {

/// While it exists, the first dialog of the thread is used as soon as it is there, and then it and
/// whatever is in the way, such as messages, is closed.
struct DialogCloser {
    /// @param bOk whether OK is tried before Cancel
    explicit DialogCloser(bool bOk) : m_bOk(bOk) {
        s_pCurrent = this;
        m_nTimer = ::SetTimer(nullptr, 0, USER_TIMER_MINIMUM, OnTimer);
    }
    ~DialogCloser() {
        ::KillTimer(nullptr, m_nTimer);
        s_pCurrent = nullptr;
    }

    /// Whether a dialog was there and its use came to its end.
    bool WasUsed() const { return m_bUsed; }

private:
    static constexpr int PATIENCE = 5; ///< Ticks for a dialog to appear on the screen.

    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD) {
        try {
            if (s_pCurrent != nullptr)
                s_pCurrent->OnTick();
        } catch (CException* e) { // the fault was in the use; the system must not see it
            e->Delete();
        } catch (const std::exception&) {
        }
    }

    void OnTick() {
        HWND hDialog = nullptr;
        ::EnumThreadWindows(::GetCurrentThreadId(), FindDialog, reinterpret_cast<LPARAM>(&hDialog));
        if (hDialog == nullptr || (!::IsWindowVisible(hDialog) && ++m_nTicks < PATIENCE))
            return;
        m_nTicks = 0;
        if (!std::exchange(m_bBegun, true)) {
            ::RedrawWindow(hDialog, nullptr, nullptr,
                           RDW_FRAME | RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_UPDATENOW);
            m_bUsed = Use(hDialog);
            if (m_bOk) {
                ::PostMessage(hDialog, WM_COMMAND, IDOK, 0);
                return;
            }
        }
        Cancel(hDialog); // it may not obey when its own handler fails: then at the next tick
    }

    /// Goes to each page and each control. @return whether that worked
    static bool Use(HWND hDialog) {
        bool bGood = true;
        auto* const pSheet = dynamic_cast<CPropertySheet*>(CWnd::FromHandlePermanent(hDialog));
        for (int i = 0; pSheet != nullptr && i < pSheet->GetPageCount(); ++i)
            bGood = pSheet->SetActivePage(i) && bGood;
        for (HWND h = ::GetWindow(hDialog, GW_CHILD); h != nullptr; h = ::GetWindow(h, GW_HWNDNEXT))
            ::SendMessage(hDialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(h), TRUE);
        return bGood;
    }

    /// Must not throw, and so uses nothing of the library.
    static BOOL CALLBACK FindDialog(HWND hWnd, LPARAM lFound) {
        WCHAR szClass[16] = {};
        ::GetClassName(hWnd, szClass, 16);
        if (std::wcscmp(szClass, L"#32770") != 0 || !::IsWindowEnabled(hWnd))
            return TRUE;
        *reinterpret_cast<HWND*>(lFound) = hWnd;
        return FALSE;
    }

    static inline DialogCloser* s_pCurrent = nullptr;

    const bool m_bOk;
    UINT_PTR m_nTimer = 0;
    int m_nTicks = 0;
    bool m_bBegun = false, m_bUsed = false;
};

} // namespace fx
