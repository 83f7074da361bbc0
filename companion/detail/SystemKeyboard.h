/// @file
/// The touch keyboard that Windows brings itself.
#pragma once

#include <afxwin.h>

namespace fieldkit::detail {

struct IInputPane;

/// Comes and goes in its own time, and the user can close it: its place tells. Belongs to a thread.
class SystemKeyboard {
public:
    /// Whether this system has one.
    static bool IsThere();

    /// @return false if it cannot be had
    bool Show();
    void Hide();
    /// On the screen; empty while it is not shown.
    RECT Place() const;

private:
    void Open();
    void Close();

    bool m_open = false;          ///< From Show to Hide.
    bool m_initialized = false;   ///< The system's objects, for this thread, by this one.
    IInputPane* m_pane = nullptr; ///< Tells the keyboard's place, on systems that have it.
};

} // namespace fieldkit::detail
