#include "StringFormat.h"

#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstring>

// Each conversion is done alone. The C library's wide printf disagrees between systems about %s and
// cannot tell a short buffer from a character that it does not know; its narrow one does only what is
// rare: hexadecimal and long numbers with a point.
namespace {

enum class Size { normal, narrow, byte, wide, longlong, pointer, longdouble };

struct Conversion {
    bool left = false;      // -
    bool plus = false;      // +
    bool blank = false;     // a blank where plus has a sign
    bool alternate = false; // #
    bool zeros = false;     // 0
    int width = 0;
    int precision = -1;
    Size size = Size::normal;
    char type = '\0';
};

// A va_list inside a class travels by reference on every processor.
struct Arguments {
    va_list list;
};

// Widths beyond this are mistakes, and would only exhaust the memory.
constexpr int kMaxWidth = 1'000'000;

template <class Char>
int ReadNumber(const Char*& p) {
    int number = 0;
    for (; *p >= Char('0') && *p <= Char('9'); ++p)
        number = std::min(number * 10 + static_cast<int>(*p - Char('0')), kMaxWidth);
    return number;
}

template <class Char>
int ReadNumberOrArgument(const Char*& p, Arguments& args) {
    if (*p != Char('*'))
        return ReadNumber(p);
    ++p;
    return std::clamp(va_arg(args.list, int), -kMaxWidth, kMaxWidth);
}

template <class Char>
bool ReadFlag(Char ch, Conversion& conversion) {
    switch (ch) {
    case '-':
        return conversion.left = true;
    case '+':
        return conversion.plus = true;
    case ' ':
        return conversion.blank = true;
    case '#':
        return conversion.alternate = true;
    case '0':
        return conversion.zeros = true;
    default:
        return false;
    }
}

template <class Char>
bool Skip(const Char*& p, const char* text) {
    const Char* q = p;
    for (; *text != '\0'; ++text, ++q)
        if (*q != Char(*text))
            return false;
    p = q;
    return true;
}

template <class Char>
Size ReadSize(const Char*& p) {
    switch (*p) {
    case 'I':
        return Skip(p, "I64") ? Size::longlong : Skip(p, "I32") ? Size::normal : (++p, Size::pointer);
    case 'l':
        return Skip(p, "ll") ? Size::longlong : (++p, Size::wide);
    case 'h':
        return Skip(p, "hh") ? Size::byte : (++p, Size::narrow);
    case 'w':
        return ++p, Size::wide;
    case 'z':
    case 't':
        return ++p, Size::pointer;
    case 'j':
        return ++p, Size::longlong;
    case 'L':
        return ++p, Size::longdouble;
    default:
        return Size::normal;
    }
}

template <class Char>
Conversion ReadConversion(const Char*& p, Arguments& args) {
    Conversion conversion;
    while (ReadFlag(*p, conversion))
        ++p;
    conversion.width = ReadNumberOrArgument(p, args);
    if (conversion.width < 0) {
        conversion.left = true;
        conversion.width = -conversion.width;
    }
    if (*p == Char('.'))
        conversion.precision = ReadNumberOrArgument(++p, args);
    conversion.size = ReadSize(p);
    conversion.type = *p > Char(0) && *p < Char(0x7F) ? static_cast<char>(*p) : '\0';
    return conversion;
}

/// A number in parts: sign or 0x, zeros that the precision asks for, digits.
struct Number {
    std::string_view head;
    std::size_t zeros = 0;
    std::string_view digits;
};

template <class Char>
void AppendNumber(CTextBuffer<Char>& out, const Conversion& conversion, Number number, bool zerosFill) {
    const std::size_t length = number.head.size() + number.zeros + number.digits.size();
    const auto width = static_cast<std::size_t>(conversion.width);
    const std::size_t padding = width > length ? width - length : 0;
    if (zerosFill && conversion.zeros && !conversion.left)
        number.zeros += padding;
    else if (!conversion.left)
        out.Fill(padding, Char(' '));
    out.Append(number.head.data(), number.head.size());
    out.Fill(number.zeros, Char('0'));
    out.Append(number.digits.data(), number.digits.size());
    if (conversion.left)
        out.Fill(padding, Char(' '));
}

std::string_view SignOf(const Conversion& conversion, bool negative) {
    return negative ? "-" : conversion.plus ? "+" : conversion.blank ? " " : "";
}

template <class Char>
void AppendDigits(CTextBuffer<Char>& out, const Conversion& conversion, unsigned long long value,
                  std::string_view head) {
    char digits[24]; // octal digits of 64 bits, and one
    char* const end = digits + sizeof(digits);
    char* p = end;
    const auto put = [&](unsigned base, const char* names) {
        for (; value != 0; value /= base)
            *--p = names[value % base];
    };
    const bool any = value != 0;
    switch (conversion.type) {
    case 'o':
        put(8, "01234567");
        break;
    case 'x':
        put(16, "0123456789abcdef");
        head = conversion.alternate && any ? "0x" : "";
        break;
    case 'X':
        put(16, "0123456789ABCDEF");
        head = conversion.alternate && any ? "0X" : "";
        break;
    default:
        put(10, "0123456789");
    }
    auto length = static_cast<std::size_t>(end - p);
    std::size_t least = conversion.precision >= 0 ? static_cast<std::size_t>(conversion.precision) : 1;
    if (conversion.type == 'o' && conversion.alternate)
        least = std::max(least, length + 1);
    AppendNumber(out, conversion, {head, least > length ? least - length : 0, {p, length}},
                 conversion.precision < 0);
}

long long SignedArgument(Size size, Arguments& args) {
    switch (size) {
    case Size::wide:
        return va_arg(args.list, long);
    case Size::longlong:
        return va_arg(args.list, long long);
    case Size::pointer:
        return va_arg(args.list, std::ptrdiff_t);
    case Size::narrow:
        return static_cast<short>(va_arg(args.list, int));
    case Size::byte:
        return static_cast<signed char>(va_arg(args.list, int));
    default:
        return va_arg(args.list, int);
    }
}

unsigned long long UnsignedArgument(Size size, Arguments& args) {
    const auto value = static_cast<unsigned long long>(SignedArgument(size, args));
    const std::size_t bytes = size == Size::byte       ? 1
                              : size == Size::narrow   ? sizeof(short)
                              : size == Size::wide     ? sizeof(long)
                              : size == Size::pointer  ? sizeof(std::ptrdiff_t)
                              : size == Size::longlong ? sizeof(value)
                                                       : sizeof(int);
    return value & ~0ULL >> 8 * (sizeof(value) - bytes);
}

template <class Char>
void AppendInteger(CTextBuffer<Char>& out, const Conversion& conversion, Arguments& args) {
    if (conversion.type != 'd' && conversion.type != 'i')
        return AppendDigits(out, conversion, UnsignedArgument(conversion.size, args), "");
    const long long value = SignedArgument(conversion.size, args);
    const auto magnitude = static_cast<unsigned long long>(value);
    AppendDigits(out, conversion, value < 0 ? 0 - magnitude : magnitude, SignOf(conversion, value < 0));
}

/// By the C library.
template <class Char, class Real>
void AppendPrinted(CTextBuffer<Char>& out, const Conversion& conversion, const char* size, Real value) {
    std::string format = "%";
    for (const auto& [set, flag] :
         {std::pair(conversion.left, '-'), std::pair(conversion.plus, '+'), std::pair(conversion.blank, ' '),
          std::pair(conversion.alternate, '#'), std::pair(conversion.zeros, '0')})
        format.append(set ? 1 : 0, flag);
    format.append("*.*").append(size).push_back(conversion.type);
    const auto print = [&](char* target, std::size_t room) {
        const int needed =
            std::snprintf(target, room, format.c_str(), conversion.width, conversion.precision, value);
        if (needed < 0)
            AfxThrowMemoryException(); // long fields make the C library ask for some, each time
        return static_cast<std::size_t>(needed);
    };
    std::string text(print(nullptr, 0) + 1, '\0');
    print(text.data(), text.size());
    out.Append(text.data(), text.size() - 1);
}

template <class Char>
void AppendReal(CTextBuffer<Char>& out, const Conversion& conversion, Arguments& args) {
    if (conversion.size == Size::longdouble)
        return AppendPrinted(out, conversion, "L", va_arg(args.list, long double));
    const double value = va_arg(args.list, double);
    constexpr int kMostDigits = 100;
    const bool capitals = conversion.type < 'a';
    const char type = static_cast<char>(conversion.type | 0x20);
    if (type == 'a' || conversion.alternate || conversion.precision > kMostDigits)
        return AppendPrinted(out, conversion, "", value);
    const std::chars_format form = type == 'f'   ? std::chars_format::fixed
                                   : type == 'e' ? std::chars_format::scientific
                                                 : std::chars_format::general;
    char digits[std::numeric_limits<double>::max_exponent10 + kMostDigits + 8];
    char* const end = std::to_chars(digits, digits + sizeof(digits), std::fabs(value), form,
                                    conversion.precision < 0 ? 6 : conversion.precision)
                          .ptr;
    if (capitals)
        std::transform(digits, end, digits,
                       [](char ch) { return ch >= 'a' ? static_cast<char>(ch - 0x20) : ch; });
    AppendNumber(
        out, conversion,
        {SignOf(conversion, std::signbit(value)), 0, {digits, static_cast<std::size_t>(end - digits)}},
        std::isfinite(value));
}

template <class Char>
void AppendPointer(CTextBuffer<Char>& out, Conversion conversion, Arguments& args) {
    conversion.type = 'X';
    conversion.precision = 2 * static_cast<int>(sizeof(void*));
    AppendDigits(out, conversion, reinterpret_cast<UINT_PTR>(va_arg(args.list, void*)), "");
}

template <class Char>
void AppendPadded(CTextBuffer<Char>& out, const Conversion& conversion, std::basic_string_view<Char> text) {
    const auto width = static_cast<std::size_t>(conversion.width);
    const std::size_t padding = width > text.size() ? width - text.size() : 0;
    if (!conversion.left)
        out.Fill(padding, conversion.zeros ? Char('0') : Char(' '));
    out.Append(text.data(), text.size());
    if (conversion.left)
        out.Fill(padding, Char(' '));
}

// Text of the other form.
template <class Char, class Other>
void AppendPadded(CTextBuffer<Char>& out, const Conversion& conversion, std::basic_string_view<Other> text) {
    const std::basic_string<Char> converted = Convert(text);
    AppendPadded(out, conversion, std::basic_string_view<Char>(converted));
}

// Upper case swaps the meaning of the plain letter; an explicit size has the last word.
template <class Char>
bool IsNarrowText(const Conversion& conversion) {
    if (conversion.size == Size::narrow || conversion.size == Size::byte)
        return true;
    const bool other = conversion.type == 'S' || conversion.type == 'C';
    return conversion.size == Size::normal && other != (sizeof(Char) == 1);
}

template <class Char>
void AppendCharacter(CTextBuffer<Char>& out, const Conversion& conversion, Arguments& args) {
    const int value = va_arg(args.list, int);
    const auto narrow = static_cast<char>(value);
    const auto wide = static_cast<wchar_t>(value);
    if (IsNarrowText<Char>(conversion))
        AppendPadded(out, conversion, std::string_view(&narrow, 1));
    else
        AppendPadded(out, conversion, std::wstring_view(&wide, 1));
}

// With a precision the text need not be terminated, so nothing is read behind it.
template <class Char>
std::basic_string_view<Char> TextArgument(const Conversion& conversion, const Char* text) {
    if (conversion.precision < 0)
        return text;
    const Char* const end = text + conversion.precision;
    const Char* p = text;
    while (p != end && *p != Char())
        ++p;
    return {text, static_cast<std::size_t>(p - text)};
}

template <class Char>
void AppendText(CTextBuffer<Char>& out, const Conversion& conversion, Arguments& args) {
    const void* text = va_arg(args.list, const void*);
    if (text == nullptr)
        AppendPadded(out, conversion, TextArgument(conversion, "(null)"));
    else if (IsNarrowText<Char>(conversion))
        AppendPadded(out, conversion, TextArgument(conversion, static_cast<const char*>(text)));
    else
        AppendPadded(out, conversion, TextArgument(conversion, static_cast<const wchar_t*>(text)));
}

/// @return whether the conversion is known
template <class Char>
bool AppendConversion(CTextBuffer<Char>& out, const Conversion& conversion, Arguments& args) {
    switch (conversion.type) {
    case 'd':
    case 'i':
    case 'u':
    case 'o':
    case 'x':
    case 'X':
        return AppendInteger(out, conversion, args), true;
    case 'e':
    case 'E':
    case 'f':
    case 'F':
    case 'g':
    case 'G':
    case 'a':
    case 'A':
        return AppendReal(out, conversion, args), true;
    case 's':
    case 'S':
        return AppendText(out, conversion, args), true;
    case 'c':
    case 'C':
        return AppendCharacter(out, conversion, args), true;
    case 'p':
        return AppendPointer(out, conversion, args), true;
    default:
        return false;
    }
}

template <class Char>
void FormatText(CTextBuffer<Char>& out, const Char* p, Arguments& args) {
    while (*p != Char()) {
        const Char* const start = p;
        while (*p != Char() && *p != Char('%'))
            ++p;
        out.Append(start, static_cast<std::size_t>(p - start));
        if (*p == Char())
            return;
        ++p;
        // %% and whatever has no meaning stand for their last character.
        if (!AppendConversion(out, ReadConversion(p, args), args))
            out.Append(p, *p != Char() ? 1 : 0);
        if (*p != Char())
            ++p;
    }
}

} // namespace

void fieldkit::detail::AfxFormatText(CTextBuffer<wchar_t>& out, const wchar_t* pszFormat, va_list argList) {
    Arguments args;
    va_copy(args.list, argList);
    FormatText(out, pszFormat, args);
    va_end(args.list);
}

void fieldkit::detail::AfxFormatText(CTextBuffer<char>& out, const char* pszFormat, va_list argList) {
    Arguments args;
    va_copy(args.list, argList);
    FormatText(out, pszFormat, args);
    va_end(args.list);
}
