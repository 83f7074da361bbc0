/// @file
/// Steps that most scripts are made of. Those with a pen wait until a user could tap there: until
/// the control is visible, enabled and not covered, also not by the input panel, which goes some
/// time after the focus.
///
///     Play(dlg, {Tap(dlg, IDC_HEIGHT), Type(L"1.5"), Tap(dlg, IDC_ADD), Answer(IDYES)});
#pragma once

#include "testkit/Script.h"

#include <initializer_list>
#include <string>

namespace testkit {

/// Taps a control of a dialog.
Step Tap(const CWnd& dialog, int nID, const Place& place = {});
/// Taps a control of whatever dialog or message box is active then.
///@{
Step TapIn(int nID, const Place& place = {});
inline Step Answer(int nButton, const Place& place = {}) {
    return TapIn(nButton, place);
}
///@}

/// Types a text, or presses keys (VK_...), for what has the focus then.
///@{
Step Type(const std::wstring& text, const Place& place = {});
Step Press(std::initializer_list<WORD> keys, const Place& place = {});
///@}

/// Closes the input panel and waits until it has gone.
Step NoPanel(const Place& place = {});

/// Closes a dialog as its X does.
Step Close(CWnd& dialog, const Place& place = {});

} // namespace testkit
