// Watches how a list or a tree is filled.
#pragma once

#include "support/TestApp.h"

#include <set>

/// Counts, while it exists, what the list views or tree views of this thread are told.
struct FillWatch {
    explicit FillWatch(LPCTSTR pszClass) : m_strClass(pszClass) {
        s_pCurrent = this;
        m_hHook = ::SetWindowsHookEx(WH_CALLWNDPROC, OnMessage, nullptr, ::GetCurrentThreadId());
    }
    ~FillWatch() {
        ::UnhookWindowsHookEx(m_hHook);
        s_pCurrent = nullptr;
    }

    int nInserted = 0;
    int nInsertedWithRedraw = 0; ///< Each of them makes the control lay itself out and draw.
    int nDrawings = 0;           ///< Of the whole control, however many items that shows.

private:
    static LRESULT CALLBACK OnMessage(int nCode, WPARAM wParam, LPARAM lParam) {
        if (nCode == HC_ACTION)
            s_pCurrent->Count(*reinterpret_cast<const CWPSTRUCT*>(lParam));
        return ::CallNextHookEx(nullptr, nCode, wParam, lParam);
    }

    void Count(const CWPSTRUCT& message) {
        if (message.message == WM_NOTIFY)
            CountDrawing(*reinterpret_cast<const NMHDR*>(message.lParam), message.lParam);
        else if (message.message == WM_SETREDRAW && message.wParam == FALSE)
            m_paused.insert(message.hwnd);
        else if (message.message == WM_SETREDRAW)
            m_paused.erase(message.hwnd);
        else if ((message.message == LVM_INSERTITEM || message.message == TVM_INSERTITEM) &&
                 IsWatched(message.hwnd)) {
            ++nInserted;
            nInsertedWithRedraw += m_paused.count(message.hwnd) == 0;
        }
    }

    void CountDrawing(const NMHDR& header, LPARAM lParam) {
        if (header.code == NM_CUSTOMDRAW && IsWatched(header.hwndFrom))
            nDrawings += reinterpret_cast<const NMCUSTOMDRAW*>(lParam)->dwDrawStage == CDDS_PREPAINT;
    }

    bool IsWatched(HWND hWnd) const {
        wchar_t szClass[64];
        return ::GetClassName(hWnd, szClass, 64) != 0 && m_strClass == szClass;
    }

    static inline FillWatch* s_pCurrent = nullptr;

    CString m_strClass;
    HHOOK m_hHook;
    std::set<HWND> m_paused;
};
