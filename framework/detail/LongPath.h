// Paths as the system's file functions take them, at any length and without disturbing the user.
#pragma once

#include "afx.h"

#include <string>
#include <string_view>

namespace fieldkit::detail {

/// Keeps the system from asking for a card that is not in its drive.
class QuietDrives {
public:
    QuietDrives() { ::SetThreadErrorMode(SEM_FAILCRITICALERRORS, &m_nPrevious); }
    ~QuietDrives() { ::SetThreadErrorMode(m_nPrevious, nullptr); }
    QuietDrives(const QuietDrives&) = delete;
    QuietDrives& operator=(const QuietDrives&) = delete;

private:
    DWORD m_nPrevious = 0;
};

/// The path from the root; empty if the system gives none.
inline std::wstring FullPath(LPCWSTR pszPath) {
    const DWORD nSize = ::GetFullPathNameW(pszPath, 0, nullptr, nullptr);
    std::wstring full(nSize, L'\0');
    const DWORD nLength = ::GetFullPathNameW(pszPath, nSize, full.data(), nullptr);
    // A thread that changes the current folder in between can make it longer.
    full.resize(nLength < nSize ? nLength : 0);
    return full;
}

inline bool IsDevicePath(std::wstring_view path) {
    return path.starts_with(L"\\\\.\\");
}

/// The form of a full path that the system takes at any length and does not edit. A device's
/// stays as it is.
inline std::wstring LongForm(const std::wstring& full) {
    if (full.starts_with(L"\\\\?\\") || IsDevicePath(full))
        return full;
    if (full.starts_with(L"\\\\"))
        return L"\\\\?\\UNC" + full.substr(1);
    return L"\\\\?\\" + full;
}

} // namespace fieldkit::detail
