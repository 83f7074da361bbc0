// List boxes whose items can be dragged, and combo boxes with pictures.
#include "DrawnByOwner.h"

using namespace fieldkit::detail;

IMPLEMENT_DYNAMIC(CDragListBox, CListBox)
IMPLEMENT_DYNAMIC(CComboBoxEx, CComboBox)

// --- Dragging -----------------------------------------------------------------------------

void CDragListBox::PreSubclassWindow() {
    CListBox::PreSubclassWindow();
    ::MakeDragList(m_hWnd);
}

int CDragListBox::ItemFromPt(CPoint pt, BOOL bAutoScroll) const {
    return ::LBItemFromPt(m_hWnd, pt, bAutoScroll);
}

void CDragListBox::DrawInsert(int nItem) {
    ::DrawInsert(::GetParent(m_hWnd), m_hWnd, nItem);
}

BOOL CDragListBox::BeginDrag(CPoint) {
    return TRUE;
}

void CDragListBox::CancelDrag(CPoint) {
    DrawInsert(-1);
}

UINT CDragListBox::Dragging(CPoint pt) {
    const int nItem = ItemFromPt(pt);
    DrawInsert(nItem);
    return nItem == -1 ? DL_STOPCURSOR : DL_MOVECURSOR;
}

void CDragListBox::Dropped(int nSrcIndex, CPoint pt) {
    DrawInsert(-1);
    const int nTarget = ItemFromPt(pt);
    if (nSrcIndex == -1 || nTarget == -1 || nTarget == nSrcIndex || nTarget == nSrcIndex + 1)
        return;
    CString strText;
    GetText(nSrcIndex, strText);
    const DWORD_PTR dwData = GetItemData(nSrcIndex);
    DeleteString(static_cast<UINT>(nSrcIndex));
    const int nNew = InsertString(nSrcIndex < nTarget ? nTarget - 1 : nTarget, strText);
    SetItemData(nNew, dwData);
    SetCurSel(nNew);
}

BOOL CDragListBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    static const UINT nDragMessage = ::RegisterWindowMessage(DRAGLISTMSGSTRING);
    if (message != nDragMessage)
        return CListBox::OnChildNotify(message, wParam, lParam, pResult);
    const auto* pInfo = reinterpret_cast<const DRAGLISTINFO*>(lParam);
    LRESULT lAnswer = 0;
    switch (pInfo->uNotification) {
    case DL_BEGINDRAG:
        lAnswer = BeginDrag(pInfo->ptCursor);
        break;
    case DL_CANCELDRAG:
        CancelDrag(pInfo->ptCursor);
        break;
    case DL_DRAGGING:
        lAnswer = static_cast<LRESULT>(Dragging(pInfo->ptCursor));
        break;
    default:
        Dropped(GetCurSel(), pInfo->ptCursor);
        break;
    }
    if (pResult != nullptr)
        *pResult = lAnswer;
    return TRUE;
}

// --- Combo boxes with pictures --------------------------------------------------------------

BOOL CComboBoxEx::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(WC_COMBOBOXEX, nullptr, dwStyle, rect, pParentWnd, nID);
}

CComboBox* CComboBoxEx::GetComboBoxCtrl() {
    return AskForWindow<CComboBox>(m_hWnd, CBEM_GETCOMBOCONTROL);
}
CEdit* CComboBoxEx::GetEditCtrl() {
    return AskForWindow<CEdit>(m_hWnd, CBEM_GETEDITCONTROL);
}
CImageList* CComboBoxEx::SetImageList(CImageList* pImageList) {
    return ExchangeImages(m_hWnd, CBEM_SETIMAGELIST, pImageList);
}
CImageList* CComboBoxEx::GetImageList() const {
    return ExchangeImages(m_hWnd, CBEM_GETIMAGELIST);
}
