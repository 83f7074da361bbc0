// Statics, buttons, entry fields, scroll bars.
#include "afxwin.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(CStatic, CWnd)
IMPLEMENT_DYNAMIC(CButton, CWnd)
IMPLEMENT_DYNAMIC(CEdit, CWnd)
IMPLEMENT_DYNAMIC(CScrollBar, CWnd)

// --- Statics ------------------------------------------------------------------------------

BOOL CStatic::Create(LPCTSTR lpszText, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(WC_STATIC, lpszText, dwStyle, rect, pParentWnd, nID);
}

void CStatic::DrawItem(LPDRAWITEMSTRUCT) {}

BOOL CStatic::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (message != WM_DRAWITEM)
        return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}

// --- Buttons ------------------------------------------------------------------------------

BOOL CButton::Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(WC_BUTTON, lpszCaption, dwStyle, rect, pParentWnd, nID);
}

void CButton::DrawItem(LPDRAWITEMSTRUCT) {}

BOOL CButton::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (message != WM_DRAWITEM)
        return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}

// --- Entry fields -------------------------------------------------------------------------

BOOL CEdit::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(WC_EDIT, nullptr, dwStyle, rect, pParentWnd, nID);
}

void CEdit::GetSel(int& nStartChar, int& nEndChar) const {
    // The result has only sixteen bits for each; the pointers have all.
    DWORD dwStart = 0;
    DWORD dwEnd = 0;
    ::SendMessage(m_hWnd, EM_GETSEL, reinterpret_cast<WPARAM>(&dwStart), reinterpret_cast<LPARAM>(&dwEnd));
    nStartChar = static_cast<int>(dwStart);
    nEndChar = static_cast<int>(dwEnd);
}

void CEdit::SetSel(int nStartChar, int nEndChar, BOOL bNoScroll) {
    AfxSendInt(m_hWnd, EM_SETSEL, static_cast<WPARAM>(nStartChar), nEndChar);
    if (!bNoScroll)
        AfxSendInt(m_hWnd, EM_SCROLLCARET);
}

void CEdit::SetSel(DWORD dwSelection, BOOL bNoScroll) {
    const auto position = [](WORD w) { return w == 0xFFFF ? -1 : static_cast<int>(w); };
    SetSel(position(LOWORD(dwSelection)), position(HIWORD(dwSelection)), bNoScroll);
}

int CEdit::GetLine(int nIndex, LPTSTR lpszBuffer, int nMaxLength) const {
    if (nMaxLength <= 0)
        return 0;
    // The control reads the size from the buffer itself, as one 16-bit word.
    lpszBuffer[0] = static_cast<TCHAR>(std::min(nMaxLength, 0xFFFF));
    return GetLine(nIndex, lpszBuffer);
}

CPoint CEdit::PosFromChar(UINT nChar) const {
    const int nPoint = AfxSendInt(m_hWnd, EM_POSFROMCHAR, nChar);
    return CPoint(static_cast<short>(LOWORD(nPoint)), static_cast<short>(HIWORD(nPoint)));
}

// --- Scroll bars --------------------------------------------------------------------------

BOOL CScrollBar::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(WC_SCROLLBAR, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CScrollBar::SetScrollInfo(LPSCROLLINFO lpScrollInfo, BOOL bRedraw) {
    lpScrollInfo->cbSize = sizeof(SCROLLINFO);
    ::SetScrollInfo(m_hWnd, SB_CTL, lpScrollInfo, bRedraw);
    return TRUE;
}

BOOL CScrollBar::GetScrollInfo(LPSCROLLINFO lpScrollInfo, UINT nMask) {
    lpScrollInfo->cbSize = sizeof(SCROLLINFO);
    lpScrollInfo->fMask = nMask;
    return ::GetScrollInfo(m_hWnd, SB_CTL, lpScrollInfo);
}

int CScrollBar::GetScrollLimit() {
    return CWnd::GetScrollLimit(SB_CTL);
}
