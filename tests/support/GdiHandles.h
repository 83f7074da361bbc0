// How many drawing objects the process has, to find the ones that nobody deletes.
#pragma once

#include "afxwin.h"

#include <cstddef>

namespace fx {

/// Windows tells the number. Wine tells 0, but keeps the same table of all objects in the
/// process, which is counted then.
inline int CountGdiHandles() {
    if (const DWORD nObjects = ::GetGuiResources(::GetCurrentProcess(), GR_GDIOBJECTS))
        return static_cast<int>(nObjects);
    struct Entry {
        void* pKernel;
        WORD nProcess;
        WORD nCount;
        WORD nUpper;
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

} // namespace fx
