/// @file
/// What the collection templates do with single elements. An application that wants
/// something else for its type specialises the function. Included by afxtempl.h.
#pragma once

#include "afx.h"

#include <cwchar>
#include <type_traits>
#include <utility>

template <class TYPE, class ARG_TYPE>
/// Whether two elements are equal, by their ==.
BOOL AFXAPI CompareElements(const TYPE* pElement1, const ARG_TYPE* pElement2) {
    return *pElement1 == *pElement2 ? TRUE : FALSE;
}

/// Whether an archive has << and >> for a type.
template <class TYPE, class = void>
constexpr bool AfxIsArchived = false;
template <class TYPE>
constexpr bool
    AfxIsArchived<TYPE, std::void_t<decltype(std::declval<CArchive&>() << std::declval<TYPE&>()),
                                    decltype(std::declval<CArchive&>() >> std::declval<TYPE&>())>> = true;

/// Stores or loads `nCount` elements: plain data byte by byte, objects and others with << and >>. What is
/// neither throws CNotSupportedException*.
/// Collections may call it several times for one file, in the same steps both ways.
template <class TYPE>
void AFXAPI SerializeElements(CArchive& ar, TYPE* pElements, INT_PTR nCount) {
    if constexpr (std::is_trivially_copyable_v<TYPE> && !std::is_same_v<TYPE, CObject*>) {
        const UINT nBytes = static_cast<UINT>(nCount * static_cast<INT_PTR>(sizeof(TYPE)));
        if (ar.IsStoring())
            ar.Write(pElements, nBytes);
        else if (ar.Read(pElements, nBytes) != nBytes)
            AfxThrowArchiveException(CArchiveException::endOfFile, ar.GetFile()->GetFilePath());
    } else if constexpr (!AfxIsArchived<TYPE>) {
        AfxThrowNotSupportedException();
    } else {
        for (; nCount > 0; --nCount, ++pElements) {
            if (ar.IsStoring())
                ar << *pElements;
            else
                ar >> *pElements;
        }
    }
}

/// A number for the key, equal for equal keys.
template <class ARG_KEY>
UINT AFXAPI HashKey(ARG_KEY key) {
    using Key = std::remove_cv_t<std::remove_reference_t<ARG_KEY>>;
    if constexpr (std::is_convertible_v<ARG_KEY, LPCTSTR>) {
        UINT nHash = 2166136261U; // FNV-1a
        for (LPCTSTR p = key; *p != L'\0'; ++p)
            nHash = (nHash ^ static_cast<UINT>(*p)) * 16777619U;
        return nHash;
    } else if constexpr (std::is_convertible_v<ARG_KEY, LPCSTR>) {
        UINT nHash = 2166136261U;
        for (LPCSTR p = key; *p != '\0'; ++p)
            nHash = (nHash ^ static_cast<BYTE>(*p)) * 16777619U;
        return nHash;
    } else if constexpr (std::is_pointer_v<Key>) {
        return static_cast<UINT>(reinterpret_cast<DWORD_PTR>(key) >> 4);
    } else {
        return static_cast<UINT>(key);
    }
}
