// Texts with links, and buttons with a menu.
#include "afxcmn.h"

IMPLEMENT_DYNAMIC(CLinkCtrl, CWnd)
IMPLEMENT_DYNAMIC(CSplitButton, CButton)

BEGIN_MESSAGE_MAP(CSplitButton, CButton)
ON_NOTIFY_REFLECT(BCN_DROPDOWN, &CSplitButton::OnDropDown)
END_MESSAGE_MAP()

namespace {

LITEM ItemOf(int nLink, UINT nMask) {
    LITEM item = {};
    item.mask = LIF_ITEMINDEX | nMask;
    item.iLink = nLink;
    return item;
}

/// A text of a link. @param member LITEM::szID or szUrl
template <size_t n>
BOOL GetText(const CLinkCtrl& ctrl, int nLink, UINT nMask, WCHAR (LITEM::*member)[n], CString& text) {
    LITEM item = ItemOf(nLink, nMask);
    const BOOL bFound = ctrl.GetItem(&item);
    text = bFound ? item.*member : L"";
    return bFound;
}

template <size_t n>
BOOL SetText(CLinkCtrl& ctrl, int nLink, UINT nMask, WCHAR (LITEM::*member)[n], LPCTSTR pszText) {
    LITEM item = ItemOf(nLink, nMask);
    ::lstrcpyn(item.*member, pszText, n);
    return ctrl.SetItem(&item);
}

BOOL Copy(BOOL bFound, const CString& text, LPTSTR pszBuffer, UINT cchBuffer) {
    if (cchBuffer > 0)
        ::lstrcpyn(pszBuffer, text, static_cast<int>(cchBuffer));
    return bFound;
}

} // namespace

// --- Texts with links -----------------------------------------------------------------------

BOOL CLinkCtrl::GetItemID(int nLink, CString& strID) const {
    return GetText(*this, nLink, LIF_ITEMID, &LITEM::szID, strID);
}

BOOL CLinkCtrl::GetItemID(int nLink, LPTSTR szID, UINT cchID) const {
    CString strID;
    const BOOL bFound = GetItemID(nLink, strID);
    return Copy(bFound, strID, szID, cchID);
}

BOOL CLinkCtrl::SetItemID(int nLink, LPCTSTR szID) {
    return SetText(*this, nLink, LIF_ITEMID, &LITEM::szID, szID);
}

BOOL CLinkCtrl::GetItemUrl(int nLink, CString& strUrl) const {
    return GetText(*this, nLink, LIF_URL, &LITEM::szUrl, strUrl);
}

BOOL CLinkCtrl::GetItemUrl(int nLink, LPTSTR szUrl, UINT cchUrl) const {
    CString strUrl;
    const BOOL bFound = GetItemUrl(nLink, strUrl);
    return Copy(bFound, strUrl, szUrl, cchUrl);
}

BOOL CLinkCtrl::SetItemUrl(int nLink, LPCTSTR szUrl) {
    return SetText(*this, nLink, LIF_URL, &LITEM::szUrl, szUrl);
}

BOOL CLinkCtrl::GetItemState(int nLink, UINT* pnState, UINT nMask) const {
    LITEM item = ItemOf(nLink, LIF_STATE);
    item.stateMask = nMask;
    const BOOL bFound = GetItem(&item);
    *pnState = item.state;
    return bFound;
}

BOOL CLinkCtrl::SetItemState(int nLink, UINT nState, UINT nMask) {
    LITEM item = ItemOf(nLink, LIF_STATE);
    item.stateMask = nMask;
    item.state = nState;
    return SetItem(&item);
}

// --- Buttons with a menu ----------------------------------------------------------------------

void CSplitButton::SetDropDownMenu(UINT nMenuId, UINT nSubMenuId) {
    m_pMenu = nullptr;
    m_nMenuId = nMenuId;
    m_nSubMenuId = nSubMenuId;
}

void CSplitButton::SetDropDownMenu(CMenu* pMenu) {
    m_pMenu = pMenu;
    m_nMenuId = 0;
}

// The button may be gone when the menu closes.
void CSplitButton::OnDropDown(NMHDR*, LRESULT* pResult) {
    *pResult = 0;
    CMenu menu;
    CMenu* pPopup = m_pMenu;
    if (m_nMenuId != 0 && menu.LoadMenu(m_nMenuId))
        pPopup = menu.GetSubMenu(static_cast<int>(m_nSubMenuId));
    if (pPopup == nullptr)
        return;
    CRect rect;
    GetWindowRect(rect);
    pPopup->TrackPopupMenu(TPM_LEFTALIGN | TPM_LEFTBUTTON, rect.left, rect.bottom, GetParent());
}
