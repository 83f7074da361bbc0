/// @file
/// The ready-made pointer collections with the type of what they point to: each is its base class
/// with casts. Included by afxtempl.h.
#pragma once

#include "afxcoll.h"

/// CPtrArray or CObArray whose elements are pointers of one type.
template <class BASE_CLASS, class TYPE>
class CTypedPtrArray : public BASE_CLASS {
public:
    // clang-format off
    /// See CArray.
    ///@{
    TYPE GetAt(INT_PTR nIndex) const { return (TYPE)BASE_CLASS::GetAt(nIndex); }
    TYPE& ElementAt(INT_PTR nIndex) { return reinterpret_cast<TYPE&>(BASE_CLASS::ElementAt(nIndex)); }
    TYPE operator[](INT_PTR nIndex) const { return GetAt(nIndex); }
    TYPE& operator[](INT_PTR nIndex) { return ElementAt(nIndex); }
    void SetAt(INT_PTR nIndex, TYPE ptr) { BASE_CLASS::SetAt(nIndex, ptr); }
    void SetAtGrow(INT_PTR nIndex, TYPE ptr) { BASE_CLASS::SetAtGrow(nIndex, ptr); }
    INT_PTR Add(TYPE ptr) { return BASE_CLASS::Add(ptr); }
    INT_PTR Append(const CTypedPtrArray& src) { return BASE_CLASS::Append(src); }
    void Copy(const CTypedPtrArray& src) { BASE_CLASS::Copy(src); }
    void InsertAt(INT_PTR nIndex, TYPE ptr, INT_PTR nCount = 1) { BASE_CLASS::InsertAt(nIndex, ptr, nCount); }
    void InsertAt(INT_PTR nStartIndex, const CTypedPtrArray* pNewArray) { BASE_CLASS::InsertAt(nStartIndex, pNewArray); }
    ///@}
    // clang-format on
};

/// CPtrList or CObList whose elements are pointers of one type.
template <class BASE_CLASS, class TYPE>
class CTypedPtrList : public BASE_CLASS {
public:
    /// The block size is taken for compatibility.
    explicit CTypedPtrList(INT_PTR nBlockSize = 10) : BASE_CLASS(nBlockSize) {}
    // clang-format off
    /// See CList.
    ///@{
    TYPE& GetHead() { return reinterpret_cast<TYPE&>(BASE_CLASS::GetHead()); }
    TYPE GetHead() const { return (TYPE)BASE_CLASS::GetHead(); }
    TYPE& GetTail() { return reinterpret_cast<TYPE&>(BASE_CLASS::GetTail()); }
    TYPE GetTail() const { return (TYPE)BASE_CLASS::GetTail(); }
    TYPE RemoveHead() { return (TYPE)BASE_CLASS::RemoveHead(); }
    TYPE RemoveTail() { return (TYPE)BASE_CLASS::RemoveTail(); }
    POSITION AddHead(TYPE ptr) { return BASE_CLASS::AddHead(ptr); }
    POSITION AddTail(TYPE ptr) { return BASE_CLASS::AddTail(ptr); }
    void AddHead(const CTypedPtrList* pNewList) { BASE_CLASS::AddHead(pNewList); }
    void AddTail(const CTypedPtrList* pNewList) { BASE_CLASS::AddTail(pNewList); }
    TYPE& GetNext(POSITION& rPosition) { return reinterpret_cast<TYPE&>(BASE_CLASS::GetNext(rPosition)); }
    TYPE GetNext(POSITION& rPosition) const { return (TYPE)BASE_CLASS::GetNext(rPosition); }
    TYPE& GetPrev(POSITION& rPosition) { return reinterpret_cast<TYPE&>(BASE_CLASS::GetPrev(rPosition)); }
    TYPE GetPrev(POSITION& rPosition) const { return (TYPE)BASE_CLASS::GetPrev(rPosition); }
    TYPE& GetAt(POSITION position) { return reinterpret_cast<TYPE&>(BASE_CLASS::GetAt(position)); }
    TYPE GetAt(POSITION position) const { return (TYPE)BASE_CLASS::GetAt(position); }
    void SetAt(POSITION position, TYPE ptr) { BASE_CLASS::SetAt(position, ptr); }
    POSITION InsertBefore(POSITION position, TYPE ptr) { return BASE_CLASS::InsertBefore(position, ptr); }
    POSITION InsertAfter(POSITION position, TYPE ptr) { return BASE_CLASS::InsertAfter(position, ptr); }
    ///@}
    // clang-format on
};

/// One of the ready-made maps with the types of its keys and values.
template <class BASE_CLASS, class KEY, class VALUE>
class CTypedPtrMap : public BASE_CLASS {
public:
    /// The block size is taken for compatibility.
    explicit CTypedPtrMap(INT_PTR nBlockSize = 10) : BASE_CLASS(nBlockSize) {}
    // clang-format off
    /// See CMap.
    ///@{
    BOOL Lookup(typename BASE_CLASS::BASE_ARG_KEY key, VALUE& rValue) const {
        const auto* const pPair = BASE_CLASS::PLookup(key);
        if (pPair == nullptr)
            return FALSE;
        rValue = (VALUE)pPair->value;
        return TRUE;
    }
    VALUE& operator[](typename BASE_CLASS::BASE_ARG_KEY key) { return reinterpret_cast<VALUE&>(BASE_CLASS::operator[](key)); }
    void SetAt(KEY key, VALUE newValue) { BASE_CLASS::SetAt(key, newValue); }
    BOOL RemoveKey(KEY key) { return BASE_CLASS::RemoveKey(key); }
    void GetNextAssoc(POSITION& rPosition, KEY& rKey, VALUE& rValue) const {
        typename BASE_CLASS::BASE_KEY key{};
        typename BASE_CLASS::BASE_VALUE value{};
        BASE_CLASS::GetNextAssoc(rPosition, key, value);
        rKey = (KEY)key;
        rValue = (VALUE)value;
    }
    ///@}
    // clang-format on
};
