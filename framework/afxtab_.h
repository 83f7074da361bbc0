/// @file
/// Tabs and the header of columns. Included by afxcmn.h.
///
/// A member that is one message to the control means what that message means, and has its result.
#pragma once

#include "afxbar_.h"

/// A row of tabs. Tabs count from 0; -1 stands for none and for failure.
class AFX_CORE CTabCtrl : public CWnd {
    DECLARE_DYNAMIC(CTabCtrl)
public:
    CTabCtrl() = default;
    /// Creates the control as a child. @return FALSE if the system refuses
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
        return CWnd::Create(WC_TABCONTROL, nullptr, dwStyle, rect, pParentWnd, nID);
    }
    using CWnd::Create;

    // --- Tabs ----------------------------------------------------------------------------
    /// The tab's place among the others. @return the new tab
    ///@{
    LONG InsertItem(int nItem, TCITEM* pTabCtrlItem) {
        return AfxSendPointer(m_hWnd, TCM_INSERTITEM, static_cast<WPARAM>(nItem), pTabCtrlItem);
    }
    LONG InsertItem(int nItem, LPCTSTR lpszItem) { return InsertItem(TCIF_TEXT, nItem, lpszItem, 0, 0); }
    LONG InsertItem(int nItem, LPCTSTR lpszItem, int nImage) {
        return InsertItem(TCIF_TEXT | TCIF_IMAGE, nItem, lpszItem, nImage, 0);
    }
    /// @param nMask TCIF_...: which of the other values count
    LONG InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, int nImage, LPARAM lParam, UINT nState = 0,
                    UINT nStateMask = 0);
    ///@}
    ///@{
    BOOL DeleteItem(int nItem) { return AfxSendInt(m_hWnd, TCM_DELETEITEM, static_cast<WPARAM>(nItem)); }
    BOOL DeleteAllItems() { return AfxSendInt(m_hWnd, TCM_DELETEALLITEMS); }
    int GetItemCount() const { return AfxSendInt(m_hWnd, TCM_GETITEMCOUNT); }
    BOOL GetItem(int nItem, TCITEM* pTabCtrlItem) const {
        return AfxSendPointer(m_hWnd, TCM_GETITEM, static_cast<WPARAM>(nItem), pTabCtrlItem);
    }
    BOOL SetItem(int nItem, TCITEM* pTabCtrlItem) {
        return AfxSendPointer(m_hWnd, TCM_SETITEM, static_cast<WPARAM>(nItem), pTabCtrlItem);
    }
    /// @param nBytes of each tab for the application; before there is any tab
    BOOL SetItemExtra(int nBytes) {
        return AfxSendInt(m_hWnd, TCM_SETITEMEXTRA, static_cast<WPARAM>(nBytes));
    }
    DWORD GetItemState(int nItem, DWORD dwMask) const;
    BOOL SetItemState(int nItem, DWORD dwMask, DWORD dwState);
    ///@}
    /// Selecting by SetCurSel sends no notification.
    ///@{
    int GetCurSel() const { return AfxSendInt(m_hWnd, TCM_GETCURSEL); }
    int SetCurSel(int nItem) { return AfxSendInt(m_hWnd, TCM_SETCURSEL, static_cast<WPARAM>(nItem)); }
    int GetCurFocus() const { return AfxSendInt(m_hWnd, TCM_GETCURFOCUS); }
    void SetCurFocus(int nItem) { AfxSendInt(m_hWnd, TCM_SETCURFOCUS, static_cast<WPARAM>(nItem)); }
    void DeselectAll(BOOL fExcludeFocus) {
        AfxSendInt(m_hWnd, TCM_DESELECTALL, static_cast<WPARAM>(fExcludeFocus));
    }
    BOOL HighlightItem(int idItem, BOOL fHighlight = TRUE) {
        return AfxSendInt(m_hWnd, TCM_HIGHLIGHTITEM, static_cast<WPARAM>(idItem), MAKELPARAM(fHighlight, 0));
    }
    ///@}

    // --- Layout --------------------------------------------------------------------------
    ///@{
    /// @param bLarger TRUE: from the area for pages to the whole control, else back
    void AdjustRect(BOOL bLarger, LPRECT lpRect) {
        AfxSendPointer(m_hWnd, TCM_ADJUSTRECT, static_cast<WPARAM>(bLarger), lpRect);
    }
    BOOL GetItemRect(int nItem, LPRECT lpRect) const {
        return AfxSendPointer(m_hWnd, TCM_GETITEMRECT, static_cast<WPARAM>(nItem), lpRect);
    }
    int HitTest(TCHITTESTINFO* pHitTestInfo) const {
        return AfxSendPointer(m_hWnd, TCM_HITTEST, 0, pHitTestInfo);
    }
    /// @return the previous size
    CSize SetItemSize(CSize size) {
        return CSize(
            static_cast<DWORD>(AfxSendInt(m_hWnd, TCM_SETITEMSIZE, 0, MAKELPARAM(size.cx, size.cy))));
    }
    void SetPadding(CSize size) { AfxSendInt(m_hWnd, TCM_SETPADDING, 0, MAKELPARAM(size.cx, size.cy)); }
    int SetMinTabWidth(int cx) { return AfxSendInt(m_hWnd, TCM_SETMINTABWIDTH, 0, cx); }
    int GetRowCount() const { return AfxSendInt(m_hWnd, TCM_GETROWCOUNT); }
    DWORD GetExtendedStyle() const { return static_cast<DWORD>(AfxSendInt(m_hWnd, TCM_GETEXTENDEDSTYLE)); }
    /// @param dwExMask the styles that are changed, 0 for all
    DWORD SetExtendedStyle(DWORD dwNewStyle, DWORD dwExMask = 0) {
        return static_cast<DWORD>(
            AfxSendInt(m_hWnd, TCM_SETEXTENDEDSTYLE, dwExMask, static_cast<LPARAM>(dwNewStyle)));
    }
    ///@}
    /// Pictures and tips are not owned. SetImageList returns the previous list.
    ///@{
    CImageList* GetImageList() const;
    CImageList* SetImageList(CImageList* pImageList);
    void RemoveImage(int nImage) { AfxSendInt(m_hWnd, TCM_REMOVEIMAGE, static_cast<WPARAM>(nImage)); }
    CToolTipCtrl* GetToolTips() const;
    void SetToolTips(CToolTipCtrl* pWndTip);
    ///@}
    /// Draws a tab of a TCS_OWNERDRAWFIXED control; override it.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};

/// The titles above columns, that of a list view for example. Items count from 0.
class AFX_CORE CHeaderCtrl : public CWnd {
    DECLARE_DYNAMIC(CHeaderCtrl)
public:
    CHeaderCtrl() = default;
    /// Creates the control as a child. @return FALSE if the system refuses
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
        return CWnd::Create(WC_HEADER, nullptr, dwStyle, rect, pParentWnd, nID);
    }
    using CWnd::Create;

    ///@{
    int GetItemCount() const { return AfxSendInt(m_hWnd, HDM_GETITEMCOUNT); }
    BOOL GetItem(int nPos, HDITEM* pHeaderItem) const {
        return AfxSendPointer(m_hWnd, HDM_GETITEM, static_cast<WPARAM>(nPos), pHeaderItem);
    }
    BOOL SetItem(int nPos, HDITEM* pHeaderItem) {
        return AfxSendPointer(m_hWnd, HDM_SETITEM, static_cast<WPARAM>(nPos), pHeaderItem);
    }
    int InsertItem(int nPos, HDITEM* phdi) {
        return AfxSendPointer(m_hWnd, HDM_INSERTITEM, static_cast<WPARAM>(nPos), phdi);
    }
    BOOL DeleteItem(int nPos) { return AfxSendInt(m_hWnd, HDM_DELETEITEM, static_cast<WPARAM>(nPos)); }
    BOOL Layout(HDLAYOUT* pHeaderLayout) { return AfxSendPointer(m_hWnd, HDM_LAYOUT, 0, pHeaderLayout); }
    BOOL GetItemRect(int nIndex, LPRECT lpRect) const {
        return AfxSendPointer(m_hWnd, HDM_GETITEMRECT, static_cast<WPARAM>(nIndex), lpRect);
    }
    int HitTest(LPHDHITTESTINFO phdhti) { return AfxSendPointer(m_hWnd, HDM_HITTEST, 0, phdhti); }
    /// Items in the order of the screen, from left to right. iCount -1 is all.
    BOOL GetOrderArray(LPINT piArray, int iCount = -1) const {
        return AfxSendPointer(m_hWnd, HDM_GETORDERARRAY,
                              static_cast<WPARAM>(iCount < 0 ? GetItemCount() : iCount), piArray);
    }
    BOOL SetOrderArray(int iCount, LPINT piArray) {
        return AfxSendPointer(m_hWnd, HDM_SETORDERARRAY, static_cast<WPARAM>(iCount), piArray);
    }
    int OrderToIndex(int nOrder) const {
        return AfxSendInt(m_hWnd, HDM_ORDERTOINDEX, static_cast<WPARAM>(nOrder));
    }
    int SetHotDivider(CPoint pt) {
        return AfxSendInt(m_hWnd, HDM_SETHOTDIVIDER, TRUE, MAKELPARAM(pt.x, pt.y));
    }
    int SetHotDivider(int nIndex) { return AfxSendInt(m_hWnd, HDM_SETHOTDIVIDER, FALSE, nIndex); }
    int GetBitmapMargin() const { return AfxSendInt(m_hWnd, HDM_GETBITMAPMARGIN); }
    int SetBitmapMargin(int nWidth) {
        return AfxSendInt(m_hWnd, HDM_SETBITMAPMARGIN, static_cast<WPARAM>(nWidth));
    }
    int EditFilter(int nColumn, BOOL bDiscardChanges) {
        return AfxSendInt(m_hWnd, HDM_EDITFILTER, static_cast<WPARAM>(nColumn),
                          MAKELPARAM(bDiscardChanges, 0));
    }
    int ClearFilter(int nColumn) { return AfxSendInt(m_hWnd, HDM_CLEARFILTER, static_cast<WPARAM>(nColumn)); }
    int ClearAllFilters() { return ClearFilter(-1); }
    int SetFilterChangeTimeout(DWORD dwTimeOut) {
        return AfxSendInt(m_hWnd, HDM_SETFILTERCHANGETIMEOUT, 0, static_cast<LPARAM>(dwTimeOut));
    }
    ///@}
    /// The list is not owned; SetImageList returns the previous one.
    ///@{
    CImageList* GetImageList() const;
    CImageList* SetImageList(CImageList* pImageList);
    ///@}
    /// @return a picture of the item to be dragged, which the caller deletes; null on failure
    CImageList* CreateDragImage(int nIndex);
    /// Draws an HDF_OWNERDRAW item; override it.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};
