#include "testkit/Leftovers.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace testkit {

namespace {

BOOL CALLBACK CountChild(HWND, LPARAM lCount) {
    return ++*reinterpret_cast<int*>(lCount) > 0;
}
BOOL CALLBACK CountWindow(HWND hWnd, LPARAM lCount) {
    ::EnumChildWindows(hWnd, CountChild, lCount);
    return CountChild(hWnd, lCount);
}

template <class Function>
Function FromNtdll(const char* pszName) {
    return reinterpret_cast<Function>(
        reinterpret_cast<UINT_PTR>(::GetProcAddress(::GetModuleHandle(L"ntdll.dll"), pszName)));
}

/// Windows tells the number. Wine tells 0, but keeps the same table of all objects in the
/// process, which is counted then.
int CountGdiObjects() {
    if (const DWORD nObjects = ::GetGuiResources(::GetCurrentProcess(), GR_GDIOBJECTS))
        return static_cast<int>(nObjects);
    struct Entry {
        DWORD64 nKernel;
        WORD nProcess, nCount, nUpper;
        BYTE nType; ///< 0 for a free entry.
        BYTE nFlags;
        DWORD64 nUser;
    };
    using PebFn = const std::byte*(NTAPI*)();
    constexpr size_t kTableInPeb = sizeof(void*) == 8 ? 0xF8 : 0x94;
    constexpr int kTableSize = 0x4000;
    const std::byte* const pPeb = FromNtdll<PebFn>("RtlGetCurrentPeb")();
    const Entry* const pTable = *reinterpret_cast<const Entry* const*>(pPeb + kTableInPeb);
    return static_cast<int>(
        std::count_if(pTable, pTable + kTableSize, [](const Entry& entry) { return entry.nType != 0; }));
}

/// GetProcessHandleCount says 0 under Wine; the list of all handles is right.
int CountHandles() {
    struct Handle {
        ULONG nProcess;
        BYTE type, flags;
        USHORT value;
        void* pObject;
        ULONG access;
    };
    struct List {
        ULONG nCount;
        Handle handles[1];
    };
    constexpr ULONG kSystemHandles = 16;
    using QueryFn = NTSTATUS(NTAPI*)(ULONG, PVOID, ULONG, PULONG);
    DWORD nHandles = 0;
    if (::GetProcessHandleCount(::GetCurrentProcess(), &nHandles) && nHandles != 0)
        return static_cast<int>(nHandles);
    std::vector<BYTE> memory(1 << 20);
    FromNtdll<QueryFn>("NtQuerySystemInformation")(kSystemHandles, memory.data(),
                                                   static_cast<ULONG>(memory.size()), nullptr);
    const auto* pList = reinterpret_cast<const List*>(memory.data());
    return static_cast<int>(
        std::count_if(pList->handles, pList->handles + pList->nCount, [](const Handle& handle) {
            return LOWORD(handle.nProcess) == LOWORD(::GetCurrentProcessId());
        }));
}

} // namespace

size_t HeapBytes() {
    HANDLE heaps[64];
    const DWORD nHeaps = std::min<DWORD>(64, ::GetProcessHeaps(64, heaps));
    size_t nBytes = 0;
    for (DWORD i = 0; i < nHeaps; ++i) {
        PROCESS_HEAP_ENTRY entry = {};
        ::HeapLock(heaps[i]);
        while (::HeapWalk(heaps[i], &entry))
            if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY)
                nBytes += entry.cbData;
        ::HeapUnlock(heaps[i]);
    }
    return nBytes;
}

Leftovers Leftovers::Now() {
    Leftovers now;
    ::EnumThreadWindows(::GetCurrentThreadId(), CountWindow, reinterpret_cast<LPARAM>(&now.nWindows));
    now.nGdiObjects = CountGdiObjects();
    now.nHandles = CountHandles();
    now.nHeapBytes = HeapBytes();
    return now;
}

std::string Leftovers::MoreThan(const Leftovers& before, size_t nHeapSlack) const {
    std::string more;
    const auto add = [&more](long long nMore, const char* pszWhat) {
        if (nMore > 0)
            more += (more.empty() ? "" : ", ") + std::to_string(nMore) + pszWhat;
    };
    add(nWindows - before.nWindows, " windows");
    add(nGdiObjects - before.nGdiObjects, " GDI objects");
    add(nHandles - before.nHandles, " handles");
    if (nHeapBytes > before.nHeapBytes + nHeapSlack)
        add(static_cast<long long>(nHeapBytes - before.nHeapBytes), " bytes");
    return more;
}

void ExpectNothingLeft(const std::function<void()>& openAndClose, const Place& place) {
    constexpr int kWarmUp = 100;
    constexpr int kOpens = 100;
    // What the system keeps does not grow with the opens; a leaked string alone would be three
    // times this.
    constexpr size_t kHeapSlack = 1024;
    for (int i = 0; i < kWarmUp; ++i)
        openAndClose();
    const Leftovers before = Leftovers::Now();
    for (int i = 0; i < kOpens; ++i)
        openAndClose();
    const std::string more = Leftovers::Now().MoreThan(before, kHeapSlack);
    if (!more.empty())
        Fail("left by " + std::to_string(kOpens) + " times: " + more, place);
}

} // namespace testkit
