/// @file
/// What a user could not read or reach in an open dialog: to be asked of every dialog of a program,
/// on every screen that it is meant for, and in every language.
///
///     WhileOpen(dlg, [&] { EXPECT_EQ("", LayoutFaults(dlg) + PanelFaults(dlg)); });
#pragma once

#include "testkit/Window.h"

#include <string>

namespace testkit {

/// Looks for controls that lie off the screen, out of their dialog's reach or under each other, for
/// texts that are cut off, fields that are lower than a line, and numbers that a list shortens. What a
/// scroll bar brings into view is not out of reach. The window must be of this thread; it is given
/// time to come to rest.
/// @return a line for each fault, with class, number, text and place of the control; nothing for a
///   window that is as it should be
std::string LayoutFaults(HWND hWnd);

/// Gives each entry field of a window the focus and the input panel, one after the other, and closes
/// the panel. The window must be of this thread.
/// @return a line for each field that the panel covers, and one if the window stands below its edge
///   although it would have room above
std::string PanelFaults(HWND hWnd);

/// Whether a label's or button's text has room in it; true for all other controls, and for a button
/// that is as small as an icon. The window must be of this thread.
bool TextFits(HWND hControl);

} // namespace testkit
