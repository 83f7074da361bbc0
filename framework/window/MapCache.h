// Answers of message maps, so that each is searched for once.
#pragma once

#include "afxwin.h"

namespace fieldkit::detail {

/// What a thread has found in message maps: the line for a message, or that there is none.
/// A place is shared by many questions and keeps the last one. It forgets everything when a DLL
/// is unloaded, for the map may have been in it and another one may come to lie there.
class CMapCache {
public:
    /// As Search, and remembered.
    const AFX_MSGMAP_ENTRY* Find(const AFX_MSGMAP* pMap, UINT message, int nCode, UINT nID);
    /// The first line for a message, a code and an identifier in a map or its base maps, or null.
    static const AFX_MSGMAP_ENTRY* Search(const AFX_MSGMAP* pMap, UINT message, int nCode, UINT nID);

private:
    struct CSlot {
        const AFX_MSGMAP* pMap;
        UINT message;
        int nCode;
        UINT nID;
        const AFX_MSGMAP_ENTRY* pEntry;
    };
    static constexpr int kShift = 56;                         ///< Leaves the number of a slot.
    static constexpr std::size_t kSlots = 1 << (64 - kShift); // 8 KB a thread

    /// Searches for what the slot does not hold, and keeps it there if it may be kept.
    const AFX_MSGMAP_ENTRY* FindNew(CSlot& slot, const AFX_MSGMAP* pMap, UINT message, int nCode, UINT nID);

    CSlot m_slots[kSlots] = {};
    unsigned m_nUnloads = 0; ///< As many DLLs had been unloaded when the first answer was kept.
};

} // namespace fieldkit::detail
