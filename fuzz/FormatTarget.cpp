// One conversion of CString::Format, beside the C library's narrow one.
#include "Targets.h"

#include <afx.h>

#include <cstring>
#include <string>
#include <vector>

namespace {

/// Takes choices out of the bytes; 0 when they are used up.
class Choices {
public:
    Choices(const std::uint8_t* pData, std::size_t nSize) : m_p(pData), m_pEnd(pData + nSize) {}
    unsigned Byte() { return m_p != m_pEnd ? *m_p++ : 0; }
    template <class Value>
    Value Bits() {
        Value value{};
        unsigned char bytes[sizeof(Value)];
        for (unsigned char& by : bytes)
            by = static_cast<unsigned char>(Byte());
        std::memcpy(&value, bytes, sizeof(value));
        return value;
    }

private:
    const std::uint8_t* m_p;
    const std::uint8_t* m_pEnd;
};

/// A conversion in our writing and in the C library's.
struct Conversion {
    std::string head; ///< flags, width, precision
    std::string ours;
    std::string reference;
};

template <class... Args>
void Compare(const Conversion& conversion, Args... args) {
    const std::string format = "<%" + conversion.head + conversion.reference + ">%%\n";
    const int nLength = std::snprintf(nullptr, 0, format.c_str(), args...);
    std::vector<char> expected(static_cast<std::size_t>(nLength) + 1);
    std::snprintf(expected.data(), expected.size(), format.c_str(), args...);

    CString strText = L"old";
    strText.Format(CString(("<%" + conversion.head + conversion.ours + ">%%\n").c_str()), args...);
    Promise(strText.GetLength() == nLength, "a conversion has the C library's length");
    for (int i = 0; i < nLength; ++i)
        Promise(strText[i] == wchar_t{static_cast<unsigned char>(expected[static_cast<std::size_t>(i)])},
                "a conversion has the C library's text");
}

std::string Flags(unsigned choice) {
    std::string flags;
    for (std::size_t i = 0; i < 5; ++i)
        if ((choice >> i & 1) != 0)
            flags += "-+ #0"[i];
    return flags;
}

std::string WidthAndPrecision(Choices& choices) {
    const unsigned width = choices.Byte();
    const unsigned precision = choices.Byte();
    return (width != 0 ? std::to_string(width) : "") +
           (precision % 2 != 0 ? "." + std::to_string(precision / 2) : "");
}

void CompareInteger(Conversion conversion, Choices& choices) {
    const std::string type(1, "diuoxX"[choices.Byte() % 6]);
    const auto value = choices.Bits<long long>();
    const unsigned size = choices.Byte() % 8;
    const char* const ours[] = {"", "h", "hh", "l", "ll", "I64", "I32", "z"};
    const char* const reference[] = {"", "h", "hh", "l", "ll", "ll", "", "z"};
    conversion.ours = ours[size] + type;
    conversion.reference = reference[size] + type;
    if (size == 3)
        Compare(conversion, static_cast<long>(value));
    else if (size == 7)
        Compare(conversion, static_cast<std::size_t>(value));
    else if (size == 4 || size == 5)
        Compare(conversion, value);
    else
        Compare(conversion, static_cast<int>(value));
}

void CompareReal(Conversion conversion, Choices& choices) {
    const std::string type(1, "eEfFgGaA"[choices.Byte() % 8]);
    conversion.ours = conversion.reference = type;
    const auto value = choices.Bits<double>();
    if (choices.Byte() % 4 != 0)
        return Compare(conversion, value);
    conversion.ours = conversion.reference = "L" + type;
    Compare(conversion, static_cast<long double>(value));
}

/// Text is the same in both for ASCII; the other flags mean nothing there.
void CompareText(Conversion conversion, Choices& choices) {
    std::string text;
    while (const unsigned by = choices.Byte() & 0x7F)
        text += static_cast<char>(by);
    std::erase_if(conversion.head, [](char ch) { return std::strchr("+ #", ch) != nullptr; });
    while (!conversion.head.empty() && conversion.head[0] == '0')
        conversion.head.erase(0, 1);
    conversion.reference = "s";
    for (const char* ours : {"hs", "S", "hS"}) {
        conversion.ours = ours;
        Compare(conversion, text.c_str());
    }
    if (text.empty())
        return;
    conversion.head = conversion.head.substr(0, conversion.head.find('.'));
    conversion.ours = conversion.reference = "c";
    Compare(conversion, static_cast<int>(text[0]));
}

} // namespace

void FuzzFormat(const std::uint8_t* pData, std::size_t nSize) {
    Choices choices(pData, nSize);
    const unsigned kind = choices.Byte() % 3;
    Conversion conversion;
    conversion.head = Flags(choices.Byte());
    conversion.head += WidthAndPrecision(choices);
    if (kind == 0)
        CompareInteger(conversion, choices);
    else if (kind == 1)
        CompareReal(conversion, choices);
    else
        CompareText(conversion, choices);
}
