// The window that a modal window belongs to.
#pragma once

#include "WndProc.h"

/// Keeps the owner of a modal window disabled, and gives it back what it had, on whatever
/// path the modal window ends.
class CModalOwner {
public:
    /// @param pParentWnd the main window for null
    explicit CModalOwner(CWnd* pParentWnd) : m_hWndFocus(::GetFocus()) {
        m_hWnd = HandleOf(CWnd::GetSafeOwner(pParentWnd, &m_hWndTop));
        m_bDisabled = m_hWnd != nullptr && ::IsWindowEnabled(m_hWnd);
        if (m_bDisabled)
            ::EnableWindow(m_hWnd, FALSE);
    }
    ~CModalOwner() {
        Enable();
        if (m_hWnd != nullptr && ::GetActiveWindow() == m_hWnd && ::IsChild(m_hWnd, m_hWndFocus))
            ::SetFocus(m_hWndFocus);
    }
    CModalOwner(const CModalOwner&) = delete;
    CModalOwner& operator=(const CModalOwner&) = delete;

    HWND Handle() const { return m_hWnd; }

    /// Destroys the modal window. The owner is enabled while it is still there: otherwise the
    /// system would have no window of this program to activate, and another program's would
    /// come to the front.
    void Close(CWnd* pModal) {
        Enable();
        if (pModal->m_hWnd == nullptr)
            return;
        pModal->SetWindowPos(nullptr, 0, 0, 0, 0,
                             SWP_HIDEWINDOW | SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | SWP_NOZORDER);
        if (m_hWnd != nullptr && ::GetActiveWindow() == pModal->m_hWnd)
            ::SetActiveWindow(m_hWnd);
        pModal->DestroyWindow();
    }

private:
    void Enable() {
        if (m_bDisabled)
            ::EnableWindow(m_hWnd, TRUE);
        if (m_hWndTop != nullptr)
            ::EnableWindow(m_hWndTop, TRUE);
        m_bDisabled = false;
        m_hWndTop = nullptr;
    }

    HWND m_hWndFocus;
    HWND m_hWnd = nullptr;
    HWND m_hWndTop = nullptr; ///< A top-level window disabled as well.
    bool m_bDisabled = false;
};
