/// @file
/// The keys of the soft input panel: what stands where.
#pragma once

#include <afx.h>

#include <vector>

namespace fieldkit::detail {

/// The tables of keys that the panel can show.
enum class PanelPage { Letters, Capitals, Digits, Hiragana, Katakana };

/// What a key stands for: the character that it types, or one of these.
enum KeyCode : wchar_t {
    KEY_BACKSPACE = L'\b',
    KEY_NEXT = L'\t', ///< To the next field.
    KEY_ENTER = L'\r',
    KEY_SPACE = L' ',
    KEY_SHIFT = L'\x0E',
    KEY_SCRIPT = L'\x0F', ///< Hiragana or katakana.
    KEY_MODE = L'\x10',   ///< From letters to kana, from kana and digits to letters.
    KEY_VOICED = L'゛',   ///< Changes the character before the caret, as the next two.
    KEY_SEMI_VOICED = L'゜',
    KEY_SMALL = L'小',
};

struct PanelKey {
    wchar_t code;
    RECT place; ///< In the panel.
};

/// The keys of a page. They cover the panel without gaps, whatever its size.
std::vector<PanelKey> LayOutKeys(PanelPage page, SIZE panel);

/// Index of the key at a point of the panel, -1 if the point lies outside.
int KeyAt(const std::vector<PanelKey>& keys, POINT point);

} // namespace fieldkit::detail
