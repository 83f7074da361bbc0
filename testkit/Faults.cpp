#include "testkit/Faults.h"

#include <atomic>
#include <map>
#include <set>

namespace testkit::fault {

namespace {

std::atomic<Injection*> g_pCurrent = nullptr;
std::set<HMODULE> g_installed;
std::map<void*, void**> g_standIns; ///< See Point: where each of those that are called finds its function.

HMODULE ModuleOf(const void* pAddress) {
    HMODULE hModule = nullptr;
    ::GetModuleHandleEx(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                        static_cast<LPCWSTR>(pAddress), &hModule);
    return hModule;
}

} // namespace

Injection::Injection(int nFailing, Extent extent) : m_nFailing(nFailing), m_extent(extent) {
    g_pCurrent = this;
}

Injection::~Injection() {
    Stop();
}

void Injection::Stop() {
    g_pCurrent = nullptr;
}

Injection::Pause::Pause() : m_pPaused(g_pCurrent.exchange(nullptr)) {}

Injection::Pause::~Pause() {
    g_pCurrent = m_pPaused;
}

bool Injection::Fails(const char* pszFunction) {
    Injection* const p = g_pCurrent;
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

std::vector<Import> ImportsOf(HMODULE hModule) {
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

void Install(HMODULE hModule, const std::vector<Point>& points, const Place& place) {
    if (hModule == nullptr) {
        Fail("fault points for a module that is not loaded", place);
        return;
    }
    g_installed.insert(hModule);
    std::map<std::string, Point> byName;
    for (const Point& point : points)
        byName.emplace(point.pszName, point);
    for (const Import& import : ImportsOf(hModule)) {
        void* const pNow = *import.ppFunction;
        const auto before = g_standIns.find(pNow);
        void* const pReal = before != g_standIns.end() ? *before->second : pNow;
        void* pNew = pReal;
        if (const auto found = byName.find(import.name); found != byName.end()) {
            *found->second.ppReal = pReal;
            pNew = found->second.pStandIn;
            g_standIns[pNew] = found->second.ppReal;
        }
        if (pNew == pNow)
            continue;
        DWORD dwOld = 0;
        ::VirtualProtect(import.ppFunction, sizeof(void*), PAGE_READWRITE, &dwOld);
        *import.ppFunction = pNew;
        ::VirtualProtect(import.ppFunction, sizeof(void*), dwOld, &dwOld);
    }
}

std::string WhereIs(const void* pAddress) {
    const HMODULE hModule = ModuleOf(pAddress);
    char szPath[MAX_PATH] = "?";
    ::GetModuleFileNameA(hModule, szPath, MAX_PATH);
    const std::string path = szPath;
    char szOffset[32];
    ::wsprintfA(szOffset, "+0x%x",
                static_cast<unsigned>(static_cast<const BYTE*>(pAddress) - reinterpret_cast<BYTE*>(hModule)));
    return path.substr(path.find_last_of('\\') + 1) + szOffset;
}

std::string TextOf(const Injection& injection) {
    std::string text = injection.m_pszFailed != nullptr ? injection.m_pszFailed : "(nothing)";
    for (const void* const pCaller : injection.m_callers)
        if (g_installed.count(ModuleOf(pCaller)) != 0)
            text += "\n    " + WhereIs(pCaller);
    return text;
}

} // namespace testkit::fault
