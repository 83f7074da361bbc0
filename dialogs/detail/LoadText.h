// Texts of the dialogs that may be given as string resource ids.
#pragma once

#include <afx.h>

namespace fieldkit::detail {

/// The string resource of an id, from the application or the library; empty if there is none.
inline CString LoadText(int nId) {
    CString str;
    str.LoadString(static_cast<UINT>(nId));
    return str;
}

} // namespace fieldkit::detail
