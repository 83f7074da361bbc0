#include "afx.h"
#include "ReadLine.h"
#include "TextConvert.h"

#include <algorithm>
#include <bit>
#include <limits>

using namespace fieldkit::detail;

// A length is one byte, or 0xFF and a word, or 0xFF, 0xFFFF and a double word. The word
// 0xFFFE is no length: it says that wide characters follow, and the length comes after it.
namespace {

constexpr BYTE kLongMark = 0xFF;
constexpr WORD kWideMark = 0xFFFE;
constexpr WORD kVeryLongMark = 0xFFFF;

// What is read before it is known to be there.
constexpr DWORD kStep = 4096;

struct TextHead {
    bool wide = false;
    DWORD length = 0;
};

void StoreLength(CArchive& ar, DWORD length) {
    if (length < kLongMark)
        ar << static_cast<BYTE>(length);
    else if (length < kWideMark)
        ar << kLongMark << static_cast<WORD>(length);
    else
        ar << kLongMark << kVeryLongMark << length;
}

[[noreturn]] void Fail(CArchive& ar, int cause) {
    AfxThrowArchiveException(cause, ar.GetFile()->GetFilePath());
}

TextHead LoadHead(CArchive& ar) {
    TextHead head;
    for (;;) {
        BYTE shortLength = 0;
        ar >> shortLength;
        if (shortLength != kLongMark) {
            head.length = shortLength;
            return head;
        }
        WORD length = 0;
        ar >> length;
        if (length == kVeryLongMark) {
            ar >> head.length;
            return head;
        }
        if (length != kWideMark) {
            head.length = length;
            return head;
        }
        if (head.wide)
            Fail(ar, CArchiveException::badIndex);
        head.wide = true;
    }
}

template <class Unit>
void ReadUnits(CArchive& ar, Unit* units, std::size_t count) {
    const auto bytes = static_cast<UINT>(count * sizeof(Unit));
    if (ar.Read(units, bytes) != bytes)
        Fail(ar, CArchiveException::endOfFile);
}

// In pieces, so that a length in a damaged file does not fill the memory.
template <class Unit>
std::basic_string<Unit> LoadUnits(CArchive& ar, DWORD length) {
    std::basic_string<Unit> text;
    while (text.size() < length) {
        const std::size_t done = text.size();
        const std::size_t count = std::min<std::size_t>(length - done, std::max<std::size_t>(kStep, done));
        text.resize(done + count);
        ReadUnits(ar, text.data() + done, count);
    }
    return text;
}

/// Loads units and hands them over, a short text without asking for memory.
template <class Unit, class Use>
void LoadText(CArchive& ar, DWORD length, Use use) {
    constexpr DWORD kShort = 256;
    if (length > kShort)
        return use(std::basic_string_view<Unit>(LoadUnits<Unit>(ar, length)));
    Unit units[kShort];
    ReadUnits(ar, units, length);
    use(std::basic_string_view<Unit>(units, length));
}

} // namespace

// Both kinds of processors that this is built for keep the low byte first, as the file does.
static_assert(std::endian::native == std::endian::little);

CArchive& AFXAPI operator<<(CArchive& ar, const CStringW& string) {
    const std::wstring_view text(string.GetString(), static_cast<std::size_t>(string.GetLength()));
    ar << kLongMark << kWideMark;
#ifdef _WIN32
    const std::wstring_view units = text;
#else
    const std::u16string units = AfxToUtf16(text);
#endif
    StoreLength(ar, static_cast<DWORD>(units.size()));
    ar.Write(units.data(), static_cast<UINT>(units.size() * 2));
    return ar;
}

CArchive& AFXAPI operator<<(CArchive& ar, const CStringA& string) {
    StoreLength(ar, static_cast<DWORD>(string.GetLength()));
    ar.Write(string.GetString(), static_cast<UINT>(string.GetLength()));
    return ar;
}

CArchive& AFXAPI operator>>(CArchive& ar, CStringW& string) {
    const TextHead head = LoadHead(ar);
    if (head.length > static_cast<DWORD>(std::numeric_limits<int>::max()))
        Fail(ar, CArchiveException::badIndex);
    const auto set = [&string](std::wstring_view text) {
        string.SetString(text.data(), static_cast<int>(text.size()));
    };
    if (!head.wide)
        LoadText<char>(ar, head.length, [&](std::string_view text) { set(AfxWiden(text)); });
#ifdef _WIN32
    else
        LoadText<wchar_t>(ar, head.length, set);
#else
    else
        LoadText<char16_t>(ar, head.length, [&](std::u16string_view text) { set(AfxFromUtf16(text)); });
#endif
    return ar;
}

CArchive& AFXAPI operator>>(CArchive& ar, CStringA& string) {
    CStringW wide;
    ar >> wide;
    string = wide;
    return ar;
}

void CArchive::WriteString(LPCTSTR lpsz) {
    for (const char16_t unit : AfxToUtf16(lpsz != nullptr ? lpsz : L""))
        *this << static_cast<WORD>(unit);
}

/// The next character of what WriteString stored.
bool CArchive::ReadUnit(wchar_t& ch) {
    BYTE unit[2];
    if (Read(unit, 2) != 2)
        return false;
    ch = static_cast<wchar_t>(unit[0] | unit[1] << 8);
    return true;
}

LPTSTR CArchive::ReadString(LPTSTR lpsz, UINT nMax) {
    return AfxReadString(lpsz, nMax, [this](wchar_t& ch) { return ReadUnit(ch); });
}

BOOL CArchive::ReadString(CString& rString) {
    return AfxReadString(rString, [this](wchar_t& ch) { return ReadUnit(ch); });
}
