/// @file
/// Kana: the two scripts and the marks.
#pragma once

namespace fieldkit::detail {

/// What is added to a kana.
enum class KanaMark {
    Voiced,     ///< か to が
    SemiVoiced, ///< は to ぱ
    Small,      ///< つ to っ
};

/// The katakana for a hiragana; any other character as it is.
wchar_t ToKatakana(wchar_t ch);

/// A kana of either script with a mark in place of the one that it has, if any; without mark if
/// it has this one already.
/// @return the character itself if it does not take the mark
wchar_t WithMark(wchar_t kana, KanaMark mark);

} // namespace fieldkit::detail
