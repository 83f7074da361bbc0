// What the library asks of the soft input panel.
#pragma once

#include "support/FaultPoints.h"
#include "support/FrameworkEnvironment.h"

#include "Tesuvo.h"

namespace fx {

/// While it exists, the library's calls for the panel come here instead of to the companion
/// library: the addresses through which it calls are exchanged.
class SipCalls {
public:
    static constexpr int CLOSE = -1;

    SipCalls() {
        s_pCurrent = this;
        m_pShow = Exchange("TVShowSIP", reinterpret_cast<void*>(&OnShow));
        m_pClose = Exchange("TVCloseSIP", reinterpret_cast<void*>(&OnClose));
    }
    ~SipCalls() {
        Exchange("TVShowSIP", m_pShow);
        Exchange("TVCloseSIP", m_pClose);
        s_pCurrent = nullptr;
    }
    SipCalls(const SipCalls&) = delete;
    SipCalls& operator=(const SipCalls&) = delete;

    /// What has been called since the last time: modes, and CLOSE.
    std::vector<int> Take() { return std::exchange(m_calls, {}); }

private:
    static void OnShow(int nMode) { s_pCurrent->m_calls.push_back(nMode); }
    static void OnClose() { s_pCurrent->m_calls.push_back(CLOSE); }

    /// Exchanges an address in the library's import table. @return the one before
    static void* Exchange(const char* pszName, void* pNew) {
        for (const fault::Import& import : fault::ImportsOf(::GetModuleHandle(L"Fieldkit.dll")))
            if (import.name == pszName)
                return fault::SetImport(import, pNew);
        ADD_FAILURE() << "the library does not call " << pszName;
        return nullptr;
    }

    static inline SipCalls* s_pCurrent = nullptr;

    void* m_pShow = nullptr;
    void* m_pClose = nullptr;
    std::vector<int> m_calls;
};

} // namespace fx
