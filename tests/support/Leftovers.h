// Counts what a program holds, to prove that opening and closing leaves nothing behind.
#pragma once

#include "FrameworkEnvironment.h"
#include "HeapBytes.h"

#include <functional>

namespace fx {

struct Leftovers {
    int nWindows = 0, nGdiObjects = 0, nHandles = 0;
    size_t nHeapBytes = 0;

    static Leftovers Now() {
        Leftovers now;
        ::EnumThreadWindows(::GetCurrentThreadId(), CountWindow, reinterpret_cast<LPARAM>(&now.nWindows));
        now.nGdiObjects = CountGdiHandles();
        now.nHandles = Handles();
        now.nHeapBytes = fx::HeapBytes();
        return now;
    }

private:
    static BOOL CALLBACK CountChild(HWND, LPARAM lCount) { return ++*reinterpret_cast<int*>(lCount) > 0; }
    static BOOL CALLBACK CountWindow(HWND hWnd, LPARAM lCount) {
        ::EnumChildWindows(hWnd, CountChild, lCount);
        return CountChild(hWnd, lCount);
    }

    /// Windows tells the number. Wine tells 0, but keeps the same table of all objects in the
    /// process, which is counted then.
    static int CountGdiHandles() {
        if (const DWORD nObjects = ::GetGuiResources(::GetCurrentProcess(), GR_GDIOBJECTS))
            return static_cast<int>(nObjects);
        struct Entry {
            void* pKernel;
            WORD nProcess, nCount, nUpper;
            BYTE nType; ///< 0 for a free entry.
            BYTE nFlags;
            void* pUser;
        };
        constexpr size_t TABLE_IN_PEB = 0xF8;
        constexpr int TABLE_SIZE = 0x4000;
        const std::byte* pPeb = nullptr;
        __asm__("movq %%gs:0x60, %0" : "=r"(pPeb)); // the thread's block holds it at a fixed place
        const Entry* const pTable = *reinterpret_cast<Entry* const*>(pPeb + TABLE_IN_PEB);
        int nObjects = 0;
        for (int i = 0; i < TABLE_SIZE; ++i)
            nObjects += pTable[i].nType != 0 ? 1 : 0;
        return nObjects;
    }

    /// GetProcessHandleCount says 0 under Wine; the list of all handles is right.
    static int Handles() {
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
        constexpr ULONG SYSTEM_HANDLES = 16;
        using QueryFn = NTSTATUS(NTAPI*)(ULONG, PVOID, ULONG, PULONG);
        const auto pfnQuery = reinterpret_cast<QueryFn>(reinterpret_cast<UINT_PTR>(
            ::GetProcAddress(::GetModuleHandle(L"ntdll.dll"), "NtQuerySystemInformation")));
        std::vector<BYTE> memory(1 << 20);
        pfnQuery(SYSTEM_HANDLES, memory.data(), static_cast<ULONG>(memory.size()), nullptr);
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
