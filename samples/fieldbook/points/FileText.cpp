#include "points/FileText.h"

#include "points/CodePage.h"

#include <algorithm>
#include <cstdint>

namespace {

constexpr char kUtf8Mark[] = "\xEF\xBB\xBF";
constexpr size_t kUtf8MarkLength = 3;
constexpr size_t kUtf16MarkLength = 2;

constexpr char32_t kBad = 0xFFFFFFFF;
constexpr char32_t kBeyondBmp = 0x10000;
constexpr char32_t kPastUnicode = 0x110000;
constexpr char32_t kHighSurrogate = 0xD800;
constexpr char32_t kLowSurrogate = 0xDC00;
constexpr char32_t kPastSurrogates = 0xE000;

bool IsSurrogate(char32_t code) {
    return code >= kHighSurrogate && code < kPastSurrogates;
}

void Append(char32_t code, std::wstring& text) {
    if (sizeof(wchar_t) == sizeof(char32_t) || code < kBeyondBmp) {
        text += static_cast<wchar_t>(code);
        return;
    }
    text += static_cast<wchar_t>(kHighSurrogate + ((code - kBeyondBmp) >> 10));
    text += static_cast<wchar_t>(kLowSurrogate + ((code - kBeyondBmp) & 0x3FF));
}

/// The character at a place of a text, which is moved behind it. @return kBad for half a pair
char32_t NextCode(const CString& strText, int& i) {
    const auto code = static_cast<char32_t>(strText[i++]);
    if (!IsSurrogate(code))
        return code;
    if (code >= kLowSurrogate || i == strText.GetLength())
        return kBad;
    const auto low = static_cast<char32_t>(strText[i]);
    if (low < kLowSurrogate || low >= kPastSurrogates)
        return kBad;
    ++i;
    return kBeyondBmp + ((code - kHighSurrogate) << 10) + (low - kLowSurrogate);
}

/// The same of bytes in UTF-8. @return kBad for what is none
char32_t NextUtf8(const std::string& bytes, size_t& i) {
    const auto byteAt = [&](size_t n) { return static_cast<unsigned char>(bytes[n]); };
    const unsigned first = byteAt(i++);
    if (first < 0x80)
        return first;
    const size_t nMore = first >= 0xF0 ? 3 : first >= 0xE0 ? 2 : 1;
    if (first < 0xC2 || first > 0xF4 || i + nMore > bytes.size())
        return kBad;
    char32_t code = first & (0x3FU >> nMore);
    for (size_t n = 0; n < nMore; ++n, ++i) {
        if ((byteAt(i) & 0xC0) != 0x80)
            return kBad;
        code = code << 6 | (byteAt(i) & 0x3F);
    }
    constexpr char32_t kLeast[] = {0, 0x80, 0x800, kBeyondBmp};
    return code < kLeast[nMore] || code >= kPastUnicode || IsSurrogate(code) ? kBad : code;
}

bool Utf8ToWide(const std::string& bytes, std::wstring& text) {
    std::wstring wide;
    wide.reserve(bytes.size());
    for (size_t i = 0; i < bytes.size();) {
        const char32_t code = NextUtf8(bytes, i);
        if (code == kBad)
            return false;
        Append(code, wide);
    }
    text = std::move(wide);
    return true;
}

void AppendUtf8(char32_t code, std::string& bytes) {
    if (code < 0x80) {
        bytes += static_cast<char>(code);
        return;
    }
    const int nMore = code < 0x800 ? 1 : code < kBeyondBmp ? 2 : 3;
    bytes += static_cast<char>((0xFF00U >> (nMore + 1) & 0xFF) | code >> (6 * nMore));
    for (int n = nMore - 1; n >= 0; --n)
        bytes += static_cast<char>(0x80 | (code >> (6 * n) & 0x3F));
}

void AppendUtf16(char32_t unit, bool bLittle, std::string& bytes) {
    const auto low = static_cast<char>(unit & 0xFF);
    const auto high = static_cast<char>(unit >> 8);
    bytes += bLittle ? low : high;
    bytes += bLittle ? high : low;
}

/// Each unit of UTF-16 as a code, pairs not yet put together.
CString UnitsOf(const std::string& bytes, bool bLittle) {
    std::wstring units;
    for (size_t i = kUtf16MarkLength; i + 1 < bytes.size(); i += 2) {
        const auto first = static_cast<unsigned char>(bytes[i]);
        const auto second = static_cast<unsigned char>(bytes[i + 1]);
        units += static_cast<wchar_t>(bLittle ? second << 8 | first : first << 8 | second);
    }
    return CString(units.c_str(), static_cast<int>(units.size()));
}

/// Bytes of the code page can be UTF-8 by chance if they are pairs of half-width katakana.
bool IsLikeKatakana(const std::string& bytes) {
    return std::all_of(bytes.begin(), bytes.end(),
                       [](char ch) { return static_cast<unsigned char>(ch) < 0xE0; });
}

bool IsAscii(const std::string& bytes) {
    return std::all_of(bytes.begin(), bytes.end(),
                       [](char ch) { return static_cast<unsigned char>(ch) < 0x80; });
}

bool IsGoodText(const std::wstring& text) {
    return text.find(L'\0') == std::wstring::npos;
}

/// Calls take(start, length, whether it has its end) for each line.
template <class Text, class Take>
void ForEachLine(const Text& text, Take take) {
    for (size_t nStart = 0; nStart < text.size();) {
        size_t nEnd = nStart;
        while (nEnd < text.size() && text[nEnd] != '\r' && text[nEnd] != '\n')
            ++nEnd;
        take(nStart, nEnd - nStart, nEnd < text.size());
        const bool bPair = nEnd + 1 < text.size() && text[nEnd] == '\r' && text[nEnd + 1] == '\n';
        nStart = nEnd + (bPair ? 2 : 1);
    }
}

LineEnd LineEndOf(const std::wstring& text) {
    const size_t nEnd = text.find_first_of(L"\r\n");
    if (nEnd == std::wstring::npos)
        return LineEnd::CrLf;
    if (text[nEnd] == L'\n')
        return LineEnd::Lf;
    return nEnd + 1 < text.size() && text[nEnd + 1] == L'\n' ? LineEnd::CrLf : LineEnd::Cr;
}

/// @return false if the bytes are no text in this encoding, without its mark
bool Decode(const std::string& bytes, Encoding encoding, std::wstring& text) {
    return (encoding == Encoding::Oem ? OemToWide(bytes, text) : Utf8ToWide(bytes, text)) && IsGoodText(text);
}

bool DecodeUtf16(const std::string& bytes, bool bLittle, std::wstring& text) {
    if (bytes.size() % 2 != 0)
        return false;
    const CString strUnits = UnitsOf(bytes, bLittle);
    std::wstring wide;
    for (int i = 0; i < strUnits.GetLength();) {
        const char32_t code = NextCode(strUnits, i);
        if (code == kBad)
            return false;
        Append(code, wide);
    }
    text = std::move(wide);
    return IsGoodText(text);
}

std::vector<int> LinesThatAreNoText(const std::string& bytes, Encoding encoding) {
    std::vector<int> numbers;
    int nLine = 0;
    ForEachLine(bytes, [&](size_t nStart, size_t nLength, bool) {
        std::wstring text;
        ++nLine;
        if (!Decode(bytes.substr(nStart, nLength), encoding, text))
            numbers.push_back(nLine);
    });
    return numbers;
}

CFileText Unreadable(std::vector<int> numbers) {
    CFileText result;
    result.unreadable = std::move(numbers);
    return result;
}

CFileText Split(std::wstring text, Encoding encoding, const Progress& progress) {
    constexpr wchar_t kCtrlZ = 0x1A;
    if (!text.empty() && text.back() == kCtrlZ)
        text.pop_back();
    CFileText result;
    result.form = {encoding, LineEndOf(text)};
    CSteps steps(progress, text.size());
    ForEachLine(text, [&](size_t nStart, size_t nLength, bool bEnded) {
        result.lines.emplace_back(text.data() + nStart, static_cast<int>(nLength));
        result.bEnded = bEnded;
        steps.At(nStart);
    });
    return result;
}

} // namespace

CFileText DecodeText(const std::string& bytes, const Progress& progress) {
    std::wstring text;
    const auto split = [&](Encoding encoding) { return Split(std::move(text), encoding, progress); };
    if (bytes.compare(0, kUtf16MarkLength, "\xFF\xFE") == 0)
        return DecodeUtf16(bytes, true, text) ? split(Encoding::Utf16Le) : Unreadable({1});
    if (bytes.compare(0, kUtf16MarkLength, "\xFE\xFF") == 0)
        return DecodeUtf16(bytes, false, text) ? split(Encoding::Utf16Be) : Unreadable({1});
    if (bytes.compare(0, kUtf8MarkLength, kUtf8Mark) == 0) {
        const std::string rest = bytes.substr(kUtf8MarkLength);
        return Decode(rest, Encoding::Utf8, text) ? split(Encoding::Utf8Bom)
                                                  : Unreadable(LinesThatAreNoText(rest, Encoding::Utf8));
    }
    const bool bOem = Decode(bytes, Encoding::Oem, text);
    if (bOem && (IsAscii(bytes) || IsLikeKatakana(bytes)))
        return split(Encoding::Oem);
    if (Decode(bytes, Encoding::Utf8, text))
        return split(Encoding::Utf8);
    return bOem ? split(Encoding::Oem) : Unreadable(LinesThatAreNoText(bytes, Encoding::Oem));
}

CTextEncoder::CTextEncoder(const CTextForm& form) : m_form(form) {
    if (form.encoding == Encoding::Utf8Bom)
        m_bytes = kUtf8Mark;
    else if (form.encoding == Encoding::Utf16Le || form.encoding == Encoding::Utf16Be)
        AppendUtf16(0xFEFF, form.encoding == Encoding::Utf16Le, m_bytes);
}

bool CTextEncoder::Add(const CString& strLine) {
    constexpr const wchar_t* kEnds[] = {L"\r\n", L"\n", L"\r"};
    const CString strText = strLine + kEnds[static_cast<size_t>(m_form.lineEnd)];
    if (m_form.encoding == Encoding::Oem)
        return AppendOem(strText, m_bytes);
    const size_t nBefore = m_bytes.size();
    for (int i = 0; i < strText.GetLength();) {
        const char32_t code = NextCode(strText, i);
        if (code == kBad) {
            m_bytes.resize(nBefore);
            return false;
        }
        const bool bLittle = m_form.encoding == Encoding::Utf16Le;
        if (!bLittle && m_form.encoding != Encoding::Utf16Be) {
            AppendUtf8(code, m_bytes);
            continue;
        }
        if (code >= kBeyondBmp)
            AppendUtf16(kHighSurrogate + ((code - kBeyondBmp) >> 10), bLittle, m_bytes);
        AppendUtf16(code >= kBeyondBmp ? kLowSurrogate + ((code - kBeyondBmp) & 0x3FF) : code, bLittle,
                    m_bytes);
    }
    return true;
}

bool CanEncode(const CString& strText, Encoding encoding) {
    return CTextEncoder({encoding, LineEnd::CrLf}).Add(strText);
}

std::string ToUtf8(const CString& strText) {
    std::string bytes;
    for (int i = 0; i < strText.GetLength();) {
        constexpr char32_t kReplacement = 0xFFFD;
        const char32_t code = NextCode(strText, i);
        AppendUtf8(code == kBad ? kReplacement : code, bytes);
    }
    return bytes;
}

bool FromUtf8(const std::string& bytes, CString& strText) {
    std::wstring text;
    if (!Utf8ToWide(bytes, text))
        return false;
    strText = CString(text.c_str(), static_cast<int>(text.size()));
    return true;
}
