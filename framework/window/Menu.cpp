// Menus, and how their items and the controls of dialogs look.
#include "Resources.h"
#include "WndProc.h"

using namespace fieldkit::detail;

IMPLEMENT_DYNCREATE(CMenu, CObject)

CMenu::~CMenu() {
    DestroyMenu();
}

HMENU CMenu::GetSafeHmenu() const {
    return this != nullptr ? m_hMenu : nullptr; // see CWnd::GetSafeHwnd
}

CMenu* CMenu::FromHandle(HMENU hMenu) {
    CThreadState& state = CThreadState::Get();
    return state.m_menus.FromHandle(hMenu, state.m_nModalDepth, [] { return new CMenu; });
}

void CMenu::DeleteTempMap() {
    CThreadState::Get().DeleteTemporaries();
}

BOOL CMenu::Attach(HMENU hMenu) {
    if (hMenu == nullptr || m_hMenu != nullptr)
        return FALSE;
    CThreadState::Get().m_menus.SetPermanent(hMenu, this);
    m_hMenu = hMenu;
    return TRUE;
}

HMENU CMenu::Detach() {
    const HMENU hMenu = m_hMenu;
    if (hMenu != nullptr)
        CThreadState::Get().m_menus.Remove(hMenu);
    m_hMenu = nullptr;
    return hMenu;
}

BOOL CMenu::LoadMenu(LPCTSTR lpszResourceName) {
    const std::span<const BYTE> resource = AfxFindResource(lpszResourceName, RT_MENU);
    return !resource.empty() && LoadMenuIndirect(resource.data());
}

BOOL CMenu::DestroyMenu() {
    return m_hMenu != nullptr && ::DestroyMenu(Detach());
}

namespace {

LPCTSTR BitmapItem(const CBitmap* pBmp) {
    return static_cast<LPCTSTR>(pBmp->m_hObject);
}

HBITMAP BitmapOf(const CBitmap* pBmp) {
    return pBmp != nullptr ? static_cast<HBITMAP>(pBmp->m_hObject) : nullptr;
}

} // namespace

BOOL CMenu::AppendMenu(UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp) {
    return ::AppendMenu(m_hMenu, nFlags | MF_BITMAP, nIDNewItem, BitmapItem(pBmp));
}
BOOL CMenu::InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp) {
    return ::InsertMenu(m_hMenu, nPosition, nFlags | MF_BITMAP, nIDNewItem, BitmapItem(pBmp));
}
BOOL CMenu::ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp) {
    return ::ModifyMenu(m_hMenu, nPosition, nFlags | MF_BITMAP, nIDNewItem, BitmapItem(pBmp));
}
BOOL CMenu::SetMenuItemBitmaps(UINT nPosition, UINT nFlags, const CBitmap* pBmpUnchecked,
                               const CBitmap* pBmpChecked) {
    return ::SetMenuItemBitmaps(m_hMenu, nPosition, nFlags, BitmapOf(pBmpUnchecked), BitmapOf(pBmpChecked));
}

int CMenu::GetMenuString(UINT nIDItem, CString& rString, UINT nFlags) const {
    const int nLength = ::GetMenuString(m_hMenu, nIDItem, nullptr, 0, nFlags);
    ::GetMenuString(m_hMenu, nIDItem, rString.GetBuffer(nLength), nLength + 1, nFlags);
    rString.ReleaseBuffer();
    return rString.GetLength();
}

BOOL CMenu::TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT lpRect) {
    return ::TrackPopupMenu(m_hMenu, nFlags, x, y, 0, HandleOf(pWnd), lpRect);
}
BOOL CMenu::TrackPopupMenuEx(UINT fuFlags, int x, int y, CWnd* pWnd, LPTPMPARAMS lptpm) {
    return ::TrackPopupMenuEx(m_hMenu, fuFlags, x, y, HandleOf(pWnd), lptpm);
}

void CMenu::DrawItem(LPDRAWITEMSTRUCT) {}
void CMenu::MeasureItem(LPMEASUREITEMSTRUCT) {}

// --- How commands look -----------------------------------------------------------------------

void CCmdUI::Enable(BOOL bOn) {
    m_bEnableChanged = TRUE;
    if (m_pMenu != nullptr) {
        if (m_pSubMenu == nullptr)
            m_pMenu->EnableMenuItem(m_nIndex, MF_BYPOSITION | (bOn ? MF_ENABLED : MF_GRAYED));
        return;
    }
    if (!bOn && ::GetFocus() == m_pOther->m_hWnd) // the focus must not stay on what takes no keys
        ::SendMessage(::GetParent(m_pOther->m_hWnd), WM_NEXTDLGCTL, 0, FALSE);
    m_pOther->EnableWindow(bOn);
}

void CCmdUI::SetCheck(int nCheck) {
    if (m_pMenu == nullptr)
        m_pOther->SendMessage(BM_SETCHECK, static_cast<WPARAM>(nCheck));
    else if (m_pSubMenu == nullptr)
        m_pMenu->CheckMenuItem(m_nIndex, MF_BYPOSITION | (nCheck != 0 ? MF_CHECKED : MF_UNCHECKED));
}

void CCmdUI::SetRadio(BOOL bOn) {
    if (m_pMenu != nullptr && m_pSubMenu == nullptr && bOn)
        m_pMenu->CheckMenuRadioItem(m_nIndex, m_nIndex, m_nIndex, MF_BYPOSITION);
    else
        SetCheck(bOn != FALSE);
}

void CCmdUI::SetText(LPCTSTR lpszText) {
    if (m_pMenu == nullptr) {
        m_pOther->SetWindowText(lpszText);
        return;
    }
    MENUITEMINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = MIIM_STRING;
    info.dwTypeData = const_cast<LPTSTR>(lpszText);
    if (m_pSubMenu == nullptr)
        m_pMenu->SetMenuItemInfo(m_nIndex, &info, TRUE);
}

BOOL CCmdUI::DoUpdate(CCmdTarget* pTarget, BOOL bDisableIfNoHndler) {
    m_bEnableChanged = FALSE;
    m_bContinueRouting = FALSE;
    const BOOL bAnswered = pTarget->OnCmdMsg(m_nID, CN_UPDATE_COMMAND_UI, this, nullptr);
    if (bDisableIfNoHndler && !m_bEnableChanged) {
        AFX_CMDHANDLERINFO info = {};
        Enable(pTarget->OnCmdMsg(m_nID, CN_COMMAND, nullptr, &info));
    }
    return bAnswered;
}

// --- Windows and their menus -----------------------------------------------------------------

void CWnd::OnInitMenuPopup(CMenu* pPopupMenu, UINT nIndex, BOOL bSysMenu) {
    if (!bSysMenu && pPopupMenu != nullptr) {
        CCmdUI ui;
        ui.m_pMenu = pPopupMenu;
        ui.m_nIndexMax = pPopupMenu->GetMenuItemCount();
        for (ui.m_nIndex = 0; ui.m_nIndex < ui.m_nIndexMax; ++ui.m_nIndex) {
            ui.m_nID = pPopupMenu->GetMenuItemID(static_cast<int>(ui.m_nIndex));
            const bool bCommand =
                ui.m_nID != 0 && ui.m_nID != static_cast<UINT>(-1); // no separator, no popup
            if (bCommand)
                ui.DoUpdate(this, FALSE);
        }
    }
    CWndHandlers::OnInitMenuPopup(pPopupMenu, nIndex, bSysMenu);
}

void CWnd::UpdateDialogControls(CCmdTarget* pTarget, BOOL bDisableIfNoHndler) {
    CCmdUI ui;
    for (HWND h = ::GetTopWindow(m_hWnd); h != nullptr; h = ::GetNextWindow(h, GW_HWNDNEXT)) {
        ui.m_nID = static_cast<UINT>(::GetDlgCtrlID(h));
        ui.m_pOther = CWnd::FromHandle(h);
        // Only buttons that send commands can do without a handler.
        const LRESULT nCode = ::SendMessage(h, WM_GETDLGCODE, 0, 0);
        const bool bCommand = (nCode & (DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON)) != 0;
        ui.DoUpdate(pTarget, bDisableIfNoHndler && bCommand);
    }
}
