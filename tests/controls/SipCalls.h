// What the library asks of the soft input panel.
#pragma once

#include "support/FrameworkEnvironment.h"

#include <Tesuvo.h>

#include <cstring>

namespace fx {

/// While it exists, the library's calls for the panel come here instead of to the companion
/// library: the addresses through which it calls are exchanged.
class SipCalls {
public:
    static constexpr int CLOSE = -1;

    SipCalls() {
        s_pCurrent = this;
        m_pShow = Exchange("TVShowSIP", reinterpret_cast<ULONG_PTR>(&OnShow));
        m_pClose = Exchange("TVCloseSIP", reinterpret_cast<ULONG_PTR>(&OnClose));
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
    static ULONG_PTR Exchange(const char* pszName, ULONG_PTR pNew) {
        const auto* const pBase = reinterpret_cast<const BYTE*>(::GetModuleHandle(L"Fieldkit.dll"));
        const auto* const pDos = reinterpret_cast<const IMAGE_DOS_HEADER*>(pBase);
        const auto* const pNt = reinterpret_cast<const IMAGE_NT_HEADERS*>(pBase + pDos->e_lfanew);
        const DWORD dwImports =
            pNt->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
        for (auto* p = reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(pBase + dwImports); p->Name; ++p) {
            const auto* pNames = reinterpret_cast<const ULONG_PTR*>(pBase + p->OriginalFirstThunk);
            auto* pAddresses = reinterpret_cast<ULONG_PTR*>(const_cast<BYTE*>(pBase + p->FirstThunk));
            for (; *pNames != 0; ++pNames, ++pAddresses) {
                if (IMAGE_SNAP_BY_ORDINAL(*pNames))
                    continue;
                const auto* const pName = reinterpret_cast<const IMAGE_IMPORT_BY_NAME*>(pBase + *pNames);
                if (std::strcmp(reinterpret_cast<const char*>(pName->Name), pszName) != 0)
                    continue;
                DWORD dwProtection = 0;
                ::VirtualProtect(pAddresses, sizeof *pAddresses, PAGE_READWRITE, &dwProtection);
                const ULONG_PTR pOld = std::exchange(*pAddresses, pNew);
                ::VirtualProtect(pAddresses, sizeof *pAddresses, dwProtection, &dwProtection);
                return pOld;
            }
        }
        ADD_FAILURE() << "the library does not call " << pszName;
        return 0;
    }

    static inline SipCalls* s_pCurrent = nullptr;

    ULONG_PTR m_pShow = 0;
    ULONG_PTR m_pClose = 0;
    std::vector<int> m_calls;
};

} // namespace fx
