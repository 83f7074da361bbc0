// What the device's shell adds to all windows. The window classes know no more of it than this.
#pragma once

#include "afxwin.h"

namespace fieldkit::detail {

struct CWndShell {
    /// The shell's part of default processing, before the system's. @return TRUE if that was all
    BOOL (*pfnOnMessage)(CWnd* pWnd, UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    /// The extended style WS_EX_CAPTIONOKBTN of a window has come or gone.
    void (*pfnShowOkButton)(CWnd* pWnd, BOOL bShow);
};

/// Defined by the shell. A constant: nothing has to be registered before the first window of any
/// thread, or be taken back when the DLL goes, and the linker brings the shell into a program that
/// is linked statically and calls nothing of it.
extern const CWndShell g_wndShell;

} // namespace fieldkit::detail
