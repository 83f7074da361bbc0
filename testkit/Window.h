/// @file
/// What a test asks a window, of its own process or of another one. Needs nothing of the framework.
#pragma once

#include "atltypes.h"

#include <string>

namespace testkit {

/// Text for messages, which are 8-bit.
std::string Utf8(const wchar_t* psz);

/// The text of a window or control; empty if its program does not answer within five seconds.
std::wstring TextOf(HWND hWnd);

/// The name of a window's class; empty for no window.
std::wstring ClassOf(HWND hWnd);

/// What a message of a failure says of a window: its class, its number and its text.
std::string NameOf(HWND hWnd);

/// Where a window is on the screen; empty for none.
CRect RectOf(HWND hWnd);

/// The middle of a window on the screen, where a finger aims.
CPoint MiddleOf(HWND hWnd);

/// Whether the window has the focus of its thread, whichever process that belongs to.
bool HasFocus(HWND hWnd);

/// The whole screen, in pixels.
CRect Screen();

/// The screen without the shell's bars.
CRect WorkArea();

} // namespace testkit
