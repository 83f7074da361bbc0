// The user of a dialog that may fail to open. To find the dialog and to close it needs no memory, which
// may be what fails.
#include "testkit/FaultLoop.h"

#include "testkit/Faults.h"

#include "afxdlgs.h"

#include <cwchar>
#include <exception>
#include <utility>

namespace testkit::fault {

namespace {

/// While it exists, the first dialog of the thread is used as soon as it is there, and then it and
/// whatever is in the way is closed.
class CVisitor {
public:
    explicit CVisitor(int nButton) : m_nButton(nButton) {
        const Injection::Pause none; // of the test's own calls, or nobody would close the dialog
        s_pCurrent = this;
        m_nTimer = ::SetTimer(nullptr, 0, USER_TIMER_MINIMUM, OnTimer);
    }
    ~CVisitor() {
        ::KillTimer(nullptr, m_nTimer);
        s_pCurrent = nullptr;
    }
    CVisitor(const CVisitor&) = delete;
    CVisitor& operator=(const CVisitor&) = delete;

    /// Whether a dialog was there and its use came to its end.
    bool WasUsed() const { return m_bUsed; }

private:
    static constexpr int kPatience = 5; ///< Ticks for a dialog to appear on the screen.

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
        if (hDialog == nullptr || (!::IsWindowVisible(hDialog) && ++m_nTicks < kPatience))
            return;
        m_nTicks = 0;
        if (!std::exchange(m_bBegun, true)) {
            ::RedrawWindow(hDialog, nullptr, nullptr,
                           RDW_FRAME | RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_UPDATENOW);
            m_bUsed = Use(hDialog);
            if (m_nButton == IDOK) {
                ::PostMessage(hDialog, WM_COMMAND, IDOK, 0);
                return;
            }
        }
        Cancel(hDialog); // it may not obey when its own handler fails: then at the next tick
    }

    static void Cancel(HWND hDialog) {
        const bool bNo = ::GetDlgItem(hDialog, IDCANCEL) == nullptr && ::GetDlgItem(hDialog, IDNO) != nullptr;
        if (auto* const pSheet = dynamic_cast<CPropertySheet*>(CWnd::FromHandlePermanent(hDialog)))
            pSheet->EndDialog(IDCANCEL); // one of the library does not know Cancel
        else
            ::PostMessage(hDialog, WM_COMMAND, bNo ? IDNO : IDCANCEL, 0);
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

    static BOOL CALLBACK FindDialog(HWND hWnd, LPARAM lFound) {
        WCHAR szClass[16] = {};
        ::GetClassName(hWnd, szClass, 16);
        if (std::wcscmp(szClass, L"#32770") != 0 || !::IsWindowEnabled(hWnd))
            return TRUE;
        *reinterpret_cast<HWND*>(lFound) = hWnd;
        return FALSE;
    }

    static inline CVisitor* s_pCurrent = nullptr;

    const int m_nButton;
    UINT_PTR m_nTimer = 0;
    int m_nTicks = 0;
    bool m_bBegun = false, m_bUsed = false;
};

} // namespace

INT_PTR Visit(const std::function<INT_PTR()>& open, int nButton) {
    const CVisitor visitor(nButton);
    const INT_PTR nResult = open();
    return visitor.WasUsed() ? nResult : 0;
}

} // namespace testkit::fault
