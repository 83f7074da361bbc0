#include "companion/detail/PanelTyping.h"

#include <iterator>
#include <string>

using namespace fieldkit::detail;

namespace {

void Send(WORD key, WORD scan, DWORD flags) {
    INPUT press{};
    press.type = INPUT_KEYBOARD;
    press.ki.wVk = key;
    press.ki.wScan = scan;
    press.ki.dwFlags = flags;
    INPUT lift = press;
    lift.ki.dwFlags |= KEYEVENTF_KEYUP;
    INPUT inputs[] = {press, lift};
    ::SendInput(std::size(inputs), inputs, sizeof press);
}

/// 0 if there is none, if text is selected, or if the window is no entry field: any other answers
/// the question for the selection with nothing.
wchar_t CharacterBeforeCaret(HWND field) {
    DWORD first = 0;
    DWORD end = 0;
    ::SendMessageW(field, EM_GETSEL, reinterpret_cast<WPARAM>(&first), reinterpret_cast<LPARAM>(&end));
    if (end == 0 || first != end)
        return 0;
    std::wstring text(end, L'\0');
    ::SendMessageW(field, WM_GETTEXT, end + 1, reinterpret_cast<LPARAM>(text.data()));
    return text.back();
}

} // namespace

void fieldkit::detail::TypeCharacter(wchar_t ch) {
    Send(0, static_cast<WORD>(ch), KEYEVENTF_UNICODE);
}

void fieldkit::detail::TypeKey(WORD key) {
    Send(key, static_cast<WORD>(::MapVirtualKeyW(key, MAPVK_VK_TO_VSC)), 0);
}

void fieldkit::detail::TypeMark(KanaMark mark) {
    const HWND field = ::GetFocus();
    const wchar_t kana = field != nullptr ? CharacterBeforeCaret(field) : L'\0';
    const wchar_t marked = WithMark(kana, mark);
    if (marked == kana)
        return;
    TypeKey(VK_BACK);
    TypeCharacter(marked);
}
