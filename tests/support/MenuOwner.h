// A window whose menus close by themselves.
#pragma once

#include "support/TestApp.h"

namespace fx {

/// A window that closes its menus as soon as they open.
struct MenuOwner : Frame {
    using Frame::Frame;

    UINT m_nItem = 0; ///< The first one of the last menu.

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_INITMENUPOPUP) {
            m_nItem = ::GetMenuItemID(reinterpret_cast<HMENU>(wParam), 0);
            ::EndMenu();
        }
        return Frame::WindowProc(message, wParam, lParam);
    }
};

} // namespace fx
