/// @file
/// CCmdTarget: objects with message maps. Included by afxwin.h.
#pragma once

#include "afx.h"
#include "afxmsg_.h"

class CCmdUI;

/// Which handler a command would have gone to.
struct AFX_CMDHANDLERINFO {
    CCmdTarget* pTarget; ///< Whose handler it is.
    AFX_PMSG pmf;        ///< The handler.
};

/// An object with a message map.
class AFX_CORE CCmdTarget : public CObject {
    DECLARE_DYNAMIC(CCmdTarget)
public:
    /// Routes a command or notification to the first handler found for it.
    /// @param nID    command or control identifier
    /// @param nCode  notification code; CN_COMMAND for a command
    /// @param pExtra an AFX_NOTIFY if it comes from WM_NOTIFY, a CCmdUI for CN_UPDATE_COMMAND_UI, null if
    /// from
    ///               WM_COMMAND
    /// @param pInfo  if not null, receives the handler, which is not called
    /// @return TRUE if a handler took it.
    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pInfo);

    /// Shows and hides the wait cursor; calls nest.
    void BeginWaitCursor();
    /// Ends what BeginWaitCursor began.
    void EndWaitCursor();
    /// Shows the wait cursor again, after a message box for example.
    void RestoreWaitCursor();

protected:
    CCmdTarget() = default;
    /// The class's message map. The message map macros define both.
    ///@{
    static const AFX_MSGMAP* GetThisMessageMap();
    virtual const AFX_MSGMAP* GetMessageMap() const;
    ///@}
};

/// What OnCmdMsg carries in pExtra for a WM_NOTIFY message.
struct AFX_NOTIFY {
    LRESULT* pResult; ///< Receives the answer.
    NMHDR* pNMHDR;    ///< The notification.
};
