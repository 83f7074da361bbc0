/// @file
/// The names of the Win32 basic types, and the export macro of the framework.
///
/// On Windows they come from windows.h. Elsewhere, where only the portable base
/// of the framework is built (strings, value types, collections, archives), the
/// few that its interface mentions are declared here with the same widths.
#pragma once

/// @def AFX_CORE
/// Marks what the framework's DLL exports; nothing in a static or native build.
/// @def AFXAPI
/// The calling convention of the framework's global functions.

#ifdef _WIN32

#ifndef UNICODE
#error "The framework is Unicode only: define UNICODE and _UNICODE"
#endif
#ifndef NOMINMAX
/// Keeps the system's macros min and max away.
#define NOMINMAX
#endif
#include "afxver_.h"
#include <windows.h>
#include <tchar.h>

#if defined(FIELDKIT_STATIC)
#define AFX_CORE
#elif defined(FRAMEWORK_EXPORTS)
#define AFX_CORE __declspec(dllexport)
#else
#define AFX_CORE __declspec(dllimport)
#endif
#define AFXAPI __stdcall

#else

#include <cstddef>
#include <cstdint>

#define AFX_CORE
#define AFXAPI
#define TRUE 1
#define FALSE 0
#define _T(text) L##text

using BOOL = int;
using BYTE = std::uint8_t;
using WORD = std::uint16_t;
using DWORD = std::uint32_t;
using UINT = unsigned int;
using LONG = std::int32_t;
using ULONGLONG = std::uint64_t;
using LONGLONG = std::int64_t;
using TCHAR = wchar_t;
using LPTSTR = wchar_t*;
using LPCTSTR = const wchar_t*;
using LPWSTR = wchar_t*;
using LPCWSTR = const wchar_t*;
using HANDLE = void*;
using INT_PTR = std::intptr_t;
using UINT_PTR = std::uintptr_t;
using DWORD_PTR = std::uintptr_t;
using LPARAM = std::intptr_t;
using LPSTR = char*;
using LPCSTR = const char*;

struct POINT {
    LONG x;
    LONG y;
};
struct SIZE {
    LONG cx;
    LONG cy;
};
struct RECT {
    LONG left;
    LONG top;
    LONG right;
    LONG bottom;
};
using LPPOINT = POINT*;
using LPSIZE = SIZE*;
using LPRECT = RECT*;
using LPCRECT = const RECT*;

#endif

#include <type_traits>

// Programs of the field expect the classic headers' min and max. As macros they would break the
// standard library's headers; as functions they take mixed numbers like the macros, and std::min
// and std::max are preferred where a program has both in reach.
/// The smaller and the larger of two values, in the type that both convert to.
///@{
template <class A, class B>
constexpr std::common_type_t<A, B> min(const A& a, const B& b) {
    using Common = std::common_type_t<A, B>;
    return static_cast<Common>(b) < static_cast<Common>(a) ? static_cast<Common>(b) : static_cast<Common>(a);
}
template <class A, class B>
constexpr std::common_type_t<A, B> max(const A& a, const B& b) {
    using Common = std::common_type_t<A, B>;
    return static_cast<Common>(a) < static_cast<Common>(b) ? static_cast<Common>(b) : static_cast<Common>(a);
}
///@}
