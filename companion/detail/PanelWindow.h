/// @file
/// The soft input panel's window.
#pragma once

#include "companion/detail/PanelKeys.h"
#include "companion/detail/SystemKeyboard.h"

namespace fieldkit::detail {

/// The soft input panel of a thread. Neither focus nor activation is ever with it. If the user has
/// chosen the system's keyboard, it shows that one instead of itself.
class PanelWindow {
public:
    static PanelWindow& OfThisThread();

    /// Shows the panel, or changes its mode.
    /// @param mode  0 letters, 1 digits, 2 kana; any other value acts as 0
    void Show(int mode);
    /// Shows the panel in the mode in which it was last.
    void ShowAgain() { Show(m_mode); }
    /// Hides the panel, unless it is shown again before the thread's next pause: on the way from
    /// field to field it stays.
    void Close();

    /// The system's keyboard is from the time that it is on the screen.
    bool IsShown() const { return m_shown && (!m_system || !::IsRectEmpty(&m_systemPlace)); }
    /// The place on the screen.
    RECT Place() const;

private:
    enum class Shift { Off, Once, Locked };

    static LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void OnTimer(UINT_PTR timer);
    void OnPaint();

    bool Create();
    void PutInPlace();
    void SetMode(int mode);
    void Watch();
    bool IsBelowAnother() const;
    void StayOnTop();
    void Hide();
    void Announce();
    void Tell(HWND window);

    PanelPage Page() const;
    std::vector<PanelKey> Keys() const;
    void OnPress(POINT point);
    void OnMove(POINT point);
    void OnLift();
    void Repeat();
    void Release();
    void SetPressed(int key);
    void Act(wchar_t code);
    void SetShift(Shift shift);

    HWND m_window = nullptr;
    int m_mode = -1;       ///< None so far.
    bool m_shown = false;  ///< Wanted by the application; the window follows.
    bool m_system = false; ///< The system's keyboard is shown in its stead, ...
    SystemKeyboard m_keyboard;
    RECT m_systemPlace = {}; ///< ... and where.
    HWND m_field = nullptr;  ///< What has the focus while the panel is shown.
    HWND m_below = nullptr;  ///< The focused window over which the panel has been put.
    int m_raises = 0;        ///< How often it is still to be put there.
    HWND m_told = nullptr;   ///< The window that knows that the panel is shown, ...
    RECT m_toldPlace = {};   ///< ... and where.
    Shift m_shift = Shift::Off;
    bool m_katakana = false;
    int m_pressed = -1;       ///< Index of the key under the pen.
    bool m_repeating = false; ///< The key has acted already, and does again while it is held.
};

} // namespace fieldkit::detail
