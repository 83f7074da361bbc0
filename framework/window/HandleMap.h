// Which object belongs to which handle: permanent ones that applications made, and
// temporary ones that FromHandle made for foreign handles.
#pragma once

#include "afxwin.h"

#include <algorithm>
#include <map>
#include <memory>
#include <unordered_map>

namespace fieldkit::detail {

/// A handle map of one kind for one thread.
///
/// A temporary object must live as long as anybody up the stack may hold it. Each is
/// therefore marked with the depth of the message loop in which it was last asked for,
/// and a loop that is idle deletes only those of its own depth or deeper.
template <class Object, class Handle>
class CHandleMap {
public:
    /// @param pMember the object's member that holds its handle
    explicit CHandleMap(Handle Object::*pMember) : m_pMember(pMember) {}
    ~CHandleMap() { DeleteTemporary(0); }
    CHandleMap(const CHandleMap&) = delete;
    CHandleMap& operator=(const CHandleMap&) = delete;

    /// Every message asks for its window, so what was found lately is kept, and where.
    Object* Permanent(Handle handle) const {
        CRecent& recent = RecentOf(handle);
        if (recent.handle != handle) {
            const auto it = m_permanent.find(handle);
            recent = {handle, it == m_permanent.end() ? nullptr : it->second};
        }
        return recent.pObject;
    }

    /// The first permanent object of which a condition holds, or null.
    template <class Condition>
    Object* FindPermanent(Condition condition) const {
        for (const auto& [handle, pObject] : m_permanent)
            if (condition(pObject))
                return pObject;
        return nullptr;
    }

    void SetPermanent(Handle handle, Object* pObject) {
        m_permanent[handle] = pObject;
        RecentOf(handle) = {};
    }

    void Remove(Handle handle) {
        m_permanent.erase(handle);
        RecentOf(handle) = {};
        Forget(handle);
    }

    /// The permanent object, else a temporary one that `make` creates.
    template <class Make>
    Object* FromHandle(Handle handle, int nDepth, Make make) {
        if (handle == nullptr)
            return nullptr;
        if (Object* pObject = Permanent(handle))
            return pObject;
        auto it = m_temporary.find(handle);
        if (it == m_temporary.end()) {
            // In the map before it has the handle: if there is no memory, it must not release that.
            it = m_temporary.emplace(handle, CSlot{std::unique_ptr<Object>(make()), nDepth}).first;
            it->second.pObject.get()->*m_pMember = handle;
        }
        it->second.nDepth = std::min(it->second.nDepth, nDepth);
        return it->second.pObject.get();
    }

    void DeleteTemporary(int nDepth) {
        std::erase_if(m_orphans, [nDepth](const auto& orphan) { return orphan.second.nDepth >= nDepth; });
        for (auto it = m_temporary.begin(); it != m_temporary.end();) {
            if (it->second.nDepth < nDepth) {
                ++it;
                continue;
            }
            // Another's handle: the object must not release it.
            it->second.pObject.get()->*m_pMember = nullptr;
            it = m_temporary.erase(it);
        }
    }

private:
    struct CSlot {
        std::unique_ptr<Object> pObject;
        int nDepth = 0;
    };

    struct CRecent {
        Handle handle = nullptr;
        Object* pObject = nullptr;
    };

    /// The place that a handle shares with others. Handles are even numbers, or addresses.
    CRecent& RecentOf(Handle handle) const {
        return m_recent[(reinterpret_cast<std::size_t>(handle) >> 1) % std::size(m_recent)];
    }

    void Forget(Handle handle) {
        const auto it = m_temporary.find(handle);
        if (it == m_temporary.end())
            return;
        it->second.pObject.get()->*m_pMember = nullptr;
        // Somebody up the stack may still hold the object: keep it, without a handle,
        // until the loop is idle. Moved as a whole, since a window that goes must not need memory.
        m_orphans.insert(m_temporary.extract(it));
    }

    Handle Object::*m_pMember;
    std::unordered_map<Handle, Object*> m_permanent;
    mutable CRecent m_recent[32];
    std::map<Handle, CSlot> m_temporary;
    std::multimap<Handle, CSlot> m_orphans; ///< Their handles are gone, or another's.
};

} // namespace fieldkit::detail
