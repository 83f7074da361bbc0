#include "companion/detail/PanelKeys.h"

#include "companion/detail/Kana.h"

#include <algorithm>
#include <iterator>
#include <span>
#include <string_view>

using namespace fieldkit::detail;

namespace {

/// A row of keys, with their relative widths; all alike without widths.
struct Row {
    std::wstring_view codes;
    std::string_view widths = {};
};

// \x0E, \x0F and \x10 are KEY_SHIFT, KEY_SCRIPT and KEY_MODE.
// At 240 pixels a tenth of the width is 24 pixels, which a pen hits. Of 40 parts one is 6 pixels.
constexpr Row kLetters[] = {
    {L"1234567890"},
    {L"qwertyuiop"},
    {L"asdfghjkl-"},
    {L"\x0Ezxcvbnm\b", "644444446"},
    {L"\x10\t/. +\r", "5544949"},
};

constexpr Row kCapitals[] = {
    {L"!\"#$%&'()@"},
    {L"QWERTYUIOP"},
    {L"ASDFGHJKL_"},
    {L"\x0EZXCVBNM\b", "644444446"},
    {L"\x10\t:, =\r", "5544949"},
};

constexpr Row kDigits[] = {
    {L"789\b"},
    {L"456\t"},
    {L"123-"},
    {L"0.\x10\r", "3324"},
};

// The gaps of the table of kana take the marks.
constexpr Row kHiragana[] = {
    {L"あかさたなはまやらわ"}, {L"いきしちにひみ゛りを"}, {L"うくすつぬふむゆるん"},
    {L"えけせてねへめ゜れー"}, {L"おこそとのほもよろ小"}, {L"\x10\x0F\t、。 \b\r", "55544656"},
};

std::span<const Row> RowsOf(PanelPage page) {
    switch (page) {
    case PanelPage::Letters:
        return kLetters;
    case PanelPage::Capitals:
        return kCapitals;
    case PanelPage::Digits:
        return kDigits;
    default:
        return kHiragana;
    }
}

int WidthAt(const Row& row, size_t at) {
    return row.widths.empty() ? 1 : row.widths[at] - '0';
}

void LayOutRow(const Row& row, LONG top, LONG bottom, LONG width, std::vector<PanelKey>& keys) {
    int whole = 0;
    for (size_t at = 0; at < row.codes.size(); ++at)
        whole += WidthAt(row, at);
    int before = 0;
    for (size_t at = 0; at < row.codes.size(); ++at) {
        const int after = before + WidthAt(row, at);
        // NOLINTNEXTLINE(clang-analyzer-core.DivideZero): every key has a width
        keys.push_back({row.codes[at], {width * before / whole, top, width * after / whole, bottom}});
        before = after;
    }
}

} // namespace

std::vector<PanelKey> fieldkit::detail::LayOutKeys(PanelPage page, SIZE panel) {
    const std::span<const Row> rows = RowsOf(page);
    const auto count = static_cast<LONG>(rows.size());
    std::vector<PanelKey> keys;
    for (LONG at = 0; at < count; ++at)
        LayOutRow(rows[static_cast<size_t>(at)], panel.cy * at / count, panel.cy * (at + 1) / count, panel.cx,
                  keys);
    if (page == PanelPage::Katakana)
        for (PanelKey& key : keys)
            key.code = ToKatakana(key.code);
    return keys;
}

int fieldkit::detail::KeyAt(const std::vector<PanelKey>& keys, POINT point) {
    const auto found = std::find_if(keys.begin(), keys.end(),
                                    [point](const PanelKey& key) { return ::PtInRect(&key.place, point); });
    return found == keys.end() ? -1 : static_cast<int>(std::distance(keys.begin(), found));
}
