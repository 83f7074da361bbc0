#include "TextConvert.h"

#include <cstring>
#include <cwchar>

using namespace fieldkit::detail;

namespace {

constexpr bool IsAscii(wchar_t ch) {
    return ch < 0x80;
}
constexpr bool IsAscii(char ch) {
    return static_cast<unsigned char>(ch) < 0x80;
}

template <class Char>
constexpr Char LowerAscii(Char ch) {
    return ch >= Char('A') && ch <= Char('Z') ? static_cast<Char>(ch + ('a' - 'A')) : ch;
}

template <class Char>
constexpr Char UpperAscii(Char ch) {
    return ch >= Char('a') && ch <= Char('z') ? static_cast<Char>(ch - ('a' - 'A')) : ch;
}

// Most texts are ASCII to their end and need no system.
template <class Char, class Change, class Rest>
void ChangeCase(Char* text, std::size_t length, Change change, Rest rest) noexcept {
    std::size_t i = 0;
    for (; i < length && IsAscii(text[i]); ++i)
        text[i] = change(text[i]);
    if (i < length)
        rest(text + i, length - i);
}

} // namespace

void fieldkit::detail::AfxMakeUpper(wchar_t* text, std::size_t length) noexcept {
    ChangeCase(text, length, UpperAscii<wchar_t>, [](auto... all) { AfxSystemUpper(all...); });
}

void fieldkit::detail::AfxMakeUpper(char* text, std::size_t length) noexcept {
    ChangeCase(text, length, UpperAscii<char>, [](auto... all) { AfxSystemUpper(all...); });
}

void fieldkit::detail::AfxMakeLower(wchar_t* text, std::size_t length) noexcept {
    ChangeCase(text, length, LowerAscii<wchar_t>, [](auto... all) { AfxSystemLower(all...); });
}

void fieldkit::detail::AfxMakeLower(char* text, std::size_t length) noexcept {
    ChangeCase(text, length, LowerAscii<char>, [](auto... all) { AfxSystemLower(all...); });
}

int fieldkit::detail::AfxCompare(const wchar_t* text1, const wchar_t* text2) noexcept {
    return std::wcscmp(text1, text2);
}

int fieldkit::detail::AfxCompare(const char* text1, const char* text2) noexcept {
    return std::strcmp(text1, text2);
}

// Characters that are equal as they stand need no look at their case, and ASCII letters no system.
int fieldkit::detail::AfxCompareNoCase(const wchar_t* text1, const wchar_t* text2) noexcept {
    for (;; ++text1, ++text2) {
        if (*text1 != *text2) {
            const wchar_t a = IsAscii(*text1) ? LowerAscii(*text1) : AfxToLower(*text1);
            const wchar_t b = IsAscii(*text2) ? LowerAscii(*text2) : AfxToLower(*text2);
            if (a != b)
                return a < b ? -1 : 1;
        } else if (*text1 == L'\0') {
            return 0;
        }
    }
}

int fieldkit::detail::AfxCompareNoCase(const char* text1, const char* text2) {
    for (; IsAscii(*text1) && IsAscii(*text2); ++text1, ++text2) {
        const char a = LowerAscii(*text1);
        const char b = LowerAscii(*text2);
        if (a != b)
            return a < b ? -1 : 1;
        if (a == '\0')
            return 0;
    }
    return AfxCompareNoCase(AfxWiden(text1).c_str(), AfxWiden(text2).c_str());
}
