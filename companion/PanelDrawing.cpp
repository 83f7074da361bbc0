#include "companion/detail/PanelDrawing.h"

#include "resources/ResourceIds.h"

#include <algorithm>
#include <iterator>

using namespace fieldkit::detail;

namespace {

constexpr wchar_t kFontName[] = L"MS UI Gothic";

// Outdoors only contrast counts: black on white, and the reverse for what is pressed.
constexpr COLORREF kGround = RGB(80, 88, 96);
constexpr COLORREF kCharacterKey = RGB(255, 255, 255);
constexpr COLORREF kFunctionKey = RGB(200, 210, 220);
constexpr COLORREF kPressedKey = RGB(0, 64, 144);
constexpr COLORREF kShiftedKey = RGB(255, 208, 96);

void MakeFont(CFont& font, LONG height) {
    LOGFONTW description{};
    description.lfHeight = -height;
    description.lfCharSet = DEFAULT_CHARSET;
    std::copy(std::begin(kFontName), std::end(kFontName), description.lfFaceName);
    font.CreateFontIndirect(&description);
}

/// The number of a key's word; 0 if its character is its label.
UINT WordOf(wchar_t code, PanelPage page) {
    const bool letters = page == PanelPage::Letters || page == PanelPage::Capitals;
    switch (code) {
    case KEY_BACKSPACE:
        return IDS_FK_PANEL_BACKSPACE;
    case KEY_NEXT:
        return IDS_FK_PANEL_NEXT;
    case KEY_ENTER:
        return IDS_FK_PANEL_ENTER;
    case KEY_SPACE:
        return IDS_FK_PANEL_SPACE;
    case KEY_SHIFT:
        return IDS_FK_PANEL_SHIFT;
    case KEY_SCRIPT:
        return page == PanelPage::Katakana ? IDS_FK_PANEL_KANA : IDS_FK_PANEL_KATAKANA;
    case KEY_MODE:
        return letters ? IDS_FK_PANEL_KANA : IDS_FK_PANEL_LETTERS;
    default:
        return 0;
    }
}

CString LabelOf(wchar_t code, PanelPage page) {
    const UINT word = WordOf(code, page);
    if (word == 0)
        return CString(code);
    CString label;
    label.LoadString(word);
    return label;
}

bool IsWord(wchar_t code) {
    return code <= KEY_SPACE;
}

/// The sound marks are small and stand in the upper left corner of their square.
bool IsSoundMark(wchar_t code) {
    return code == KEY_VOICED || code == KEY_SEMI_VOICED;
}

bool IsFunction(wchar_t code) {
    return (IsWord(code) && code != KEY_SPACE) || IsSoundMark(code) || code == KEY_SMALL;
}

COLORREF ColourOf(wchar_t code, bool pressed, const PanelLook& look) {
    if (pressed || (code == KEY_SHIFT && look.locked))
        return kPressedKey;
    if (code == KEY_SHIFT && look.shifted)
        return kShiftedKey;
    return IsFunction(code) ? kFunctionKey : kCharacterKey;
}

void DrawKey(CDC& dc, const PanelKey& key, bool pressed, const PanelLook& look) {
    const COLORREF colour = ColourOf(key.code, pressed, look);
    CRect cap = key.place;
    ++cap.left; // the ground shows between the keys
    ++cap.top;
    dc.FillSolidRect(cap, colour);
    dc.SetTextColor(colour == kPressedKey ? RGB(255, 255, 255) : RGB(0, 0, 0));
    const CString label = LabelOf(key.code, look.page);
    if (IsSoundMark(key.code))
        cap.OffsetRect(cap.Width() / 3, cap.Height() / 2);
    dc.DrawText(label, cap, DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_NOCLIP);
}

} // namespace

void fieldkit::detail::DrawPanel(CDC& target, CSize panel, const std::vector<PanelKey>& keys,
                                 const PanelLook& look) {
    // Objects that are selected must outlive the device context.
    CFont characters, words, marks;
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&target, panel.cx, panel.cy);
    // Drawn apart and shown at once: a panel that flickers tires the eyes.
    CDC dc;
    dc.CreateCompatibleDC(&target);
    dc.SelectObject(&bitmap);
    dc.FillSolidRect(CRect(CPoint(), panel), kGround);
    dc.SetBkMode(TRANSPARENT);
    // Sizes follow the first key, than which none is smaller but all words are wider.
    const CRect first = keys.front().place;
    MakeFont(characters, std::min(first.Height() * 3 / 4, first.Width()));
    MakeFont(words, std::min(first.Height() * 3 / 5, first.Width() / 2));
    MakeFont(marks, first.Height() * 3 / 2);
    int at = 0;
    for (const PanelKey& key : keys) {
        dc.SelectObject(IsWord(key.code) ? &words : IsSoundMark(key.code) ? &marks : &characters);
        DrawKey(dc, key, at++ == look.pressed, look);
    }
    target.BitBlt(0, 0, panel.cx, panel.cy, &dc, 0, 0, SRCCOPY);
}
