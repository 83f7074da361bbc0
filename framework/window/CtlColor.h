// The seven colour messages of controls, folded into one for the message maps.
#pragma once

#include "afxwin.h"

namespace fieldkit::detail {

/// What AFX_WM_CTLCOLOR carries in its lParam.
struct CCtlColor {
    HDC hDC;
    HWND hWnd;
    UINT nType; ///< CTLCOLOR_...

    static bool IsColorMessage(UINT message) {
        return message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC;
    }
    static CCtlColor FromMessage(UINT message, WPARAM wParam, LPARAM lParam) {
        return {reinterpret_cast<HDC>(wParam), reinterpret_cast<HWND>(lParam), message - WM_CTLCOLORMSGBOX};
    }
};

} // namespace fieldkit::detail
