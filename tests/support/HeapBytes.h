// What a program holds in its heaps.
#pragma once

#include <windows.h>

#include <algorithm>

namespace fx {

/// @return the bytes in use, of all heaps of the process
inline size_t HeapBytes() {
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

} // namespace fx
