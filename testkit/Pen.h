/// @file
/// Pen and keys as real input: the system gets it as from the devices, and it goes where that of
/// a user would go. Needs nothing of the framework. Points are pixels of the screen.
#pragma once

#include "testkit/Failure.h"
#include "testkit/Window.h"

#include <initializer_list>

namespace testkit {

/// The pen, which the system takes for the left mouse button.
namespace pen {

/// Moves, presses and lifts the pen.
///@{
void Move(CPoint point);
void Down(CPoint point);
void Up(CPoint point);
///@}

/// A press and a lift at one place.
void Tap(CPoint point);
/// A tap into the middle of a window, which may be of another process. It fails if the window is
/// hidden, off the screen or covered there by another one, as a user could not tap on it either.
void Tap(HWND hWnd, const Place& place = {});

/// Presses at one point and lifts at the other, in steps between.
void Drag(CPoint from, CPoint to, int nSteps = 4);

} // namespace pen

/// Whether a user could tap the middle of a window now, and something would happen: it is visible,
/// enabled, on the screen and not covered there.
bool CanBeTapped(HWND hWnd);

/// Presses keys one after another, for the window that has the focus.
/// @param keys VK_... codes; letters and digits are their own
void TypeKeys(std::initializer_list<WORD> keys);

/// Types a text: by the keys of the keyboard where it has the characters, else as an input method
/// does.
void TypeText(const std::wstring& text);

} // namespace testkit
