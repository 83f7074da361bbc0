// The user of a dialog that may fail to open.
#pragma once

#include "support/TestApp.h"

#include <afxdlgs.h>

#include <cwchar>
#include <functional>

namespace fx {

/// While it exists, each dialog of the thread is used and then cancelled, as soon as it is there.
/// Windows that are in the way, such as messages, are closed as well.
struct DialogCloser {
    using Use = std::function<void(CWnd&)>;

    explicit DialogCloser(Use use = {}) : m_use(std::move(use)) {
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
        if (!m_bBegun) {
            m_bBegun = true;
            ::RedrawWindow(hDialog, nullptr, nullptr,
                           RDW_FRAME | RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_UPDATENOW);
            if (m_use)
                m_use(*CWnd::FromHandle(hDialog));
            m_bUsed = true;
        }
        // It may have gone, and it may not obey when its own handler fails: then at the next tick.
        if (auto* const pSheet = dynamic_cast<CPropertySheet*>(CWnd::FromHandlePermanent(hDialog)))
            pSheet->EndDialog(IDCANCEL); // one of the library does not know Cancel
        else
            ::PostMessage(hDialog, WM_COMMAND, IDCANCEL, 0);
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

    Use m_use;
    UINT_PTR m_nTimer = 0;
    int m_nTicks = 0;
    bool m_bBegun = false, m_bUsed = false;
};

} // namespace fx
