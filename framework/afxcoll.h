/// @file
/// The ready-made collections of strings, pointers and numbers.
#pragma once

#include "afxarray_.h"
#include "afxlist_.h"

/// A list of strings that can be archived.
class AFX_CORE CStringList : public CList<CString, const CString&> {
    DECLARE_SERIAL(CStringList)
public:
    /// @copydoc CList::CList
    explicit CStringList(INT_PTR nBlockSize = 10) : CList(nBlockSize) {}
};

/// A list of pointers. What they point to is the caller's.
class AFX_CORE CPtrList : public CList<void*, void*> {
    DECLARE_DYNAMIC(CPtrList)
public:
    /// @copydoc CList::CList
    explicit CPtrList(INT_PTR nBlockSize = 10) : CList(nBlockSize) {}
    /// Nothing: pointers mean nothing in a file.
    void Serialize(CArchive& /*ar*/) override {}
};

/// An array of strings that can be archived.
class AFX_CORE CStringArray : public CArray<CString, const CString&> {
    DECLARE_SERIAL(CStringArray)
};

/// An array of pointers. What they point to is the caller's.
class AFX_CORE CPtrArray : public CArray<void*, void*> {
    DECLARE_DYNAMIC(CPtrArray)
public:
    /// Nothing: pointers mean nothing in a file.
    void Serialize(CArchive& /*ar*/) override {}
};

/// An array of unsigned numbers.
class AFX_CORE CUIntArray : public CArray<UINT, UINT> {
    DECLARE_DYNAMIC(CUIntArray)
};
