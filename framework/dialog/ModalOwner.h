// The window that a modal window belongs to.
#pragma once

#include "window/WndProc.h"

namespace fieldkit::detail {

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

    /// Destroys the modal window, if there still is one. The owner is enabled while it is still there:
    /// otherwise the system would have no window of this program to activate, and another program's would
    /// come to the front.
    void Close(CWnd* pModal) {
        Enable();
        if (pModal == nullptr || pModal->m_hWnd == nullptr) {
            // It has gone while the owner was disabled, and the system may have found no other.
            if (m_hWnd != nullptr && ::GetActiveWindow() == nullptr)
                ::SetActiveWindow(m_hWnd);
            return;
        }
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

/// A window from the moment when it is about to be modal until all is as before, on whatever path
/// that ends: the window destroyed, its owner enabled.
class CModalWindow {
public:
    CModalWindow(CWnd* pWnd, CWnd* pParentWnd) : m_pWnd(pWnd), m_scope(pWnd), m_owner(pParentWnd) {
        AfxWndAccess::ModalResult(pWnd) = -1;
        // The end may come already while the window is being made.
        AfxWndAccess::SetFlags(pWnd, WF_MODALLOOP | WF_CONTINUEMODAL);
    }
    ~CModalWindow() { Close(); }
    CModalWindow(const CModalWindow&) = delete;
    CModalWindow& operator=(const CModalWindow&) = delete;

    HWND Owner() const { return m_owner.Handle(); }
    bool GoesOn() const { return m_scope.IsAlive() && (AfxWndAccess::Flags(m_pWnd) & WF_CONTINUEMODAL); }

    /// @return what the window was ended with, else -1
    int Close() {
        if (m_scope.IsAlive())
            AfxWndAccess::SetFlags(m_pWnd, WF_MODALLOOP | WF_CONTINUEMODAL, false);
        m_owner.Close(m_scope.IsAlive() ? m_pWnd : nullptr);
        return m_scope.IsAlive() ? AfxWndAccess::ModalResult(m_pWnd) : -1;
    }

private:
    CWnd* m_pWnd;
    CModalScope m_scope;
    CModalOwner m_owner;
};

} // namespace fieldkit::detail
