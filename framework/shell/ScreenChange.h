// Dialogs on a screen that is turned, or on another one.
#pragma once

#include "afxext.h"

namespace fieldkit::detail {

/// Hangs in the default processing of windows. What the user has typed and chosen, and the focus,
/// stay: nothing is made anew, windows and fonts only get other sizes.
class CScreenChange {
public:
    /// @return TRUE if the message has been handled.
    static BOOL OnMessage(CWnd* pWnd, UINT message, WPARAM wParam, LPARAM lParam);
};

} // namespace fieldkit::detail
