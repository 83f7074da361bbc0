#ifndef _WIN32

#include "util/detail/OemText.h"

// A code page of one byte a character, whose codes are Unicode's first 256.
namespace {

/// Up to the null that ends the text.
template <class Source, class Target, class Convert>
int ConvertText(const Source* pszSource, Target* pszTarget, int nTarget, Convert convert) {
    for (int i = 0; i < nTarget; ++i) {
        pszTarget[i] = convert(pszSource[i]);
        if (pszSource[i] == 0)
            return i + 1;
    }
    return 0;
}

} // namespace

int fieldkit::detail::OemToWide(LPCSTR pszSource, LPWSTR pszTarget, int nTarget) {
    return ConvertText(pszSource, pszTarget, nTarget,
                       [](char ch) { return static_cast<wchar_t>(static_cast<unsigned char>(ch)); });
}

int fieldkit::detail::WideToOem(LPCWSTR pszSource, LPSTR pszTarget, int nTarget) {
    return ConvertText(pszSource, pszTarget, nTarget, [](wchar_t ch) {
        const bool bKnown = static_cast<char32_t>(ch) < 0x100;
        return static_cast<char>(bKnown ? ch : L'?');
    });
}

#endif
