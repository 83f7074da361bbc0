// Real pen and key input, as the system itself gets it from the devices.
#pragma once

#include "afxwin.h"

#include <initializer_list>

namespace pen {

/// @param point screen coordinates, also below
inline void Send(CPoint point, DWORD dwFlags) {
    // Absolute positions run from 0 to 65535 over the screen; the middle of the pixel is meant.
    const auto scaled = [](int n, int nScreen) { return (2 * n + 1) * 32768 / nScreen; };
    INPUT input = {};
    input.type = INPUT_MOUSE;
    input.mi.dx = scaled(point.x, ::GetSystemMetrics(SM_CXSCREEN));
    input.mi.dy = scaled(point.y, ::GetSystemMetrics(SM_CYSCREEN));
    input.mi.dwFlags = MOUSEEVENTF_ABSOLUTE | dwFlags;
    ::SendInput(1, &input, sizeof input);
}

inline void Move(CPoint point) {
    Send(point, MOUSEEVENTF_MOVE);
}
inline void Down(CPoint point) {
    Send(point, MOUSEEVENTF_MOVE | MOUSEEVENTF_LEFTDOWN);
}
inline void Up(CPoint point) {
    Send(point, MOUSEEVENTF_MOVE | MOUSEEVENTF_LEFTUP);
}

inline void Tap(CPoint point) {
    Down(point);
    Up(point);
}

/// The middle of a window, where a finger aims.
inline CPoint Middle(const CWnd& wnd) {
    CRect rect;
    wnd.GetWindowRect(rect);
    return rect.CenterPoint();
}

inline void Tap(const CWnd& wnd) {
    Tap(Middle(wnd));
}

inline void Drag(CPoint from, CPoint to, int nSteps = 4) {
    Down(from);
    for (int i = 1; i <= nSteps; ++i)
        Move(CPoint(from.x + (to.x - from.x) * i / nSteps, from.y + (to.y - from.y) * i / nSteps));
    Up(to);
}

/// @param keys VK_... codes; letters and digits are their own
inline void TypeKeys(std::initializer_list<WORD> keys) {
    for (const WORD key : keys) {
        INPUT inputs[2] = {};
        inputs[0].type = inputs[1].type = INPUT_KEYBOARD;
        inputs[0].ki.wVk = inputs[1].ki.wVk = key;
        inputs[1].ki.dwFlags = KEYEVENTF_KEYUP;
        ::SendInput(2, inputs, sizeof(INPUT));
    }
}

} // namespace pen
