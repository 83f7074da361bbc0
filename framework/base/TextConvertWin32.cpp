#ifdef _WIN32

#include "TextConvert.h"

#include "afxtypes.h"

using namespace fieldkit::detail;

static_assert(sizeof(wchar_t) == sizeof(char16_t));

std::wstring fieldkit::detail::AfxWiden(std::string_view text) {
    if (text.empty())
        return {};
    const int nBytes = static_cast<int>(text.size());
    const int nChars = MultiByteToWideChar(CP_ACP, 0, text.data(), nBytes, nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(nChars), L'\0');
    MultiByteToWideChar(CP_ACP, 0, text.data(), nBytes, wide.data(), nChars);
    return wide;
}

std::u16string fieldkit::detail::AfxToUtf16(std::wstring_view text) {
    return {text.begin(), text.end()};
}

std::wstring fieldkit::detail::AfxFromUtf16(std::u16string_view text) {
    return {text.begin(), text.end()};
}

// The system's own mapping, not the C library's: it knows full-width letters in every locale.
wchar_t fieldkit::detail::AfxToUpper(wchar_t ch) noexcept {
    CharUpperBuffW(&ch, 1);
    return ch;
}

wchar_t fieldkit::detail::AfxToLower(wchar_t ch) noexcept {
    CharLowerBuffW(&ch, 1);
    return ch;
}

#endif
