#include "controls/nListCtrl.h"

#include "controls/detail/Gesture.h"

using namespace fieldkit::detail;

// clang-format off
BEGIN_MESSAGE_MAP(CnListCtrl, CListCtrl)
    ON_WM_LBUTTONDOWN()
    ON_NOTIFY_REFLECT(LVN_ITEMCHANGED, &CnListCtrl::OnItemchanged)
    ON_NOTIFY_REFLECT(NM_RECOGNIZEGESTURE, &CnListCtrl::OnRecognizeGesture)
END_MESSAGE_MAP()
// clang-format on

void CnListCtrl::SetOption(DWORD dwOption) {
    m_dwOption = dwOption;
}

void CnListCtrl::OnLButtonDown(UINT, CPoint) {
    Default();
}

void CnListCtrl::OnItemchanged(NMHDR* pNMHDR, LRESULT* pResult) {
    *pResult = 0;
    if ((m_dwOption & OptionNoSelection) == 0 || m_bClearing)
        return;
    if (GetSelectedCount() != 0)
        ClearSelection(reinterpret_cast<const NMLISTVIEW*>(pNMHDR)->iItem);
    else
        GetNextItem(-1, LVNI_FOCUSED); // an item with the focus alone may keep it
}

/// Each item that is cleared brings a notification of its own. They are not answered one in
/// the other, which would use up the stack for a long list with everything selected. The changed
/// item is tried first: searching the list for each of them would be quadratic.
void CnListCtrl::ClearSelection(int nChanged) {
    constexpr UINT kMask = LVIS_SELECTED | LVIS_FOCUSED;
    m_bClearing = true;
    if (nChanged >= 0 && GetItemState(nChanged, LVIS_SELECTED) != 0)
        SetItemState(nChanged, ~kMask, kMask);
    if (GetSelectedCount() != 0)
        for (int nLast = -1, nItem = -1; (nItem = GetNextItem(nLast, LVNI_SELECTED)) > nLast; nLast = nItem)
            SetItemState(nItem, ~kMask, kMask);
    m_bClearing = false;
}

void CnListCtrl::OnRecognizeGesture(NMHDR*, LRESULT* pResult) {
    *pResult = kGestureHandled;
}
