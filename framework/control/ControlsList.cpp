// List and combo boxes.
#include "afxwin.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(CListBox, CWnd)
IMPLEMENT_DYNAMIC(CComboBox, CWnd)

namespace {

/// Reads an item's text, whose length the control tells first; empty if there is none.
void ReadItem(HWND hWnd, UINT nGetLength, UINT nGetText, int nIndex, CString& rString) {
    const int nLength = AfxSendInt(hWnd, nGetLength, static_cast<WPARAM>(nIndex));
    rString.Empty();
    if (nLength <= 0)
        return;
    AfxSendPointer(hWnd, nGetText, static_cast<WPARAM>(nIndex), rString.GetBuffer(nLength));
    rString.ReleaseBuffer();
}

/// Asks a list or combo box whose items are drawn by their owner.
/// @return whether the message is such a question
template <class Box>
BOOL AskOwnerDraw(Box& box, UINT message, LPARAM lParam, LRESULT* pResult) {
    switch (message) {
    case WM_DRAWITEM:
        box.DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
        return TRUE;
    case WM_MEASUREITEM:
        box.MeasureItem(reinterpret_cast<LPMEASUREITEMSTRUCT>(lParam));
        return TRUE;
    case WM_COMPAREITEM:
        *pResult = box.CompareItem(reinterpret_cast<LPCOMPAREITEMSTRUCT>(lParam));
        return TRUE;
    case WM_DELETEITEM:
        box.DeleteItem(reinterpret_cast<LPDELETEITEMSTRUCT>(lParam));
        return TRUE;
    default:
        return FALSE;
    }
}

} // namespace

// --- List boxes ---------------------------------------------------------------------------

BOOL CListBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(WC_LISTBOX, nullptr, dwStyle, rect, pParentWnd, nID);
}

void CListBox::GetText(int nIndex, CString& rString) const {
    ReadItem(m_hWnd, LB_GETTEXTLEN, LB_GETTEXT, nIndex, rString);
}

int CListBox::SelItemRange(BOOL bSelect, int nFirstItem, int nLastItem) {
    // The message deselects when its range runs backwards, which one item alone cannot.
    if (nFirstItem == nLastItem)
        return SetSel(nFirstItem, bSelect);
    const auto [nLow, nHigh] = std::minmax(nFirstItem, nLastItem);
    return AfxSendInt(m_hWnd, LB_SELITEMRANGEEX, static_cast<WPARAM>(bSelect ? nLow : nHigh),
                      bSelect ? nHigh : nLow);
}

UINT CListBox::ItemFromPoint(CPoint pt, BOOL& bOutside) const {
    const auto nResult = static_cast<DWORD>(AfxSendInt(m_hWnd, LB_ITEMFROMPOINT, 0, MAKELPARAM(pt.x, pt.y)));
    bOutside = HIWORD(nResult);
    return LOWORD(nResult);
}

void CListBox::DrawItem(LPDRAWITEMSTRUCT) {}
void CListBox::MeasureItem(LPMEASUREITEMSTRUCT) {}
int CListBox::CompareItem(LPCOMPAREITEMSTRUCT) {
    return 0;
}
void CListBox::DeleteItem(LPDELETEITEMSTRUCT) {}
int CListBox::VKeyToItem(UINT, UINT) {
    return -1;
}
int CListBox::CharToItem(UINT, UINT) {
    return -1;
}

BOOL CListBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    switch (message) {
    case WM_VKEYTOITEM:
        *pResult = VKeyToItem(LOWORD(wParam), HIWORD(wParam));
        return TRUE;
    case WM_CHARTOITEM:
        *pResult = CharToItem(LOWORD(wParam), HIWORD(wParam));
        return TRUE;
    default:
        return AskOwnerDraw(*this, message, lParam, pResult) ||
               CWnd::OnChildNotify(message, wParam, lParam, pResult);
    }
}

// --- Combo boxes --------------------------------------------------------------------------

BOOL CComboBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(WC_COMBOBOX, nullptr, dwStyle, rect, pParentWnd, nID);
}

void CComboBox::GetLBText(int nIndex, CString& rString) const {
    ReadItem(m_hWnd, CB_GETLBTEXTLEN, CB_GETLBTEXT, nIndex, rString);
}

BOOL CComboBox::GetComboBoxInfo(PCOMBOBOXINFO pcbi) const {
    pcbi->cbSize = sizeof(COMBOBOXINFO);
    return ::GetComboBoxInfo(m_hWnd, pcbi);
}

void CComboBox::DrawItem(LPDRAWITEMSTRUCT) {}
void CComboBox::MeasureItem(LPMEASUREITEMSTRUCT) {}
int CComboBox::CompareItem(LPCOMPAREITEMSTRUCT) {
    return 0;
}
void CComboBox::DeleteItem(LPDELETEITEMSTRUCT) {}

BOOL CComboBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    return AskOwnerDraw(*this, message, lParam, pResult) ||
           CWnd::OnChildNotify(message, wParam, lParam, pResult);
}
