#include "testkit/Stage.h"

#include <algorithm>

namespace testkit {

namespace {

bool g_bTicked = false;

void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD) {
    g_bTicked = true;
}

/// Until a timer's message comes, which has to wait for all input before it.
void Settle() {
    g_bTicked = false;
    const UINT_PTR nTimer = ::SetTimer(nullptr, 0, USER_TIMER_MINIMUM, OnTimer);
    PumpUntil([] { return g_bTicked; });
    ::KillTimer(nullptr, nTimer);
}

} // namespace

LRESULT Notify(CWnd& parent, HWND hControl, int nID, UINT nCode) {
    NMHDR header = {hControl, static_cast<UINT_PTR>(nID), nCode};
    return parent.SendMessage(WM_NOTIFY, header.idFrom, reinterpret_cast<LPARAM>(&header));
}

Stage::Stage(CSize size) : Frame(size) {
    SetForegroundWindow();
    Pump();
}

void Stage::CreateItem(LPCTSTR pszClass, int nID, DWORD dwStyle, CRect rect, LPCTSTR pszText) {
    ::CreateWindowEx(0, pszClass, pszText, WS_CHILD | WS_VISIBLE | dwStyle, rect.left, rect.top, rect.Width(),
                     rect.Height(), m_hWnd, reinterpret_cast<HMENU>(static_cast<INT_PTR>(nID)), nullptr,
                     nullptr);
}

void Stage::Tap(CPoint screenPoint) {
    pen::Tap(screenPoint);
    Settle();
}

void Stage::Tap(const CWnd& wnd) {
    Tap(MiddleOf(wnd));
}

void Stage::Drag(CPoint from, CPoint to) {
    pen::Drag(from, to);
    Settle();
}

void Stage::Type(std::initializer_list<WORD> keys) {
    TypeKeys(keys);
    Settle();
}

int Stage::Count(int nID, UINT nCode) const {
    return static_cast<int>(std::count(m_seen.begin(), m_seen.end(), std::pair(nID, nCode)));
}

BOOL Stage::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pInfo) {
    m_seen.emplace_back(static_cast<int>(nID), static_cast<UINT>(nCode));
    return Frame::OnCmdMsg(nID, nCode, pExtra, pInfo);
}

} // namespace testkit
