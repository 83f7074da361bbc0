// Where commands go that a dialog or property sheet does not know itself.
#pragma once

#include "afxwin.h"

namespace fieldkit::detail {

/// Offers a command to the window's parent and to the application. Menu and tool bar commands
/// go that way; notifications and system commands are the window's own business.
inline BOOL RouteCommand(const CWnd& wnd, UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pInfo) {
    constexpr UINT kFirstCommand = 0x8000;
    constexpr UINT kFirstSystemCommand = 0xF000;
    const bool bCommand = nCode == CN_COMMAND && pExtra == nullptr;
    if ((!bCommand && nCode != CN_UPDATE_COMMAND_UI) || nID < kFirstCommand || nID >= kFirstSystemCommand)
        return FALSE;
    if (CWnd* pParent = wnd.GetParent(); pParent != nullptr && pParent->OnCmdMsg(nID, nCode, pExtra, pInfo))
        return TRUE;
    CWinThread* pThread = AfxGetThread();
    return pThread != nullptr && pThread->OnCmdMsg(nID, nCode, pExtra, pInfo);
}

} // namespace fieldkit::detail
