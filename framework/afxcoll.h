/// @file
/// The ready-made collections of strings, objects, pointers and numbers.
#pragma once

/// What programs ask for to see whether this header has been included.
#define __AFXCOLL_H__

#include "afxarray_.h"
#include "afxlist_.h"
#include "afxmap_.h"

// Those of strings, objects and numbers can be archived under their names; pointers mean nothing in
// a file. Objects and what pointers point to are the caller's. Constructors have a source: defined here
// they would have every source that includes this header make all virtual members of the templates.

/// An array that can be archived.
#define AFX_SERIAL_ARRAY(class_name, TYPE, ARG_TYPE)                                                         \
    class AFX_CORE class_name : public CArray<TYPE, ARG_TYPE> {                                              \
        DECLARE_SERIAL(class_name)                                                                           \
    };
/// A list that can be archived.
#define AFX_SERIAL_LIST(class_name, TYPE, ARG_TYPE)                                                          \
    class AFX_CORE class_name : public CList<TYPE, ARG_TYPE> {                                               \
        DECLARE_SERIAL(class_name)                                                                           \
    public:                                                                                                  \
        explicit class_name(INT_PTR nBlockSize = 10);                                                        \
    };
/// A map that can be archived.
#define AFX_SERIAL_MAP(class_name, KEY, ARG_KEY, VALUE, ARG_VALUE)                                           \
    class AFX_CORE class_name : public CMap<KEY, ARG_KEY, VALUE, ARG_VALUE> {                                \
        DECLARE_SERIAL(class_name)                                                                           \
    public:                                                                                                  \
        explicit class_name(INT_PTR nBlockSize = 10);                                                        \
    };
/// A map with pointers, which is not archived.
#define AFX_POINTER_MAP(class_name, KEY, ARG_KEY, VALUE)                                                     \
    class AFX_CORE class_name : public CMap<KEY, ARG_KEY, VALUE, VALUE> {                                    \
        DECLARE_DYNAMIC(class_name)                                                                          \
    public:                                                                                                  \
        explicit class_name(INT_PTR nBlockSize = 10);                                                        \
        void Serialize(CArchive& /*ar*/) override {}                                                         \
    };

AFX_SERIAL_ARRAY(CByteArray, BYTE, BYTE)
AFX_SERIAL_ARRAY(CWordArray, WORD, WORD)
AFX_SERIAL_ARRAY(CDWordArray, DWORD, DWORD)
AFX_SERIAL_ARRAY(CStringArray, CString, const CString&)
AFX_SERIAL_ARRAY(CObArray, CObject*, CObject*)
AFX_SERIAL_LIST(CStringList, CString, const CString&)
AFX_SERIAL_LIST(CObList, CObject*, CObject*)
AFX_SERIAL_MAP(CMapStringToString, CString, LPCTSTR, CString, LPCTSTR)
AFX_SERIAL_MAP(CMapStringToOb, CString, LPCTSTR, CObject*, CObject*)
AFX_SERIAL_MAP(CMapWordToOb, WORD, WORD, CObject*, CObject*)
AFX_POINTER_MAP(CMapStringToPtr, CString, LPCTSTR, void*)
AFX_POINTER_MAP(CMapPtrToPtr, void*, void*, void*)
AFX_POINTER_MAP(CMapPtrToWord, void*, void*, WORD)
AFX_POINTER_MAP(CMapWordToPtr, WORD, WORD, void*)

/// An array of unsigned numbers.
class AFX_CORE CUIntArray : public CArray<UINT, UINT> {
    DECLARE_DYNAMIC(CUIntArray)
};

/// An array of pointers.
class AFX_CORE CPtrArray : public CArray<void*, void*> {
    DECLARE_DYNAMIC(CPtrArray)
public:
    /// Nothing: pointers mean nothing in a file.
    void Serialize(CArchive& /*ar*/) override {}
};

/// A list of pointers.
class AFX_CORE CPtrList : public CList<void*, void*> {
    DECLARE_DYNAMIC(CPtrList)
public:
    /// @copydoc CList::CList
    explicit CPtrList(INT_PTR nBlockSize = 10);
    /// Nothing: pointers mean nothing in a file.
    void Serialize(CArchive& /*ar*/) override {}
};

#undef AFX_SERIAL_ARRAY
#undef AFX_SERIAL_LIST
#undef AFX_SERIAL_MAP
#undef AFX_POINTER_MAP
