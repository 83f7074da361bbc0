/// @file
/// Texts for users in code that also runs where there are no resources.
#pragma once

#include "afx.h"

namespace fieldkit::detail {

/// Puts a text of the string table into a buffer, shortened to it. Needs no memory. Natively, and
/// if there is no such text, the buffer stays as it is.
///
/// @param nMaxText in characters with the terminating 0; at least 1
void AfxMessageText(UINT nID, LPTSTR lpszText, UINT nMaxText);

} // namespace fieldkit::detail
