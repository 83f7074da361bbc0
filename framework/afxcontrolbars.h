/// @file
/// Start-up calls of programs made for visual managers. Nothing is to be done here: the system draws.
#pragma once

#include "afxwin.h"

/// Does nothing.
class CShellManager {};

/// Does nothing.
class AFX_CORE CMFCVisualManager : public CObject {
    DECLARE_DYNCREATE(CMFCVisualManager)
public:
    static void SetDefaultManager(CRuntimeClass*) {}
};

/// Does nothing.
class AFX_CORE CMFCVisualManagerWindows : public CMFCVisualManager {
    DECLARE_DYNCREATE(CMFCVisualManagerWindows)
};

/// An application; what it could do more than CWinApp needs nothing here.
class AFX_CORE CWinAppEx : public CWinApp {
    DECLARE_DYNAMIC(CWinAppEx)
public:
    explicit CWinAppEx(BOOL bResourceSmartUpdate = FALSE) { static_cast<void>(bResourceSmartUpdate); }
    BOOL InitShellManager() { return TRUE; }
    BOOL InitContextMenuManager() { return TRUE; }
    BOOL InitKeyboardManager() { return TRUE; }
    BOOL InitTooltipManager() { return TRUE; }
    BOOL InitMouseManager() { return TRUE; }
};

/// Nothing is to be done here.
inline void ControlBarCleanUp() {}
