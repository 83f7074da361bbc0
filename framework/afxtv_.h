/// @file
/// The tree view. Included by afxcmn.h.
#pragma once

#include "afximl_.h"

class CToolTipCtrl;

/// A tree view. Null stands for no item and for failure.
class AFX_CORE CTreeCtrl : public CWnd {
    DECLARE_DYNAMIC(CTreeCtrl)
public:
    CTreeCtrl() = default;
    /// Creates the control as a child. @return FALSE if the system refuses
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    using CWnd::Create;

    // --- Items -------------------------------------------------------------------------
    /// The number of items.
    UINT GetCount() const { return static_cast<UINT>(AfxSendInt(m_hWnd, TVM_GETCOUNT)); }
    /// Inserts an item as the structure says. @return the item, null on failure
    HTREEITEM InsertItem(LPTVINSERTSTRUCT lpInsertStruct);
    /// @param nMask TVIF_...: which of the other values count
    HTREEITEM InsertItem(UINT nMask, LPCTSTR lpszItem, int nImage, int nSelectedImage, UINT nState,
                         UINT nStateMask, LPARAM lParam, HTREEITEM hParent, HTREEITEM hInsertAfter);
    /// @param hInsertAfter a child of hParent, or TVI_FIRST, TVI_LAST, TVI_SORT
    HTREEITEM InsertItem(LPCTSTR lpszItem, HTREEITEM hParent = TVI_ROOT, HTREEITEM hInsertAfter = TVI_LAST) {
        return InsertItem(TVIF_TEXT, lpszItem, 0, 0, 0, 0, 0, hParent, hInsertAfter);
    }
    /// The same with images. @return the item, null on failure
    ///@{
    HTREEITEM InsertItem(LPCTSTR lpszItem, int nImage, int nSelectedImage, HTREEITEM hParent = TVI_ROOT,
                         HTREEITEM hInsertAfter = TVI_LAST) {
        return InsertItem(TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE, lpszItem, nImage, nSelectedImage, 0, 0,
                          0, hParent, hInsertAfter);
    }
    ///@}
    /// Deletes the item's children as well.
    BOOL DeleteItem(HTREEITEM hItem) { return AfxSendPointer(m_hWnd, TVM_DELETEITEM, 0, hItem); }
    /// Deletes all items. @return FALSE on failure
    BOOL DeleteAllItems() { return DeleteItem(TVI_ROOT); }
    /// Reads or writes what the mask names. @return FALSE on failure
    ///@{
    BOOL GetItem(TVITEM* pItem) const { return AfxSendPointer(m_hWnd, TVM_GETITEM, 0, pItem); }
    BOOL SetItem(TVITEM* pItem) { return AfxSendPointer(m_hWnd, TVM_SETITEM, 0, pItem); }
    BOOL SetItem(HTREEITEM hItem, UINT nMask, LPCTSTR lpszItem, int nImage, int nSelectedImage, UINT nState,
                 UINT nStateMask, LPARAM lParam);
    ///@}
    /// The whole text, however long; empty if there is no such item.
    CString GetItemText(HTREEITEM hItem) const;
    /// Changes the item's text. @return FALSE on failure
    BOOL SetItemText(HTREEITEM hItem, LPCTSTR lpszItem);
    /// @param nImage, nSelectedImage written only on success
    BOOL GetItemImage(HTREEITEM hItem, int& nImage, int& nSelectedImage) const;
    /// Changes the item's images. @return FALSE on failure
    BOOL SetItemImage(HTREEITEM hItem, int nImage, int nSelectedImage);
    /// @return the TVIS_... bits of nStateMask
    UINT GetItemState(HTREEITEM hItem, UINT nStateMask) const;
    /// Sets or clears the TVIS_... bits of nStateMask. @return FALSE on failure
    BOOL SetItemState(HTREEITEM hItem, UINT nState, UINT nStateMask);
    /// 0 if there is no such item.
    DWORD_PTR GetItemData(HTREEITEM hItem) const;
    /// Changes the item's data. @return FALSE on failure
    BOOL SetItemData(HTREEITEM hItem, DWORD_PTR dwData);
    /// The check boxes of TVS_CHECKBOXES.
    BOOL GetCheck(HTREEITEM hItem) const;
    /// See GetCheck. @return FALSE on failure
    BOOL SetCheck(HTREEITEM hItem, BOOL fCheck = TRUE);

    // --- Relations ---------------------------------------------------------------------
    /// @param nCode TVGN_...
    HTREEITEM GetNextItem(HTREEITEM hItem, UINT nCode) const {
        return AfxSendHandle(m_hWnd, TVM_GETNEXTITEM, nCode, hItem);
    }
    /// The first item of the tree.
    HTREEITEM GetRootItem() const { return GetNextItem(nullptr, TVGN_ROOT); }
    /// The parent; null at the top.
    HTREEITEM GetParentItem(HTREEITEM hItem) const { return GetNextItem(hItem, TVGN_PARENT); }
    /// The first child.
    HTREEITEM GetChildItem(HTREEITEM hItem) const { return GetNextItem(hItem, TVGN_CHILD); }
    /// The item of this relation; null if there is none.
    ///@{
    HTREEITEM GetNextSiblingItem(HTREEITEM hItem) const { return GetNextItem(hItem, TVGN_NEXT); }
    HTREEITEM GetPrevSiblingItem(HTREEITEM hItem) const { return GetNextItem(hItem, TVGN_PREVIOUS); }
    HTREEITEM GetFirstVisibleItem() const { return GetNextItem(nullptr, TVGN_FIRSTVISIBLE); }
    HTREEITEM GetNextVisibleItem(HTREEITEM hItem) const { return GetNextItem(hItem, TVGN_NEXTVISIBLE); }
    HTREEITEM GetPrevVisibleItem(HTREEITEM hItem) const { return GetNextItem(hItem, TVGN_PREVIOUSVISIBLE); }
    HTREEITEM GetSelectedItem() const { return GetNextItem(nullptr, TVGN_CARET); }
    HTREEITEM GetLastVisibleItem() const { return GetNextItem(nullptr, TVGN_LASTVISIBLE); }
    HTREEITEM GetDropHilightItem() const { return GetNextItem(nullptr, TVGN_DROPHILITE); }
    ///@}
    /// As the item itself says (its number of children), shown or not.
    BOOL ItemHasChildren(HTREEITEM hItem) const;

    // --- Operations --------------------------------------------------------------------
    /// @param nCode TVE_...
    BOOL Expand(HTREEITEM hItem, UINT nCode) { return AfxSendPointer(m_hWnd, TVM_EXPAND, nCode, hItem); }
    /// @param nCode TVGN_CARET, TVGN_DROPHILITE or TVGN_FIRSTVISIBLE
    BOOL Select(HTREEITEM hItem, UINT nCode) { return AfxSendPointer(m_hWnd, TVM_SELECTITEM, nCode, hItem); }
    /// Opens the item's parents, too. @param hItem null takes the selection away
    BOOL SelectItem(HTREEITEM hItem) { return Select(hItem, TVGN_CARET); }
    /// Marks an item as the target of dragging; null takes the mark away.
    BOOL SelectDropTarget(HTREEITEM hItem) { return Select(hItem, TVGN_DROPHILITE); }
    /// Scrolls so that the item is the first that can be seen, if possible.
    BOOL SelectSetFirstVisible(HTREEITEM hItem) { return Select(hItem, TVGN_FIRSTVISIBLE); }
    /// Opens the item's parents and scrolls as far as it takes.
    /// @return TRUE if it had to scroll and opened nothing
    BOOL EnsureVisible(HTREEITEM hItem) { return AfxSendPointer(m_hWnd, TVM_ENSUREVISIBLE, 0, hItem); }
    /// Sorts the direct children of an item by their texts.
    BOOL SortChildren(HTREEITEM hItem) { return AfxSendPointer(m_hWnd, TVM_SORTCHILDREN, 0, hItem); }
    /// Sorts the direct children as the function in `pSort` compares them. @return FALSE on failure
    BOOL SortChildrenCB(LPTVSORTCB pSort) { return AfxSendPointer(m_hWnd, TVM_SORTCHILDRENCB, 0, pSort); }

    // --- Places ------------------------------------------------------------------------
    /// @return FALSE, with the rectangle as it was, if the item is not visible
    BOOL GetItemRect(HTREEITEM hItem, LPRECT lpRect, BOOL bTextOnly) const;
    /// The item at the point in `pHitTestInfo`, which receives where on the item it is.
    HTREEITEM HitTest(TVHITTESTINFO* pHitTestInfo) const;
    /// @param pt client coordinates @param pFlags receives TVHT_...; may be null
    HTREEITEM HitTest(CPoint pt, UINT* pFlags = nullptr) const;
    /// How many items are selected.
    UINT GetSelectedCount() const { return static_cast<UINT>(AfxSendInt(m_hWnd, TVM_GETSELECTEDCOUNT)); }
    /// How many items the window has room for.
    UINT GetVisibleCount() const { return static_cast<UINT>(AfxSendInt(m_hWnd, TVM_GETVISIBLECOUNT)); }

    // --- Looks -------------------------------------------------------------------------
    /// Pixels from one level to the next.
    UINT GetIndent() const { return static_cast<UINT>(AfxSendInt(m_hWnd, TVM_GETINDENT)); }
    /// Sets the pixels from one level to the next.
    void SetIndent(UINT nIndent) { AfxSendInt(m_hWnd, TVM_SETINDENT, nIndent); }
    /// TVS_EX_... styles. @param dwExMask those that are changed @return S_OK or an error
    ///@{
    DWORD GetExtendedStyle() const { return static_cast<DWORD>(AfxSendInt(m_hWnd, TVM_GETEXTENDEDSTYLE)); }
    DWORD SetExtendedStyle(DWORD dwExMask, DWORD dwExStyles) {
        return static_cast<DWORD>(
            AfxSendInt(m_hWnd, TVM_SETEXTENDEDSTYLE, dwExMask, static_cast<LPARAM>(dwExStyles)));
    }
    ///@}
    /// Colours of the lines and of the mark that shows where a dragged item would go.
    ///@{
    COLORREF GetLineColor() const { return static_cast<COLORREF>(AfxSendInt(m_hWnd, TVM_GETLINECOLOR)); }
    COLORREF SetLineColor(COLORREF clrNew = CLR_DEFAULT) {
        return static_cast<COLORREF>(AfxSendInt(m_hWnd, TVM_SETLINECOLOR, 0, static_cast<LPARAM>(clrNew)));
    }
    COLORREF GetInsertMarkColor() const {
        return static_cast<COLORREF>(AfxSendInt(m_hWnd, TVM_GETINSERTMARKCOLOR));
    }
    COLORREF SetInsertMarkColor(COLORREF clrNew) {
        return static_cast<COLORREF>(
            AfxSendInt(m_hWnd, TVM_SETINSERTMARKCOLOR, 0, static_cast<LPARAM>(clrNew)));
    }
    BOOL SetInsertMark(HTREEITEM hItem, BOOL fAfter = TRUE) {
        return AfxSendPointer(m_hWnd, TVM_SETINSERTMARK, static_cast<WPARAM>(fAfter), hItem);
    }
    ///@}
    /// Milliseconds that scrolling may take. SetScrollTime returns the previous ones.
    ///@{
    UINT GetScrollTime() const { return static_cast<UINT>(AfxSendInt(m_hWnd, TVM_GETSCROLLTIME)); }
    UINT SetScrollTime(UINT uScrollTime) {
        return static_cast<UINT>(AfxSendInt(m_hWnd, TVM_SETSCROLLTIME, uScrollTime));
    }
    ///@}
    /// The control's tool tip. SetToolTips returns the previous one.
    ///@{
    CToolTipCtrl* GetToolTips() const;
    CToolTipCtrl* SetToolTips(CToolTipCtrl* pWndTip);
    ///@}
    /// @return a picture of the item to be dragged, which the caller deletes; null on failure
    CImageList* CreateDragImage(HTREEITEM hItem);
    /// Height of an item in pixels.
    SHORT GetItemHeight() const { return static_cast<SHORT>(AfxSendInt(m_hWnd, TVM_GETITEMHEIGHT)); }
    /// @param cyHeight pixels, -1 the default @return the previous height
    SHORT SetItemHeight(SHORT cyHeight) {
        return static_cast<SHORT>(AfxSendInt(m_hWnd, TVM_SETITEMHEIGHT, static_cast<WPARAM>(cyHeight)));
    }
    /// @param nImage TVSIL_... @return null if there is none
    CImageList* GetImageList(UINT nImage) const;
    /// @param pImageList must outlive the control or be taken away; null takes it away
    /// @return the previous list
    CImageList* SetImageList(CImageList* pImageList, int nImageListType);
    /// Colours: -1 is the system's. The setters return the previous one.
    COLORREF GetBkColor() const { return static_cast<COLORREF>(AfxSendInt(m_hWnd, TVM_GETBKCOLOR)); }
    /// See GetBkColor.
    COLORREF SetBkColor(COLORREF clr) {
        return static_cast<COLORREF>(AfxSendInt(m_hWnd, TVM_SETBKCOLOR, 0, static_cast<LPARAM>(clr)));
    }
    /// See GetBkColor.
    COLORREF GetTextColor() const { return static_cast<COLORREF>(AfxSendInt(m_hWnd, TVM_GETTEXTCOLOR)); }
    /// See GetBkColor.
    COLORREF SetTextColor(COLORREF clr) {
        return static_cast<COLORREF>(AfxSendInt(m_hWnd, TVM_SETTEXTCOLOR, 0, static_cast<LPARAM>(clr)));
    }

    // --- Editing -----------------------------------------------------------------------
    /// Begins to edit an item's text in place. @return the entry field, null on failure
    CEdit* EditLabel(HTREEITEM hItem);
    /// The entry field while a text is edited in place; null else.
    CEdit* GetEditControl() const;
    /// Ends editing in place.
    /// @param bCancel TRUE: the old text stays @return FALSE on failure
    BOOL EndEditLabelNow(BOOL bCancel) {
        return AfxSendInt(m_hWnd, TVM_ENDEDITLABELNOW, static_cast<WPARAM>(bCancel));
    }
};
