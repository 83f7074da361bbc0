// Where a thread of this program stands, for the report of a hang or a crash.
#pragma once

#include <windows.h>

#include <cstdio>
#include <cstring>

namespace testkit::detail {

/// Prints an address as module and address for addr2line.
inline void PrintAddress(DWORD_PTR nAddress, DWORD_PTR nBase) {
    char szModule[MAX_PATH] = "?";
    DWORD_PTR nPreferred = 0;
    if (nBase != 0) {
        ::GetModuleFileNameA(reinterpret_cast<HMODULE>(nBase), szModule, MAX_PATH);
        const auto* pDos = reinterpret_cast<const IMAGE_DOS_HEADER*>(nBase);
        const auto* pHeaders = reinterpret_cast<const IMAGE_NT_HEADERS*>(nBase + pDos->e_lfanew);
        nPreferred = pHeaders->OptionalHeader.ImageBase;
    }
    const char* pszName = std::strrchr(szModule, '\\');
    std::printf("  %s %llx\n", pszName != nullptr ? pszName + 1 : szModule,
                static_cast<unsigned long long>(nAddress - nBase + nPreferred));
}

/// Prints the return addresses. The context is that of a thread that is suspended or has crashed:
/// nothing here may need memory, the thread may hold the heap.
#ifdef _WIN64
inline void PrintStack(CONTEXT context) {
    constexpr int kDeepest = 60;
    for (int i = 0; i < kDeepest && context.Rip != 0; ++i) {
        DWORD64 nBase = 0;
        PRUNTIME_FUNCTION pFunction = ::RtlLookupFunctionEntry(context.Rip, &nBase, nullptr);
        PrintAddress(context.Rip, nBase);
        if (pFunction == nullptr) { // a leaf
            context.Rip = *reinterpret_cast<const DWORD64*>(context.Rsp);
            context.Rsp += sizeof(DWORD64);
            continue;
        }
        void* pHandlerData = nullptr;
        DWORD64 nFrame = 0;
        ::RtlVirtualUnwind(UNW_FLAG_NHANDLER, nBase, context.Rip, pFunction, &context, &pHandlerData, &nFrame,
                           nullptr);
    }
}
#else
/// Without frame pointers only the words of the stack tell: those that point into code.
inline void PrintStack(const CONTEXT& context) {
    constexpr int kDeepest = 60, kWords = 4096;
    const auto moduleOf = [](DWORD nAddress) -> DWORD_PTR {
        MEMORY_BASIC_INFORMATION memory = {};
        const bool bCode = ::VirtualQuery(reinterpret_cast<LPCVOID>(nAddress), &memory, sizeof memory) != 0 &&
                           memory.Type == MEM_IMAGE &&
                           (memory.Protect & (PAGE_EXECUTE_READ | PAGE_EXECUTE_WRITECOPY)) != 0;
        return bCode ? reinterpret_cast<DWORD_PTR>(memory.AllocationBase) : 0;
    };
    PrintAddress(context.Eip, moduleOf(context.Eip));
    MEMORY_BASIC_INFORMATION stack = {};
    ::VirtualQuery(reinterpret_cast<LPCVOID>(context.Esp), &stack, sizeof stack);
    const DWORD nEnd = reinterpret_cast<DWORD>(stack.BaseAddress) + stack.RegionSize;
    int nFound = 0;
    for (DWORD nAt = context.Esp & ~3U, i = 0; nAt < nEnd && i < kWords && nFound < kDeepest; nAt += 4, ++i)
        if (const DWORD nWord = *reinterpret_cast<const DWORD*>(nAt);
            const DWORD_PTR nBase = moduleOf(nWord)) {
            PrintAddress(nWord, nBase);
            ++nFound;
        }
}
#endif

/// Of another thread, which stays suspended: the program is at its end.
inline void PrintStackOf(DWORD nThread) {
    const HANDLE hThread = ::OpenThread(THREAD_SUSPEND_RESUME | THREAD_GET_CONTEXT, FALSE, nThread);
    CONTEXT context = {};
    context.ContextFlags = CONTEXT_FULL;
    if (hThread != nullptr && ::SuspendThread(hThread) != DWORD(-1) && ::GetThreadContext(hThread, &context))
        PrintStack(context);
}

} // namespace testkit::detail
