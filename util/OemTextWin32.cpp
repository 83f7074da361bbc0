#ifdef _WIN32

#include "util/detail/OemText.h"

int fieldkit::detail::OemToWide(LPCSTR pszSource, LPWSTR pszTarget, int nTarget) {
    return ::MultiByteToWideChar(CP_OEMCP, 0, pszSource, -1, pszTarget, nTarget);
}

int fieldkit::detail::WideToOem(LPCWSTR pszSource, LPSTR pszTarget, int nTarget) {
    return ::WideCharToMultiByte(CP_OEMCP, 0, pszSource, -1, pszTarget, nTarget, nullptr, nullptr);
}

#endif
