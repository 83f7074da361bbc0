#include "testkit/Window.h"

namespace testkit {

namespace {

constexpr UINT kPatience = 5000;

DWORD_PTR Ask(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) {
    DWORD_PTR result = 0;
    ::SendMessageTimeout(hWnd, message, wParam, lParam, SMTO_ABORTIFHUNG, kPatience, &result);
    return result;
}

} // namespace

std::string Utf8(const wchar_t* psz) {
    const int nSize = ::WideCharToMultiByte(CP_UTF8, 0, psz, -1, nullptr, 0, nullptr, nullptr);
    std::string text(static_cast<size_t>(nSize), '\0');
    ::WideCharToMultiByte(CP_UTF8, 0, psz, -1, text.data(), nSize, nullptr, nullptr);
    text.resize(text.empty() ? 0 : text.size() - 1); // the zero at the end
    return text;
}

std::wstring TextOf(HWND hWnd) {
    std::wstring text(Ask(hWnd, WM_GETTEXTLENGTH, 0, 0) + 1, L'\0');
    // It may have become shorter; what it says of its length is an upper bound.
    text.resize(Ask(hWnd, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data())));
    return text;
}

std::wstring ClassOf(HWND hWnd) {
    wchar_t szClass[64] = L"";
    ::GetClassName(hWnd, szClass, 64);
    return szClass;
}

std::string NameOf(HWND hWnd) {
    std::string name = Utf8(ClassOf(hWnd).c_str());
    if (name.empty())
        return "no window";
    if (const int nID = ::GetDlgCtrlID(hWnd); nID != 0)
        name += ' ' + std::to_string(nID);
    return name + " \"" + Utf8(TextOf(hWnd).c_str()) + '"';
}

CRect RectOf(HWND hWnd) {
    CRect rect(0, 0, 0, 0);
    ::GetWindowRect(hWnd, &rect);
    return rect;
}

CPoint MiddleOf(HWND hWnd) {
    return RectOf(hWnd).CenterPoint();
}

bool HasFocus(HWND hWnd) {
    GUITHREADINFO info = {};
    info.cbSize = sizeof info;
    return hWnd != nullptr && ::GetGUIThreadInfo(::GetWindowThreadProcessId(hWnd, nullptr), &info) &&
           info.hwndFocus == hWnd;
}

CRect Screen() {
    return {0, 0, ::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN)};
}

CRect WorkArea() {
    CRect rect(0, 0, 0, 0);
    ::SystemParametersInfo(SPI_GETWORKAREA, 0, &rect, 0);
    return rect;
}

} // namespace testkit
