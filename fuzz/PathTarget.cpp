// File names, split into their parts.
#include "Targets.h"

#include "PathParts.h"

#include <string>

void FuzzPath(const std::uint8_t* pData, std::size_t nSize) {
    const std::wstring path(pData, pData + nSize);
    const PathParts parts = SplitPath(path);
    Promise(path.starts_with(parts.folder), "the folder is the path's beginning");
    Promise(parts.name.find_first_of(L"\\/") == std::wstring_view::npos, "a name has no slash");
    Promise(parts.extension.find_first_of(L"\\/.") == std::wstring_view::npos, "an extension has no dot");
    Promise(parts.folder.size() + parts.name.size() + parts.extension.size() <= path.size(),
            "the parts do not overlap");
    Promise(SplitPath(parts.folder).folder.size() <= parts.folder.size(), "a folder's folder is shorter");
}
