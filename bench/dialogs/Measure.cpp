#include "Measure.h"

#include <algorithm>
#include <cstdio>

namespace bench {

double Now() {
    LARGE_INTEGER frequency;
    LARGE_INTEGER counter;
    ::QueryPerformanceFrequency(&frequency);
    ::QueryPerformanceCounter(&counter);
    return 1000.0 * static_cast<double>(counter.QuadPart) / static_cast<double>(frequency.QuadPart);
}

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

Pair Compare(const std::function<Cost()>& bare, const std::function<Cost()>& ours) {
    constexpr int RUNS = 7;
    const auto keepBest = [](Cost& best, const Cost& next) {
        if (next.ms < best.ms)
            best = next;
    };
    Pair best = {bare(), ours()};
    for (int i = 1; i < RUNS; ++i) {
        keepBest(best.bare, bare());
        keepBest(best.ours, ours());
    }
    return best;
}

bool Report(const char* pszWhat, const Pair& pair, double limit) {
    const double ratio = pair.ours.ms / pair.bare.ms;
    std::printf("%-34s bare %8.1f ms   ours %8.1f ms   ratio %5.2f (goal %.1f)%s\n", pszWhat, pair.bare.ms,
                pair.ours.ms, ratio, limit, ratio <= limit ? "" : "   MISSED");
    std::fflush(stdout);
    return ratio <= limit;
}

bool ReportMemory(const Pair& pair, int nItems) {
    constexpr double LIMIT = 2048;
    const double each = (pair.ours.bytes - pair.bare.bytes) / nItems;
    std::printf("%-34s %.0f bytes for each item beyond the bare control (goal %.0f)%s\n", "", each, LIMIT,
                each <= LIMIT ? "" : "   MISSED");
    std::fflush(stdout);
    return each <= LIMIT;
}

} // namespace bench
