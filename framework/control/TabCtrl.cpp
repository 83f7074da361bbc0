// Tabs and the header of columns.
#include "DrawnByOwner.h"
#include "window/WndProc.h"

using namespace fieldkit::detail;

IMPLEMENT_DYNAMIC(CTabCtrl, CWnd)
IMPLEMENT_DYNAMIC(CHeaderCtrl, CWnd)

// --- Tabs ---------------------------------------------------------------------------------

LONG CTabCtrl::InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, int nImage, LPARAM lParam, UINT nState,
                          UINT nStateMask) {
    TCITEM item = {};
    item.mask = nMask;
    item.pszText = const_cast<LPTSTR>(lpszItem); // the control only reads it
    item.iImage = nImage;
    item.lParam = lParam;
    item.dwState = nState;
    item.dwStateMask = nStateMask;
    return InsertItem(nItem, &item);
}

DWORD CTabCtrl::GetItemState(int nItem, DWORD dwMask) const {
    TCITEM item = {};
    item.mask = TCIF_STATE;
    item.dwStateMask = dwMask;
    return GetItem(nItem, &item) ? item.dwState & dwMask : 0;
}

BOOL CTabCtrl::SetItemState(int nItem, DWORD dwMask, DWORD dwState) {
    TCITEM item = {};
    item.mask = TCIF_STATE;
    item.dwState = dwState;
    item.dwStateMask = dwMask;
    return SetItem(nItem, &item);
}

CImageList* CTabCtrl::GetImageList() const {
    return ExchangeImages(m_hWnd, TCM_GETIMAGELIST);
}
CImageList* CTabCtrl::SetImageList(CImageList* pImageList) {
    return ExchangeImages(m_hWnd, TCM_SETIMAGELIST, pImageList);
}
CToolTipCtrl* CTabCtrl::GetToolTips() const {
    return AskForWindow<CToolTipCtrl>(m_hWnd, TCM_GETTOOLTIPS);
}
void CTabCtrl::SetToolTips(CToolTipCtrl* pWndTip) {
    SendMessage(TCM_SETTOOLTIPS, reinterpret_cast<WPARAM>(HandleOf(pWndTip)));
}

void CTabCtrl::DrawItem(LPDRAWITEMSTRUCT) {}

BOOL CTabCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    return DrawnByOwner(*this, message, lParam) || CWnd::OnChildNotify(message, wParam, lParam, pResult);
}

// --- Headers ------------------------------------------------------------------------------

CImageList* CHeaderCtrl::GetImageList() const {
    return ExchangeImages(m_hWnd, HDM_GETIMAGELIST);
}
CImageList* CHeaderCtrl::SetImageList(CImageList* pImageList) {
    return ExchangeImages(m_hWnd, HDM_SETIMAGELIST, pImageList);
}
CImageList* CHeaderCtrl::CreateDragImage(int nIndex) {
    return OwnedImages(
        reinterpret_cast<HIMAGELIST>(SendMessage(HDM_CREATEDRAGIMAGE, static_cast<WPARAM>(nIndex))));
}

void CHeaderCtrl::DrawItem(LPDRAWITEMSTRUCT) {}

BOOL CHeaderCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    return DrawnByOwner(*this, message, lParam) || CWnd::OnChildNotify(message, wParam, lParam, pResult);
}
