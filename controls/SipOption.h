/// @file
/// Options of the entry fields: which soft input panel they bring up.
#pragma once

#include <afxwin.h>

/// Bits of the option word of CnEdit and CnComboBox. The lowest one that is set counts; with
/// none of them the field leaves the panel alone. What the modes look like is the companion
/// library's affair, see TVShowSIP.
enum SipOption : DWORD {
    SipOptionMode0 = 0x1, ///< The field is entered in mode 0.
    SipOptionMode1 = 0x2, ///< In mode 1.
    SipOptionMode2 = 0x4, ///< In mode 2.
};
