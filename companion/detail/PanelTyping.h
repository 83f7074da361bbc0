/// @file
/// Typing for the soft input panel: real input, for whoever has the focus.
#pragma once

#include "companion/detail/Kana.h"

#include <afx.h>

namespace fieldkit::detail {

/// Types a character, the one that the user sees on the key, whatever the keyboard's layout.
void TypeCharacter(wchar_t ch);

/// Presses and releases a key.
/// @param key  a virtual-key code
void TypeKey(WORD key);

/// Gives the kana before the caret of the focused entry field a mark, or takes it away. Nothing
/// happens if there is none, or none that takes the mark.
void TypeMark(KanaMark mark);

} // namespace fieldkit::detail
