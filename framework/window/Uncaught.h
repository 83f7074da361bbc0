// Telling the user of an exception, also when there is hardly any memory left to do so.
#pragma once

#include "afxwin.h"

namespace fieldkit::detail {

/// Shows the exception's text, unless it is a CUserException, and deletes it. Only one such box
/// is open at a time in a thread: what fails while it is open may fail for ever. Never throws.
void AfxTellException(CException* e) noexcept;

} // namespace fieldkit::detail
