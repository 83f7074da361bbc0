#include "Tesuvo.h"

#include <charconv>
#include <clocale>
#include <cmath>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

/// The half-width twin of a full-width character; everything else as it stands.
constexpr wchar_t HalfWidth(wchar_t c) {
    constexpr wchar_t kFirst = 0xFF01;
    constexpr wchar_t kLast = 0xFF5E;
    constexpr wchar_t kMinusSign = 0x2212;
    constexpr wchar_t kIdeographicSpace = 0x3000;
    if (c >= kFirst && c <= kLast)
        return static_cast<wchar_t>(c - kFirst + L'!');
    if (c == kMinusSign)
        return L'-';
    return c == kIdeographicSpace ? L' ' : c;
}

std::wstring Folded(std::wstring_view text) {
    std::wstring folded(text);
    for (wchar_t& c : folded)
        c = HalfWidth(c);
    constexpr std::wstring_view kBlanks = L" \t";
    const auto first = folded.find_first_not_of(kBlanks);
    if (first == std::wstring::npos)
        return {};
    return folded.substr(first, folded.find_last_not_of(kBlanks) - first + 1);
}

/// Walks over the text once and gathers what it accepts in plain form: from_chars
/// knows neither a plus sign nor group separators, but takes "inf" and "nan".
class Scanner {
public:
    explicit Scanner(std::wstring_view text) : m_text(text) {}

    /// The accepted number in plain form, or an empty text.
    std::string Number() {
        Sign();
        const bool whole = Whole() > 0;
        const bool fraction = Take(L'.') && Digits() > 0;
        if (!whole && !fraction)
            return {};
        if ((Take(L'e') || Take(L'E')) && !Exponent())
            return {};
        return m_at == m_text.size() ? m_plain : std::string{};
    }

private:
    static constexpr std::size_t kGroup = 3;

    wchar_t Next() const { return m_at < m_text.size() ? m_text[m_at] : L'\0'; }

    bool Take(wchar_t wanted) {
        if (Next() != wanted)
            return false;
        m_plain += static_cast<char>(wanted);
        ++m_at;
        return true;
    }

    void Sign() {
        if (Next() == L'+')
            ++m_at;
        else
            Take(L'-');
    }

    std::size_t Digits() {
        const std::size_t start = m_at;
        while (Next() >= L'0' && Next() <= L'9')
            Take(Next());
        return m_at - start;
    }

    /// The digits before the point. A comma counts only between complete groups:
    /// "12,34" is more likely a slip than the number 1234.
    std::size_t Whole() {
        const std::size_t first = Digits();
        if (first == 0 || first > kGroup)
            return first;
        while (Next() == L',' && GroupFollows()) {
            ++m_at;
            Digits();
        }
        return first;
    }

    bool GroupFollows() const {
        const auto group = m_text.substr(m_at + 1);
        const auto end = group.find_first_not_of(L"0123456789");
        return (end == std::wstring_view::npos ? group.size() : end) == kGroup;
    }

    bool Exponent() {
        Sign();
        return Digits() > 0;
    }

    std::wstring_view m_text;
    std::size_t m_at = 0;
    std::string m_plain;
};

#ifdef __cpp_lib_to_chars
/// The double nearest to a number in plain form; false if there is none but infinity or zero.
bool Nearest(const std::string& plain, double& value) {
    return std::from_chars(plain.data(), plain.data() + plain.size(), value).ec == std::errc{};
}
#else // libc++ before 20
bool Nearest(const std::string& plain, double& value) {
    static const locale_t locale = ::newlocale(LC_ALL_MASK, "C", nullptr);
    const double nearest = ::strtod_l(plain.c_str(), nullptr, locale);
    const bool bZero = plain.find_first_of("123456789") >= plain.find_first_of("eE");
    if (plain.empty() || !std::isfinite(nearest) || (nearest == 0 && !bZero))
        return false;
    value = nearest;
    return true;
}
#endif

} // namespace

BOOL TVString2Double(const CString* pText, double* pValue) {
    if (pText == nullptr || pValue == nullptr)
        return FALSE;
    const std::wstring_view text(pText->GetString(), static_cast<std::size_t>(pText->GetLength()));
    return Nearest(Scanner(Folded(text)).Number(), *pValue) ? TRUE : FALSE;
}
