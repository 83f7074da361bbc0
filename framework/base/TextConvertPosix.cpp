#ifndef _WIN32

#include "TextConvert.h"

#include <cctype>
#include <cstdint>
#include <cstring>
#include <cwchar>
#include <cwctype>
#include <span>
#include <strings.h>

using namespace fieldkit::detail;

namespace {

constexpr char32_t kReplacement = 0xFFFD;
constexpr char32_t kLastCodePoint = 0x10FFFF;
constexpr char32_t kFirstSupplementary = 0x10000;

constexpr bool IsHighSurrogate(char32_t c) {
    return c >= 0xD800 && c < 0xDC00;
}
constexpr bool IsLowSurrogate(char32_t c) {
    return c >= 0xDC00 && c < 0xE000;
}

struct Decoded {
    char32_t code;
    std::size_t length;
};

// One UTF-8 sequence. Over-long forms, surrogates and cut sequences are one bad byte each.
Decoded DecodeUtf8(std::string_view text) {
    const auto lead = static_cast<unsigned char>(text[0]);
    if (lead < 0x80)
        return {lead, 1};
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || text.size() < length)
        return {kReplacement, 1};
    char32_t code = lead & (0xFFU >> (length + 1));
    for (std::size_t i = 1; i < length; ++i) {
        const auto next = static_cast<unsigned char>(text[i]);
        if ((next & 0xC0) != 0x80)
            return {kReplacement, 1};
        code = code << 6 | (next & 0x3F);
    }
    constexpr char32_t kSmallest[] = {0, 0, 0x80, 0x800, kFirstSupplementary};
    const bool valid = code >= kSmallest[length] && code <= kLastCodePoint && !IsHighSurrogate(code) &&
                       !IsLowSurrogate(code);
    return valid ? Decoded{code, length} : Decoded{kReplacement, 1};
}

} // namespace

std::wstring fieldkit::detail::AfxWiden(std::string_view text) {
    std::wstring wide;
    while (!text.empty()) {
        const Decoded decoded = DecodeUtf8(text);
        wide += static_cast<wchar_t>(decoded.code);
        text.remove_prefix(decoded.length);
    }
    return wide;
}

std::u16string fieldkit::detail::AfxToUtf16(std::wstring_view text) {
    std::u16string units;
    units.reserve(text.size());
    for (const wchar_t ch : text) {
        auto code = static_cast<char32_t>(ch);
        if (code > kLastCodePoint)
            code = kReplacement;
        if (code < kFirstSupplementary) {
            units += static_cast<char16_t>(code);
            continue;
        }
        code -= kFirstSupplementary;
        units += static_cast<char16_t>(0xD800 + (code >> 10));
        units += static_cast<char16_t>(0xDC00 + (code & 0x3FF));
    }
    return units;
}

std::wstring fieldkit::detail::AfxFromUtf16(std::u16string_view text) {
    std::wstring wide;
    wide.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        char32_t code = text[i];
        if (IsHighSurrogate(code) && i + 1 < text.size() && IsLowSurrogate(text[i + 1]))
            code = kFirstSupplementary + ((code & 0x3FF) << 10) + (text[++i] & 0x3FFU);
        wide += static_cast<wchar_t>(code);
    }
    return wide;
}

std::string fieldkit::detail::AfxNarrow(std::wstring_view text) {
    std::string bytes;
    const auto put = [&bytes](char32_t value) { bytes += static_cast<char>(value); };
    for (const wchar_t ch : text) {
        auto code = static_cast<char32_t>(ch);
        if (code > kLastCodePoint)
            code = kReplacement;
        if (code < 0x80) {
            put(code);
        } else if (code < 0x800) {
            put(0xC0 | code >> 6);
            put(0x80 | (code & 0x3F));
        } else if (code < kFirstSupplementary) {
            put(0xE0 | code >> 12);
            put(0x80 | (code >> 6 & 0x3F));
            put(0x80 | (code & 0x3F));
        } else {
            put(0xF0 | code >> 18);
            put(0x80 | (code >> 12 & 0x3F));
            put(0x80 | (code >> 6 & 0x3F));
            put(0x80 | (code & 0x3F));
        }
    }
    return bytes;
}

void fieldkit::detail::AfxSystemUpper(wchar_t* text, std::size_t length) noexcept {
    for (wchar_t& ch : std::span(text, length))
        ch = static_cast<wchar_t>(std::towupper(static_cast<std::wint_t>(ch)));
}

void fieldkit::detail::AfxSystemLower(wchar_t* text, std::size_t length) noexcept {
    for (wchar_t& ch : std::span(text, length))
        ch = static_cast<wchar_t>(std::towlower(static_cast<std::wint_t>(ch)));
}

// Pieces of characters stay as they are.
void fieldkit::detail::AfxSystemUpper(char* text, std::size_t length) noexcept {
    for (char& ch : std::span(text, length))
        ch = static_cast<char>(std::toupper(static_cast<unsigned char>(ch)));
}

void fieldkit::detail::AfxSystemLower(char* text, std::size_t length) noexcept {
    for (char& ch : std::span(text, length))
        ch = static_cast<char>(std::tolower(static_cast<unsigned char>(ch)));
}

wchar_t fieldkit::detail::AfxToLower(wchar_t ch) noexcept {
    return static_cast<wchar_t>(std::towlower(static_cast<std::wint_t>(ch)));
}

int fieldkit::detail::AfxCollate(const wchar_t* text1, const wchar_t* text2, bool ignoreCase) noexcept {
    return ignoreCase ? wcscasecmp(text1, text2) : std::wcscoll(text1, text2);
}

int fieldkit::detail::AfxCollate(const char* text1, const char* text2, bool ignoreCase) noexcept {
    return ignoreCase ? strcasecmp(text1, text2) : std::strcoll(text1, text2);
}

#endif
