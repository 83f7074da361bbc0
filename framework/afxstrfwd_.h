/// @file
/// The names of the strings, what a text begins with in memory, and what a string becomes as an argument
/// of Format. Included by afxstr.h.
#pragma once

#include "afxtypes.h"

#include <atomic>
#include <type_traits>

template <class Char>
class CStringT;

/// Wide text: UTF-16 on Windows.
using CStringW = CStringT<wchar_t>;
/// Narrow text: bytes of the ANSI code page on Windows, UTF-8 elsewhere.
using CStringA = CStringT<char>;
/// The string of Unicode programs. A name for CStringW, not a class of its own, as the
/// documentation has it; so it cannot be declared by `class CString;`: include this header.
using CString = CStringW;

/// What an argument of Format and its like becomes on its way through the ellipsis: the text of a
/// string, any other plain value as it is.
template <class Arg>
auto AfxFormatArgument(const Arg& arg) noexcept {
    if constexpr (std::is_base_of_v<CStringW, Arg> || std::is_base_of_v<CStringA, Arg>) {
        return arg.GetString();
    } else {
        static_assert(std::is_arithmetic_v<Arg> || std::is_enum_v<Arg> || std::is_pointer_v<Arg> ||
                          std::is_null_pointer_v<Arg>,
                      "Only numbers, pointers and CString can be formatted: pass a member or the text of "
                      "this object");
        return arg;
    }
}

/// What stands in front of the characters of a string.
struct CStringData {
    std::atomic<int> nRefs; ///< the strings that share the text; -1: one, which nobody may share
    int nDataLength;        ///< characters, without the NUL behind them
    int nAllocLength;       ///< room in characters, without the NUL; 0: the static empty text
};

/// The text of every empty string, wide or narrow.
struct CStringNil {
    CStringData data; ///< never counted
    wchar_t chEnd;
};
AFX_CORE extern CStringNil afxStringNil;
