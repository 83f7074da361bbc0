/// @file
/// CMap. Included by afxtempl.h.
#pragma once

#include "afxelem_.h"

#include <memory>
#include <utility>
#include <vector>

/// A table of values by keys, which are told apart by HashKey and CompareElements.
/// Positions last until their entry is removed; entries come in the order in which they were made.
/// A function that fails for want of memory leaves the map as it was.
template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
class CMap : public CObject {
public:
    /// The types, for CTypedPtrMap.
    ///@{
    using BASE_KEY = KEY;
    using BASE_ARG_KEY = ARG_KEY;
    using BASE_VALUE = VALUE;
    ///@}
    /// An entry.
    struct CPair {
        const KEY key; ///< its key
        VALUE value{}; ///< its value
        CPair(ARG_KEY keyval) : key(keyval) {}
    };

    /// The block size is taken for compatibility.
    explicit CMap(INT_PTR /*nBlockSize*/ = 10) {}
    ~CMap() override { CMap::RemoveAll(); }

    /// The number of entries.
    ///@{
    INT_PTR GetCount() const { return m_nCount; }
    INT_PTR GetSize() const { return m_nCount; }
    ///@}
    /// Whether there is no entry.
    BOOL IsEmpty() const { return m_nCount == 0 ? TRUE : FALSE; }

    /// @return zero, with `rValue` as it was, if there is no such key.
    BOOL Lookup(ARG_KEY key, VALUE& rValue) const {
        const CPair* const pPair = PLookup(key);
        if (pPair == nullptr)
            return FALSE;
        rValue = pPair->value;
        return TRUE;
    }
    /// The entry of a key; NULL if there is none.
    ///@{
    const CPair* PLookup(ARG_KEY key) const { return Find(key, HashKey<ARG_KEY>(key)); }
    CPair* PLookup(ARG_KEY key) { return Find(key, HashKey<ARG_KEY>(key)); }
    ///@}
    /// The value of the key, made anew if there is none.
    VALUE& operator[](ARG_KEY key);
    /// Sets the value of a key, which is made if there is none.
    void SetAt(ARG_KEY key, ARG_VALUE newValue);
    /// Removes an entry. @return zero if there is no such key
    BOOL RemoveKey(ARG_KEY key);
    /// Removes all entries.
    void RemoveAll();

    /// NULL for an empty map.
    POSITION GetStartPosition() const { return reinterpret_cast<POSITION>(m_pFirst); }
    /// The entry there; the position moves on, to NULL behind the last one.
    void GetNextAssoc(POSITION& rNextPosition, KEY& rKey, VALUE& rValue) const {
        auto* const pAssoc = reinterpret_cast<CAssoc*>(rNextPosition);
        if (pAssoc == nullptr)
            AfxThrowInvalidArgException();
        rKey = pAssoc->key;
        rValue = pAssoc->value;
        rNextPosition = reinterpret_cast<POSITION>(pAssoc->pNext);
    }
    /// The first entry, and the one behind an entry; NULL if there is none.
    ///@{
    const CPair* PGetFirstAssoc() const { return m_pFirst; }
    CPair* PGetFirstAssoc() { return m_pFirst; }
    const CPair* PGetNextAssoc(const CPair* pPair) const { return static_cast<const CAssoc*>(pPair)->pNext; }
    CPair* PGetNextAssoc(const CPair* pPair) { return static_cast<const CAssoc*>(pPair)->pNext; }
    ///@}
    /// The number of chains in which keys are searched.
    UINT GetHashTableSize() const { return static_cast<UINT>(m_chains.size()); }
    /// Prepares for that many entries; more come in as well.
    void InitHashTable(UINT nHashSize, BOOL /*bAllocNow*/ = TRUE) { Rehash(nHashSize > 0 ? nHashSize : 1); }

    /// The count, then key and value of each entry. Loading adds to the content.
    void Serialize(CArchive& ar) override;

private:
    struct CAssoc : CPair {
        CAssoc(ARG_KEY keyval, UINT nKeyHash) : CPair(keyval), nHash(nKeyHash) {}
        UINT nHash;
        CAssoc* pChained = nullptr; ///< the next of the same chain
        CAssoc* pPrev = nullptr;    ///< its neighbours in the order of making
        CAssoc* pNext = nullptr;
    };

    CAssoc*& Chain(UINT nHash) const { return m_chains[nHash % static_cast<UINT>(m_chains.size())]; }
    CAssoc* Find(ARG_KEY key, UINT nHash) const;
    void Rehash(std::size_t nChains);
    CAssoc* Link(std::unique_ptr<CAssoc> pAssoc);

    mutable std::vector<CAssoc*> m_chains;
    CAssoc* m_pFirst = nullptr;
    CAssoc* m_pLast = nullptr;
    INT_PTR m_nCount = 0;
};

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
auto CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::Find(ARG_KEY key, UINT nHash) const -> CAssoc* {
    if (m_nCount == 0)
        return nullptr;
    CAssoc* pAssoc = Chain(nHash);
    while (pAssoc != nullptr && (pAssoc->nHash != nHash || !CompareElements(&pAssoc->key, &key)))
        pAssoc = pAssoc->pChained;
    return pAssoc;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
void CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::Rehash(std::size_t nChains) {
    std::vector<CAssoc*>(nChains).swap(m_chains);
    for (CAssoc* pAssoc = m_pFirst; pAssoc != nullptr; pAssoc = pAssoc->pNext)
        pAssoc->pChained = std::exchange(Chain(pAssoc->nHash), pAssoc);
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
auto CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::Link(std::unique_ptr<CAssoc> pNew) -> CAssoc* {
    constexpr std::size_t kFewest = 17;
    // Odd, so that pointers and other multiples spread.
    if (static_cast<std::size_t>(m_nCount) >= m_chains.size())
        Rehash(m_chains.empty() ? kFewest : 2 * m_chains.size() + 1);
    CAssoc* const pAssoc = pNew.release();
    pAssoc->pChained = std::exchange(Chain(pAssoc->nHash), pAssoc);
    pAssoc->pPrev = std::exchange(m_pLast, pAssoc);
    (pAssoc->pPrev != nullptr ? pAssoc->pPrev->pNext : m_pFirst) = pAssoc;
    ++m_nCount;
    return pAssoc;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
VALUE& CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::operator[](ARG_KEY key) {
    const UINT nHash = HashKey<ARG_KEY>(key);
    CAssoc* const pKnown = Find(key, nHash);
    return (pKnown != nullptr ? pKnown : Link(std::make_unique<CAssoc>(key, nHash)))->value;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
void CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::SetAt(ARG_KEY key, ARG_VALUE newValue) {
    const UINT nHash = HashKey<ARG_KEY>(key);
    if (CAssoc* const pKnown = Find(key, nHash); pKnown != nullptr) {
        pKnown->value = newValue;
        return;
    }
    auto pAssoc = std::make_unique<CAssoc>(key, nHash);
    pAssoc->value = newValue;
    Link(std::move(pAssoc));
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
BOOL CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::RemoveKey(ARG_KEY key) {
    const UINT nHash = HashKey<ARG_KEY>(key);
    CAssoc* const pAssoc = Find(key, nHash);
    if (pAssoc == nullptr)
        return FALSE;
    CAssoc** ppLink = &Chain(nHash);
    while (*ppLink != pAssoc)
        ppLink = &(*ppLink)->pChained;
    *ppLink = pAssoc->pChained;
    (pAssoc->pPrev != nullptr ? pAssoc->pPrev->pNext : m_pFirst) = pAssoc->pNext;
    (pAssoc->pNext != nullptr ? pAssoc->pNext->pPrev : m_pLast) = pAssoc->pPrev;
    --m_nCount;
    delete pAssoc;
    return TRUE;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
void CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::RemoveAll() {
    CAssoc* pAssoc = std::exchange(m_pFirst, nullptr);
    m_pLast = nullptr;
    m_nCount = 0;
    std::vector<CAssoc*>().swap(m_chains);
    while (pAssoc != nullptr)
        delete std::exchange(pAssoc, pAssoc->pNext);
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
void CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::Serialize(CArchive& ar) {
    if (ar.IsStoring()) {
        ar.WriteCount(static_cast<DWORD_PTR>(m_nCount));
        for (CAssoc* pAssoc = m_pFirst; pAssoc != nullptr; pAssoc = pAssoc->pNext) {
            SerializeElements<KEY>(ar, const_cast<KEY*>(&pAssoc->key), 1);
            SerializeElements<VALUE>(ar, &pAssoc->value, 1);
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
