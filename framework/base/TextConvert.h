/// @file
/// Conversions between the text forms that meet in the framework, and what the system knows about
/// characters.
#pragma once

#include <string>
#include <string_view>

namespace fieldkit::detail {

/// Narrow text to wide: the ANSI code page on Windows, UTF-8 elsewhere. Never fails;
/// bytes that mean nothing become the replacement character.
std::wstring AfxWiden(std::string_view text);
/// Wide text to narrow. Never fails; what the code page lacks becomes its own replacement.
std::string AfxNarrow(std::wstring_view text);

/// The UTF-16 units of a wide text. Lone surrogates stay as they are, so that the way
/// there and back loses nothing.
std::u16string AfxToUtf16(std::wstring_view text);
#ifndef _WIN32 // where text is such units already
std::wstring AfxFromUtf16(std::u16string_view text);
#endif

/// Other case, in place. Of narrow text elsewhere than on Windows ASCII letters only.
///@{
void AfxMakeUpper(wchar_t* text, std::size_t length) noexcept;
void AfxMakeUpper(char* text, std::size_t length) noexcept;
void AfxMakeLower(wchar_t* text, std::size_t length) noexcept;
void AfxMakeLower(char* text, std::size_t length) noexcept;
///@}
/// The small letter of a character.
wchar_t AfxToLower(wchar_t ch) noexcept;
/// What has no ASCII letters in front, by the system.
///@{
void AfxSystemUpper(wchar_t* text, std::size_t length) noexcept;
void AfxSystemUpper(char* text, std::size_t length) noexcept;
void AfxSystemLower(wchar_t* text, std::size_t length) noexcept;
void AfxSystemLower(char* text, std::size_t length) noexcept;
///@}

/// By the characters' numbers.
///@{
int AfxCompare(const wchar_t* text1, const wchar_t* text2) noexcept;
int AfxCompare(const char* text1, const char* text2) noexcept;
///@}
/// By the numbers of the small letters. Narrow text is widened where it is not ASCII.
///@{
int AfxCompareNoCase(const wchar_t* text1, const wchar_t* text2) noexcept;
int AfxCompareNoCase(const char* text1, const char* text2);
///@}
/// In the order of the user's language.
///@{
int AfxCollate(const wchar_t* text1, const wchar_t* text2, bool ignoreCase) noexcept;
int AfxCollate(const char* text1, const char* text2, bool ignoreCase) noexcept;
///@}

} // namespace fieldkit::detail
