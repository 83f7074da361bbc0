// Where a thread of this program stands, for the report of a hang or a crash.
#pragma once

#include <windows.h>

#include <cstdio>
#include <cstring>

namespace testkit::detail {

/// Prints the return addresses as module and address for addr2line. The context is that of a thread
/// that is suspended or has crashed: nothing here may need memory, the thread may hold the heap.
inline void PrintStack(CONTEXT context) {
    constexpr int kDeepest = 60;
    for (int i = 0; i < kDeepest && context.Rip != 0; ++i) {
        DWORD64 nBase = 0;
        PRUNTIME_FUNCTION pFunction = ::RtlLookupFunctionEntry(context.Rip, &nBase, nullptr);
        char szModule[MAX_PATH] = "?";
        DWORD64 nPreferred = 0;
        if (nBase != 0) {
            ::GetModuleFileNameA(reinterpret_cast<HMODULE>(nBase), szModule, MAX_PATH);
            const auto* pDos = reinterpret_cast<const IMAGE_DOS_HEADER*>(nBase);
            const auto* pHeaders = reinterpret_cast<const IMAGE_NT_HEADERS*>(nBase + pDos->e_lfanew);
            nPreferred = pHeaders->OptionalHeader.ImageBase;
        }
        const char* pszName = std::strrchr(szModule, '\\');
        std::printf("  %s %llx\n", pszName != nullptr ? pszName + 1 : szModule,
                    context.Rip - nBase + nPreferred);
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

/// Of another thread, which stays suspended: the program is at its end.
inline void PrintStackOf(DWORD nThread) {
    const HANDLE hThread = ::OpenThread(THREAD_SUSPEND_RESUME | THREAD_GET_CONTEXT, FALSE, nThread);
    CONTEXT context = {};
    context.ContextFlags = CONTEXT_FULL;
    if (hThread != nullptr && ::SuspendThread(hThread) != DWORD(-1) && ::GetThreadContext(hThread, &context))
        PrintStack(context);
}

} // namespace testkit::detail
