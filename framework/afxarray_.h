/// @file
/// CArray. Included by afxtempl.h.
#pragma once

#include "afxelem_.h"

#include <algorithm>
#include <memory>
#include <new>

/// A growing array. TYPE needs a default constructor and assignment. An index outside of
/// the array throws CInvalidArgException*, want of memory CMemoryException* or what copying an
/// element throws; the array is then as it was before the call, if moving an element cannot
/// throw. Pointers and references to elements last until the array grows.
template <class TYPE, class ARG_TYPE = const TYPE&>
class CArray : public CObject {
public:
    CArray() = default;

    /// The number of elements.
    INT_PTR GetSize() const { return m_nSize; }
    /// See GetSize.
    INT_PTR GetCount() const { return m_nSize; }
    /// Whether there is no element.
    BOOL IsEmpty() const { return m_nSize == 0 ? TRUE : FALSE; }
    /// The last valid index; -1 for an empty array.
    INT_PTR GetUpperBound() const { return m_nSize - 1; }
    /// New elements are value-initialised.
    /// @param nGrowBy the elements to allocate in one step from now on; 0 for an automatic
    ///   choice, -1 to leave it as it is.
    void SetSize(INT_PTR nNewSize, INT_PTR nGrowBy = -1);
    /// Gives back the memory beyond the last element.
    void FreeExtra() { Reallocate(m_nSize); }
    /// Removes all elements and frees the memory.
    void RemoveAll() { SetSize(0); }

    /// The element at an index, from 0.
    const TYPE& GetAt(INT_PTR nIndex) const { return m_pData[Check(nIndex)]; }
    /// The element at an index, from 0.
    TYPE& GetAt(INT_PTR nIndex) { return m_pData[Check(nIndex)]; }
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
    const TYPE* GetData() const { return m_pData.get(); }
    /// @copydoc GetData() const
    TYPE* GetData() { return m_pData.get(); }

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
    INT_PTR Check(INT_PTR nIndex) const {
        if (nIndex < 0 || nIndex >= m_nSize)
            AfxThrowInvalidArgException();
        return nIndex;
    }
    void Reallocate(INT_PTR nMaxSize);
    template <class Fill>
    void Insert(INT_PTR nIndex, INT_PTR nCount, Fill fill);

    // Elements from m_nSize on are always TYPE(), so growing within the memory is free.
    std::unique_ptr<TYPE[]> m_pData;
    INT_PTR m_nSize = 0;
    INT_PTR m_nMaxSize = 0;
    INT_PTR m_nGrowBy = 0;
};

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::Reallocate(INT_PTR nMaxSize) try {
    std::unique_ptr<TYPE[]> pNew;
    if (nMaxSize > 0)
        pNew.reset(new TYPE[static_cast<std::size_t>(nMaxSize)]());
    std::move(m_pData.get(), m_pData.get() + m_nSize, pNew.get());
    m_pData = std::move(pNew);
    m_nMaxSize = nMaxSize;
} catch (const std::bad_alloc&) {
    AfxThrowMemoryException();
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::SetSize(INT_PTR nNewSize, INT_PTR nGrowBy) {
    constexpr auto kLargest = static_cast<INT_PTR>(static_cast<DWORD_PTR>(-1) / 2 / sizeof(TYPE));
    if (nNewSize < 0)
        AfxThrowInvalidArgException();
    if (nNewSize > kLargest)
        AfxThrowMemoryException();
    if (nGrowBy >= 0)
        m_nGrowBy = nGrowBy;
    if (nNewSize == 0) {
        m_pData.reset();
        m_nMaxSize = 0;
    } else if (nNewSize > m_nMaxSize) {
        const INT_PTR nStep = m_nGrowBy > 0 ? m_nGrowBy : m_nSize / 2;
        const INT_PTR nRoom = kLargest - m_nMaxSize;
        Reallocate(std::max(nNewSize, m_nMaxSize + std::min(nStep, nRoom)));
    } else if (nNewSize < m_nSize) {
        std::fill(m_pData.get() + nNewSize, m_pData.get() + m_nSize, TYPE());
    }
    m_nSize = nNewSize;
}

template <class TYPE, class ARG_TYPE>
template <class Fill>
void CArray<TYPE, ARG_TYPE>::Insert(INT_PTR nIndex, INT_PTR nCount, Fill fill) {
    if (nIndex < 0 || nCount < 0)
        AfxThrowInvalidArgException();
    const INT_PTR nBehind = std::max<INT_PTR>(m_nSize - nIndex, 0);
    const INT_PTR nOldSize = m_nSize;
    if (nCount > static_cast<INT_PTR>(static_cast<DWORD_PTR>(-1) / 2) - std::max(m_nSize, nIndex))
        AfxThrowMemoryException();
    SetSize(std::max(m_nSize, nIndex) + nCount);
    TYPE* const pTail = m_pData.get() + (nOldSize - nBehind);
    std::move_backward(pTail, pTail + nBehind, m_pData.get() + m_nSize);
    try {
        fill(m_pData.get() + nIndex);
    } catch (...) {
        std::move(m_pData.get() + (m_nSize - nBehind), m_pData.get() + m_nSize, pTail);
        SetSize(nOldSize);
        throw;
    }
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::SetAtGrow(INT_PTR nIndex, ARG_TYPE newElement) {
    if (nIndex >= m_nSize)
        InsertAt(nIndex, newElement);
    else
        SetAt(nIndex, newElement);
}

template <class TYPE, class ARG_TYPE>
INT_PTR CArray<TYPE, ARG_TYPE>::Add(ARG_TYPE newElement) {
    InsertAt(m_nSize, newElement);
    return m_nSize - 1;
}

template <class TYPE, class ARG_TYPE>
INT_PTR CArray<TYPE, ARG_TYPE>::Append(const CArray& src) {
    const INT_PTR nOldSize = m_nSize;
    const INT_PTR nCount = src.m_nSize; // src may be this array
    Insert(nOldSize, nCount, [&](TYPE* pGap) { std::copy_n(src.m_pData.get(), nCount, pGap); });
    return nOldSize;
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::Copy(const CArray& src) {
    if (this == &src)
        return;
    CArray copy;
    copy.Append(src);
    std::swap(m_pData, copy.m_pData);
    std::swap(m_nMaxSize, copy.m_nMaxSize);
    m_nSize = copy.m_nSize;
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
    if (pNewArray->m_nSize == 0)
        return;
    Insert(nStartIndex, pNewArray->m_nSize,
           [&](TYPE* pGap) { std::copy_n(pNewArray->m_pData.get(), pNewArray->m_nSize, pGap); });
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::RemoveAt(INT_PTR nIndex, INT_PTR nCount) {
    if (nIndex < 0 || nCount < 0 || nCount > m_nSize - nIndex)
        AfxThrowInvalidArgException();
    TYPE* const pFirst = m_pData.get() + nIndex;
    if (nCount > 0)
        std::move(pFirst + nCount, m_pData.get() + m_nSize, pFirst);
    SetSize(m_nSize - nCount);
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::Serialize(CArchive& ar) {
    constexpr INT_PTR kStep = 1024; // a count in a damaged file must not fill the memory
    auto nLeft = static_cast<DWORD_PTR>(m_nSize);
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
        SerializeElements<TYPE>(ar, m_pData.get() + nDone, nCount);
        nDone += nCount;
        nLeft -= static_cast<DWORD_PTR>(nCount);
    }
}
