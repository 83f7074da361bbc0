// The system's search for dialog keys, kept from going round for ever.
#pragma once

#include "afxwin.h"

namespace fieldkit::detail {

/// To be called before a message goes to the system's IsDialogMessage.
///
/// The search for a mnemonic, a tab stop or a group's neighbour starts at the control that has the
/// focus, goes round the dialog and ends where it has begun. It does not enter windows that are
/// hidden or disabled: begun inside one, it has no end. The focus is therefore taken out of there
/// first, and the key goes with it.
class CDialogKeys {
public:
    /// @param pMsg a key for a control out of reach is directed to the one that gets the focus
    static void Prepare(MSG* pMsg);
    /// Puts the focus of a dialog on its first control that can be reached, else on the dialog.
    static void FocusReachable(HWND hWndDialog);
    /// Whether a window and all above it up to the dialog are visible and enabled.
    static bool IsReachable(HWND hWnd);
};

} // namespace fieldkit::detail
