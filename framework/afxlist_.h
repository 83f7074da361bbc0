/// @file
/// CList. Included by afxtempl.h.
#pragma once

#include "afxelem_.h"

#include <utility>

/// A doubly linked list. Positions last until their element is removed. A function that
/// needs an element or position and gets none throws CInvalidArgException*. One that fails for
/// want of memory leaves the list as it was.
template <class TYPE, class ARG_TYPE = const TYPE&>
class CList : public CObject {
public:
    /// The block size is taken for compatibility; every node is allocated by itself.
    explicit CList(INT_PTR /*nBlockSize*/ = 10) {}
    ~CList() override { RemoveAll(); }

    /// The number of elements.
    INT_PTR GetCount() const { return m_nCount; }
    /// See GetCount.
    INT_PTR GetSize() const { return m_nCount; }
    /// Whether there is no element.
    BOOL IsEmpty() const { return m_nCount == 0 ? TRUE : FALSE; }

    /// The first element.
    TYPE& GetHead() { return Node(m_pHead).data; }
    /// The first element.
    const TYPE& GetHead() const { return Node(m_pHead).data; }
    /// The last element.
    TYPE& GetTail() { return Node(m_pTail).data; }
    /// The last element.
    const TYPE& GetTail() const { return Node(m_pTail).data; }
    /// Removes the first element and returns it.
    TYPE RemoveHead() { return Take(m_pHead); }
    /// Removes the last element and returns it.
    TYPE RemoveTail() { return Take(m_pTail); }
    /// Adds an element in front. @return its position
    POSITION AddHead(ARG_TYPE newElement) { return Link(nullptr, newElement, m_pHead); }
    /// Adds an element at the end. @return its position
    POSITION AddTail(ARG_TYPE newElement) { return Link(m_pTail, newElement, nullptr); }
    /// Puts copies of the other list's elements in front, in the same order.
    void AddHead(const CList* pNewList);
    /// Puts copies of the other list's elements at the end, in the same order.
    void AddTail(const CList* pNewList);
    /// Removes all elements.
    void RemoveAll();

    /// NULL for an empty list.
    POSITION GetHeadPosition() const { return ToPosition(m_pHead); }
    /// NULL for an empty list.
    POSITION GetTailPosition() const { return ToPosition(m_pTail); }
    /// The element there; the position moves on, to NULL behind the last one.
    TYPE& GetNext(POSITION& rPosition) { return Step(rPosition, &CNode::pNext); }
    /// @copydoc GetNext(POSITION&)
    const TYPE& GetNext(POSITION& rPosition) const { return Step(rPosition, &CNode::pNext); }
    /// The element there; the position moves back, to NULL before the first one.
    TYPE& GetPrev(POSITION& rPosition) { return Step(rPosition, &CNode::pPrev); }
    /// The element there; the position moves back, to NULL before the first one.
    const TYPE& GetPrev(POSITION& rPosition) const { return Step(rPosition, &CNode::pPrev); }
    /// The element at a position.
    TYPE& GetAt(POSITION position) { return Node(position).data; }
    /// The element at a position.
    const TYPE& GetAt(POSITION position) const { return Node(position).data; }
    /// Replaces the element at a position.
    void SetAt(POSITION position, ARG_TYPE newElement) { Node(position).data = newElement; }
    /// Removes the element at a position, which is not valid any more.
    void RemoveAt(POSITION position) { Unlink(Node(position)); }
    /// With NULL: at the head.
    POSITION InsertBefore(POSITION position, ARG_TYPE newElement);
    /// With NULL: at the tail.
    POSITION InsertAfter(POSITION position, ARG_TYPE newElement);

    /// @param startAfter the position before the first to look at; NULL for all.
    /// @return NULL if no element is equal (CompareElements).
    POSITION Find(ARG_TYPE searchValue, POSITION startAfter = nullptr) const;
    /// @return NULL for an index outside of the list.
    POSITION FindIndex(INT_PTR nIndex) const;

    /// The count, then the elements by SerializeElements. Loading appends.
    void Serialize(CArchive& ar) override;

private:
    struct CNode {
        CNode* pPrev;
        CNode* pNext;
        TYPE data;
    };

    static POSITION ToPosition(CNode* pNode) { return reinterpret_cast<POSITION>(pNode); }
    static CNode& Node(CNode* pNode) {
        if (pNode == nullptr)
            AfxThrowInvalidArgException();
        return *pNode;
    }
    static CNode& Node(POSITION position) { return Node(reinterpret_cast<CNode*>(position)); }
    static TYPE& Step(POSITION& rPosition, CNode* CNode::*pLink) {
        CNode& node = Node(rPosition);
        rPosition = ToPosition(node.*pLink);
        return node.data;
    }
    void Splice(CNode* pPrev, CList& list, CNode* pNext);
    POSITION Link(CNode* pPrev, ARG_TYPE newElement, CNode* pNext);
    void Unlink(CNode& node);
    TYPE Take(CNode* pNode);

    CNode* m_pHead = nullptr;
    CNode* m_pTail = nullptr;
    INT_PTR m_nCount = 0;
};

template <class TYPE, class ARG_TYPE>
POSITION CList<TYPE, ARG_TYPE>::Link(CNode* pPrev, ARG_TYPE newElement, CNode* pNext) {
    auto* pNode = new CNode{pPrev, pNext, TYPE(newElement)};
    (pPrev != nullptr ? pPrev->pNext : m_pHead) = pNode;
    (pNext != nullptr ? pNext->pPrev : m_pTail) = pNode;
    ++m_nCount;
    return ToPosition(pNode);
}

/// Takes over the nodes of the other list.
template <class TYPE, class ARG_TYPE>
void CList<TYPE, ARG_TYPE>::Splice(CNode* pPrev, CList& list, CNode* pNext) {
    if (list.m_pHead == nullptr)
        return;
    list.m_pHead->pPrev = pPrev;
    list.m_pTail->pNext = pNext;
    (pPrev != nullptr ? pPrev->pNext : m_pHead) = std::exchange(list.m_pHead, nullptr);
    (pNext != nullptr ? pNext->pPrev : m_pTail) = std::exchange(list.m_pTail, nullptr);
    m_nCount += std::exchange(list.m_nCount, 0);
}

template <class TYPE, class ARG_TYPE>
void CList<TYPE, ARG_TYPE>::Unlink(CNode& node) {
    (node.pPrev != nullptr ? node.pPrev->pNext : m_pHead) = node.pNext;
    (node.pNext != nullptr ? node.pNext->pPrev : m_pTail) = node.pPrev;
    --m_nCount;
    delete &node;
}

template <class TYPE, class ARG_TYPE>
TYPE CList<TYPE, ARG_TYPE>::Take(CNode* pNode) {
    TYPE data(std::move(Node(pNode).data));
    Unlink(*pNode);
    return data;
}

template <class TYPE, class ARG_TYPE>
void CList<TYPE, ARG_TYPE>::RemoveAll() {
    while (m_pHead != nullptr)
        Unlink(*m_pHead);
}

// The other list may be this one, and is copied as a whole before anything changes here.
template <class TYPE, class ARG_TYPE>
void CList<TYPE, ARG_TYPE>::AddHead(const CList* pNewList) {
    if (pNewList == nullptr)
        AfxThrowInvalidArgException();
    CList copy;
    for (CNode* pNode = pNewList->m_pHead; pNode != nullptr; pNode = pNode->pNext)
        copy.AddTail(pNode->data);
    Splice(nullptr, copy, m_pHead);
}

template <class TYPE, class ARG_TYPE>
void CList<TYPE, ARG_TYPE>::AddTail(const CList* pNewList) {
    if (pNewList == nullptr)
        AfxThrowInvalidArgException();
    CList copy;
    for (CNode* pNode = pNewList->m_pHead; pNode != nullptr; pNode = pNode->pNext)
        copy.AddTail(pNode->data);
    Splice(m_pTail, copy, nullptr);
}

template <class TYPE, class ARG_TYPE>
POSITION CList<TYPE, ARG_TYPE>::InsertBefore(POSITION position, ARG_TYPE newElement) {
    if (position == nullptr)
        return AddHead(newElement);
    CNode& node = Node(position);
    return Link(node.pPrev, newElement, &node);
}

template <class TYPE, class ARG_TYPE>
POSITION CList<TYPE, ARG_TYPE>::InsertAfter(POSITION position, ARG_TYPE newElement) {
    if (position == nullptr)
        return AddTail(newElement);
    CNode& node = Node(position);
    return Link(&node, newElement, node.pNext);
}

template <class TYPE, class ARG_TYPE>
POSITION CList<TYPE, ARG_TYPE>::Find(ARG_TYPE searchValue, POSITION startAfter) const {
    for (CNode* pNode = startAfter != nullptr ? Node(startAfter).pNext : m_pHead; pNode != nullptr;
         pNode = pNode->pNext) {
        if (CompareElements(&pNode->data, &searchValue))
            return ToPosition(pNode);
    }
    return nullptr;
}

template <class TYPE, class ARG_TYPE>
POSITION CList<TYPE, ARG_TYPE>::FindIndex(INT_PTR nIndex) const {
    if (nIndex < 0 || nIndex >= m_nCount)
        return nullptr;
    CNode* pNode = m_pHead;
    while (nIndex-- > 0)
        pNode = pNode->pNext;
    return ToPosition(pNode);
}

template <class TYPE, class ARG_TYPE>
void CList<TYPE, ARG_TYPE>::Serialize(CArchive& ar) {
    if (ar.IsStoring()) {
        ar.WriteCount(static_cast<DWORD_PTR>(m_nCount));
        for (CNode* pNode = m_pHead; pNode != nullptr; pNode = pNode->pNext)
            SerializeElements<TYPE>(ar, &pNode->data, 1);
        return;
    }
    for (DWORD_PTR nLeft = ar.ReadCount(); nLeft != 0; --nLeft) {
        TYPE element{};
        SerializeElements<TYPE>(ar, &element, 1);
        AddTail(element);
    }
}
