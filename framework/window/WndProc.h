// Window procedures and the hook that attaches objects to new windows.
#pragma once

#include "ThreadState.h"

namespace fieldkit::detail {

/// The window of an object, null for a null object.
inline HWND HandleOf(const CWnd* pWnd) {
    return pWnd != nullptr ? pWnd->m_hWnd : nullptr;
}

/// The window procedure of every window that has a permanent object.
LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);

/// While it exists, the next window that the thread creates is attached to pWnd before
/// its first message.
class CCreateHook {
public:
    explicit CCreateHook(CWnd* pWnd);
    ~CCreateHook();
    CCreateHook(const CCreateHook&) = delete;
    CCreateHook& operator=(const CCreateHook&) = delete;

    /// Ends the hook. @return FALSE if no window has come, so that nothing was attached.
    BOOL Unhook();

private:
    CWnd* m_pWnd;
    CWnd* m_pOuterWnd; ///< Waiting in an outer creation, which goes on afterwards.
    HHOOK m_hHook;
};

} // namespace fieldkit::detail

/// The framework's way into the protected side of CWnd.
struct AfxWndAccess {
    static LRESULT WindowProc(CWnd* pWnd, UINT message, WPARAM wParam, LPARAM lParam) {
        return pWnd->WindowProc(message, wParam, lParam);
    }
    static WNDPROC* SuperProc(CWnd* pWnd) { return pWnd->GetSuperWndProcAddr(); }
    static void OnNcDestroy(CWnd* pWnd) { pWnd->CWnd::OnNcDestroy(); }
    static void OnInitFailed(CWnd* pWnd) { pWnd->OnInitFailed(); }
    static LRESULT CallSuper(CWnd* pWnd, UINT message, WPARAM wParam, LPARAM lParam) {
        return pWnd->CallSuper(message, wParam, lParam);
    }
    static UINT Flags(const CWnd* pWnd) { return pWnd->m_nFlags; }
    static void SetFlags(CWnd* pWnd, UINT nFlags, bool bSet = true) {
        pWnd->m_nFlags = bSet ? pWnd->m_nFlags | nFlags : pWnd->m_nFlags & ~nFlags;
    }
    static int& ModalResult(CWnd* pWnd) { return pWnd->m_nModalResult; }
};
