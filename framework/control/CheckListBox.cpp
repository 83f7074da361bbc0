// List boxes with check boxes.
#include "afxcmn.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(CCheckListBox, CListBox)

namespace {

constexpr int kGap = 2; ///< Pixels around a check box.

int CheckSize() {
    return ::GetSystemMetrics(SM_CXMENUCHECK);
}

/// The height that the list's font asks for.
int TextHeight(CWnd& wnd) {
    CClientDC dc(&wnd); // gone with what is selected
    if (CFont* const pFont = wnd.GetFont())
        dc.SelectObject(pFont);
    TEXTMETRIC metrics = {};
    dc.GetTextMetrics(&metrics);
    return metrics.tmHeight;
}

} // namespace

BOOL CCheckListBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    const bool bVariable = (dwStyle & LBS_OWNERDRAWVARIABLE) != 0;
    return CListBox::Create(dwStyle | LBS_HASSTRINGS | (bVariable ? 0 : LBS_OWNERDRAWFIXED), rect, pParentWnd,
                            nID);
}

void CCheckListBox::PreSubclassWindow() {
    CListBox::PreSubclassWindow();
    m_states.assign(static_cast<size_t>(std::max(GetCount(), 0)), CState());
    SetItemHeight(0, static_cast<UINT>(std::max(TextHeight(*this), CheckSize() + kGap)));
}

void CCheckListBox::MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct) {
    lpMeasureItemStruct->itemHeight = static_cast<UINT>(CheckSize() + kGap);
}

// --- States -------------------------------------------------------------------------------

void CCheckListBox::SetCheck(int nIndex, int nCheck) {
    if (!IsItem(nIndex))
        return;
    m_states[static_cast<size_t>(nIndex)].nCheck = nCheck;
    CRect rect;
    GetItemRect(nIndex, rect);
    InvalidateRect(rect, FALSE);
}

int CCheckListBox::GetCheck(int nIndex) const {
    return IsItem(nIndex) ? m_states[static_cast<size_t>(nIndex)].nCheck : 0;
}

void CCheckListBox::Enable(int nIndex, BOOL bEnabled) {
    if (!IsItem(nIndex))
        return;
    m_states[static_cast<size_t>(nIndex)].bEnabled = bEnabled;
    Invalidate(FALSE);
}

BOOL CCheckListBox::IsEnabled(int nIndex) const {
    return IsItem(nIndex) && m_states[static_cast<size_t>(nIndex)].bEnabled;
}

/// What the user does to a check box.
void CCheckListBox::Toggle(int nIndex) {
    if (!IsEnabled(nIndex) || (m_nStyle != BS_AUTOCHECKBOX && m_nStyle != BS_AUTO3STATE))
        return;
    const int nStates = m_nStyle == BS_AUTO3STATE ? 3 : 2;
    SetCheck(nIndex, (GetCheck(nIndex) + 1) % nStates);
    const int nID = GetDlgCtrlID();
    ::SendMessage(::GetParent(m_hWnd), WM_COMMAND, static_cast<WPARAM>(MAKELONG(nID, CLBN_CHKCHANGE)),
                  reinterpret_cast<LPARAM>(m_hWnd));
}

/// The states go along with the items that the list has taken or given up.
void CCheckListBox::Follow(UINT message, WPARAM wParam, LRESULT lResult) {
    if (lResult < 0)
        return;
    if (message == LB_ADDSTRING || message == LB_INSERTSTRING)
        m_states.insert(m_states.begin() + std::min<LRESULT>(lResult, static_cast<LRESULT>(m_states.size())),
                        CState());
    else if (message == LB_DELETESTRING && IsItem(static_cast<int>(wParam)))
        m_states.erase(m_states.begin() + static_cast<int>(wParam));
    else if (message == LB_RESETCONTENT)
        m_states.clear();
}

LRESULT CCheckListBox::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_KEYDOWN && wParam == VK_SPACE) {
        Toggle(GetCaretIndex());
        return 0;
    }
    int nTapped = -1;
    if (message == WM_LBUTTONDOWN || message == WM_LBUTTONDBLCLK) {
        const CPoint point(static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam)));
        BOOL bOutside = FALSE;
        const int nItem = static_cast<int>(ItemFromPoint(point, bOutside));
        CRect rect;
        if (!bOutside && GetItemRect(nItem, rect) != LB_ERR && CheckRect(rect).PtInRect(point))
            nTapped = nItem;
    }
    const LRESULT lResult = CListBox::WindowProc(message, wParam, lParam);
    Follow(message, wParam, lResult);
    if (nTapped >= 0)
        Toggle(nTapped);
    return lResult;
}

// --- Drawing ------------------------------------------------------------------------------

CRect CCheckListBox::OnGetCheckPosition(CRect, CRect rectCheckBox) {
    return rectCheckBox;
}

CRect CCheckListBox::CheckRect(const CRect& rectItem) {
    const int nSize = CheckSize();
    const CPoint corner(rectItem.left + kGap, rectItem.top + (rectItem.Height() - nSize) / 2);
    return OnGetCheckPosition(rectItem, CRect(corner, CSize(nSize, nSize)));
}

void CCheckListBox::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) {
    const int nItem = static_cast<int>(lpDrawItemStruct->itemID);
    CDC* const pDC = CDC::FromHandle(lpDrawItemStruct->hDC);
    CRect rect(lpDrawItemStruct->rcItem);
    if (!IsItem(nItem)) {
        if (lpDrawItemStruct->itemAction & ODA_FOCUS)
            pDC->DrawFocusRect(rect);
        return;
    }
    const bool bSelected = (lpDrawItemStruct->itemState & ODS_SELECTED) != 0;
    const bool bEnabled = IsEnabled(nItem) && IsWindowEnabled();
    CRect check = CheckRect(rect);
    pDC->FillSolidRect(rect, ::GetSysColor(COLOR_WINDOW));
    const UINT nState = DFCS_BUTTONCHECK | (GetCheck(nItem) != 0 ? DFCS_CHECKED : 0U) |
                        (GetCheck(nItem) == 2 || !bEnabled ? DFCS_INACTIVE : 0U);
    pDC->DrawFrameControl(check, DFC_BUTTON, nState);
    rect.left = check.right + kGap;
    pDC->FillSolidRect(rect, ::GetSysColor(bSelected ? COLOR_HIGHLIGHT : COLOR_WINDOW));
    pDC->SetTextColor(::GetSysColor(!bEnabled   ? COLOR_GRAYTEXT
                                    : bSelected ? COLOR_HIGHLIGHTTEXT
                                                : COLOR_WINDOWTEXT));
    pDC->SetBkMode(TRANSPARENT);
    CString strText;
    GetText(nItem, strText);
    CRect text(rect);
    text.left += kGap;
    pDC->DrawText(strText, text, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
    if (lpDrawItemStruct->itemState & ODS_FOCUS)
        pDC->DrawFocusRect(rect);
}
