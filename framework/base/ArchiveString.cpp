#include "afx.h"
#include "TextConvert.h"

#include <algorithm>
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
std::basic_string<Unit> LoadBytes(CArchive& ar, DWORD length) {
    std::basic_string<Unit> text;
    BYTE bytes[kStep];
    for (auto left = static_cast<DWORD>(length * sizeof(Unit)); left != 0;) {
        const UINT count = std::min<UINT>(left, kStep);
        if (ar.Read(bytes, count) != count)
            Fail(ar, CArchiveException::endOfFile);
        for (UINT i = 0; i < count; i += sizeof(Unit)) {
            unsigned unit = bytes[i];
            if constexpr (sizeof(Unit) == 2)
                unit |= static_cast<unsigned>(bytes[i + 1] << 8);
            text += static_cast<Unit>(unit);
        }
        left -= count;
    }
    return text;
}

} // namespace

CArchive& AFXAPI operator<<(CArchive& ar, const CString& string) {
    const std::u16string units =
        AfxToUtf16({string.GetString(), static_cast<std::size_t>(string.GetLength())});
    ar << kLongMark << kWideMark;
    StoreLength(ar, static_cast<DWORD>(units.size()));
    for (const char16_t unit : units)
        ar << static_cast<WORD>(unit);
    return ar;
}

CArchive& AFXAPI operator>>(CArchive& ar, CString& string) {
    const TextHead head = LoadHead(ar);
    if (head.length > static_cast<DWORD>(std::numeric_limits<int>::max()))
        Fail(ar, CArchiveException::badIndex);
    const std::wstring text = head.wide ? AfxFromUtf16(LoadBytes<char16_t>(ar, head.length))
                                        : AfxWiden(LoadBytes<char>(ar, head.length));
    string = CString(text.data(), static_cast<int>(text.size()));
    return ar;
}
