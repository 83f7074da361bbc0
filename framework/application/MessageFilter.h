// What the loops of the system itself offer to the thread's object.
#pragma once

#include "afxwin.h"

namespace fieldkit::detail {

/// While it exists, ProcessMessageFilter of the calling thread's object is asked. Without the hook,
/// should the system refuse it, all goes its way unasked.
class CMessageFilter {
public:
    CMessageFilter() : m_hHook(::SetWindowsHookEx(WH_MSGFILTER, Ask, nullptr, ::GetCurrentThreadId())) {}
    ~CMessageFilter() {
        if (m_hHook != nullptr)
            ::UnhookWindowsHookEx(m_hHook);
    }
    CMessageFilter(const CMessageFilter&) = delete;
    CMessageFilter& operator=(const CMessageFilter&) = delete;

private:
    static LRESULT CALLBACK Ask(int nCode, WPARAM wParam, LPARAM lParam) {
        CWinThread* pThread = nCode >= 0 ? AfxGetThread() : nullptr;
        auto* pMsg = reinterpret_cast<MSG*>(lParam);
        if (pThread != nullptr &&
            AfxCallGuarded(*pMsg, [&] { return pThread->ProcessMessageFilter(nCode, pMsg); }) != 0)
            return TRUE;
        return ::CallNextHookEx(nullptr, nCode, wParam, lParam);
    }

    HHOOK m_hHook;
};

} // namespace fieldkit::detail
