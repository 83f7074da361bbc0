// Numbers and their decimal text, the same in every locale.
#pragma once

#include "afxwin.h"

#include <charconv>
#include <cfloat>
#include <concepts>
#include <optional>
#include <string>
#include <system_error>

namespace fieldkit::detail {

/// Significant digits that any decimal text of the type keeps.
template <std::floating_point Number>
constexpr int kSignificantDigits = std::same_as<Number, float> ? FLT_DIG : DBL_DIG;

template <class Number>
CString AfxNumberText(Number value) {
    // Longest: sign, digits, point and exponent of a double; all integers are shorter.
    char text[40];
    std::to_chars_result result{};
    if constexpr (std::floating_point<Number>)
        result = std::to_chars(text, text + sizeof text, value, std::chars_format::general,
                               kSignificantDigits<Number>);
    else
        result = std::to_chars(text, text + sizeof text, +value);
    return CString(text, static_cast<int>(result.ptr - text));
}

/// The text without blanks around it and without a plus sign, in one byte a character;
/// empty if anything stands in it that no number has.
inline std::string AfxNumberCharacters(const CString& str) {
    CString strNumber(str);
    strNumber.Trim(L" \t");
    if (strNumber.GetLength() > 1 && strNumber[0] == L'+' && strNumber[1] != L'-')
        strNumber.Delete(0);
    if (strNumber.SpanIncluding(L"0123456789.+-eE") != strNumber)
        return {};
    return {strNumber.GetString(), strNumber.GetString() + strNumber.GetLength()};
}

/// @return nothing if the text is not a number of this type, or too big for it.
template <class Number>
std::optional<Number> AfxParseNumber(const CString& str) {
    const std::string text = AfxNumberCharacters(str);
    Number value{};
    const char* const pEnd = text.data() + text.size();
    const auto [pRead, error] = std::from_chars(text.data(), pEnd, value);
    if (error != std::errc() || pRead != pEnd)
        return {};
    return value;
}

} // namespace fieldkit::detail
