// Strings beside std::wstring and what the C library and the system have. A size is that of the texts.
#include "Rows.h"

#include <cwchar>

namespace bench {

namespace {

constexpr double kGoal = 1.2;
constexpr int kTexts = 200;
constexpr int kTimes = 20;
constexpr auto kBlanks = L" \t\r\n\v\f";

template <class String>
struct Sample {
    String text;
    String blanked; ///< with white space at both ends
    String other;   ///< in capitals
};

/// Does a work with each of some samples of n characters.
template <class String, class Work>
std::function<Cost(int)> OnEach(Work work) {
    return [work](int n) {
        std::vector<Sample<String>> samples;
        for (int i = 0; i < kTexts; ++i) {
            const std::wstring text = TextOf(i, n);
            std::wstring other = text;
            ::CharUpperBuff(other.data(), static_cast<DWORD>(other.size()));
            const auto as = [](const std::wstring& s) {
                return String(s.data(), static_cast<int>(s.size()));
            };
            samples.push_back({as(text), as(L"  " + text + L" "), as(other)});
        }
        String result;
        return Timed(kTimes, [&] {
            for (const Sample<String>& sample : samples)
                Take(work(sample, result));
        });
    };
}

template <class Bare, class Ours>
Row Compared(const char* pszName, Bare bare, Ours ours) {
    return {pszName, kGoal, {6, 40, 200}, OnEach<std::wstring>(bare), OnEach<CString>(ours)};
}

template <class... Values>
std::size_t FormatBare(std::wstring& result, const wchar_t* pszFormat, Values... values) {
    wchar_t szText[256];
    const int nLength = ::_snwprintf(szText, std::size(szText), pszFormat, values...);
    result.assign(szText, static_cast<std::size_t>(nLength));
    return result.size();
}

template <class... Values>
std::size_t FormatOurs(CString& result, const wchar_t* pszFormat, Values... values) {
    result.Format(pszFormat, values...);
    return static_cast<std::size_t>(result.GetLength());
}

Row Formatted(const char* pszName, const wchar_t* pszFormat, auto value) {
    return {pszName,
            kGoal,
            {1},
            OnEach<std::wstring>([=](const auto& sample, std::wstring& result) {
                return FormatBare(result, pszFormat, value(sample.text.size()));
            }),
            OnEach<CString>([=](const auto& sample, CString& result) {
                return FormatOurs(result, pszFormat,
                                  value(static_cast<std::size_t>(sample.text.GetLength())));
            })};
}

} // namespace

std::vector<Row> StringRows() {
    return {
        Compared(
            "string copied and trimmed",
            [](const auto& sample, std::wstring& result) {
                result = sample.blanked;
                result.erase(result.find_last_not_of(kBlanks) + 1);
                result.erase(0, result.find_first_not_of(kBlanks));
                return result.size();
            },
            [](const auto& sample, CString& result) {
                result = sample.blanked;
                return static_cast<std::size_t>(result.Trim().GetLength());
            }),
        Compared(
            "string copied in capitals",
            [](const auto& sample, std::wstring& result) {
                result = sample.text;
                ::CharUpperBuff(result.data(), static_cast<DWORD>(result.size()));
                return static_cast<std::size_t>(result[0]);
            },
            [](const auto& sample, CString& result) {
                result = sample.text;
                return static_cast<std::size_t>(result.MakeUpper()[0]);
            }),
        Compared(
            "strings compared without case",
            [](const auto& sample, std::wstring&) {
                return static_cast<std::size_t>(::_wcsicmp(sample.text.c_str(), sample.other.c_str()));
            },
            [](const auto& sample, CString&) {
                return static_cast<std::size_t>(sample.text.CompareNoCase(sample.other));
            }),
        Compared(
            "strings joined by +",
            [](const auto& sample, std::wstring& result) {
                result = sample.text + L"," + sample.other + L',' + sample.text;
                return result.size();
            },
            [](const auto& sample, CString& result) {
                result = sample.text + L"," + sample.other + L',' + sample.text;
                return static_cast<std::size_t>(result.GetLength());
            }),
        Compared(
            "text formatted",
            [](const auto& sample, std::wstring& result) {
                return FormatBare(result, L"%s", sample.text.c_str());
            },
            [](const auto& sample, CString& result) {
                return FormatOurs(result, L"%s", sample.text.GetString());
            }),
        Formatted("integer formatted", L"%d", [](std::size_t n) { return static_cast<int>(n) * 12347; }),
        Formatted("number formatted", L"%.4f",
                  [](std::size_t n) { return static_cast<double>(n) * -1234.5678; }),
        Formatted("number formatted in a field", L"%12.3f",
                  [](std::size_t n) { return static_cast<double>(n) * 35367.1234; }),
    };
}

} // namespace bench
