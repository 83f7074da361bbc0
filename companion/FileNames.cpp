#include "Tesuvo.h"

#include "framework/detail/LongPath.h"

using namespace fieldkit::detail;

BOOL TVCheckFileExist(LPCTSTR pszPath) {
    if (pszPath == nullptr || *pszPath == L'\0')
        return FALSE;
    const std::wstring path = LongForm(FullPath(pszPath));
    if (IsDevicePath(path))
        return FALSE;
    const QuietDrives quiet;
    const DWORD attributes = ::GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}
