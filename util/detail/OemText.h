// Text in the system's 8-bit code page of text files, the OEM one. All texts end with null.
#pragma once

#include <afx.h>

namespace fieldkit::detail {

/// @return the characters written, the null included; 0 if they have no room or mean nothing
int OemToWide(LPCSTR pszSource, LPWSTR pszTarget, int nTarget);
/// The way back; what the code page has not got becomes a question mark, or what is like it.
int WideToOem(LPCWSTR pszSource, LPSTR pszTarget, int nTarget);

} // namespace fieldkit::detail
