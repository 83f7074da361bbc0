/// @file
/// CMap. Included by afxtempl.h.
#pragma once

#include "afxelem_.h"

#include <unordered_map>

/// A table of values by keys, which are told apart by HashKey and CompareElements.
/// Positions last until their entry is removed; the order of the entries means nothing.
template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
class CMap : public CObject {
public:
    /// The block size is taken for compatibility.
    explicit CMap(INT_PTR /*nBlockSize*/ = 10) {}

    /// The number of entries.
    ///@{
    INT_PTR GetCount() const { return static_cast<INT_PTR>(m_entries.size()); }
    INT_PTR GetSize() const { return GetCount(); }
    ///@}
    /// Whether there is no entry.
    BOOL IsEmpty() const { return m_entries.empty() ? TRUE : FALSE; }

    /// @return zero, with `rValue` as it was, if there is no such key.
    BOOL Lookup(ARG_KEY key, VALUE& rValue) const {
        const auto it = m_entries.find(KEY(key));
        if (it == m_entries.end())
            return FALSE;
        rValue = it->second;
        return TRUE;
    }
    /// The value of the key, made anew if there is none.
    VALUE& operator[](ARG_KEY key) { return m_entries[KEY(key)]; }
    /// Sets the value of a key, which is made if there is none.
    void SetAt(ARG_KEY key, ARG_VALUE newValue) { m_entries.insert_or_assign(KEY(key), VALUE(newValue)); }
    /// Removes an entry. @return zero if there is no such key
    BOOL RemoveKey(ARG_KEY key) { return m_entries.erase(KEY(key)) != 0 ? TRUE : FALSE; }
    /// Removes all entries.
    void RemoveAll() { m_entries.clear(); }

    /// NULL for an empty map.
    POSITION GetStartPosition() const { return ToPosition(m_entries.begin()); }
    /// The entry there; the position moves on, to NULL behind the last one.
    void GetNextAssoc(POSITION& rNextPosition, KEY& rKey, VALUE& rValue) const {
        if (rNextPosition == nullptr)
            AfxThrowInvalidArgException();
        auto it = m_entries.find(reinterpret_cast<const Entry*>(rNextPosition)->first);
        rKey = it->first;
        rValue = it->second;
        rNextPosition = ToPosition(++it);
    }
    /// Prepares for that many entries.
    void InitHashTable(UINT nHashSize, BOOL /*bAllocNow*/ = TRUE) { m_entries.rehash(nHashSize); }

    /// The count, then key and value of each entry. Loading adds to the content.
    void Serialize(CArchive& ar) override {
        if (ar.IsStoring()) {
            ar.WriteCount(m_entries.size());
            for (auto& [key, value] : m_entries) {
                SerializeElements<KEY>(ar, const_cast<KEY*>(&key), 1);
                SerializeElements<VALUE>(ar, &value, 1);
            }
            return;
        }
        for (DWORD_PTR nLeft = ar.ReadCount(); nLeft != 0; --nLeft) {
            KEY key{};
            VALUE value{};
            SerializeElements<KEY>(ar, &key, 1);
            SerializeElements<VALUE>(ar, &value, 1);
            SetAt(key, value);
        }
    }

private:
    using Entry = std::pair<const KEY, VALUE>;
    struct Hash {
        std::size_t operator()(const KEY& key) const { return HashKey<ARG_KEY>(key); }
    };
    struct Equal {
        bool operator()(const KEY& key1, const KEY& key2) const { return CompareElements(&key1, &key2) != 0; }
    };
    using Entries = std::unordered_map<KEY, VALUE, Hash, Equal>;

    POSITION ToPosition(typename Entries::const_iterator it) const {
        return it != m_entries.end() ? reinterpret_cast<POSITION>(const_cast<Entry*>(&*it)) : nullptr;
    }

    Entries m_entries;
};
