#include "testkit/Pen.h"

namespace testkit {

namespace {

void SendPen(CPoint point, DWORD dwFlags) {
    // Absolute positions run from 0 to 65535 over the screen; the middle of the pixel is meant.
    const auto scaled = [](int n, int nScreen) { return (2 * n + 1) * 32768 / nScreen; };
    const CRect screen = Screen();
    INPUT input = {};
    input.type = INPUT_MOUSE;
    input.mi.dx = scaled(point.x, screen.Width());
    input.mi.dy = scaled(point.y, screen.Height());
    input.mi.dwFlags = MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_MOVE | dwFlags;
    ::SendInput(1, &input, sizeof input);
}

void SendKey(WORD wKey, DWORD dwFlags) {
    INPUT input = {};
    input.type = INPUT_KEYBOARD;
    input.ki.dwFlags = dwFlags;
    ((dwFlags & KEYEVENTF_UNICODE) != 0 ? input.ki.wScan : input.ki.wVk) = wKey;
    ::SendInput(1, &input, sizeof input);
}

void TypeKey(WORD wKey, DWORD dwFlags = 0) {
    SendKey(wKey, dwFlags);
    SendKey(wKey, dwFlags | KEYEVENTF_KEYUP);
}

/// Why nobody could tap there; empty if one can.
std::string Hindrance(HWND hWnd, CPoint point) {
    if (!::IsWindowVisible(hWnd))
        return "it is hidden";
    if (!Screen().PtInRect(point))
        return "it is off the screen";
    const HWND hThere = ::GetAncestor(::WindowFromPoint(point), GA_ROOT);
    if (hThere != ::GetAncestor(hWnd, GA_ROOT))
        return "it is covered by " + NameOf(hThere);
    return {};
}

} // namespace

bool CanBeTapped(HWND hWnd) {
    return ::IsWindowEnabled(hWnd) && Hindrance(hWnd, MiddleOf(hWnd)).empty();
}

void pen::Move(CPoint point) {
    SendPen(point, 0);
}
void pen::Down(CPoint point) {
    SendPen(point, MOUSEEVENTF_LEFTDOWN);
}
void pen::Up(CPoint point) {
    SendPen(point, MOUSEEVENTF_LEFTUP);
}

void pen::Tap(CPoint point) {
    Down(point);
    Up(point);
}

void pen::Tap(HWND hWnd, const Place& place) {
    const CPoint middle = MiddleOf(hWnd);
    const std::string hindrance = Hindrance(hWnd, middle);
    if (!hindrance.empty())
        Fail("no tap on " + NameOf(hWnd) + ": " + hindrance, place);
    else
        Tap(middle);
}

void pen::Drag(CPoint from, CPoint to, int nSteps) {
    Down(from);
    for (int i = 1; i <= nSteps; ++i)
        Move(CPoint(from.x + (to.x - from.x) * i / nSteps, from.y + (to.y - from.y) * i / nSteps));
    Up(to);
}

void TypeKeys(std::initializer_list<WORD> keys) {
    for (const WORD wKey : keys)
        TypeKey(wKey);
}

void TypeText(const std::wstring& text) {
    constexpr BYTE kShift = 1;
    for (const wchar_t ch : text) {
        const SHORT nKey = ::VkKeyScan(ch);
        const BYTE modifiers = HIBYTE(nKey); // all bits set if no key has the character
        if ((modifiers & ~kShift) != 0) {
            TypeKey(ch, KEYEVENTF_UNICODE);
            continue;
        }
        if (modifiers == kShift)
            SendKey(VK_SHIFT, 0);
        TypeKey(LOBYTE(nKey));
        if (modifiers == kShift)
            SendKey(VK_SHIFT, KEYEVENTF_KEYUP);
    }
}

} // namespace testkit
