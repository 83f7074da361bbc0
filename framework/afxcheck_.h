/// @file
/// List boxes with check boxes, list boxes whose items can be dragged, and combo boxes with pictures.
/// Included by afxcmn.h.
#pragma once

#include "afxbox_.h"
#include "afximl_.h"

#include <vector>

/// Notification of a list box with check boxes: one has been changed by the user.
constexpr int CLBN_CHKCHANGE = 40;

/// A list box with a check box in front of each item. In a template it has LBS_OWNERDRAWFIXED and
/// LBS_HASSTRINGS, and a line ON_CLBN_CHKCHANGE tells of changes.
class AFX_CORE CCheckListBox : public CListBox {
    DECLARE_DYNAMIC(CCheckListBox)
public:
    CCheckListBox() = default;
    /// Creates the control as a child. @return FALSE if the system refuses
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) override;
    using CWnd::Create;

    /// @param nStyle BS_AUTOCHECKBOX, BS_AUTO3STATE, or BS_CHECKBOX and BS_3STATE, which a tap leaves alone
    ///@{
    void SetCheckStyle(UINT nStyle) { m_nStyle = nStyle; }
    UINT GetCheckStyle() const { return m_nStyle; }
    ///@}
    /// 0 off, 1 on, 2 undecided; an item that does not exist is off.
    ///@{
    void SetCheck(int nIndex, int nCheck);
    int GetCheck(int nIndex) const;
    ///@}
    /// An item that is disabled is grey, and a tap leaves its check box alone.
    ///@{
    void Enable(int nIndex, BOOL bEnabled = TRUE);
    BOOL IsEnabled(int nIndex) const;
    ///@}
    /// Where the check box stands in an item. Here: at its left.
    virtual CRect OnGetCheckPosition(CRect rectItem, CRect rectCheckBox);

    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override;
    void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct) override;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    void PreSubclassWindow() override;

private:
    struct CState {
        int nCheck = 0;
        BOOL bEnabled = TRUE;
    };

    bool IsItem(int nIndex) const { return nIndex >= 0 && nIndex < static_cast<int>(m_states.size()); }
    CRect CheckRect(const CRect& rectItem);
    void Toggle(int nIndex);
    void Follow(UINT message, WPARAM wParam, LRESULT lResult);

    UINT m_nStyle = BS_AUTOCHECKBOX;
    std::vector<CState> m_states; ///< Of the items.
};

/// A list box with one selection whose items the user drags to other places.
class AFX_CORE CDragListBox : public CListBox {
    DECLARE_DYNAMIC(CDragListBox)
public:
    CDragListBox() = default;

    /// The item at a point of the screen; -1 for none. @param bAutoScroll whether the list scrolls at its
    /// ends
    int ItemFromPt(CPoint pt, BOOL bAutoScroll = TRUE) const;
    /// Draws the mark in front of an item; -1 takes it away.
    virtual void DrawInsert(int nItem);

    // --- Events: override --------------------------------------------------------------
    /// @return TRUE if the item at this point of the screen may be dragged
    virtual BOOL BeginDrag(CPoint pt);
    virtual void CancelDrag(CPoint pt);
    /// @return DL_...: the cursor
    virtual UINT Dragging(CPoint pt);
    /// Here: moves the item with its data.
    virtual void Dropped(int nSrcIndex, CPoint pt);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
    void PreSubclassWindow() override;
};

/// A combo box whose items have pictures.
class AFX_CORE CComboBoxEx : public CComboBox {
    DECLARE_DYNAMIC(CComboBoxEx)
public:
    CComboBoxEx() = default;
    /// Creates the control as a child. @return FALSE if the system refuses
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) override;
    using CWnd::Create;

    /// The CBEM_... message of the same name, with its result.
    ///@{
    int InsertItem(const COMBOBOXEXITEM* pCBItem) {
        return AfxSendPointer(m_hWnd, CBEM_INSERTITEM, 0, pCBItem);
    }
    BOOL GetItem(COMBOBOXEXITEM* pCBItem) { return AfxSendPointer(m_hWnd, CBEM_GETITEM, 0, pCBItem); }
    BOOL SetItem(const COMBOBOXEXITEM* pCBItem) { return AfxSendPointer(m_hWnd, CBEM_SETITEM, 0, pCBItem); }
    int DeleteItem(int iIndex) { return AfxSendInt(m_hWnd, CBEM_DELETEITEM, static_cast<WPARAM>(iIndex)); }
    using CComboBox::DeleteItem;
    DWORD GetExtendedStyle() const { return static_cast<DWORD>(AfxSendInt(m_hWnd, CBEM_GETEXTENDEDSTYLE)); }
    DWORD SetExtendedStyle(DWORD dwExMask, DWORD dwExStyle) {
        return static_cast<DWORD>(
            AfxSendInt(m_hWnd, CBEM_SETEXTENDEDSTYLE, dwExMask, static_cast<LPARAM>(dwExStyle)));
    }
    BOOL HasEditChanged() { return AfxSendInt(m_hWnd, CBEM_HASEDITCHANGED); }
    ///@}
    /// The parts; null for none.
    ///@{
    CComboBox* GetComboBoxCtrl();
    CEdit* GetEditCtrl();
    ///@}
    /// The list is not owned. @return the previous one
    ///@{
    CImageList* SetImageList(CImageList* pImageList);
    CImageList* GetImageList() const;
    ///@}
};
