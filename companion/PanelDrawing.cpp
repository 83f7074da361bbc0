#include "PanelDrawing.h"

#include <algorithm>
#include <memory>
#include <string>
#include <type_traits>

namespace {

constexpr wchar_t FONT_NAME[] = L"MS UI Gothic";

// Outdoors only contrast counts: black on white, and the reverse for what is pressed.
constexpr COLORREF GROUND = RGB(80, 88, 96);
constexpr COLORREF CHARACTER_KEY = RGB(255, 255, 255);
constexpr COLORREF FUNCTION_KEY = RGB(200, 210, 220);
constexpr COLORREF PRESSED_KEY = RGB(0, 64, 144);
constexpr COLORREF SHIFTED_KEY = RGB(255, 208, 96);

struct DeleteObject {
    using pointer = HGDIOBJ;
    void operator()(HGDIOBJ object) const { ::DeleteObject(object); }
};
using GdiObject = std::unique_ptr<std::remove_pointer_t<HGDIOBJ>, DeleteObject>;

GdiObject MakeFont(LONG height) {
    return GdiObject(::CreateFontW(-height, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET,
                                   OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY,
                                   DEFAULT_PITCH | FF_DONTCARE, FONT_NAME));
}

std::wstring LabelOf(wchar_t code, PanelPage page) {
    const bool kana = page == PanelPage::Hiragana || page == PanelPage::Katakana;
    switch (code) {
    case KEY_BACKSPACE:
        return L"BS";
    case KEY_NEXT:
        return L"次へ";
    case KEY_ENTER:
        return L"Enter";
    case KEY_SPACE:
        return L"空白";
    case KEY_SHIFT:
        return L"Shift";
    case KEY_SCRIPT:
        return page == PanelPage::Katakana ? L"かな" : L"カナ";
    case KEY_MODE:
        return kana ? L"ABC" : L"かな";
    default:
        return std::wstring(1, code);
    }
}

bool IsWord(wchar_t code) {
    return code <= KEY_SPACE;
}

/// The sound marks are small and stand in the upper left corner of their square.
bool IsSoundMark(wchar_t code) {
    return code == KEY_VOICED || code == KEY_SEMI_VOICED;
}

COLORREF ColourOf(const PanelKey& key, bool pressed, const PanelLook& look) {
    if (pressed || (key.code == KEY_SHIFT && look.locked))
        return PRESSED_KEY;
    if (key.code == KEY_SHIFT && look.shifted)
        return SHIFTED_KEY;
    return IsFunctionKey(key.code) && key.code != KEY_SPACE ? FUNCTION_KEY : CHARACTER_KEY;
}

void DrawKey(HDC dc, const PanelKey& key, bool pressed, const PanelLook& look) {
    const COLORREF colour = ColourOf(key, pressed, look);
    RECT cap = key.place;
    ++cap.left; // the ground shows between the keys
    ++cap.top;
    const GdiObject brush(::CreateSolidBrush(colour));
    ::FillRect(dc, &cap, static_cast<HBRUSH>(brush.get()));
    ::SetTextColor(dc, colour == PRESSED_KEY ? RGB(255, 255, 255) : RGB(0, 0, 0));
    const std::wstring label = LabelOf(key.code, look.page);
    if (IsSoundMark(key.code))
        ::OffsetRect(&cap, (cap.right - cap.left) / 3, (cap.bottom - cap.top) / 2);
    ::DrawTextW(dc, label.c_str(), static_cast<int>(label.size()), &cap,
                DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_NOCLIP);
}

} // namespace

void DrawPanel(HDC dc, SIZE panel, const std::vector<PanelKey>& keys, const PanelLook& look) {
    const RECT whole = {0, 0, panel.cx, panel.cy};
    const GdiObject ground(::CreateSolidBrush(GROUND));
    ::FillRect(dc, &whole, static_cast<HBRUSH>(ground.get()));
    ::SetBkMode(dc, TRANSPARENT);
    // Sizes follow the smallest key of the page; two kana of a word fit into a key of 30 pixels.
    const RECT& first = keys.front().place;
    const LONG height = first.bottom - first.top;
    const GdiObject characters = MakeFont(std::min(height * 3 / 4, first.right - first.left));
    const GdiObject words = MakeFont(std::min(height * 3 / 5, panel.cx / 20));
    const GdiObject marks = MakeFont(height * 3 / 2);
    const HGDIOBJ old = ::SelectObject(dc, characters.get());
    for (size_t at = 0; at < keys.size(); ++at) {
        const wchar_t code = keys[at].code;
        ::SelectObject(dc, IsWord(code) ? words.get() : IsSoundMark(code) ? marks.get() : characters.get());
        DrawKey(dc, keys[at], static_cast<int>(at) == look.pressed, look);
    }
    ::SelectObject(dc, old);
}
