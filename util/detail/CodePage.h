/// @file
/// The system's conversion between 8-bit and wide text; natively, where the system has none of
/// that name, one of the same form.
#pragma once

#include <afx.h>

#ifndef _WIN32

constexpr UINT CP_OEMCP = 1;

/// A code page of one byte a character, whose codes are Unicode's first 256. Only whole texts
/// that end with null are converted (a length of -1).
/// @return the characters written, the null included; 0 if they have no room
extern "C" int MultiByteToWideChar(UINT nCodePage, DWORD dwFlags, LPCSTR pszSource, int nSource,
                                   LPWSTR pszTarget, int nTarget);
/// The way back; what the code page has not got becomes a question mark.
extern "C" int WideCharToMultiByte(UINT nCodePage, DWORD dwFlags, LPCWSTR pszSource, int nSource,
                                   LPSTR pszTarget, int nTarget, LPCSTR pszDefault, BOOL* pbUsedDefault);

#endif
