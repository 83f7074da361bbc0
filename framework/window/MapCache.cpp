#include "MapCache.h"

#include <algorithm>
#include <atomic>

using namespace fieldkit::detail;

namespace {

// Both outlive every static object that may still get a message.
std::atomic<unsigned> g_nUnloads{0};
std::atomic<bool> g_bWatching{false};

template <class Function>
Function LoaderFunction(const char* pszName) {
    return reinterpret_cast<Function>(
        reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandle(L"ntdll.dll"), pszName)));
}

/// Counts the DLLs that are unloaded. Where the loader cannot tell, nothing is remembered.
class CUnloadWatch {
public:
    CUnloadWatch() {
        using Register = LONG(NTAPI*)(ULONG, void(CALLBACK*)(ULONG, const void*, void*), void*, void**);
        const auto pfnRegister = LoaderFunction<Register>("LdrRegisterDllNotification");
        g_bWatching = pfnRegister != nullptr && pfnRegister(0, OnLoader, nullptr, &m_pCookie) == 0;
    }
    ~CUnloadWatch() {
        using Unregister = LONG(NTAPI*)(void*);
        ++g_nUnloads; // what is kept counts no longer
        if (g_bWatching.exchange(false))
            if (const auto pfnUnregister = LoaderFunction<Unregister>("LdrUnregisterDllNotification"))
                pfnUnregister(m_pCookie);
    }
    CUnloadWatch(const CUnloadWatch&) = delete;
    CUnloadWatch& operator=(const CUnloadWatch&) = delete;

private:
    static void CALLBACK OnLoader(ULONG nReason, const void*, void*) {
        constexpr ULONG kUnloaded = 2;
        if (nReason == kUnloaded)
            ++g_nUnloads;
    }

    void* m_pCookie = nullptr;
};
const CUnloadWatch g_unloadWatch;

/// A number of 64 bits of which the highest depend on all four; see Knuth's multiplicative hashing.
ULONGLONG Spread(const AFX_MSGMAP* pMap, UINT message, int nCode, UINT nID) {
    constexpr ULONGLONG kOdd = 0x9E3779B97F4A7C15;
    const ULONGLONG nKey = (ULONGLONG{reinterpret_cast<UINT_PTR>(pMap)} >> 4) + (ULONGLONG{message} << 24) +
                           (ULONGLONG{static_cast<UINT>(nCode)} << 40) + (ULONGLONG{nID} << 48);
    return nKey * kOdd;
}

} // namespace

const AFX_MSGMAP_ENTRY* CMapCache::Find(const AFX_MSGMAP* pMap, UINT message, int nCode, UINT nID) {
    CSlot& slot = m_slots[Spread(pMap, message, nCode, nID) >> kShift];
    if (slot.pMap == pMap && slot.message == message && slot.nCode == nCode && slot.nID == nID &&
        m_nUnloads == g_nUnloads)
        return slot.pEntry;
    return FindNew(slot, pMap, message, nCode, nID);
}

const AFX_MSGMAP_ENTRY* CMapCache::FindNew(CSlot& slot, const AFX_MSGMAP* pMap, UINT message, int nCode,
                                           UINT nID) {
    // The number of a registered message is not known before it has been registered.
    if (!g_bWatching || message >= AFX_REGISTERED_)
        return Search(pMap, message, nCode, nID);
    if (const unsigned nUnloads = g_nUnloads; nUnloads != m_nUnloads) {
        std::fill(std::begin(m_slots), std::end(m_slots), CSlot{});
        m_nUnloads = nUnloads;
    }
    slot = {pMap, message, nCode, nID, Search(pMap, message, nCode, nID)};
    return slot.pEntry;
}

const AFX_MSGMAP_ENTRY* CMapCache::Search(const AFX_MSGMAP* pMap, UINT message, int nCode, UINT nID) {
    for (; pMap != nullptr; pMap = pMap->pfnGetBaseMap != nullptr ? pMap->pfnGetBaseMap() : nullptr) {
        for (const AFX_MSGMAP_ENTRY* p = pMap->lpEntries; p->pfnDispatch != nullptr; ++p) {
            if (p->nMessage == message && p->nCode == nCode && nID >= p->nID && nID <= p->nLastID)
                return p;
            if (p->nMessage == AFX_REGISTERED_ && message >= AFX_REGISTERED_ && *p->pnRegistered == message)
                return p;
        }
    }
    return nullptr;
}
