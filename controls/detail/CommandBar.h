// The command bar of full-screen windows, as all of them set it up.
#pragma once

#include <afxext.h>

namespace fieldkit::detail {

/// Menu resource that an application may have for the command bar of its windows.
constexpr UINT IDR_COMMAND_BAR = 130;

/// Gives the bar the application's menu, if there is one, and buttons of 32 x 15 pixels at
/// AFX_DESIGN_DPI.
inline void SetUpCommandBar(CCeCommandBar& bar) {
    bar.InsertMenuBar(IDR_COMMAND_BAR);
    bar.SendMessage(TB_SETBUTTONSIZE, 0, MAKELPARAM(AfxScale(bar, 32), AfxScale(bar, 15)));
}

} // namespace fieldkit::detail
