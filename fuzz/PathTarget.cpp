// File names: split into their parts, and counted up.
#include "Targets.h"

#include "companion/detail/PathParts.h"
#include "Tesuvo.h"

#include <string>

using namespace fieldkit::detail;

namespace {

/// Adds one to the digits at the end, from the right as on paper.
std::wstring Next(std::wstring name) {
    for (std::size_t at = name.size(); at > 0; --at) {
        wchar_t& ch = name[at - 1];
        if (ch < L'0' || ch > L'9')
            return name.insert(at, 1, L'1');
        if (ch != L'9') {
            ++ch;
            return name;
        }
        ch = L'0';
    }
    return L'1' + name;
}

void CheckParts(const std::wstring& path) {
    const PathParts parts = SplitPath(path);
    Promise(path.starts_with(parts.folder), "the folder is the path's beginning");
    Promise(parts.name.find_first_of(L"\\/") == std::wstring::npos, "a name has no slash");
    Promise(parts.extension.find_first_of(L"\\/.") == std::wstring::npos, "an extension has no dot");
    Promise(parts.folder.size() + parts.name.size() + parts.extension.size() <= path.size(),
            "the parts do not overlap");
    Promise(SplitPath(parts.folder).folder.size() <= parts.folder.size(), "a folder's folder is shorter");
}

void CheckResolving(const std::wstring& path) {
    const PathParts parts = SplitPath(path);
    CString strFolder(path.c_str());
    CString strName;
    CString strExtension;
    TVResolveFilePath(strFolder, &strFolder, &strName, &strExtension); // a result may hold the path
    Promise(std::wstring_view(strFolder) == parts.folder && std::wstring_view(strName) == parts.name &&
                std::wstring_view(strExtension) == parts.extension,
            "the parts are handed out as they were split");
}

} // namespace

void FuzzPath(const std::uint8_t* pData, std::size_t nSize) {
    const std::wstring path(pData, pData + nSize);
    CheckParts(path);
    CheckResolving(path.substr(0, path.find(L'\0'))); // the text ends there
    CString strName(path.data(), static_cast<int>(path.size()));
    TVIncrementName(strName);
    Promise(std::wstring(strName, static_cast<std::size_t>(strName.GetLength())) == Next(path),
            "the number at the end of a name is counted up");
}
