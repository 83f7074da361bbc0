#include "testkit/TitleBar.h"

#include "testkit/Pen.h"

namespace testkit {

namespace {

// What the bar answers for its buttons, of what the system never answers there itself.
constexpr LRESULT kOkButton = HTOBJECT, kCloseButton = HTHELP;

void TapFound(HWND hWnd, CPoint button, const char* pszName, const Place& place) {
    if (button.x < 0)
        Fail(NameOf(hWnd) + " has no " + pszName + " button in its title bar", place);
    else
        pen::Tap(button);
}

} // namespace

// Looked for from the right in the middle of the bar's height.
CPoint FindTitleButton(HWND hWnd, LRESULT lButton) {
    const CRect rect = RectOf(hWnd);
    CPoint client(0, 0);
    ::ClientToScreen(hWnd, &client);
    const int y = (rect.top + client.y) / 2;
    const auto isButton = [&](int x) {
        return ::SendMessage(hWnd, WM_NCHITTEST, 0, MAKELPARAM(x, y)) == lButton;
    };
    int right = rect.right - 1;
    while (right > rect.left && !isButton(right))
        --right;
    int left = right;
    while (left > rect.left && isButton(left - 1))
        --left;
    return right > rect.left ? CPoint((left + right) / 2, y) : CPoint(-1, -1);
}

CPoint FindOkButton(HWND hWnd) {
    return FindTitleButton(hWnd, kOkButton);
}
CPoint FindCloseButton(HWND hWnd) {
    return FindTitleButton(hWnd, kCloseButton);
}

void TapOk(HWND hWnd, const Place& place) {
    TapFound(hWnd, FindOkButton(hWnd), "OK", place);
}
void TapClose(HWND hWnd, const Place& place) {
    TapFound(hWnd, FindCloseButton(hWnd), "X", place);
}

} // namespace testkit
