/// @file
/// Conversions between the text forms that meet in the framework.
#pragma once

#include <string>
#include <string_view>

namespace fieldkit::detail {

/// Narrow text to wide: the ANSI code page on Windows, UTF-8 elsewhere. Never fails;
/// bytes that mean nothing become the replacement character.
std::wstring AfxWiden(std::string_view text);

/// The UTF-16 units of a wide text. Lone surrogates stay as they are, so that the way
/// there and back loses nothing.
std::u16string AfxToUtf16(std::wstring_view text);
std::wstring AfxFromUtf16(std::u16string_view text);

#ifndef _WIN32
/// A wide text as UTF-8, the form of file names there.
std::string AfxToUtf8(std::wstring_view text);
#endif

wchar_t AfxToUpper(wchar_t ch) noexcept;
wchar_t AfxToLower(wchar_t ch) noexcept;

} // namespace fieldkit::detail
