/// @file
/// The list view. Included by afxcmn.h.
#pragma once

#include "afximl_.h"

class CHeaderCtrl;
class CToolTipCtrl;

/// A list view. Items, sub-items and columns count from 0; -1 stands for none and for
/// failure; sub-item 0 is the item itself.
class AFX_CORE CListCtrl : public CWnd {
    DECLARE_DYNAMIC(CListCtrl)
public:
    CListCtrl() = default;
    /// Creates the control as a child. @return FALSE if the system refuses
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    using CWnd::Create;

    // --- Columns -----------------------------------------------------------------------
    /// Reads or writes what the mask of `pColumn` names. @return FALSE on failure
    ///@{
    BOOL GetColumn(int nCol, LVCOLUMN* pColumn) const {
        return AfxSendPointer(m_hWnd, LVM_GETCOLUMN, static_cast<WPARAM>(nCol), pColumn);
    }
    BOOL SetColumn(int nCol, const LVCOLUMN* pColumn) {
        return AfxSendPointer(m_hWnd, LVM_SETCOLUMN, static_cast<WPARAM>(nCol), pColumn);
    }
    ///@}
    /// @return the new column
    int InsertColumn(int nCol, const LVCOLUMN* pColumn) {
        return AfxSendPointer(m_hWnd, LVM_INSERTCOLUMN, static_cast<WPARAM>(nCol), pColumn);
    }
    /// @param nFormat  LVCFMT_...
    /// @param nWidth   pixels, -1 the control's choice
    /// @param nSubItem the sub-item that the column shows, -1 none in particular
    int InsertColumn(int nCol, LPCTSTR lpszColumnHeading, int nFormat = LVCFMT_LEFT, int nWidth = -1,
                     int nSubItem = -1);
    /// Deletes a column. @return FALSE if there is none
    BOOL DeleteColumn(int nCol) { return AfxSendInt(m_hWnd, LVM_DELETECOLUMN, static_cast<WPARAM>(nCol)); }
    /// The column's width in pixels.
    int GetColumnWidth(int nCol) const {
        return AfxSendInt(m_hWnd, LVM_GETCOLUMNWIDTH, static_cast<WPARAM>(nCol));
    }
    /// @param cx pixels, or LVSCW_AUTOSIZE, LVSCW_AUTOSIZE_USEHEADER
    BOOL SetColumnWidth(int nCol, int cx) {
        return AfxSendInt(m_hWnd, LVM_SETCOLUMNWIDTH, static_cast<WPARAM>(nCol), MAKELPARAM(cx, 0));
    }
    /// The columns in the order of the screen. iCount -1 is all.
    ///@{
    BOOL GetColumnOrderArray(LPINT piArray, int iCount = -1) const;
    BOOL SetColumnOrderArray(int iCount, LPINT piArray) {
        return AfxSendPointer(m_hWnd, LVM_SETCOLUMNORDERARRAY, static_cast<WPARAM>(iCount), piArray);
    }
    ///@}
    /// The titles above the columns; null for none.
    CHeaderCtrl* GetHeaderCtrl() const;
    /// The column that is shown as selected.
    ///@{
    UINT GetSelectedColumn() const { return static_cast<UINT>(AfxSendInt(m_hWnd, LVM_GETSELECTEDCOLUMN)); }
    void SetSelectedColumn(int iCol) { AfxSendInt(m_hWnd, LVM_SETSELECTEDCOLUMN, static_cast<WPARAM>(iCol)); }
    ///@}
    /// Width of a text in the control's font, pixels.
    int GetStringWidth(LPCTSTR lpsz) const { return AfxSendPointer(m_hWnd, LVM_GETSTRINGWIDTH, 0, lpsz); }

    // --- Items -------------------------------------------------------------------------
    /// The number of items.
    int GetItemCount() const { return AfxSendInt(m_hWnd, LVM_GETITEMCOUNT); }
    /// Makes room for so many items; an LVS_OWNERDATA list then has them.
    void SetItemCount(int nItems) { AfxSendInt(m_hWnd, LVM_SETITEMCOUNT, static_cast<WPARAM>(nItems)); }
    /// @param dwFlags LVSICF_... @return TRUE on success
    BOOL SetItemCountEx(int nCount, DWORD dwFlags = LVSICF_NOINVALIDATEALL) {
        return AfxSendInt(m_hWnd, LVM_SETITEMCOUNT, static_cast<WPARAM>(nCount),
                          static_cast<LPARAM>(dwFlags));
    }
    /// @return where the item is: in a sorted list not where it was wanted
    int InsertItem(const LVITEM* pItem) { return AfxSendPointer(m_hWnd, LVM_INSERTITEM, 0, pItem); }
    /// The same with a text, and with an image.
    ///@{
    int InsertItem(int nItem, LPCTSTR lpszItem) { return InsertItem(LVIF_TEXT, nItem, lpszItem, 0, 0, 0, 0); }
    int InsertItem(int nItem, LPCTSTR lpszItem, int nImage) {
        return InsertItem(LVIF_TEXT | LVIF_IMAGE, nItem, lpszItem, 0, 0, nImage, 0);
    }
    ///@}
    /// @param nMask LVIF_...: which of the other values count
    int InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, UINT nState, UINT nStateMask, int nImage,
                   LPARAM lParam);
    /// Deletes an item, or all. @return FALSE on failure
    ///@{
    BOOL DeleteItem(int nItem) { return AfxSendInt(m_hWnd, LVM_DELETEITEM, static_cast<WPARAM>(nItem)); }
    BOOL DeleteAllItems() { return AfxSendInt(m_hWnd, LVM_DELETEALLITEMS); }
    ///@}
    /// Reads or writes what the mask names. @return FALSE on failure
    ///@{
    BOOL GetItem(LVITEM* pItem) const { return AfxSendPointer(m_hWnd, LVM_GETITEM, 0, pItem); }
    BOOL SetItem(const LVITEM* pItem) { return AfxSendPointer(m_hWnd, LVM_SETITEM, 0, pItem); }
    BOOL SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage, UINT nState,
                 UINT nStateMask, LPARAM lParam);
    ///@}
    /// @param nLen room at lpszText with the terminator @return the characters written
    int GetItemText(int nItem, int nSubItem, LPTSTR lpszText, int nLen) const;
    /// The whole text, however long; empty if there is no such item.
    CString GetItemText(int nItem, int nSubItem) const;
    /// Changes the text of an item or a sub-item. @return FALSE on failure
    BOOL SetItemText(int nItem, int nSubItem, LPCTSTR lpszText);
    /// 0 if there is no such item.
    DWORD_PTR GetItemData(int nItem) const;
    /// Changes the item's data. @return FALSE on failure
    BOOL SetItemData(int nItem, DWORD_PTR dwData);
    /// @param pfnCompare negative if its first item shall stand before its second; it is
    ///   given the items' data and then dwData
    BOOL SortItems(PFNLVCOMPARE pfnCompare, DWORD_PTR dwData);
    /// The same, but the function is given the items' places instead of their data.
    BOOL SortItemsEx(PFNLVCOMPARE pfnCompare, DWORD_PTR dwData) {
        return AfxSendInt(m_hWnd, LVM_SORTITEMSEX, dwData, reinterpret_cast<LPARAM>(pfnCompare));
    }
    /// A number that stays with an item wherever it goes, and back.
    ///@{
    UINT MapIndexToID(UINT index) const {
        return static_cast<UINT>(AfxSendInt(m_hWnd, LVM_MAPINDEXTOID, index));
    }
    UINT MapIDToIndex(UINT id) const { return static_cast<UINT>(AfxSendInt(m_hWnd, LVM_MAPIDTOINDEX, id)); }
    ///@}
    /// @param nStart the search begins behind this item; -1 at the top
    int FindItem(const LVFINDINFO* pFindInfo, int nStart = -1) const {
        return AfxSendPointer(m_hWnd, LVM_FINDITEM, static_cast<WPARAM>(nStart), pFindInfo);
    }

    // --- State and selection -----------------------------------------------------------
    /// The bits of `nMask` (LVIS_...) that the item has.
    UINT GetItemState(int nItem, UINT nMask) const {
        return static_cast<UINT>(AfxSendInt(m_hWnd, LVM_GETITEMSTATE, static_cast<WPARAM>(nItem), nMask));
    }
    /// The same with the states and the mask of `pItem`.
    BOOL SetItemState(int nItem, const LVITEM* pItem) {
        return AfxSendPointer(m_hWnd, LVM_SETITEMSTATE, static_cast<WPARAM>(nItem), pItem);
    }
    /// @param nItem -1 is all items
    /// @param nMask the bits of nState (LVIS_...) that are set or cleared
    BOOL SetItemState(int nItem, UINT nState, UINT nMask);
    /// @param nFlags LVNI_... @return the next item behind nItem (-1: from the top) of that kind
    int GetNextItem(int nItem, int nFlags) const {
        return AfxSendInt(m_hWnd, LVM_GETNEXTITEM, static_cast<WPARAM>(nItem), MAKELPARAM(nFlags, 0));
    }
    /// The number of selected items.
    UINT GetSelectedCount() const { return static_cast<UINT>(AfxSendInt(m_hWnd, LVM_GETSELECTEDCOUNT)); }
    /// Walks over the selected items, which must not change meanwhile. Null: there is none.
    POSITION GetFirstSelectedItemPosition() const;
    /// @param pos from GetFirstSelectedItemPosition; moved to the next one, null behind the last
    int GetNextSelectedItem(POSITION& pos) const;
    /// The item that a selection by Shift starts from.
    int GetSelectionMark() const { return AfxSendInt(m_hWnd, LVM_GETSELECTIONMARK); }
    /// Sets the item that a selection by Shift starts from. @return the previous one
    int SetSelectionMark(int iIndex) { return AfxSendInt(m_hWnd, LVM_SETSELECTIONMARK, 0, iIndex); }
    /// The check boxes of LVS_EX_CHECKBOXES.
    BOOL GetCheck(int nItem) const;
    /// See GetCheck. @return FALSE on failure
    BOOL SetCheck(int nItem, BOOL fCheck = TRUE);
    /// The item under the pen or mouse, in a list that marks it. Setters return the previous value.
    ///@{
    int GetHotItem() const { return AfxSendInt(m_hWnd, LVM_GETHOTITEM); }
    int SetHotItem(int iIndex) { return AfxSendInt(m_hWnd, LVM_SETHOTITEM, static_cast<WPARAM>(iIndex)); }
    HCURSOR GetHotCursor() const { return AfxSendHandle(m_hWnd, LVM_GETHOTCURSOR, 0, HCURSOR()); }
    HCURSOR SetHotCursor(HCURSOR hc) { return AfxSendHandle(m_hWnd, LVM_SETHOTCURSOR, 0, hc); }
    DWORD GetHoverTime() const { return static_cast<DWORD>(AfxSendInt(m_hWnd, LVM_GETHOVERTIME)); }
    /// @param dwHoverTime milliseconds until the item under the mouse is selected, -1 the default
    DWORD SetHoverTime(DWORD dwHoverTime = static_cast<DWORD>(-1)) {
        return static_cast<DWORD>(AfxSendInt(m_hWnd, LVM_SETHOVERTIME, 0, static_cast<LPARAM>(dwHoverTime)));
    }
    ///@}
    /// The states (LVIS_...) that the parent keeps itself and is asked for.
    ///@{
    UINT GetCallbackMask() const { return static_cast<UINT>(AfxSendInt(m_hWnd, LVM_GETCALLBACKMASK)); }
    BOOL SetCallbackMask(UINT nMask) { return AfxSendInt(m_hWnd, LVM_SETCALLBACKMASK, nMask); }
    ///@}

    // --- Places ------------------------------------------------------------------------
    /// @param nCode LVIR_...
    BOOL GetItemRect(int nItem, LPRECT lpRect, UINT nCode) const;
    /// @param nArea LVIR_... @param ref written only on success
    BOOL GetSubItemRect(int iItem, int iSubItem, int nArea, CRect& ref) const;
    /// The upper left corner of an item. @return FALSE on failure
    BOOL GetItemPosition(int nItem, LPPOINT lpPoint) const {
        return AfxSendPointer(m_hWnd, LVM_GETITEMPOSITION, static_cast<WPARAM>(nItem), lpPoint);
    }
    /// Moves an item of an icon view. @return FALSE on failure
    BOOL SetItemPosition(int nItem, POINT pt) {
        return AfxSendPointer(m_hWnd, LVM_SETITEMPOSITION32, static_cast<WPARAM>(nItem), &pt);
    }
    /// The rectangle of all items in an icon view. @return FALSE on failure
    BOOL GetViewRect(LPRECT lpRect) const { return AfxSendPointer(m_hWnd, LVM_GETVIEWRECT, 0, lpRect); }
    /// The item at the point in `pHitTestInfo`, which receives where on the item it is.
    int HitTest(LVHITTESTINFO* pHitTestInfo) const {
        return AfxSendPointer(m_hWnd, LVM_HITTEST, 0, pHitTestInfo);
    }
    /// @param pt client coordinates @param pFlags receives LVHT_...; may be null
    int HitTest(CPoint pt, UINT* pFlags = nullptr) const;
    /// The same with sub-items.
    int SubItemHitTest(LPLVHITTESTINFO pInfo) { return AfxSendPointer(m_hWnd, LVM_SUBITEMHITTEST, 0, pInfo); }
    /// Scrolls to an item.
    /// @param bPartialOK TRUE: not if a part of it can be seen @return FALSE on failure
    BOOL EnsureVisible(int nItem, BOOL bPartialOK) {
        return AfxSendInt(m_hWnd, LVM_ENSUREVISIBLE, static_cast<WPARAM>(nItem), MAKELPARAM(bPartialOK, 0));
    }
    /// @param size pixels; in a report the height is rounded to whole lines
    BOOL Scroll(CSize size) { return AfxSendInt(m_hWnd, LVM_SCROLL, static_cast<WPARAM>(size.cx), size.cy); }
    /// The size that a number of items needs. @param sz -1 what is there @param iCount -1 all
    CSize ApproximateViewRect(CSize sz = CSize(-1, -1), int iCount = -1) const;
    BOOL IsItemVisible(int nItem) const {
        return AfxSendInt(m_hWnd, LVM_ISITEMVISIBLE, static_cast<WPARAM>(nItem));
    }
    /// The upper left corner of an icon view, in the coordinates of its items.
    BOOL GetOrigin(LPPOINT lpPoint) const { return AfxSendPointer(m_hWnd, LVM_GETORIGIN, 0, lpPoint); }
    /// Pixels from one icon to the next. SetIconSpacing returns the previous ones.
    ///@{
    BOOL GetItemSpacing(BOOL fSmall, int* pnHorzSpacing, int* pnVertSpacing) const;
    CSize SetIconSpacing(int cx, int cy);
    CSize SetIconSpacing(CSize size) { return SetIconSpacing(size.cx, size.cy); }
    ///@}
    /// The first item that can be seen.
    int GetTopIndex() const { return AfxSendInt(m_hWnd, LVM_GETTOPINDEX); }
    /// The items that the window has room for.
    int GetCountPerPage() const { return AfxSendInt(m_hWnd, LVM_GETCOUNTPERPAGE); }
    /// Draws both items and those between them again when the window is next painted.
    BOOL RedrawItems(int nFirst, int nLast) {
        return AfxSendInt(m_hWnd, LVM_REDRAWITEMS, static_cast<WPARAM>(nFirst), nLast);
    }
    /// Draws an item again at once. @return FALSE on failure
    BOOL Update(int nItem) { return AfxSendInt(m_hWnd, LVM_UPDATE, static_cast<WPARAM>(nItem)); }
    /// @param nCode LVA_...
    BOOL Arrange(UINT nCode) { return AfxSendInt(m_hWnd, LVM_ARRANGE, nCode); }

    // --- Looks -------------------------------------------------------------------------
    /// LVS_EX_... styles
    DWORD GetExtendedStyle() const {
        return static_cast<DWORD>(AfxSendInt(m_hWnd, LVM_GETEXTENDEDLISTVIEWSTYLE));
    }
    /// @param dwNewStyle all that shall be set from now on @return the previous ones
    DWORD SetExtendedStyle(DWORD dwNewStyle) {
        return static_cast<DWORD>(
            AfxSendInt(m_hWnd, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, static_cast<LPARAM>(dwNewStyle)));
    }
    /// @param nImageList LVSIL_... @return null if there is none
    CImageList* GetImageList(int nImageList) const;
    /// @param pImageList must outlive the control or be taken away; null takes it away
    /// @return the previous list
    CImageList* SetImageList(CImageList* pImageList, int nImageListType);
    /// Colours of the surface, the text and what is behind the text; CLR_NONE is none. Setters
    /// return FALSE on failure.
    ///@{
    COLORREF GetBkColor() const { return static_cast<COLORREF>(AfxSendInt(m_hWnd, LVM_GETBKCOLOR)); }
    BOOL SetBkColor(COLORREF cr) { return AfxSendInt(m_hWnd, LVM_SETBKCOLOR, 0, static_cast<LPARAM>(cr)); }
    COLORREF GetTextColor() const { return static_cast<COLORREF>(AfxSendInt(m_hWnd, LVM_GETTEXTCOLOR)); }
    BOOL SetTextColor(COLORREF cr) {
        return AfxSendInt(m_hWnd, LVM_SETTEXTCOLOR, 0, static_cast<LPARAM>(cr));
    }
    COLORREF GetTextBkColor() const { return static_cast<COLORREF>(AfxSendInt(m_hWnd, LVM_GETTEXTBKCOLOR)); }
    BOOL SetTextBkColor(COLORREF cr) {
        return AfxSendInt(m_hWnd, LVM_SETTEXTBKCOLOR, 0, static_cast<LPARAM>(cr));
    }
    ///@}

    /// A picture behind the items.
    ///@{
    BOOL GetBkImage(LVBKIMAGE* plvbkImage) const {
        return AfxSendPointer(m_hWnd, LVM_GETBKIMAGE, 0, plvbkImage);
    }
    BOOL SetBkImage(LVBKIMAGE* plvbkImage) { return AfxSendPointer(m_hWnd, LVM_SETBKIMAGE, 0, plvbkImage); }
    ///@}
    /// LV_VIEW_...: how items are shown. SetView returns 1, or -1 on failure.
    ///@{
    DWORD GetView() const { return static_cast<DWORD>(AfxSendInt(m_hWnd, LVM_GETVIEW)); }
    DWORD SetView(int iView) {
        return static_cast<DWORD>(AfxSendInt(m_hWnd, LVM_SETVIEW, static_cast<WPARAM>(iView)));
    }
    ///@}
    /// The control's tool tip. SetToolTips returns the previous one.
    ///@{
    CToolTipCtrl* GetToolTips() const;
    CToolTipCtrl* SetToolTips(CToolTipCtrl* pWndTip);
    ///@}
    /// @param lpPoint receives the upper left corner of the picture
    /// @return a picture of the item to be dragged, which the caller deletes; null on failure
    CImageList* CreateDragImage(int nItem, LPPOINT lpPoint);

    // --- Groups --------------------------------------------------------------------------
    /// Groups are named by the number that they were inserted with; -1 is failure.
    ///@{
    LRESULT EnableGroupView(BOOL fEnable) {
        return AfxSendInt(m_hWnd, LVM_ENABLEGROUPVIEW, static_cast<WPARAM>(fEnable));
    }
    BOOL IsGroupViewEnabled() const { return AfxSendInt(m_hWnd, LVM_ISGROUPVIEWENABLED); }
    LRESULT InsertGroup(int index, PLVGROUP pgrp) {
        return AfxSendPointer(m_hWnd, LVM_INSERTGROUP, static_cast<WPARAM>(index), pgrp);
    }
    LRESULT RemoveGroup(int nGroupId) {
        return AfxSendInt(m_hWnd, LVM_REMOVEGROUP, static_cast<WPARAM>(nGroupId));
    }
    void RemoveAllGroups() { AfxSendInt(m_hWnd, LVM_REMOVEALLGROUPS); }
    BOOL HasGroup(int nGroupId) const {
        return AfxSendInt(m_hWnd, LVM_HASGROUP, static_cast<WPARAM>(nGroupId));
    }
    int GetGroupCount() const { return AfxSendInt(m_hWnd, LVM_GETGROUPCOUNT); }
    int GetGroupInfo(int nGroupId, PLVGROUP pgrp) const {
        return AfxSendPointer(m_hWnd, LVM_GETGROUPINFO, static_cast<WPARAM>(nGroupId), pgrp);
    }
    int SetGroupInfo(int nGroupId, PLVGROUP pgrp) {
        return AfxSendPointer(m_hWnd, LVM_SETGROUPINFO, static_cast<WPARAM>(nGroupId), pgrp);
    }
    ///@}

    // --- Editing -----------------------------------------------------------------------
    /// Begins to edit an item's text in place. @return the entry field, null on failure
    CEdit* EditLabel(int nItem);
    /// The entry field while a text is edited in place; null else.
    CEdit* GetEditControl() const;
    /// Ends editing in place; the old text stays.
    void CancelEditLabel() { AfxSendInt(m_hWnd, LVM_CANCELEDITLABEL); }

    /// Draws an item of an LVS_OWNERDRAWFIXED list; override it.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
    /// Takes the image lists away from the control: they stay with their objects.
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()
};
