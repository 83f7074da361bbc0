// Where commands go that a dialog or property sheet does not know itself.
#pragma once

#include "afxwin.h"

/// Offers a command to the window's parent and to the application. Menu and tool bar commands
/// go that way; notifications and system commands are the window's own business.
inline BOOL RouteCommand(const CWnd& wnd, UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pInfo) {
    constexpr UINT FIRST_COMMAND = 0x8000;
    constexpr UINT FIRST_SYSTEM_COMMAND = 0xF000;
    if (pExtra != nullptr || nCode != CN_COMMAND || nID < FIRST_COMMAND || nID >= FIRST_SYSTEM_COMMAND)
        return FALSE;
    if (CWnd* pParent = wnd.GetParent(); pParent != nullptr && pParent->OnCmdMsg(nID, nCode, pExtra, pInfo))
        return TRUE;
    CWinThread* pThread = AfxGetThread();
    return pThread != nullptr && pThread->OnCmdMsg(nID, nCode, pExtra, pInfo);
}
