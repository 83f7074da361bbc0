#include "afx.h"
#include "TextConvert.h"

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <cwchar>
#include <string_view>

using namespace fieldkit::detail;

// Each conversion is done alone, with the C library's narrow printf for numbers only.
// Its wide one disagrees between systems about %s and cannot tell a short buffer from a
// character that it does not know.
namespace {

enum class Size { normal, narrow, byte, wide, longlong, pointer, longdouble };

struct Conversion {
    std::string flags;
    int width = 0;
    int precision = -1;
    Size size = Size::normal;
    wchar_t type = L'\0';
};

// A va_list inside a class travels by reference on every processor.
struct Arguments {
    va_list list;
};

// Widths beyond this are mistakes, and would only exhaust the memory.
constexpr int kMaxWidth = 1'000'000;

int ReadNumber(LPCTSTR& p) {
    int number = 0;
    for (; *p >= L'0' && *p <= L'9'; ++p)
        number = std::min(number * 10 + static_cast<int>(*p - L'0'), kMaxWidth);
    return number;
}

int ReadNumberOrArgument(LPCTSTR& p, Arguments& args) {
    if (*p != L'*')
        return ReadNumber(p);
    ++p;
    return std::clamp(va_arg(args.list, int), -kMaxWidth, kMaxWidth);
}

Size ReadSize(LPCTSTR& p) {
    struct Prefix {
        std::wstring_view text;
        Size size;
    };
    constexpr Prefix kPrefixes[] = {
        {L"I64", Size::longlong}, {L"I32", Size::normal}, {L"I", Size::pointer},  {L"ll", Size::longlong},
        {L"l", Size::wide},       {L"w", Size::wide},     {L"hh", Size::byte},    {L"h", Size::narrow},
        {L"z", Size::pointer},    {L"t", Size::pointer},  {L"j", Size::longlong}, {L"L", Size::longdouble}};
    for (const Prefix& prefix : kPrefixes) {
        if (std::wcsncmp(p, prefix.text.data(), prefix.text.size()) == 0) {
            p += prefix.text.size();
            return prefix.size;
        }
    }
    return Size::normal;
}

Conversion ReadConversion(LPCTSTR& p, Arguments& args) {
    Conversion conversion;
    for (; *p != L'\0' && std::wcschr(L"-+ #0", *p) != nullptr; ++p)
        conversion.flags += static_cast<char>(*p);
    conversion.width = ReadNumberOrArgument(p, args);
    if (conversion.width < 0) {
        conversion.flags += '-';
        conversion.width = -conversion.width;
    }
    if (*p == L'.')
        conversion.precision = ReadNumberOrArgument(++p, args);
    conversion.size = ReadSize(p);
    conversion.type = *p;
    if (*p != L'\0')
        ++p;
    return conversion;
}

bool Has(const Conversion& conversion, char flag) {
    return conversion.flags.find(flag) != std::string::npos;
}

void AppendPadded(std::wstring& out, const Conversion& conversion, std::wstring_view text) {
    const auto width = static_cast<std::size_t>(conversion.width);
    const std::size_t padding = width > text.size() ? width - text.size() : 0;
    if (!Has(conversion, '-'))
        out.append(padding, Has(conversion, '0') ? L'0' : L' ');
    out.append(text);
    if (Has(conversion, '-'))
        out.append(padding, L' ');
}

template <class Number>
void AppendNumber(std::wstring& out, const Conversion& conversion, const char* length, Number value) {
    const std::string format = "%" + conversion.flags + "*.*" + length + static_cast<char>(conversion.type);
    const auto print = [&](char* target, std::size_t size) {
        const int needed =
            std::snprintf(target, size, format.c_str(), conversion.width, conversion.precision, value);
        if (needed < 0)
            AfxThrowMemoryException(); // long fields make the C library ask for some, each time
        return static_cast<std::size_t>(needed);
    };
    std::string digits(print(nullptr, 0) + 1, '\0');
    print(digits.data(), digits.size());
    out.append(digits.begin(), digits.end() - 1);
}

void AppendInteger(std::wstring& out, const Conversion& conversion, Arguments& args) {
    switch (conversion.size) {
    case Size::wide:
        return AppendNumber(out, conversion, "l", va_arg(args.list, long));
    case Size::longlong:
        return AppendNumber(out, conversion, "ll", va_arg(args.list, long long));
    case Size::pointer:
        return AppendNumber(out, conversion, "t", va_arg(args.list, std::ptrdiff_t));
    case Size::narrow:
        return AppendNumber(out, conversion, "h", va_arg(args.list, int));
    case Size::byte:
        return AppendNumber(out, conversion, "hh", va_arg(args.list, int));
    default:
        return AppendNumber(out, conversion, "", va_arg(args.list, int));
    }
}

void AppendReal(std::wstring& out, const Conversion& conversion, Arguments& args) {
    if (conversion.size == Size::longdouble)
        AppendNumber(out, conversion, "L", va_arg(args.list, long double));
    else
        AppendNumber(out, conversion, "", va_arg(args.list, double));
}

void AppendPointer(std::wstring& out, Conversion conversion, Arguments& args) {
    conversion.type = L'X';
    conversion.precision = 2 * static_cast<int>(sizeof(void*));
    AppendNumber(out, conversion, "t", reinterpret_cast<std::ptrdiff_t>(va_arg(args.list, void*)));
}

// Upper case swaps the meaning of the plain letter; an explicit size has the last word.
bool IsNarrowText(const Conversion& conversion) {
    if (conversion.size == Size::narrow || conversion.size == Size::byte)
        return true;
    return conversion.size == Size::normal && (conversion.type == L'S' || conversion.type == L'C');
}

void AppendCharacter(std::wstring& out, const Conversion& conversion, Arguments& args) {
    const int value = va_arg(args.list, int);
    if (!IsNarrowText(conversion))
        return AppendPadded(out, conversion, std::wstring(1, static_cast<wchar_t>(value)));
    const char ch = static_cast<char>(value);
    AppendPadded(out, conversion, AfxWiden({&ch, 1}));
}

// With a precision the text need not be terminated, so no strlen there.
template <class Char>
std::basic_string_view<Char> TextArgument(const Conversion& conversion, const Char* text) {
    std::size_t length = 0;
    while ((conversion.precision < 0 || length < static_cast<std::size_t>(conversion.precision)) &&
           text[length] != Char())
        ++length;
    return {text, length};
}

void AppendText(std::wstring& out, const Conversion& conversion, Arguments& args) {
    const void* text = va_arg(args.list, const void*);
    if (text == nullptr)
        AppendPadded(out, conversion, TextArgument(conversion, L"(null)"));
    else if (IsNarrowText(conversion))
        AppendPadded(out, conversion, AfxWiden(TextArgument(conversion, static_cast<const char*>(text))));
    else
        AppendPadded(out, conversion, TextArgument(conversion, static_cast<const wchar_t*>(text)));
}

void AppendConversion(std::wstring& out, const Conversion& conversion, Arguments& args) {
    switch (conversion.type) {
    case L'd':
    case L'i':
    case L'u':
    case L'o':
    case L'x':
    case L'X':
        return AppendInteger(out, conversion, args);
    case L'e':
    case L'E':
    case L'f':
    case L'F':
    case L'g':
    case L'G':
    case L'a':
    case L'A':
        return AppendReal(out, conversion, args);
    case L's':
    case L'S':
        return AppendText(out, conversion, args);
    case L'c':
    case L'C':
        return AppendCharacter(out, conversion, args);
    case L'p':
        return AppendPointer(out, conversion, args);
    case L'\0':
        return;
    default: // %% and whatever has no meaning
        out += conversion.type;
    }
}

} // namespace

void CString::FormatV(LPCTSTR lpszFormat, va_list argList) {
    std::wstring out;
    Arguments args;
    va_copy(args.list, argList);
    for (LPCTSTR p = lpszFormat != nullptr ? lpszFormat : L""; *p != L'\0';) {
        if (*p != L'%') {
            out += *p++;
            continue;
        }
        ++p;
        AppendConversion(out, ReadConversion(p, args), args);
    }
    va_end(args.list);
    m_text.swap(out);
}

void CString::AppendFormatV(LPCTSTR lpszFormat, va_list argList) {
    CString tail;
    tail.FormatV(lpszFormat, argList);
    *this += tail;
}

void CString::Format(LPCTSTR lpszFormat, ...) {
    va_list argList;
    va_start(argList, lpszFormat);
    FormatV(lpszFormat, argList);
    va_end(argList);
}

#ifdef _WIN32
void CString::Format(UINT nFormatID, ...) {
    CString format;
    format.LoadString(nFormatID);
    va_list argList;
    va_start(argList, nFormatID);
    FormatV(format, argList);
    va_end(argList);
}
#endif

void CString::AppendFormat(LPCTSTR lpszFormat, ...) {
    va_list argList;
    va_start(argList, lpszFormat);
    AppendFormatV(lpszFormat, argList);
    va_end(argList);
}
