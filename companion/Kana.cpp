#include "companion/detail/Kana.h"

#include <string_view>

using namespace fieldkit::detail;

namespace {

constexpr wchar_t kScriptDistance = L'ァ' - L'ぁ';

// Each kana is followed by itself with the mark. Those that exist in katakana only come last.
constexpr std::wstring_view kVoiced = L"かがきぎくぐけげこごさざしじすずせぜそぞただちぢつづてでとど"
                                      L"はばひびふぶへべほぼウヴ";
constexpr std::wstring_view kSemiVoiced = L"はぱひぴふぷへぺほぽ";
constexpr std::wstring_view kSmall = L"あぁいぃうぅえぇおぉつっやゃゆゅよょわゎカヵケヶ";

constexpr std::wstring_view PairsOf(KanaMark mark) {
    switch (mark) {
    case KanaMark::Voiced:
        return kVoiced;
    case KanaMark::SemiVoiced:
        return kSemiVoiced;
    default:
        return kSmall;
    }
}

/// The partner of a kana in its pair.
/// @param place  0 to look for the plain ones, 1 for those with the mark
/// @return 0 if there is none
wchar_t Partner(std::wstring_view pairs, size_t place, wchar_t kana) {
    for (size_t at = 0; at < pairs.size(); at += 2) {
        if (pairs[at + place] == kana)
            return pairs[at + 1 - place];
        if (ToKatakana(pairs[at + place]) == kana)
            return ToKatakana(pairs[at + 1 - place]);
    }
    return 0;
}

wchar_t WithoutMark(wchar_t kana) {
    for (const KanaMark mark : {KanaMark::Voiced, KanaMark::SemiVoiced, KanaMark::Small})
        if (const wchar_t plain = Partner(PairsOf(mark), 1, kana))
            return plain;
    return kana;
}

} // namespace

wchar_t fieldkit::detail::ToKatakana(wchar_t ch) {
    return ch >= L'ぁ' && ch <= L'ん' ? static_cast<wchar_t>(ch + kScriptDistance) : ch;
}

wchar_t fieldkit::detail::WithMark(wchar_t kana, KanaMark mark) {
    const wchar_t plain = WithoutMark(kana);
    const wchar_t marked = Partner(PairsOf(mark), 0, plain);
    if (marked == 0)
        return kana;
    return marked == kana ? plain : marked;
}
