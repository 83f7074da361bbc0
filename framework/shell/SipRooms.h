// Which dialogs of a thread make room for the soft input panel, and when.
#pragma once

#include "SipRoom.h"

namespace fieldkit::detail {

/// Hangs in the default processing of windows, so that an application's own handlers come
/// first. All moves are made when the thread has nothing else to do and the pen is up: a button
/// that moves away under the pen would not be clicked.
class CSipRooms {
public:
    /// @return TRUE if the message has been handled.
    static BOOL OnMessage(CWnd* pWnd, UINT message, WPARAM wParam, LPARAM lParam);

private:
    /// Null until a dialog of the thread has had to make room.
    static CSipRooms* OfThread();
    static void Add(HWND hWnd);
    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD);
    static LRESULT CALLBACK FocusHook(int nCode, WPARAM wParam, LPARAM lParam);

    void Remove(HWND hWnd);
    void FollowLater();
    void Follow();
    void WatchFocus(bool bWatch);

    std::vector<CSipRoom> m_rooms;
    UINT_PTR m_nTimer = 0;
    HHOOK m_hFocusHook = nullptr;
};

} // namespace fieldkit::detail
