// The soft input panel as its user has it: a window on the screen, and a pen.
#pragma once

#include "support/FrameworkEnvironment.h"
#include "support/PenInput.h"

#include "Tesuvo.h"

#include <functional>

namespace panel {

/// The panel of a thread, null if it has none.
inline HWND OfThread(DWORD nThread = ::GetCurrentThreadId()) {
    HWND hPanel = nullptr;
    const auto find = [](HWND hWnd, LPARAM lFound) -> BOOL {
        WCHAR szName[64];
        if (::GetClassName(hWnd, szName, 64) == 0 || std::wstring(szName) != L"TesuvoInputPanel")
            return TRUE;
        *reinterpret_cast<HWND*>(lFound) = hWnd;
        return FALSE;
    };
    ::EnumThreadWindows(nThread, find, reinterpret_cast<LPARAM>(&hPanel));
    return hPanel;
}

inline bool IsVisible() {
    return ::IsWindowVisible(OfThread());
}

/// Names its mode.
inline CString Title() {
    WCHAR szTitle[32] = L"";
    ::GetWindowText(OfThread(), szTitle, 32);
    return szTitle;
}

inline CRect Place() {
    CRect place;
    ::GetWindowRect(OfThread(), place);
    return place;
}

/// Handles messages until the condition holds. @return false if the time is over before.
inline bool PumpUntil(const std::function<bool()>& condition, DWORD nMilliseconds = 3000) {
    const ULONGLONG nDeadline = ::GetTickCount64() + nMilliseconds;
    do {
        fx::Pump();
        if (condition())
            return true;
        ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
    } while (::GetTickCount64() < nDeadline);
    return false;
}

inline void PumpFor(DWORD nMilliseconds) {
    PumpUntil([] { return false; }, nMilliseconds);
}

inline void ExpectShown() {
    EXPECT_TRUE(PumpUntil(IsVisible));
}
inline void ExpectHidden() {
    EXPECT_TRUE(PumpUntil([] { return !IsVisible(); }));
}

/// Closes the panel and waits until it has gone.
inline void Close() {
    TVCloseSIP();
    ExpectHidden();
}

/// An entry field that brings up the panel.
struct Field : CEdit {
    int m_nMode = 0;

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override {
        if (message == WM_COMMAND && HIWORD(wParam) == EN_SETFOCUS)
            TVShowSIP(m_nMode);
        if (message == WM_COMMAND && HIWORD(wParam) == EN_KILLFOCUS)
            TVCloseSIP();
        return CEdit::OnChildNotify(message, wParam, lParam, pResult);
    }
};

/// A point of the screen on one of the panel's rows.
/// @param nRows how many rows there are
/// @param x     pixels from the left edge
inline CPoint At(int nRow, int nRows, int x) {
    const CRect place = Place();
    return {place.left + x, place.top + place.Height() * (2 * nRow + 1) / (2 * nRows)};
}

// Keys that do something, of the letters and of the kana.
inline CPoint ShiftKey() {
    return At(3, 5, 18);
}
inline CPoint BackspaceKey() {
    return At(3, 5, 222);
}
inline CPoint NextKey() {
    return At(4, 5, 45);
}
inline CPoint EnterKey() {
    return At(4, 5, 212);
}
inline CPoint ScriptKey() {
    return At(5, 6, 45);
}

} // namespace panel
