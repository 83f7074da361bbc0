// Which dialogs of a thread have to make do with the room that there is, and when.
#pragma once

#include "PenScroll.h"
#include "Room.h"

namespace fieldkit::detail {

/// Hangs in the default processing of windows, so that an application's own handlers come
/// first. What follows the panel and the focus is done when the thread has nothing else to do and
/// the pen is up: a button that moves away under the pen would not be clicked.
class CRooms {
public:
    /// @return TRUE if the message has been handled.
    static BOOL OnMessage(CWnd* pWnd, UINT message, WPARAM wParam, LPARAM lParam);
    /// Ties a control to the edges of its parent.
    static void Anchor(HWND hControl, const AFX_ANCHOR& anchor);
    /// Undoes all shifts and what the anchored controls have been given, in a window and its pages.
    static void Settle(HWND hWnd);
    /// A popup comes into the work area as far as it must; a dialog that is higher than that is cut, and
    /// scrolls.
    static void FitPopup(CWnd* pWnd);
    /// How large a popup was before it was cut; empty if it was not.
    static CSize WholeSize(HWND hWnd);
    /// The font of a dialog's controls, which not every system's dialogs tell after SetResolution.
    static HFONT FontOf(HWND hDialog);
    /// After Settle: all sizes have another scale.
    /// @param pFont made for the dialog
    static void SetResolution(HWND hDialog, int nOld, int nNew, std::unique_ptr<CFont> pFont);

private:
    static CRooms& OfThread();
    static void OnSize(HWND hWnd);
    static BOOL OnScroll(HWND hWnd, UINT nCode, HWND hBar);
    static void OnPen(HWND hWnd, UINT message, int nY);
    static void CALLBACK OnPenTimer(HWND, UINT, UINT_PTR, DWORD);
    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD);
    static LRESULT CALLBACK FocusHook(int nCode, WPARAM wParam, LPARAM lParam);

    CRoom* Find(HWND hWnd);
    CRoom& Add(HWND hWnd);
    void CutOff(HWND hWnd);
    void Remove(HWND hWnd);
    void FollowLater();
    void Follow();
    void WatchFocus(bool bWatch);

    std::vector<CRoom> m_rooms;
    UINT_PTR m_nTimer = 0;
    HHOOK m_hFocusHook = nullptr;
    CPenScroll m_pen;
};

} // namespace fieldkit::detail
