// The pen on the keys of the soft input panel.
#include "companion/detail/PanelWindow.h"

#include "companion/detail/PanelTyping.h"

using namespace fieldkit::detail;

namespace {

constexpr UINT_PTR kRepeatTimer = 3;
constexpr UINT kRepeatDelay = 400;
constexpr UINT kRepeatInterval = 60;

} // namespace

PanelPage PanelWindow::Page() const {
    switch (m_mode) {
    case 1:
        return PanelPage::Digits;
    case 2:
        return m_katakana ? PanelPage::Katakana : PanelPage::Hiragana;
    default:
        return m_shift == Shift::Off ? PanelPage::Letters : PanelPage::Capitals;
    }
}

std::vector<PanelKey> PanelWindow::Keys() const {
    RECT client{};
    ::GetClientRect(m_window, &client);
    return LayOutKeys(Page(), {client.right, client.bottom});
}

// --- Pressing --------------------------------------------------------------------------------

// A key acts when the pen is lifted, so that a pen that came down on its neighbour can slide
// over. Only the key that deletes acts at once, because it repeats.

void PanelWindow::OnPress(POINT point) {
    const std::vector<PanelKey> keys = Keys();
    const int key = KeyAt(keys, point);
    if (key < 0)
        return;
    ::SetCapture(m_window);
    SetPressed(key);
    if (keys[static_cast<size_t>(key)].code != KEY_BACKSPACE)
        return;
    m_repeating = true;
    Act(KEY_BACKSPACE);
    ::SetTimer(m_window, kRepeatTimer, kRepeatDelay, nullptr);
}

void PanelWindow::Repeat() {
    Act(KEY_BACKSPACE);
    ::SetTimer(m_window, kRepeatTimer, kRepeatInterval, nullptr);
}

void PanelWindow::OnMove(POINT point) {
    if (::GetCapture() != m_window)
        return;
    const std::vector<PanelKey> keys = Keys();
    const int key = KeyAt(keys, point);
    if (key == m_pressed)
        return;
    const bool repeats = m_repeating && key >= 0 && keys[static_cast<size_t>(key)].code == KEY_BACKSPACE;
    if (repeats)
        ::SetTimer(m_window, kRepeatTimer, kRepeatDelay, nullptr);
    else
        ::KillTimer(m_window, kRepeatTimer);
    SetPressed(m_repeating && !repeats ? -1 : key);
}

void PanelWindow::OnLift() {
    const bool acts = m_pressed >= 0 && !m_repeating;
    const wchar_t code = acts ? Keys()[static_cast<size_t>(m_pressed)].code : L'\0';
    Release();
    if (acts)
        Act(code);
}

void PanelWindow::Release() {
    ::KillTimer(m_window, kRepeatTimer);
    m_repeating = false;
    SetPressed(-1);
    if (::GetCapture() == m_window)
        ::ReleaseCapture();
}

void PanelWindow::SetPressed(int key) {
    if (key == m_pressed)
        return;
    m_pressed = key;
    ::InvalidateRect(m_window, nullptr, FALSE);
    ::UpdateWindow(m_window); // a tap is over before the queue is empty
}

// --- Acting ----------------------------------------------------------------------------------

void PanelWindow::Act(wchar_t code) {
    switch (code) {
    case KEY_BACKSPACE:
        return TypeKey(VK_BACK);
    case KEY_NEXT:
        return TypeKey(VK_TAB);
    case KEY_ENTER:
        return TypeKey(VK_RETURN);
    case KEY_VOICED:
        return TypeMark(KanaMark::Voiced);
    case KEY_SEMI_VOICED:
        return TypeMark(KanaMark::SemiVoiced);
    case KEY_SMALL:
        return TypeMark(KanaMark::Small);
    case KEY_SHIFT: // one capital, then all, then none
        return SetShift(m_shift == Shift::Off    ? Shift::Once
                        : m_shift == Shift::Once ? Shift::Locked
                                                 : Shift::Off);
    case KEY_SCRIPT:
        m_katakana = !m_katakana;
        ::InvalidateRect(m_window, nullptr, FALSE);
        return;
    case KEY_MODE:
        return SetMode(m_mode == 0 ? 2 : 0); // letters lead to kana, all else to letters
    default:
        TypeCharacter(code);
        if (m_shift == Shift::Once)
            SetShift(Shift::Off);
    }
}

void PanelWindow::SetShift(Shift shift) {
    if (shift == m_shift)
        return;
    m_shift = shift;
    ::InvalidateRect(m_window, nullptr, FALSE);
}
