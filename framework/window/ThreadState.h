// What the framework keeps for each thread.
#pragma once

#include "HandleMap.h"
#include "MapCache.h"
#include "afxcmn.h"

namespace fieldkit::detail {

class CModalScope;

class CThreadState {
public:
    static CThreadState& Get();

    CHandleMap<CWnd, HWND> m_windows{&CWnd::m_hWnd};
    CHandleMap<CDC, HDC> m_contexts{&CDC::m_hDC};
    CHandleMap<CGdiObject, HGDIOBJ> m_gdiObjects{&CGdiObject::m_hObject};
    CHandleMap<CMenu, HMENU> m_menus{&CMenu::m_hMenu};
    CHandleMap<CImageList, HIMAGELIST> m_imageLists{&CImageList::m_hImageList};
    CMapCache m_mapCache;
    /// What the device's shell keeps for the thread; null until it has anything.
    std::shared_ptr<void> m_pShell;

    /// The message being handled; what Default() replays.
    MSG m_msgLast = {};
    /// The object that waits for the window that is just being created.
    CWnd* m_pWndInit = nullptr;
    HHOOK m_hCreateHook = nullptr;
    /// Modal windows, one inside the other.
    int m_nModalDepth = 0;
    CModalScope* m_pModal = nullptr; ///< The innermost one.
    /// The control whose data is being exchanged; keeps DDX from being entered twice.
    HWND m_hLockoutNotifyWindow = nullptr;
    HWND m_hToolTip = nullptr; ///< The tips of EnableToolTips.
    CWinThread* m_pThread = nullptr;
    /// The user is being told of an exception.
    bool m_bTelling = false;
    int m_nWaitDepth = 0;              ///< Wait cursors, one inside the other.
    HCURSOR m_hCursorBefore = nullptr; ///< The cursor before the first of them.

    /// The object whose loop the thread runs: one of the framework's own in a thread without.
    CWinThread& PumpThread();
    /// The permanent object of the menu that has a command; null if none has.
    CMenu* FindMenuOf(UINT nID) const;
    /// Deletes the temporary objects made at the present depth or deeper.
    void DeleteTemporaries();

private:
    std::unique_ptr<CWinThread> m_pOwnThread;
};

/// The time of a modal window. Temporary objects made in it end with it; those that the
/// callers around it may hold stay.
class CModalScope {
public:
    explicit CModalScope(CWnd* pWnd);
    ~CModalScope();
    CModalScope(const CModalScope&) = delete;
    CModalScope& operator=(const CModalScope&) = delete;

    /// False if the window's object has been deleted meanwhile, whatever it may be that did so.
    bool IsAlive() const { return m_pWnd != nullptr; }
    /// Tells the scopes of an object that it is being deleted.
    static void Forget(const CWnd* pWnd);

private:
    CWnd* m_pWnd;
    CModalScope* m_pOuter;
};

} // namespace fieldkit::detail
