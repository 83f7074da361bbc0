#include "companion/detail/PathParts.h"

#include "Tesuvo.h"

#include <string>

using namespace fieldkit::detail;

namespace {

using View = std::wstring_view;

constexpr bool IsSlash(wchar_t c) {
    return c == L'\\' || c == L'/';
}

std::size_t NextSlash(View path, std::size_t from) {
    const auto at = path.find_first_of(L"\\/", from);
    return at == View::npos ? path.size() : at;
}

/// Length of a root that begins with a server's and a share's name.
std::size_t ShareLength(View path, std::size_t server) {
    return NextSlash(path, NextSlash(path, server) + 1);
}

std::size_t DriveLength(View path) {
    const bool drive = path.size() >= 2 && path[1] == L':' && !IsSlash(path[0]);
    const std::size_t letter = drive ? 2 : 0;
    return letter < path.size() && IsSlash(path[letter]) ? letter + 1 : letter;
}

/// Length of the part that cannot be a file's name: drive, root slash, server and share.
std::size_t RootLength(View path) {
    constexpr View kLongShare = L"\\\\?\\UNC\\";
    constexpr View kLong = L"\\\\?\\";
    if (path.starts_with(kLongShare))
        return ShareLength(path, kLongShare.size());
    if (path.starts_with(kLong))
        return kLong.size() + DriveLength(path.substr(kLong.size()));
    if (path.size() >= 2 && IsSlash(path[0]) && IsSlash(path[1]))
        return ShareLength(path, 2);
    return DriveLength(path);
}

/// Without the dots at the end, unless there is nothing else.
View WithoutTrailingDots(View name) {
    const auto last = name.find_last_not_of(L'.');
    return last == View::npos ? name : name.substr(0, last + 1);
}

void Assign(CString* pTarget, std::wstring_view text) {
    if (pTarget != nullptr)
        *pTarget = CString(text.data(), static_cast<int>(text.size()));
}

} // namespace

PathParts fieldkit::detail::SplitPath(View path) {
    const std::size_t root = RootLength(path);
    std::size_t nameAt = path.size();
    while (nameAt > root && !IsSlash(path[nameAt - 1]))
        --nameAt;
    std::size_t folderEnd = nameAt;
    while (folderEnd > root && IsSlash(path[folderEnd - 1]))
        --folderEnd;

    PathParts parts;
    parts.folder = path.substr(0, folderEnd);
    parts.name = WithoutTrailingDots(path.substr(nameAt));
    const auto dot = parts.name.find_last_of(L'.');
    const auto firstOther = parts.name.find_first_not_of(L'.');
    if (dot != View::npos && firstOther < dot) {
        parts.extension = parts.name.substr(dot + 1);
        parts.name = parts.name.substr(0, dot);
    }
    return parts;
}

void TVResolveFilePath(LPCTSTR pszPath, CString* pFolder, CString* pName, CString* pExtension) {
    // The path may be the text of one of the results: copy it before they are written.
    const std::wstring path = pszPath != nullptr ? pszPath : L"";
    const PathParts parts = SplitPath(path);
    Assign(pFolder, parts.folder);
    Assign(pName, parts.name);
    Assign(pExtension, parts.extension);
}
