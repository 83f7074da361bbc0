/// @file
/// List and combo boxes. Included by afxwin.h.
#pragma once

#include "afxsend_.h"
#include "afxwnd_.h"

#include <commctrl.h>

/// A list box. Items count from 0; LB_ERR stands for none and for failure.
class AFX_CORE CListBox : public CWnd {
    DECLARE_DYNAMIC(CListBox)
public:
    CListBox() = default;
    /// Creates the control as a child. @return FALSE if the system refuses
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    using CWnd::Create;

    // --- Items -----------------------------------------------------------------------
    /// The LB_... message of the same name, with its result.
    ///@{
    int GetCount() const { return AfxSendInt(m_hWnd, LB_GETCOUNT); }
    int AddString(LPCTSTR lpszItem) { return AfxSendPointer(m_hWnd, LB_ADDSTRING, 0, lpszItem); }
    /// @param nIndex -1 adds at the end, in a sorted list too
    int InsertString(int nIndex, LPCTSTR lpszItem) {
        return AfxSendPointer(m_hWnd, LB_INSERTSTRING, static_cast<WPARAM>(nIndex), lpszItem);
    }
    int DeleteString(UINT nIndex) { return AfxSendInt(m_hWnd, LB_DELETESTRING, nIndex); }
    void ResetContent() { AfxSendInt(m_hWnd, LB_RESETCONTENT); }
    int Dir(UINT attr, LPCTSTR lpszWildCard) { return AfxSendPointer(m_hWnd, LB_DIR, attr, lpszWildCard); }
    int InitStorage(int nItems, UINT nBytes) {
        return AfxSendInt(m_hWnd, LB_INITSTORAGE, static_cast<WPARAM>(nItems), nBytes);
    }
    /// @param lpszBuffer room for GetTextLen + 1 characters
    int GetText(int nIndex, LPTSTR lpszBuffer) const {
        return AfxSendPointer(m_hWnd, LB_GETTEXT, static_cast<WPARAM>(nIndex), lpszBuffer);
    }
    /// @param rString empty if there is no such item
    void GetText(int nIndex, CString& rString) const;
    int GetTextLen(int nIndex) const {
        return AfxSendInt(m_hWnd, LB_GETTEXTLEN, static_cast<WPARAM>(nIndex));
    }
    DWORD_PTR GetItemData(int nIndex) const {
        return static_cast<DWORD_PTR>(::SendMessage(m_hWnd, LB_GETITEMDATA, static_cast<WPARAM>(nIndex), 0));
    }
    int SetItemData(int nIndex, DWORD_PTR dwItemData) {
        return AfxSendInt(m_hWnd, LB_SETITEMDATA, static_cast<WPARAM>(nIndex),
                          static_cast<LPARAM>(dwItemData));
    }
    void* GetItemDataPtr(int nIndex) const { return reinterpret_cast<void*>(GetItemData(nIndex)); }
    int SetItemDataPtr(int nIndex, void* pData) {
        return SetItemData(nIndex, reinterpret_cast<DWORD_PTR>(pData));
    }
    ///@}
    /// Finds by the beginning of the text, ignoring case.
    /// @param nStartAfter search goes on behind this item and around; -1 from the top
    int FindString(int nStartAfter, LPCTSTR lpszItem) const {
        return AfxSendPointer(m_hWnd, LB_FINDSTRING, static_cast<WPARAM>(nStartAfter), lpszItem);
    }
    /// Finds an equal text, ignoring case.
    /// @param nIndexStart search goes on behind this item and around; -1 from the top
    int FindStringExact(int nIndexStart, LPCTSTR lpszFind) const {
        return AfxSendPointer(m_hWnd, LB_FINDSTRINGEXACT, static_cast<WPARAM>(nIndexStart), lpszFind);
    }

    // --- Selection: single ---------------------------------------------------------------
    /// The selected item; LB_ERR for none. SelectString selects the first item that begins with the
    /// text, as FindString finds it.
    ///@{
    int GetCurSel() const { return AfxSendInt(m_hWnd, LB_GETCURSEL); }
    int SetCurSel(int nSelect) { return AfxSendInt(m_hWnd, LB_SETCURSEL, static_cast<WPARAM>(nSelect)); }
    int SelectString(int nStartAfter, LPCTSTR lpszItem) {
        return AfxSendPointer(m_hWnd, LB_SELECTSTRING, static_cast<WPARAM>(nStartAfter), lpszItem);
    }
    ///@}

    // --- Selection: multiple -------------------------------------------------------------
    /// The LB_... message of the same name, with its result. All of them are for list boxes with
    /// multiple selection.
    ///@{
    int GetSel(int nIndex) const { return AfxSendInt(m_hWnd, LB_GETSEL, static_cast<WPARAM>(nIndex)); }
    int SetSel(int nIndex, BOOL bSelect = TRUE) {
        return AfxSendInt(m_hWnd, LB_SETSEL, static_cast<WPARAM>(bSelect), nIndex);
    }
    int GetSelCount() const { return AfxSendInt(m_hWnd, LB_GETSELCOUNT); }
    /// @param nMaxItems room at rgIndex @return the number of items written there
    int GetSelItems(int nMaxItems, LPINT rgIndex) const {
        return AfxSendPointer(m_hWnd, LB_GETSELITEMS, static_cast<WPARAM>(nMaxItems), rgIndex);
    }
    /// Selects or deselects the items from nFirstItem to nLastItem, both included.
    int SelItemRange(BOOL bSelect, int nFirstItem, int nLastItem);
    void SetAnchorIndex(int nIndex) { AfxSendInt(m_hWnd, LB_SETANCHORINDEX, static_cast<WPARAM>(nIndex)); }
    int GetAnchorIndex() const { return AfxSendInt(m_hWnd, LB_GETANCHORINDEX); }
    int GetCaretIndex() const { return AfxSendInt(m_hWnd, LB_GETCARETINDEX); }
    int SetCaretIndex(int nIndex, BOOL bScroll = TRUE) {
        return AfxSendInt(m_hWnd, LB_SETCARETINDEX, static_cast<WPARAM>(nIndex), MAKELPARAM(bScroll, 0));
    }
    ///@}

    // --- Layout --------------------------------------------------------------------------
    /// The LB_... message of the same name, with its result; measures are pixels.
    ///@{
    int GetTopIndex() const { return AfxSendInt(m_hWnd, LB_GETTOPINDEX); }
    int SetTopIndex(int nIndex) { return AfxSendInt(m_hWnd, LB_SETTOPINDEX, static_cast<WPARAM>(nIndex)); }
    /// Width in pixels that can be scrolled to.
    int GetHorizontalExtent() const { return AfxSendInt(m_hWnd, LB_GETHORIZONTALEXTENT); }
    void SetHorizontalExtent(int cxExtent) {
        AfxSendInt(m_hWnd, LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(cxExtent));
    }
    void SetColumnWidth(int cxWidth) { AfxSendInt(m_hWnd, LB_SETCOLUMNWIDTH, static_cast<WPARAM>(cxWidth)); }
    int GetItemRect(int nIndex, LPRECT lpRect) const {
        return AfxSendPointer(m_hWnd, LB_GETITEMRECT, static_cast<WPARAM>(nIndex), lpRect);
    }
    int GetItemHeight(int nIndex) const {
        return AfxSendInt(m_hWnd, LB_GETITEMHEIGHT, static_cast<WPARAM>(nIndex));
    }
    int SetItemHeight(int nIndex, UINT cyItemHeight) {
        return AfxSendInt(m_hWnd, LB_SETITEMHEIGHT, static_cast<WPARAM>(nIndex), MAKELPARAM(cyItemHeight, 0));
    }
    ///@}
    /// How many items there are in a column of a list with several.
    DWORD GetListBoxInfo() const { return ::GetListBoxInfo(m_hWnd); }
    /// @param pt client coordinates @return the nearest item
    UINT ItemFromPoint(CPoint pt, BOOL& bOutside) const;
    /// Tab stops in dialog units: the default, one distance for all, or each.
    void SetTabStops() { AfxSendPointer(m_hWnd, LB_SETTABSTOPS, 0, nullptr); }
    /// See SetTabStops(). @return FALSE on failure
    ///@{
    BOOL SetTabStops(const int& cxEachStop) { return AfxSendPointer(m_hWnd, LB_SETTABSTOPS, 1, &cxEachStop); }
    BOOL SetTabStops(int nTabStops, LPINT rgTabStops) {
        return AfxSendPointer(m_hWnd, LB_SETTABSTOPS, static_cast<WPARAM>(nTabStops), rgTabStops);
    }
    ///@}
    /// Locale of the sort order.
    LCID GetLocale() const { return static_cast<LCID>(AfxSendInt(m_hWnd, LB_GETLOCALE)); }
    /// Sets the locale of the sort order. @return the previous one, LB_ERR on failure
    LCID SetLocale(LCID nNewLocale) {
        return static_cast<LCID>(AfxSendInt(m_hWnd, LB_SETLOCALE, nNewLocale));
    }

    // --- Owner draw: override ---------------------------------------------------------------
    /// Draws an item, or tells its size, in an owner-drawn list box.
    ///@{
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    ///@}
    /// @return -1, 0 or 1 as item 1 stands before, with or behind item 2
    virtual int CompareItem(LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    /// An item is deleted: free what belongs to its data.
    virtual void DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct);
    /// For LBS_WANTKEYBOARDINPUT. @return -1 default action, -2 none, else an item for it
    virtual int VKeyToItem(UINT nKey, UINT nIndex);
    /// The same for a character.
    virtual int CharToItem(UINT nKey, UINT nIndex);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};

/// A combo box. Items count from 0; CB_ERR stands for none and for failure.
class AFX_CORE CComboBox : public CWnd {
    DECLARE_DYNAMIC(CComboBox)
public:
    CComboBox() = default;
    /// Creates the control as a child. @return FALSE if the system refuses
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    using CWnd::Create;

    // --- Items -----------------------------------------------------------------------
    /// The CB_... message of the same name, with its result.
    ///@{
    int GetCount() const { return AfxSendInt(m_hWnd, CB_GETCOUNT); }
    int AddString(LPCTSTR lpszString) { return AfxSendPointer(m_hWnd, CB_ADDSTRING, 0, lpszString); }
    /// @param nIndex -1 adds at the end, in a sorted list too
    int InsertString(int nIndex, LPCTSTR lpszString) {
        return AfxSendPointer(m_hWnd, CB_INSERTSTRING, static_cast<WPARAM>(nIndex), lpszString);
    }
    int DeleteString(UINT nIndex) { return AfxSendInt(m_hWnd, CB_DELETESTRING, nIndex); }
    void ResetContent() { AfxSendInt(m_hWnd, CB_RESETCONTENT); }
    int Dir(UINT attr, LPCTSTR lpszWildCard) { return AfxSendPointer(m_hWnd, CB_DIR, attr, lpszWildCard); }
    int InitStorage(int nItems, UINT nBytes) {
        return AfxSendInt(m_hWnd, CB_INITSTORAGE, static_cast<WPARAM>(nItems), nBytes);
    }
    /// @param lpszText room for GetLBTextLen + 1 characters
    int GetLBText(int nIndex, LPTSTR lpszText) const {
        return AfxSendPointer(m_hWnd, CB_GETLBTEXT, static_cast<WPARAM>(nIndex), lpszText);
    }
    /// @param rString empty if there is no such item
    void GetLBText(int nIndex, CString& rString) const;
    int GetLBTextLen(int nIndex) const {
        return AfxSendInt(m_hWnd, CB_GETLBTEXTLEN, static_cast<WPARAM>(nIndex));
    }
    DWORD_PTR GetItemData(int nIndex) const {
        return static_cast<DWORD_PTR>(::SendMessage(m_hWnd, CB_GETITEMDATA, static_cast<WPARAM>(nIndex), 0));
    }
    int SetItemData(int nIndex, DWORD_PTR dwItemData) {
        return AfxSendInt(m_hWnd, CB_SETITEMDATA, static_cast<WPARAM>(nIndex),
                          static_cast<LPARAM>(dwItemData));
    }
    void* GetItemDataPtr(int nIndex) const { return reinterpret_cast<void*>(GetItemData(nIndex)); }
    int SetItemDataPtr(int nIndex, void* pData) {
        return SetItemData(nIndex, reinterpret_cast<DWORD_PTR>(pData));
    }
    ///@}
    /// Finds by the beginning of the text, ignoring case.
    /// @param nStartAfter search goes on behind this item and around; -1 from the top
    int FindString(int nStartAfter, LPCTSTR lpszString) const {
        return AfxSendPointer(m_hWnd, CB_FINDSTRING, static_cast<WPARAM>(nStartAfter), lpszString);
    }
    /// Finds an equal text, ignoring case.
    /// @param nIndexStart search goes on behind this item and around; -1 from the top
    int FindStringExact(int nIndexStart, LPCTSTR lpszFind) const {
        return AfxSendPointer(m_hWnd, CB_FINDSTRINGEXACT, static_cast<WPARAM>(nIndexStart), lpszFind);
    }

    // --- Selection -----------------------------------------------------------------------
    /// The selected item; CB_ERR for none.
    int GetCurSel() const { return AfxSendInt(m_hWnd, CB_GETCURSEL); }
    /// @param nSelect -1 takes the selection away and empties the edit part
    int SetCurSel(int nSelect) { return AfxSendInt(m_hWnd, CB_SETCURSEL, static_cast<WPARAM>(nSelect)); }
    /// Selects the first item that begins with the text, as FindString finds it. @return the item,
    /// CB_ERR for none
    int SelectString(int nStartAfter, LPCTSTR lpszString) {
        return AfxSendPointer(m_hWnd, CB_SELECTSTRING, static_cast<WPARAM>(nStartAfter), lpszString);
    }

    // --- Edit part -----------------------------------------------------------------------
    /// @return start in the low word, end in the high word
    DWORD GetEditSel() const { return static_cast<DWORD>(AfxSendInt(m_hWnd, CB_GETEDITSEL)); }
    /// Acts on the edit part as on an entry field of its own. nMaxChars 0 is the system's own
    /// limit.
    ///@{
    BOOL SetEditSel(int nStartChar, int nEndChar) {
        return AfxSendInt(m_hWnd, CB_SETEDITSEL, 0, MAKELPARAM(nStartChar, nEndChar));
    }
    BOOL LimitText(int nMaxChars) { return AfxSendInt(m_hWnd, CB_LIMITTEXT, static_cast<WPARAM>(nMaxChars)); }
    void Cut() { AfxSendInt(m_hWnd, WM_CUT); }
    void Copy() { AfxSendInt(m_hWnd, WM_COPY); }
    void Paste() { AfxSendInt(m_hWnd, WM_PASTE); }
    void Clear() { AfxSendInt(m_hWnd, WM_CLEAR); }
    ///@}

    // --- Drop-down list --------------------------------------------------------------------
    /// The CB_... message of the same name, with its result; measures are pixels.
    ///@{
    void ShowDropDown(BOOL bShowIt = TRUE) {
        AfxSendInt(m_hWnd, CB_SHOWDROPDOWN, static_cast<WPARAM>(bShowIt));
    }
    BOOL GetDroppedState() const { return AfxSendInt(m_hWnd, CB_GETDROPPEDSTATE); }
    /// @param lprect screen coordinates of the list, shown or not
    void GetDroppedControlRect(LPRECT lprect) const {
        AfxSendPointer(m_hWnd, CB_GETDROPPEDCONTROLRECT, 0, lprect);
    }
    int GetDroppedWidth() const { return AfxSendInt(m_hWnd, CB_GETDROPPEDWIDTH); }
    int SetDroppedWidth(UINT nWidth) { return AfxSendInt(m_hWnd, CB_SETDROPPEDWIDTH, nWidth); }
    BOOL GetExtendedUI() const { return AfxSendInt(m_hWnd, CB_GETEXTENDEDUI); }
    int SetExtendedUI(BOOL bExtended = TRUE) {
        return AfxSendInt(m_hWnd, CB_SETEXTENDEDUI, static_cast<WPARAM>(bExtended));
    }
    int GetTopIndex() const { return AfxSendInt(m_hWnd, CB_GETTOPINDEX); }
    int SetTopIndex(int nIndex) { return AfxSendInt(m_hWnd, CB_SETTOPINDEX, static_cast<WPARAM>(nIndex)); }
    UINT GetHorizontalExtent() const { return static_cast<UINT>(AfxSendInt(m_hWnd, CB_GETHORIZONTALEXTENT)); }
    void SetHorizontalExtent(UINT nExtent) { AfxSendInt(m_hWnd, CB_SETHORIZONTALEXTENT, nExtent); }
    /// @param nIndex -1 is the part that is always visible
    int GetItemHeight(int nIndex) const {
        return AfxSendInt(m_hWnd, CB_GETITEMHEIGHT, static_cast<WPARAM>(nIndex));
    }
    int SetItemHeight(int nIndex, UINT cyItemHeight) {
        return AfxSendInt(m_hWnd, CB_SETITEMHEIGHT, static_cast<WPARAM>(nIndex), MAKELPARAM(cyItemHeight, 0));
    }
    ///@}
    /// Windows and places of the parts; cbSize is set here.
    BOOL GetComboBoxInfo(PCOMBOBOXINFO pcbi) const;
    /// A text that an empty edit part shows in grey.
    ///@{
    BOOL SetCueBanner(LPCTSTR lpszText) { return AfxSendPointer(m_hWnd, CB_SETCUEBANNER, 0, lpszText); }
    BOOL GetCueBanner(LPTSTR lpszText, int cchText) const {
        return AfxSendInt(m_hWnd, CB_GETCUEBANNER, reinterpret_cast<WPARAM>(lpszText), cchText);
    }
    ///@}
    /// How many items the list shows at least when it drops down.
    ///@{
    int GetMinVisible() const { return AfxSendInt(m_hWnd, CB_GETMINVISIBLE); }
    BOOL SetMinVisibleItems(int iMinVisible) {
        return AfxSendInt(m_hWnd, CB_SETMINVISIBLE, static_cast<WPARAM>(iMinVisible));
    }
    ///@}
    /// Locale of the sort order.
    LCID GetLocale() const { return static_cast<LCID>(AfxSendInt(m_hWnd, CB_GETLOCALE)); }
    /// Sets the locale of the sort order. @return the previous one, CB_ERR on failure
    LCID SetLocale(LCID nNewLocale) {
        return static_cast<LCID>(AfxSendInt(m_hWnd, CB_SETLOCALE, nNewLocale));
    }

    // --- Owner draw: override ---------------------------------------------------------------
    /// Draws an item, or tells its size, in an owner-drawn combo box.
    ///@{
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    ///@}
    /// @return -1, 0 or 1 as item 1 stands before, with or behind item 2
    virtual int CompareItem(LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    /// An item is deleted: free what belongs to its data.
    virtual void DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};
