#include "Sip.h"

#include <utility>

using namespace fieldkit::detail;

namespace {

const AFX_SIP_HANDLER* g_pHandler = nullptr;

} // namespace

const AFX_SIP_HANDLER* AFXAPI AfxSetSipHandler(const AFX_SIP_HANDLER* pHandler) {
    return std::exchange(g_pHandler, pHandler);
}

BOOL AFXAPI SipShowIM(DWORD dwFlag) {
    if (g_pHandler == nullptr || (dwFlag != SIPF_ON && dwFlag != SIPF_OFF))
        return FALSE;
    g_pHandler->pfnShow(dwFlag == SIPF_ON);
    return TRUE;
}

BOOL AFXAPI SipGetInfo(SIPINFO* pSipInfo) {
    if (pSipInfo == nullptr || pSipInfo->cbSize != sizeof(SIPINFO))
        return FALSE;
    CRect panel;
    const bool bShown = CSip::IsShown(&panel);
    MONITORINFO monitor = {};
    monitor.cbSize = sizeof monitor;
    ::GetMonitorInfo(::MonitorFromRect(panel, MONITOR_DEFAULTTOPRIMARY), &monitor);
    pSipInfo->fdwFlags = SIPF_DOCKED | (bShown ? SIPF_ON : SIPF_OFF);
    pSipInfo->rcVisibleDesktop = monitor.rcWork;
    pSipInfo->rcSipRect = panel;
    if (bShown)
        pSipInfo->rcVisibleDesktop.bottom = panel.top;
    return TRUE;
}

bool CSip::IsShown(CRect* pRect) {
    CRect rect;
    if (g_pHandler == nullptr || !g_pHandler->pfnGetRect(rect))
        return false;
    if (pRect != nullptr)
        *pRect = rect;
    return true;
}

void CSip::Toggle() {
    SipShowIM(IsShown() ? SIPF_OFF : SIPF_ON);
}

bool CSip::OnPressWhileDisabled(HWND hWnd) {
    const auto* pBar = dynamic_cast<CCeCommandBar*>(
        CWnd::FromHandlePermanent(::GetDlgItem(hWnd, static_cast<int>(AFX_IDW_TOOLBAR))));
    CPoint point;
    ::GetCursorPos(&point);
    if (pBar == nullptr || !pBar->IsSipSwitchAt(point))
        return false;
    Toggle();
    return true;
}
