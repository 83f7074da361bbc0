// Numbers as the user types them, beside the C library's.
#include "Targets.h"

#include "Tesuvo.h"

#include <bit>
#include <cmath>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

using View = std::string_view;

/// Bytes above ASCII stand for full-width characters, so that one in three is not one in 65536.
std::wstring TypedText(const std::uint8_t* pData, std::size_t nSize) {
    constexpr std::uint8_t kLastWide = 0xDE;
    std::wstring typed;
    for (const std::uint8_t* p = pData; p != pData + nSize; ++p) {
        if (*p <= 0x80)
            typed += static_cast<wchar_t>(*p);
        else if (*p <= kLastWide)
            typed += static_cast<wchar_t>(0xFF00 + (*p - 0x80));
        else
            typed += *p == 0xDF ? L'\x3000' : *p == 0xE0 ? L'\x2212' : L'\x6E2C';
    }
    return typed;
}

std::string HalfWidth(const std::wstring& typed) {
    std::string half;
    for (const wchar_t ch : typed) {
        if (ch >= 0xFF01 && ch <= 0xFF5E)
            half += static_cast<char>(ch - 0xFEE0);
        else if (ch == 0x3000 || ch == 0x2212)
            half += ch == 0x3000 ? ' ' : '-';
        else
            half += ch < 0x80 ? static_cast<char>(ch) : '?';
    }
    return half;
}

std::string TakeDigits(View& rest) {
    const std::size_t n = std::min(rest.find_first_not_of("0123456789"), rest.size());
    std::string digits(rest.substr(0, n));
    rest.remove_prefix(n);
    return digits;
}

std::string TakeOne(View& rest, View anyOf) {
    if (rest.empty() || anyOf.find(rest[0]) == View::npos)
        return {};
    std::string one(rest.substr(0, 1));
    rest.remove_prefix(1);
    return one;
}

/// The text without its groups' commas, or nothing if it is no number.
std::string Plain(View rest) {
    const std::size_t first = rest.find_first_not_of(" \t");
    rest = first == View::npos ? View() : rest.substr(first, rest.find_last_not_of(" \t") - first + 1);
    const std::string sign = TakeOne(rest, "+-");
    std::string digits = TakeDigits(rest);
    const bool grouped = !digits.empty() && digits.size() <= 3;
    while (grouped && !rest.empty() && rest[0] == ',') {
        rest.remove_prefix(1);
        const std::string group = TakeDigits(rest);
        if (group.size() != 3)
            return {};
        digits += group;
    }
    std::string fraction;
    if (!TakeOne(rest, ".").empty())
        fraction = TakeDigits(rest);
    if (digits.empty() && fraction.empty())
        return {};
    std::string exponent;
    if (!TakeOne(rest, "eE").empty()) {
        exponent = "e" + TakeOne(rest, "+-");
        const std::string power = TakeDigits(rest);
        if (power.empty())
            return {};
        exponent += power;
    }
    return rest.empty() ? sign + digits + "." + fraction + exponent : std::string();
}

bool IsZero(const std::string& plain) {
    return plain.substr(0, plain.find('e')).find_first_of("123456789") == std::string::npos;
}

} // namespace

void FuzzNumber(const std::uint8_t* pData, std::size_t nSize) {
    const std::wstring typed = TypedText(pData, nSize);
    const CString strTyped(typed.data(), static_cast<int>(typed.size()));
    const std::string plain = Plain(HalfWidth(typed));
    const double dExpected = plain.empty() ? HUGE_VAL : std::strtod(plain.c_str(), nullptr);
    const bool bExpected = std::isfinite(dExpected) && (dExpected != 0 || IsZero(plain));

    constexpr double kUntouched = 12345;
    double dValue = kUntouched;
    const bool bRead = TVString2Double(&strTyped, &dValue) != FALSE;
    Promise(bRead == bExpected, "a number is what the syntax and the range allow");
    const double dWanted = bRead ? dExpected : kUntouched;
    Promise(std::bit_cast<std::uint64_t>(dValue) == std::bit_cast<std::uint64_t>(dWanted),
            "it is the nearest double");
}
