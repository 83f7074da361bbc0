// Counts what a program holds, to prove that opening and closing leaves nothing behind.
#pragma once

#include "FrameworkEnvironment.h"
#include "GdiHandles.h"
#include "HeapBytes.h"

#include <functional>

namespace fx {

struct Leftovers {
    int nWindows = 0;
    int nGdiObjects = 0;
    int nHandles = 0;
    size_t nHeapBytes = 0;

    static Leftovers Now() {
        Leftovers now;
        ::EnumThreadWindows(::GetCurrentThreadId(), CountWindow, reinterpret_cast<LPARAM>(&now.nWindows));
        now.nGdiObjects = CountGdiHandles();
        now.nHandles = Handles();
        now.nHeapBytes = HeapBytes();
        return now;
    }

private:
    static BOOL CALLBACK CountWindow(HWND hWnd, LPARAM lParam) {
        ++*reinterpret_cast<int*>(lParam);
        ::EnumChildWindows(
            hWnd,
            [](HWND, LPARAM lCount) -> BOOL {
                ++*reinterpret_cast<int*>(lCount);
                return TRUE;
            },
            lParam);
        return TRUE;
    }

    /// A function of the system's own library that has no import library.
    template <class Fn>
    static Fn Native(const char* pszName) {
        const FARPROC pfn = ::GetProcAddress(::GetModuleHandle(L"ntdll.dll"), pszName);
        return reinterpret_cast<Fn>(reinterpret_cast<UINT_PTR>(pfn));
    }

    /// GetProcessHandleCount says 0 under Wine; the list of all handles is right.
    static int Handles() {
        struct Handle {
            ULONG nProcess;
            BYTE type;
            BYTE flags;
            USHORT value;
            void* pObject;
            ULONG access;
        };
        struct List {
            ULONG nCount;
            Handle handles[1];
        };
        constexpr ULONG SYSTEM_HANDLES = 16;
        using QueryFn = NTSTATUS(NTAPI*)(ULONG, PVOID, ULONG, PULONG);
        std::vector<BYTE> memory(1 << 20);
        Native<QueryFn>("NtQuerySystemInformation")(SYSTEM_HANDLES, memory.data(),
                                                    static_cast<ULONG>(memory.size()), nullptr);
        const auto* pList = reinterpret_cast<const List*>(memory.data());
        int nCount = 0;
        for (ULONG i = 0; i < pList->nCount; ++i)
            nCount += LOWORD(pList->handles[i].nProcess) == LOWORD(::GetCurrentProcessId());
        return nCount;
    }
};

/// Runs something that opens and closes a dialog 200 times and expects to find everything
/// as it was. The first runs fill caches of the system, so that they do not count.
inline void ExpectNothingLeft(const std::function<void()>& openAndClose) {
    constexpr int WARM_UP = 100;
    constexpr int OPENS = 100;
    // What the system keeps does not grow with the opens; a leaked string alone would be
    // three times this.
    constexpr size_t HEAP_SLACK = 1024;
    for (int i = 0; i < WARM_UP; ++i)
        openAndClose();
    const Leftovers before = Leftovers::Now();
    for (int i = 0; i < OPENS; ++i)
        openAndClose();
    const Leftovers after = Leftovers::Now();
    EXPECT_EQ(after.nWindows, before.nWindows);
    EXPECT_EQ(after.nGdiObjects, before.nGdiObjects);
    EXPECT_EQ(after.nHandles, before.nHandles);
    EXPECT_LE(after.nHeapBytes, before.nHeapBytes + HEAP_SLACK);
}

} // namespace fx
