// The soft input panel as the framework sees it: whatever has been registered as one.
#pragma once

#include "afxext.h"

namespace fieldkit::detail {

class CSip {
public:
    /// @param pRect receives the panel's place on the screen; unchanged if none is shown
    static bool IsShown(CRect* pRect = nullptr);
    static void Toggle();
    /// A press that the system refused because the window is disabled: the panel's switch on the
    /// command bar works all the same, since a dialog over it may have the field to type into.
    /// @return true if the pen is on the switch.
    static bool OnPressWhileDisabled(HWND hWnd);
};

} // namespace fieldkit::detail
