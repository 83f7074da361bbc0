/// @file
/// What a program holds, counted to prove that screens leave nothing behind.
#pragma once

#include <afxwin.h>

#include <gtest/gtest.h>

#include <functional>

struct CLeftovers {
    int nWindows = 0;
    DWORD nDrawingObjects = 0; ///< Always 0 on systems that do not count them.
    size_t nHeapBytes = 0;

    static CLeftovers Now() {
        CLeftovers now;
        const auto count = [](HWND, LPARAM lParam) -> BOOL {
            ++*reinterpret_cast<int*>(lParam);
            return TRUE;
        };
        ::EnumThreadWindows(::GetCurrentThreadId(), count, reinterpret_cast<LPARAM>(&now.nWindows));
        now.nDrawingObjects = ::GetGuiResources(::GetCurrentProcess(), GR_GDIOBJECTS);
        now.nHeapBytes = HeapBytes();
        return now;
    }

private:
    static size_t HeapBytes() {
        size_t nBytes = 0;
        PROCESS_HEAP_ENTRY entry = {};
        ::HeapLock(::GetProcessHeap());
        while (::HeapWalk(::GetProcessHeap(), &entry))
            if ((entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0)
                nBytes += entry.cbData;
        ::HeapUnlock(::GetProcessHeap());
        return nBytes;
    }
};

/// Runs something 60 times and expects to find everything as it was. The first runs fill
/// caches of the system and do not count.
inline void ExpectNothingLeft(const std::function<void()>& run) {
    constexpr int WARM_UP = 20;
    constexpr int RUNS = 60; // the library tests 200; a screen here has only its own few lines to lose
    constexpr size_t HEAP_SLACK = RUNS * 32; // less than one string or window object for each run
    for (int i = 0; i < WARM_UP; ++i)
        run();
    const CLeftovers before = CLeftovers::Now();
    for (int i = 0; i < RUNS; ++i)
        run();
    const CLeftovers after = CLeftovers::Now();
    EXPECT_EQ(after.nWindows, before.nWindows);
    EXPECT_EQ(after.nDrawingObjects, before.nDrawingObjects);
    EXPECT_LE(after.nHeapBytes, before.nHeapBytes + HEAP_SLACK);
}
