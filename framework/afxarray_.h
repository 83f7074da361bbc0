/// @file
/// CArray. Included by afxtempl.h.
#pragma once

#include "afxelem_.h"

#include <algorithm>
#include <cstdint>
#include <new>
#include <stdexcept>
#include <vector>

/// A growing array. TYPE needs a default constructor and assignment. An index outside of
/// the array throws CInvalidArgException*, want of memory CMemoryException* or what copying an
/// element throws; the array is then as it was before the call, if moving an element cannot
/// throw. Pointers and references to elements last until the array grows.
template <class TYPE, class ARG_TYPE = const TYPE&>
class CArray : public CObject {
public:
    CArray() = default;

    /// The number of elements.
    INT_PTR GetSize() const { return static_cast<INT_PTR>(m_slots.size()); }
    /// See GetSize.
    INT_PTR GetCount() const { return static_cast<INT_PTR>(m_slots.size()); }
    /// Whether there is no element.
    BOOL IsEmpty() const { return m_slots.empty() ? TRUE : FALSE; }
    /// The last valid index; -1 for an empty array.
    INT_PTR GetUpperBound() const { return GetSize() - 1; }
    /// New elements are value-initialised.
    /// @param nGrowBy the elements to allocate in one step from now on; 0 for an automatic
    ///   choice, -1 to leave it as it is.
    void SetSize(INT_PTR nNewSize, INT_PTR nGrowBy = -1);
    /// Gives back the memory beyond the last element.
    void FreeExtra() { m_slots.shrink_to_fit(); }
    /// Removes all elements and frees the memory.
    void RemoveAll() { SetSize(0); }

    /// The element at an index, from 0.
    const TYPE& GetAt(INT_PTR nIndex) const { return Data()[Check(nIndex)]; }
    /// The element at an index, from 0.
    TYPE& GetAt(INT_PTR nIndex) { return Data()[Check(nIndex)]; }
    /// The element at an index, from 0.
    TYPE& ElementAt(INT_PTR nIndex) { return GetAt(nIndex); }
    /// The element at an index, from 0.
    const TYPE& ElementAt(INT_PTR nIndex) const { return GetAt(nIndex); }
    /// The element at an index, from 0.
    const TYPE& operator[](INT_PTR nIndex) const { return GetAt(nIndex); }
    /// The element at an index, from 0.
    TYPE& operator[](INT_PTR nIndex) { return GetAt(nIndex); }
    /// Replaces the element at an index.
    void SetAt(INT_PTR nIndex, ARG_TYPE newElement) { GetAt(nIndex) = newElement; }
    /// NULL while nothing is allocated.
    const TYPE* GetData() const { return Data(); }
    /// @copydoc GetData() const
    TYPE* GetData() { return Data(); }

    /// Replaces the element at an index, or grows the array up to it.
    void SetAtGrow(INT_PTR nIndex, ARG_TYPE newElement);
    /// @return the index of the new element.
    INT_PTR Add(ARG_TYPE newElement);
    /// @return the index of the first appended element.
    INT_PTR Append(const CArray& src);
    /// Replaces the content by copies of the other array's elements.
    void Copy(const CArray& src);
    /// Behind the end the array grows up to the index first.
    void InsertAt(INT_PTR nIndex, ARG_TYPE newElement, INT_PTR nCount = 1);
    /// Inserts copies of the elements of another array.
    void InsertAt(INT_PTR nStartIndex, const CArray* pNewArray);
    /// Removes `nCount` elements from an index on.
    void RemoveAt(INT_PTR nIndex, INT_PTR nCount = 1);

    /// The count, then the elements by SerializeElements. Loading replaces the content.
    void Serialize(CArchive& ar) override;

private:
    // An element of its own type, because a vector of bool has none.
    struct CSlot {
        TYPE value;
    };

    INT_PTR Check(INT_PTR nIndex) const {
        if (nIndex < 0 || nIndex >= GetSize())
            AfxThrowInvalidArgException();
        return nIndex;
    }
    TYPE* Data() { return reinterpret_cast<TYPE*>(m_slots.data()); }
    const TYPE* Data() const { return reinterpret_cast<const TYPE*>(m_slots.data()); }
    void MakeRoom(INT_PTR nNewSize);
    void AddGrown(ARG_TYPE newElement);
    template <class Fill>
    void Insert(INT_PTR nIndex, INT_PTR nCount, Fill fill);

    std::vector<CSlot> m_slots;
    INT_PTR m_nGrowBy = 0;
};

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::MakeRoom(INT_PTR nNewSize) try {
    const std::size_t nRoom = m_slots.capacity();
    if (static_cast<std::size_t>(nNewSize) <= nRoom)
        return;
    // Doubled, so that each element moves a few times only.
    const std::size_t nStep =
        m_nGrowBy > 0 ? static_cast<std::size_t>(m_nGrowBy) : std::max<std::size_t>(nRoom, 4);
    const std::size_t nLargest = m_slots.max_size();
    m_slots.reserve(std::max(static_cast<std::size_t>(nNewSize), nRoom + std::min(nStep, nLargest - nRoom)));
} catch (const std::bad_alloc&) {
    AfxThrowMemoryException();
} catch (const std::length_error&) {
    AfxThrowMemoryException();
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::SetSize(INT_PTR nNewSize, INT_PTR nGrowBy) {
    if (nNewSize < 0)
        AfxThrowInvalidArgException();
    if (nGrowBy >= 0)
        m_nGrowBy = nGrowBy;
    if (nNewSize == 0)
        std::vector<CSlot>().swap(m_slots);
    MakeRoom(nNewSize);
    m_slots.resize(static_cast<std::size_t>(nNewSize));
}

template <class TYPE, class ARG_TYPE>
template <class Fill>
void CArray<TYPE, ARG_TYPE>::Insert(INT_PTR nIndex, INT_PTR nCount, Fill fill) {
    if (nIndex < 0 || nCount < 0)
        AfxThrowInvalidArgException();
    const INT_PTR nOldSize = GetSize();
    const INT_PTR nBehind = std::max<INT_PTR>(nOldSize - nIndex, 0);
    if (nCount > INTPTR_MAX - std::max(nOldSize, nIndex))
        AfxThrowMemoryException();
    SetSize(std::max(nOldSize, nIndex) + nCount);
    TYPE* const pTail = Data() + (nOldSize - nBehind);
    TYPE* const pEnd = Data() + GetSize();
    std::move_backward(pTail, pTail + nBehind, pEnd);
    try {
        fill(Data() + nIndex);
    } catch (...) {
        std::move(pEnd - nBehind, pEnd, pTail);
        SetSize(nOldSize);
        throw;
    }
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::SetAtGrow(INT_PTR nIndex, ARG_TYPE newElement) {
    if (nIndex >= GetSize())
        InsertAt(nIndex, newElement);
    else
        SetAt(nIndex, newElement);
}

template <class TYPE, class ARG_TYPE>
INT_PTR CArray<TYPE, ARG_TYPE>::Add(ARG_TYPE newElement) {
    if (m_slots.size() == m_slots.capacity()) {
        AddGrown(newElement);
    } else {
        m_slots.push_back(CSlot{TYPE(newElement)});
    }
    return GetSize() - 1;
}

/// Apart, so that the usual addition is short enough to become a part of its caller.
template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::AddGrown(ARG_TYPE newElement) {
    TYPE copy(newElement); // it may be an element of this array
    MakeRoom(GetSize() + 1);
    m_slots.push_back(CSlot{std::move(copy)});
}

template <class TYPE, class ARG_TYPE>
INT_PTR CArray<TYPE, ARG_TYPE>::Append(const CArray& src) {
    const INT_PTR nOldSize = GetSize();
    const INT_PTR nCount = src.GetSize(); // src may be this array
    Insert(nOldSize, nCount, [&](TYPE* pGap) { std::copy_n(src.Data(), nCount, pGap); });
    return nOldSize;
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::Copy(const CArray& src) {
    if (this == &src)
        return;
    CArray copy;
    copy.Append(src);
    m_slots.swap(copy.m_slots);
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::InsertAt(INT_PTR nIndex, ARG_TYPE newElement, INT_PTR nCount) {
    const TYPE copy(newElement); // it may be an element of this array
    Insert(nIndex, nCount, [&](TYPE* pGap) { std::fill_n(pGap, nCount, copy); });
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::InsertAt(INT_PTR nStartIndex, const CArray* pNewArray) {
    if (pNewArray == nullptr || pNewArray == this)
        AfxThrowInvalidArgException();
    if (pNewArray->IsEmpty())
        return;
    Insert(nStartIndex, pNewArray->GetSize(),
           [&](TYPE* pGap) { std::copy_n(pNewArray->Data(), pNewArray->GetSize(), pGap); });
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::RemoveAt(INT_PTR nIndex, INT_PTR nCount) {
    if (nIndex < 0 || nCount < 0 || nCount > GetSize() - nIndex)
        AfxThrowInvalidArgException();
    const auto itFirst = m_slots.begin() + nIndex;
    m_slots.erase(itFirst, itFirst + nCount);
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::Serialize(CArchive& ar) {
    constexpr INT_PTR kStep = 1024; // a count in a damaged file must not fill the memory
    auto nLeft = static_cast<DWORD_PTR>(GetSize());
    if (ar.IsStoring()) {
        ar.WriteCount(nLeft);
    } else {
        nLeft = ar.ReadCount();
        RemoveAll();
    }
    for (INT_PTR nDone = 0; nLeft != 0;) {
        const INT_PTR nCount = nLeft < kStep ? static_cast<INT_PTR>(nLeft) : kStep;
        if (ar.IsLoading())
            SetSize(nDone + nCount);
        SerializeElements<TYPE>(ar, Data() + nDone, nCount);
        nDone += nCount;
        nLeft -= static_cast<DWORD_PTR>(nCount);
    }
}
