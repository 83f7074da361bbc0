#include "window/WndProc.h"
#include "DrawnByOwner.h"

using namespace fieldkit::detail;

IMPLEMENT_DYNAMIC(CListCtrl, CWnd)

// clang-format off
BEGIN_MESSAGE_MAP(CListCtrl, CWnd)
    ON_WM_DESTROY()
END_MESSAGE_MAP()
// clang-format on

BOOL CListCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(WC_LISTVIEW, nullptr, dwStyle, rect, pParentWnd, nID);
}

/// The control would destroy its image lists; those that have an owner are taken from it.
void CListCtrl::OnDestroy() {
    for (const int nType : {LVSIL_NORMAL, LVSIL_SMALL, LVSIL_STATE})
        if (const CImageList* pList = GetImageList(nType);
            pList != nullptr && CImageList::FromHandlePermanent(*pList) == pList)
            SetImageList(nullptr, nType);
    CWnd::OnDestroy();
}

// --- Columns ------------------------------------------------------------------------------

int CListCtrl::InsertColumn(int nCol, LPCTSTR lpszColumnHeading, int nFormat, int nWidth, int nSubItem) {
    LVCOLUMN column = {};
    column.mask = LVCF_TEXT | LVCF_FMT;
    column.pszText = const_cast<LPTSTR>(lpszColumnHeading); // the control only reads it
    column.fmt = nFormat;
    if (nWidth != -1) {
        column.mask |= LVCF_WIDTH;
        column.cx = nWidth;
    }
    if (nSubItem != -1) {
        column.mask |= LVCF_SUBITEM;
        column.iSubItem = nSubItem;
    }
    return InsertColumn(nCol, &column);
}

// --- Items --------------------------------------------------------------------------------

int CListCtrl::InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, UINT nState, UINT nStateMask, int nImage,
                          LPARAM lParam) {
    LVITEM item = {};
    item.mask = nMask;
    item.iItem = nItem;
    item.pszText = const_cast<LPTSTR>(lpszItem);
    item.state = nState;
    item.stateMask = nStateMask;
    item.iImage = nImage;
    item.lParam = lParam;
    return InsertItem(&item);
}

BOOL CListCtrl::SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage, UINT nState,
                        UINT nStateMask, LPARAM lParam) {
    LVITEM item = {};
    item.mask = nMask;
    item.iItem = nItem;
    item.iSubItem = nSubItem;
    item.pszText = const_cast<LPTSTR>(lpszItem);
    item.iImage = nImage;
    item.state = nState;
    item.stateMask = nStateMask;
    item.lParam = lParam;
    return SetItem(&item);
}

int CListCtrl::GetItemText(int nItem, int nSubItem, LPTSTR lpszText, int nLen) const {
    LVITEM item = {};
    item.iSubItem = nSubItem;
    item.pszText = lpszText;
    item.cchTextMax = nLen;
    return AfxSendPointer(m_hWnd, LVM_GETITEMTEXT, static_cast<WPARAM>(nItem), &item);
}

CString CListCtrl::GetItemText(int nItem, int nSubItem) const {
    CString strText;
    int nLength = 0;
    // A text that fills the whole buffer may have been cut off.
    for (int nSize = 128;; nSize *= 2) {
        nLength = GetItemText(nItem, nSubItem, strText.GetBuffer(nSize), nSize);
        strText.ReleaseBuffer(nLength);
        if (nLength < nSize - 1)
            return strText;
    }
}

BOOL CListCtrl::SetItemText(int nItem, int nSubItem, LPCTSTR lpszText) {
    LVITEM item = {};
    item.iSubItem = nSubItem;
    item.pszText = const_cast<LPTSTR>(lpszText);
    return AfxSendPointer(m_hWnd, LVM_SETITEMTEXT, static_cast<WPARAM>(nItem), &item);
}

DWORD_PTR CListCtrl::GetItemData(int nItem) const {
    LVITEM item = {};
    item.mask = LVIF_PARAM;
    item.iItem = nItem;
    return GetItem(&item) ? static_cast<DWORD_PTR>(item.lParam) : 0;
}

BOOL CListCtrl::SetItemData(int nItem, DWORD_PTR dwData) {
    return SetItem(nItem, 0, LVIF_PARAM, nullptr, 0, 0, 0, static_cast<LPARAM>(dwData));
}

BOOL CListCtrl::SortItems(PFNLVCOMPARE pfnCompare, DWORD_PTR dwData) {
    return AfxSendInt(m_hWnd, LVM_SORTITEMS, dwData, reinterpret_cast<LPARAM>(pfnCompare));
}

// --- State and selection ------------------------------------------------------------------

BOOL CListCtrl::SetItemState(int nItem, UINT nState, UINT nMask) {
    LVITEM item = {};
    item.state = nState;
    item.stateMask = nMask;
    return SetItemState(nItem, &item);
}

namespace {

// A position is the item's index plus one, so that null is none.
POSITION ToPosition(int nItem) {
    return reinterpret_cast<POSITION>(static_cast<INT_PTR>(nItem) + 1);
}

} // namespace

POSITION CListCtrl::GetFirstSelectedItemPosition() const {
    return ToPosition(GetNextItem(-1, LVNI_SELECTED));
}

int CListCtrl::GetNextSelectedItem(POSITION& pos) const {
    const int nItem = static_cast<int>(reinterpret_cast<INT_PTR>(pos)) - 1;
    if (nItem >= 0)
        pos = ToPosition(GetNextItem(nItem, LVNI_SELECTED));
    return nItem;
}

// The state image counts from 1: box without check, box with check.
BOOL CListCtrl::GetCheck(int nItem) const {
    return GetItemState(nItem, LVIS_STATEIMAGEMASK) == INDEXTOSTATEIMAGEMASK(2U);
}

BOOL CListCtrl::SetCheck(int nItem, BOOL fCheck) {
    return SetItemState(nItem, INDEXTOSTATEIMAGEMASK(fCheck ? 2U : 1U), LVIS_STATEIMAGEMASK);
}

// --- Places -------------------------------------------------------------------------------

BOOL CListCtrl::GetItemRect(int nItem, LPRECT lpRect, UINT nCode) const {
    lpRect->left = static_cast<LONG>(nCode);
    return AfxSendPointer(m_hWnd, LVM_GETITEMRECT, static_cast<WPARAM>(nItem), lpRect);
}

BOOL CListCtrl::GetSubItemRect(int iItem, int iSubItem, int nArea, CRect& ref) const {
    CRect rect(nArea, iSubItem, 0, 0);
    if (!AfxSendPointer(m_hWnd, LVM_GETSUBITEMRECT, static_cast<WPARAM>(iItem), &rect))
        return FALSE;
    ref = rect;
    return TRUE;
}

int CListCtrl::HitTest(CPoint pt, UINT* pFlags) const {
    LVHITTESTINFO info = {};
    info.pt = pt;
    const int nItem = HitTest(&info);
    if (pFlags != nullptr)
        *pFlags = info.flags;
    return nItem;
}

// --- Pictures and editing -------------------------------------------------------------------

CImageList* CListCtrl::GetImageList(int nImageList) const {
    return CImageList::FromHandle(
        AfxSendHandle(m_hWnd, LVM_GETIMAGELIST, static_cast<WPARAM>(nImageList), HIMAGELIST()));
}

CImageList* CListCtrl::SetImageList(CImageList* pImageList, int nImageListType) {
    const HIMAGELIST hImageList = pImageList != nullptr ? pImageList->m_hImageList : nullptr;
    return CImageList::FromHandle(
        AfxSendHandle(m_hWnd, LVM_SETIMAGELIST, static_cast<WPARAM>(nImageListType), hImageList));
}

CEdit* CListCtrl::EditLabel(int nItem) {
    return static_cast<CEdit*>(
        CWnd::FromHandle(AfxSendHandle(m_hWnd, LVM_EDITLABEL, static_cast<WPARAM>(nItem), HWND())));
}

CEdit* CListCtrl::GetEditControl() const {
    return static_cast<CEdit*>(CWnd::FromHandle(AfxSendHandle(m_hWnd, LVM_GETEDITCONTROL, 0, HWND())));
}

// --- Layout ---------------------------------------------------------------------------------

CHeaderCtrl* CListCtrl::GetHeaderCtrl() const {
    return AskForWindow<CHeaderCtrl>(m_hWnd, LVM_GETHEADER);
}

BOOL CListCtrl::GetColumnOrderArray(LPINT piArray, int iCount) const {
    const CHeaderCtrl* pHeader = GetHeaderCtrl();
    if (iCount < 0 && pHeader != nullptr)
        iCount = pHeader->GetItemCount();
    return AfxSendPointer(m_hWnd, LVM_GETCOLUMNORDERARRAY, static_cast<WPARAM>(iCount), piArray);
}

CSize CListCtrl::ApproximateViewRect(CSize sz, int iCount) const {
    return CSize(static_cast<DWORD>(
        AfxSendInt(m_hWnd, LVM_APPROXIMATEVIEWRECT, static_cast<WPARAM>(iCount), MAKELPARAM(sz.cx, sz.cy))));
}

BOOL CListCtrl::GetItemSpacing(BOOL fSmall, int* pnHorzSpacing, int* pnVertSpacing) const {
    const int nSpacing = AfxSendInt(m_hWnd, LVM_GETITEMSPACING, static_cast<WPARAM>(fSmall));
    *pnHorzSpacing = LOWORD(nSpacing);
    *pnVertSpacing = HIWORD(nSpacing);
    return TRUE;
}

CSize CListCtrl::SetIconSpacing(int cx, int cy) {
    return CSize(static_cast<DWORD>(AfxSendInt(m_hWnd, LVM_SETICONSPACING, 0, MAKELPARAM(cx, cy))));
}

CToolTipCtrl* CListCtrl::GetToolTips() const {
    return AskForWindow<CToolTipCtrl>(m_hWnd, LVM_GETTOOLTIPS);
}
CToolTipCtrl* CListCtrl::SetToolTips(CToolTipCtrl* pWndTip) {
    return AskForWindow<CToolTipCtrl>(m_hWnd, LVM_SETTOOLTIPS, reinterpret_cast<WPARAM>(HandleOf(pWndTip)));
}

CImageList* CListCtrl::CreateDragImage(int nItem, LPPOINT lpPoint) {
    return OwnedImages(reinterpret_cast<HIMAGELIST>(
        SendMessage(LVM_CREATEDRAGIMAGE, static_cast<WPARAM>(nItem), reinterpret_cast<LPARAM>(lpPoint))));
}

// --- Owner draw -----------------------------------------------------------------------------

void CListCtrl::DrawItem(LPDRAWITEMSTRUCT) {}

BOOL CListCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    return DrawnByOwner(*this, message, lParam) || CWnd::OnChildNotify(message, wParam, lParam, pResult);
}
