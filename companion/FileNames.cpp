#include "Tesuvo.h"

#include <string>
#include <string_view>

namespace {

/// Keeps the system from asking for a card that is not in its drive.
class CQuietDrives {
public:
    CQuietDrives() { ::SetThreadErrorMode(SEM_FAILCRITICALERRORS, &m_previous); }
    ~CQuietDrives() { ::SetThreadErrorMode(m_previous, nullptr); }
    CQuietDrives(const CQuietDrives&) = delete;
    CQuietDrives& operator=(const CQuietDrives&) = delete;

private:
    DWORD m_previous = 0;
};

std::wstring FullPath(LPCTSTR path) {
    const DWORD size = ::GetFullPathNameW(path, 0, nullptr, nullptr);
    std::wstring full(size, L'\0');
    const DWORD length = ::GetFullPathNameW(path, size, full.data(), nullptr);
    // A thread that changes the current folder in between can make it longer.
    full.resize(length < size ? length : 0);
    return full;
}

/// The form of a full path that the system takes at any length, or an empty text
/// for a device.
std::wstring LongForm(const std::wstring& full) {
    const std::wstring_view path = full;
    if (path.starts_with(L"\\\\?\\"))
        return full;
    if (path.starts_with(L"\\\\.\\"))
        return {};
    if (path.starts_with(L"\\\\"))
        return L"\\\\?\\UNC" + full.substr(1);
    return L"\\\\?\\" + full;
}

} // namespace

BOOL TVCheckFileExist(LPCTSTR pszPath) {
    if (pszPath == nullptr || *pszPath == L'\0')
        return FALSE;
    const std::wstring path = LongForm(FullPath(pszPath));
    if (path.empty())
        return FALSE;
    const CQuietDrives quiet;
    const DWORD attributes = ::GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}
