/// @file
/// What an archive remembers of the objects and classes that went through it.
#pragma once

#include "afx.h"

#include <unordered_map>
#include <vector>

/// Objects and classes share one numbering from 1 in the order of their first appearance;
/// 0 is NULL.
struct CArchive::ObjectTable {
    struct Entry {
        CRuntimeClass* pClass = nullptr;
        CObject* pObject = nullptr;
        UINT nSchema = 0; ///< of a class: the number in the archive
    };

    std::unordered_map<const void*, DWORD> stored;
    std::vector<Entry> loaded{Entry{}};
    DWORD count = 1;
    int depth = 0;
};
