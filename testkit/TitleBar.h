/// @file
/// The device's title bar, whose buttons are no windows. Needs nothing of the framework; the
/// window may be of another process.
#pragma once

#include "testkit/Failure.h"
#include "testkit/Window.h"

namespace testkit {

/// The middle of the title bar's OK or X button, or of that with a code of WM_NCHITTEST; on the
/// screen, (-1, -1) if it has none.
///@{
CPoint FindOkButton(HWND hWnd);
CPoint FindCloseButton(HWND hWnd);
CPoint FindTitleButton(HWND hWnd, LRESULT lButton);
///@}

/// Taps the title bar's OK or X button; fails if it has none.
///@{
void TapOk(HWND hWnd, const Place& place = {});
void TapClose(HWND hWnd, const Place& place = {});
///@}

} // namespace testkit
