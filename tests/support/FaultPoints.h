// Lets calls that DLLs make into the system fail, one at a time, without a change to the DLLs:
// their tables of imported functions are pointed at functions of the test.
#pragma once

#include <windows.h>

#include <atomic>
#include <iterator>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace fault {

/// Counts the calls through fault points while it exists, and fails one of them, or that one and
/// all that come after it. Only the calls of the thread that made it count.
struct Injection {
    static constexpr int FRAMES = 24;

    enum Extent { Once, Onwards };

    /// @param nFailing the number of the call to fail, from 1; 0 for none
    explicit Injection(int nFailing, Extent extent = Once) : m_nFailing(nFailing), m_extent(extent) {
        s_pCurrent = this;
    }
    ~Injection() { s_pCurrent = nullptr; }

    /// No call fails any more.
    void Stop() { m_nFailing = 0; }

    int m_nCalls = 0;
    const char* m_pszFailed = nullptr; ///< The function that failed; null for none yet.
    void* m_callers[FRAMES] = {};

    static bool Fails(const char* pszFunction) {
        Injection* const p = s_pCurrent;
        if (p == nullptr || p->m_nThread != ::GetCurrentThreadId())
            return false;
        const int nCall = ++p->m_nCalls;
        if (p->m_nFailing == 0 || nCall < p->m_nFailing || (nCall > p->m_nFailing && p->m_extent == Once))
            return false;
        if (p->m_pszFailed != nullptr)
            return true;
        p->m_pszFailed = pszFunction;
        ::RtlCaptureStackBackTrace(2, FRAMES, p->m_callers, nullptr);
        return true;
    }

private:
    static inline std::atomic<Injection*> s_pCurrent = nullptr;

    const DWORD m_nThread = ::GetCurrentThreadId();
    int m_nFailing;
    const Extent m_extent;
};

/// One function that can fail.
struct Point {
    const char* pszName;
    void* pStandIn;
    void** ppReal;
};

/// What is called instead of a function. Each lambda type Fail makes functions of its own.
template <class Fail, class Counts, class R, class... A>
struct StandIn {
    static inline const char* s_pszName = nullptr;
    static inline void* s_pReal = nullptr;

    static R Call(A... args) {
        const auto real = reinterpret_cast<R (*)(A...)>(reinterpret_cast<UINT_PTR>(s_pReal));
        if (Counts{}(args...) && Injection::Fails(s_pszName))
            return static_cast<R>(Fail{}(real, args...));
        return real(args...);
    }
};

struct Always {
    bool operator()(auto...) const { return true; }
};

/// @param Fail   gives the failure; called with the real function and the arguments
/// @param Counts tells by the arguments whether the call can fail
template <class Fail, class Counts = Always, class R, class... A>
Point MakePoint(const char* pszName, R (*)(A...), Fail, Counts = {}) {
    using Function = StandIn<Fail, Counts, R, A...>;
    Function::s_pszName = pszName;
    return {pszName, reinterpret_cast<void*>(reinterpret_cast<UINT_PTR>(&Function::Call)),
            &Function::s_pReal};
}

/// A function that fails without having done anything.
#define FAULT_POINT(function, failure, error)                                                                \
    fault::MakePoint(#function, ::function, [](auto&&...) {                                                  \
        ::SetLastError(error);                                                                               \
        return failure;                                                                                      \
    })
/// A function that has done its work when it tells its failure, as one that releases something.
#define LATE_FAULT_POINT(function, failure, error)                                                           \
    fault::MakePoint(#function, ::function, [](auto real, auto... args) {                                    \
        real(args...);                                                                                       \
        ::SetLastError(error);                                                                               \
        return failure;                                                                                      \
    })

/// A function that a module imports by name.
struct Import {
    std::string dll, name;
    void** ppFunction;
};

inline std::vector<Import> ImportsOf(HMODULE hModule) {
    auto* const pBase = reinterpret_cast<BYTE*>(hModule);
    const auto at = [pBase](ULONGLONG nOffset) { return pBase + nOffset; };
    const auto* pDos = reinterpret_cast<const IMAGE_DOS_HEADER*>(pBase);
    const auto* pHeaders =
        reinterpret_cast<const IMAGE_NT_HEADERS*>(at(static_cast<ULONGLONG>(pDos->e_lfanew)));
    const auto& directory = pHeaders->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    std::vector<Import> imports;
    for (auto* pDll = reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(at(directory.VirtualAddress));
         pDll->Name != 0; ++pDll) {
        auto* pName = reinterpret_cast<const IMAGE_THUNK_DATA*>(at(pDll->OriginalFirstThunk));
        auto* pSlot = reinterpret_cast<void**>(at(pDll->FirstThunk));
        for (; pName->u1.AddressOfData != 0; ++pName, ++pSlot)
            if (!IMAGE_SNAP_BY_ORDINAL(pName->u1.Ordinal))
                imports.push_back(
                    {reinterpret_cast<const char*>(at(pDll->Name)),
                     reinterpret_cast<const IMAGE_IMPORT_BY_NAME*>(at(pName->u1.AddressOfData))->Name,
                     pSlot});
    }
    return imports;
}

/// Points a module's imports at the stand-ins. This holds until the process ends.
inline void Install(HMODULE hModule, const std::vector<Point>& points) {
    std::map<std::string, Point> byName;
    for (const Point& point : points)
        byName.emplace(point.pszName, point);
    for (const Import& import : ImportsOf(hModule)) {
        const auto found = byName.find(import.name);
        if (found == byName.end() || *import.ppFunction == found->second.pStandIn)
            continue;
        DWORD dwOld = 0;
        ::VirtualProtect(import.ppFunction, sizeof(void*), PAGE_READWRITE, &dwOld);
        *found->second.ppReal = std::exchange(*import.ppFunction, found->second.pStandIn);
        ::VirtualProtect(import.ppFunction, sizeof(void*), dwOld, &dwOld);
    }
}

/// An address as module and offset, for a message.
inline std::string Place(const void* pAddress) {
    HMODULE hModule = nullptr;
    ::GetModuleHandleEx(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                        static_cast<LPCWSTR>(pAddress), &hModule);
    char szPath[MAX_PATH] = "?";
    ::GetModuleFileNameA(hModule, szPath, MAX_PATH);
    const std::string path = szPath;
    char szOffset[32];
    ::wsprintfA(szOffset, "+0x%x",
                static_cast<unsigned>(static_cast<const BYTE*>(pAddress) - reinterpret_cast<BYTE*>(hModule)));
    return path.substr(path.find_last_of('\\') + 1) + szOffset;
}

} // namespace fault
