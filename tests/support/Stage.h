// A window with controls to tap on.
#pragma once

#include "support/TestApp.h"
#include "testkit/Pen.h"

#include <algorithm>

namespace fx {

/// An active window that knows which notifications its controls let through to it.
struct Stage : Frame {
    Stage() : Frame(CSize(220, 180)) {
        SetForegroundWindow();
        Pump();
    }

    /// A control of the system, which a test attaches to an object.
    void CreateItem(LPCTSTR pszClass, int nID, DWORD dwStyle, CRect rect, LPCTSTR pszText = L"") {
        ::CreateWindowEx(0, pszClass, pszText, WS_CHILD | WS_VISIBLE | dwStyle, rect.left, rect.top,
                         rect.Width(), rect.Height(), m_hWnd,
                         reinterpret_cast<HMENU>(static_cast<INT_PTR>(nID)), nullptr, nullptr);
    }

    void Tap(CPoint screenPoint) {
        testkit::pen::Tap(screenPoint);
        Settle();
    }
    void Tap(const CWnd& wnd) { Tap(MiddleOf(wnd)); }
    void Drag(CPoint from, CPoint to) {
        testkit::pen::Drag(from, to);
        Settle();
    }
    void Type(std::initializer_list<WORD> keys) {
        testkit::TypeKeys(keys);
        Settle();
    }

    /// Sends a notification as a control would. @return the answer
    LRESULT Notify(const CWnd& from, UINT nCode) {
        NMHDR header = {from.m_hWnd, static_cast<UINT_PTR>(from.GetDlgCtrlID()), nCode};
        return SendMessage(WM_NOTIFY, header.idFrom, reinterpret_cast<LPARAM>(&header));
    }

    /// How often a notification has come through.
    int Count(int nID, UINT nCode) const {
        return static_cast<int>(std::count(m_seen.begin(), m_seen.end(), std::pair(nID, nCode)));
    }

protected:
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pInfo) override {
        m_seen.emplace_back(static_cast<int>(nID), static_cast<UINT>(nCode));
        return Frame::OnCmdMsg(nID, nCode, pExtra, pInfo);
    }

private:
    static void Settle() {
        ::Sleep(5); // the system hands input on in its own time
        Pump();
    }

    std::vector<std::pair<int, UINT>> m_seen;
};

} // namespace fx
