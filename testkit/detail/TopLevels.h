// The windows that a test may have to end.
#pragma once

#include <windows.h>

#include <vector>

namespace testkit::detail {

inline BOOL CALLBACK AddVisible(HWND hWnd, LPARAM lWindows) {
    if (::IsWindowVisible(hWnd))
        reinterpret_cast<std::vector<HWND>*>(lWindows)->push_back(hWnd);
    return TRUE;
}

/// The visible top-level windows of this thread, from front to back.
inline std::vector<HWND> TopLevels() {
    std::vector<HWND> windows;
    ::EnumThreadWindows(::GetCurrentThreadId(), AddVisible, reinterpret_cast<LPARAM>(&windows));
    return windows;
}

/// Ends the loops that the system has while something is dragged or a menu is open.
inline void EndInput() {
    ::ReleaseCapture();
    ::EndMenu();
    // A window is moved in a loop that only a lift or a key ends, even when it is destroyed.
    ::PostThreadMessage(::GetCurrentThreadId(), WM_LBUTTONUP, 0, 0);
}

} // namespace testkit::detail
