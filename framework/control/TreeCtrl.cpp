#include "DrawnByOwner.h"
#include "window/WndProc.h"

using namespace fieldkit::detail;

IMPLEMENT_DYNAMIC(CTreeCtrl, CWnd)

BOOL CTreeCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(WC_TREEVIEW, nullptr, dwStyle, rect, pParentWnd, nID);
}

// --- Items ----------------------------------------------------------------------------------

namespace {

TVITEM ItemOf(HTREEITEM hItem, UINT nMask) {
    TVITEM item = {};
    item.mask = nMask | TVIF_HANDLE;
    item.hItem = hItem;
    return item;
}

} // namespace

HTREEITEM CTreeCtrl::InsertItem(LPTVINSERTSTRUCT lpInsertStruct) {
    return reinterpret_cast<HTREEITEM>(
        SendMessage(TVM_INSERTITEM, 0, reinterpret_cast<LPARAM>(lpInsertStruct)));
}

HTREEITEM CTreeCtrl::InsertItem(UINT nMask, LPCTSTR lpszItem, int nImage, int nSelectedImage, UINT nState,
                                UINT nStateMask, LPARAM lParam, HTREEITEM hParent, HTREEITEM hInsertAfter) {
    TVINSERTSTRUCT insert = {};
    insert.hParent = hParent;
    insert.hInsertAfter = hInsertAfter;
    insert.item.mask = nMask;
    insert.item.pszText = const_cast<LPTSTR>(lpszItem); // the control only reads it
    insert.item.iImage = nImage;
    insert.item.iSelectedImage = nSelectedImage;
    insert.item.state = nState;
    insert.item.stateMask = nStateMask;
    insert.item.lParam = lParam;
    return InsertItem(&insert);
}

BOOL CTreeCtrl::SetItem(HTREEITEM hItem, UINT nMask, LPCTSTR lpszItem, int nImage, int nSelectedImage,
                        UINT nState, UINT nStateMask, LPARAM lParam) {
    TVITEM item = ItemOf(hItem, nMask);
    item.pszText = const_cast<LPTSTR>(lpszItem);
    item.iImage = nImage;
    item.iSelectedImage = nSelectedImage;
    item.state = nState;
    item.stateMask = nStateMask;
    item.lParam = lParam;
    return SetItem(&item);
}

CString CTreeCtrl::GetItemText(HTREEITEM hItem) const {
    TVITEM item = ItemOf(hItem, TVIF_TEXT);
    // A text that fills the whole buffer may have been cut off.
    for (int nSize = 128;; nSize *= 2) {
        CString strBuffer;
        item.pszText = strBuffer.GetBuffer(nSize);
        item.pszText[0] = 0;
        item.cchTextMax = nSize;
        GetItem(&item);
        CString strText(item.pszText); // the control may have put its own text there
        if (strText.GetLength() < nSize - 1)
            return strText;
    }
}

BOOL CTreeCtrl::SetItemText(HTREEITEM hItem, LPCTSTR lpszItem) {
    return SetItem(hItem, TVIF_TEXT, lpszItem, 0, 0, 0, 0, 0);
}

BOOL CTreeCtrl::GetItemImage(HTREEITEM hItem, int& nImage, int& nSelectedImage) const {
    TVITEM item = ItemOf(hItem, TVIF_IMAGE | TVIF_SELECTEDIMAGE);
    if (!GetItem(&item))
        return FALSE;
    nImage = item.iImage;
    nSelectedImage = item.iSelectedImage;
    return TRUE;
}

BOOL CTreeCtrl::SetItemImage(HTREEITEM hItem, int nImage, int nSelectedImage) {
    return SetItem(hItem, TVIF_IMAGE | TVIF_SELECTEDIMAGE, nullptr, nImage, nSelectedImage, 0, 0, 0);
}

UINT CTreeCtrl::GetItemState(HTREEITEM hItem, UINT nStateMask) const {
    TVITEM item = ItemOf(hItem, TVIF_STATE);
    item.stateMask = nStateMask;
    return GetItem(&item) ? item.state & nStateMask : 0; // the control may answer with all bits
}

BOOL CTreeCtrl::SetItemState(HTREEITEM hItem, UINT nState, UINT nStateMask) {
    return SetItem(hItem, TVIF_STATE, nullptr, 0, 0, nState, nStateMask, 0);
}

DWORD_PTR CTreeCtrl::GetItemData(HTREEITEM hItem) const {
    TVITEM item = ItemOf(hItem, TVIF_PARAM);
    return GetItem(&item) ? static_cast<DWORD_PTR>(item.lParam) : 0;
}

BOOL CTreeCtrl::SetItemData(HTREEITEM hItem, DWORD_PTR dwData) {
    return SetItem(hItem, TVIF_PARAM, nullptr, 0, 0, 0, 0, static_cast<LPARAM>(dwData));
}

// The state image counts from 1: box without check, box with check.
BOOL CTreeCtrl::GetCheck(HTREEITEM hItem) const {
    return GetItemState(hItem, TVIS_STATEIMAGEMASK) == INDEXTOSTATEIMAGEMASK(2U);
}

BOOL CTreeCtrl::SetCheck(HTREEITEM hItem, BOOL fCheck) {
    return SetItemState(hItem, INDEXTOSTATEIMAGEMASK(fCheck ? 2U : 1U), TVIS_STATEIMAGEMASK);
}

BOOL CTreeCtrl::ItemHasChildren(HTREEITEM hItem) const {
    TVITEM item = ItemOf(hItem, TVIF_CHILDREN);
    return GetItem(&item) && item.cChildren != 0;
}

// --- Places ---------------------------------------------------------------------------------

BOOL CTreeCtrl::GetItemRect(HTREEITEM hItem, LPRECT lpRect, BOOL bTextOnly) const {
    // The message finds the item in the very memory that it writes the rectangle to.
    union {
        HTREEITEM hItem;
        RECT rect;
    } param = {hItem};
    if (!AfxSendPointer(m_hWnd, TVM_GETITEMRECT, static_cast<WPARAM>(bTextOnly), &param))
        return FALSE;
    *lpRect = param.rect;
    return TRUE;
}

HTREEITEM CTreeCtrl::HitTest(TVHITTESTINFO* pHitTestInfo) const {
    return reinterpret_cast<HTREEITEM>(SendMessage(TVM_HITTEST, 0, reinterpret_cast<LPARAM>(pHitTestInfo)));
}

HTREEITEM CTreeCtrl::HitTest(CPoint pt, UINT* pFlags) const {
    TVHITTESTINFO info = {};
    info.pt = pt;
    const HTREEITEM hItem = HitTest(&info);
    if (pFlags != nullptr)
        *pFlags = info.flags;
    return hItem;
}

// --- Pictures and editing -------------------------------------------------------------------

CImageList* CTreeCtrl::GetImageList(UINT nImage) const {
    return CImageList::FromHandle(AfxSendHandle(m_hWnd, TVM_GETIMAGELIST, nImage, HIMAGELIST()));
}

CImageList* CTreeCtrl::SetImageList(CImageList* pImageList, int nImageListType) {
    const HIMAGELIST hImageList = pImageList != nullptr ? pImageList->m_hImageList : nullptr;
    return CImageList::FromHandle(
        AfxSendHandle(m_hWnd, TVM_SETIMAGELIST, static_cast<WPARAM>(nImageListType), hImageList));
}

CEdit* CTreeCtrl::EditLabel(HTREEITEM hItem) {
    return static_cast<CEdit*>(CWnd::FromHandle(
        reinterpret_cast<HWND>(SendMessage(TVM_EDITLABEL, 0, reinterpret_cast<LPARAM>(hItem)))));
}

CEdit* CTreeCtrl::GetEditControl() const {
    return static_cast<CEdit*>(CWnd::FromHandle(AfxSendHandle(m_hWnd, TVM_GETEDITCONTROL, 0, HWND())));
}

CToolTipCtrl* CTreeCtrl::GetToolTips() const {
    return AskForWindow<CToolTipCtrl>(m_hWnd, TVM_GETTOOLTIPS);
}
CToolTipCtrl* CTreeCtrl::SetToolTips(CToolTipCtrl* pWndTip) {
    return AskForWindow<CToolTipCtrl>(m_hWnd, TVM_SETTOOLTIPS, reinterpret_cast<WPARAM>(HandleOf(pWndTip)));
}

CImageList* CTreeCtrl::CreateDragImage(HTREEITEM hItem) {
    return OwnedImages(
        reinterpret_cast<HIMAGELIST>(SendMessage(TVM_CREATEDRAGIMAGE, 0, reinterpret_cast<LPARAM>(hItem))));
}
