/// @file
/// The soft input panel as its user has it: a window on the screen. A thread that shows the panel
/// has one of its own.
#pragma once

#include "testkit/Failure.h"
#include "testkit/Window.h"

namespace testkit::panel {

/// The panel of a thread, also of another process; null if it has none.
HWND OfThread(DWORD nThread = ::GetCurrentThreadId());

/// Of this thread's panel: whether it is on the screen, its mode's name, its place on the screen.
///@{
bool IsVisible();
std::wstring Title();
CRect Place();
///@}

/// Handles messages until the panel is on the screen or has gone, which it does some time after
/// the focus; fails if the time is over before.
///@{
void ExpectShown(const testkit::Place& place = {});
void ExpectHidden(const testkit::Place& place = {});
///@}

/// Closes the panel and waits until it has gone.
void Close(const testkit::Place& place = {});

} // namespace testkit::panel
