/// @file
/// Menus, and the object that tells a command how to look. Included by afxwin.h.
#pragma once

#include "afxwnd_.h"

class CBitmap;

/// A menu of the system, or the C++ side of one.
///
/// An object that created, loaded or attached a menu destroys it in its destructor; a menu that a window has
/// is the window's, so it is detached first. FromHandle gives temporary objects for foreign menus, valid
/// until the program is next idle. A member named like a Win32 function is that function for this menu.
class AFX_CORE CMenu : public CObject {
    DECLARE_DYNCREATE(CMenu)
public:
    CMenu() = default;
    ~CMenu() override;

    HMENU m_hMenu = nullptr; ///< The menu, or null.

    /// The menu, or null.
    operator HMENU() const { return m_hMenu; }
    /// The menu; null also for a null object.
    HMENU GetSafeHmenu() const;
    bool operator==(const CMenu& other) const { return m_hMenu == other.m_hMenu; }
    bool operator!=(const CMenu& other) const { return m_hMenu != other.m_hMenu; }

    /// The object of a menu, a temporary one if nobody owns it; null for null.
    static CMenu* FromHandle(HMENU hMenu);
    /// Deletes the temporary objects that nothing can hold any more; called when idle.
    static void DeleteTempMap();
    /// Takes a menu over. @return FALSE for null, or if this object has one
    BOOL Attach(HMENU hMenu);
    /// Gives the menu up. @return what it was
    HMENU Detach();

    /// Makes or destroys the menu. Resources are searched along the resource chain. FALSE on failure.
    ///@{
    BOOL CreateMenu() { return Attach(::CreateMenu()); }
    BOOL CreatePopupMenu() { return Attach(::CreatePopupMenu()); }
    BOOL LoadMenu(LPCTSTR lpszResourceName);
    BOOL LoadMenu(UINT nIDResource) { return LoadMenu(MAKEINTRESOURCE(nIDResource)); }
    BOOL LoadMenuIndirect(const void* lpMenuTemplate) { return Attach(::LoadMenuIndirect(lpMenuTemplate)); }
    BOOL DestroyMenu();
    ///@}

    /// Items, by command or by position as nFlags says.
    ///@{
    BOOL AppendMenu(UINT nFlags, UINT_PTR nIDNewItem = 0, LPCTSTR lpszNewItem = nullptr) {
        return ::AppendMenu(m_hMenu, nFlags, nIDNewItem, lpszNewItem);
    }
    BOOL AppendMenu(UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp);
    BOOL InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem = 0, LPCTSTR lpszNewItem = nullptr) {
        return ::InsertMenu(m_hMenu, nPosition, nFlags, nIDNewItem, lpszNewItem);
    }
    BOOL InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp);
    BOOL ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem = 0, LPCTSTR lpszNewItem = nullptr) {
        return ::ModifyMenu(m_hMenu, nPosition, nFlags, nIDNewItem, lpszNewItem);
    }
    BOOL ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp);
    BOOL RemoveMenu(UINT nPosition, UINT nFlags) { return ::RemoveMenu(m_hMenu, nPosition, nFlags); }
    BOOL DeleteMenu(UINT nPosition, UINT nFlags) { return ::DeleteMenu(m_hMenu, nPosition, nFlags); }
    BOOL InsertMenuItem(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos = FALSE) {
        return ::InsertMenuItem(m_hMenu, uItem, fByPos, lpMenuItemInfo);
    }
    BOOL SetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos = FALSE) {
        return ::SetMenuItemInfo(m_hMenu, uItem, fByPos, lpMenuItemInfo);
    }
    BOOL GetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos = FALSE) {
        return ::GetMenuItemInfo(m_hMenu, uItem, fByPos, lpMenuItemInfo);
    }
    UINT CheckMenuItem(UINT nIDCheckItem, UINT nCheck) {
        return ::CheckMenuItem(m_hMenu, nIDCheckItem, nCheck);
    }
    BOOL CheckMenuRadioItem(UINT nIDFirst, UINT nIDLast, UINT nIDItem, UINT nFlags) {
        return ::CheckMenuRadioItem(m_hMenu, nIDFirst, nIDLast, nIDItem, nFlags);
    }
    UINT EnableMenuItem(UINT nIDEnableItem, UINT nEnable) {
        return static_cast<UINT>(::EnableMenuItem(m_hMenu, nIDEnableItem, nEnable));
    }
    BOOL SetDefaultItem(UINT uItem, BOOL fByPos = FALSE) {
        return ::SetMenuDefaultItem(m_hMenu, uItem, static_cast<UINT>(fByPos));
    }
    UINT GetDefaultItem(UINT gmdiFlags, BOOL fByPos = FALSE) {
        return ::GetMenuDefaultItem(m_hMenu, static_cast<UINT>(fByPos), gmdiFlags);
    }
    BOOL SetMenuItemBitmaps(UINT nPosition, UINT nFlags, const CBitmap* pBmpUnchecked,
                            const CBitmap* pBmpChecked);
    UINT GetMenuItemCount() const { return static_cast<UINT>(::GetMenuItemCount(m_hMenu)); }
    UINT GetMenuItemID(int nPos) const { return ::GetMenuItemID(m_hMenu, nPos); }
    UINT GetMenuState(UINT nID, UINT nFlags) const { return ::GetMenuState(m_hMenu, nID, nFlags); }
    int GetMenuString(UINT nIDItem, LPTSTR lpString, int nMaxCount, UINT nFlags) const {
        return ::GetMenuString(m_hMenu, nIDItem, lpString, nMaxCount, nFlags);
    }
    int GetMenuString(UINT nIDItem, CString& rString, UINT nFlags) const;
    /// A temporary object; null if the item is no popup.
    CMenu* GetSubMenu(int nPos) const { return FromHandle(::GetSubMenu(m_hMenu, nPos)); }
    ///@}

    /// What belongs to the menu as a whole.
    ///@{
    BOOL SetMenuInfo(LPCMENUINFO lpcmi) { return ::SetMenuInfo(m_hMenu, lpcmi); }
    BOOL GetMenuInfo(LPMENUINFO lpcmi) const { return ::GetMenuInfo(m_hMenu, lpcmi); }
    BOOL SetMenuContextHelpId(DWORD dwContextHelpId) {
        return ::SetMenuContextHelpId(m_hMenu, dwContextHelpId);
    }
    DWORD GetMenuContextHelpId() const { return ::GetMenuContextHelpId(m_hMenu); }
    ///@}

    /// Shows the popup at a point of the screen; commands go to pWnd.
    /// @return with TPM_RETURNCMD the command, 0 for none
    BOOL TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT lpRect = nullptr);
    /// The same; lptpm names a rectangle to keep clear of.
    BOOL TrackPopupMenuEx(UINT fuFlags, int x, int y, CWnd* pWnd, LPTPMPARAMS lptpm);

    /// Draw and measure an MF_OWNERDRAW item; override them.
    ///@{
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    ///@}
};

/// Asks who handles a command how it shall look: an item of a menu, or a control of a dialog. Handlers are
/// lines ON_UPDATE_COMMAND_UI; the framework asks before a menu opens and when a dialog is idle.
class AFX_CORE CCmdUI {
public:
    CCmdUI() = default;
    virtual ~CCmdUI() = default;

    UINT m_nID = 0;                  ///< The command.
    UINT m_nIndex = 0;               ///< The item's position.
    CMenu* m_pMenu = nullptr;        ///< The menu; null for a control.
    CMenu* m_pSubMenu = nullptr;     ///< The popup that the item opens; null for none.
    CMenu* m_pParentMenu = nullptr;  ///< The menu above; not used by the framework itself.
    CWnd* m_pOther = nullptr;        ///< The control; null for a menu.
    BOOL m_bEnableChanged = FALSE;   ///< Enable has been called.
    BOOL m_bContinueRouting = FALSE; ///< ContinueRouting has been called.
    UINT m_nIndexMax = 0;            ///< The number of items.

    virtual void Enable(BOOL bOn = TRUE);
    /// @param nCheck 0 off, 1 on, 2 undecided
    virtual void SetCheck(int nCheck = 1);
    /// A check mark in the form of a dot.
    virtual void SetRadio(BOOL bOn = TRUE);
    virtual void SetText(LPCTSTR lpszText);
    /// Called by a handler that leaves the question to the next one.
    void ContinueRouting() { m_bContinueRouting = TRUE; }
    /// Asks the target. @param bDisableIfNoHndler whether what nobody handles is disabled
    /// @return TRUE if somebody has answered
    BOOL DoUpdate(CCmdTarget* pTarget, BOOL bDisableIfNoHndler);
};
