#include "screens/ListControls.h"

#include "screens/Resource.h"
#include "screens/Text.h"

#include <numeric>

namespace {

// Pixels.
constexpr int kNameWidth = 46;
constexpr int kCoordinateWidth = 78;
constexpr int kHeightWidth = 60;
constexpr int kRowHeight = 22; // what a pen hits without care

} // namespace

// clang-format off
BEGIN_MESSAGE_MAP(CPointListCtrl, CSelectListCtrl)
    ON_NOTIFY_REFLECT(LVN_COLUMNCLICK, &CPointListCtrl::OnColumnClick)
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CJournalTree, CnTreeCtrl)
    ON_NOTIFY_REFLECT_EX(NM_CLICK, &CJournalTree::OnClick)
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CChoiceList, CnListBox)
    ON_CONTROL_REFLECT_EX(LBN_SELCHANGE, &CChoiceList::OnSelChange)
END_MESSAGE_MAP()
// clang-format on

void CPointListCtrl::Fill() {
    SetExtendedStyle(LVS_EX_FULLROWSELECT | LVS_EX_GRIDLINES);
    InsertColumn(static_cast<int>(PointColumn::Name), Text(IDS_COLUMN_NAME), LVCFMT_LEFT, kNameWidth);
    InsertColumn(static_cast<int>(PointColumn::N), L"N", LVCFMT_RIGHT, kCoordinateWidth);
    InsertColumn(static_cast<int>(PointColumn::E), L"E", LVCFMT_RIGHT, kCoordinateWidth);
    InsertColumn(static_cast<int>(PointColumn::Z), L"Z", LVCFMT_RIGHT, kHeightWidth);
    Refresh();
}

std::vector<size_t> CPointListCtrl::Order() const {
    if (m_column)
        return OrderPoints(m_book.GetPoints(), *m_column);
    std::vector<size_t> order(m_book.GetPoints().size());
    std::iota(order.begin(), order.end(), size_t{0});
    return order;
}

void CPointListCtrl::Refresh() {
    const std::vector<size_t> order = Order();
    SetRedraw(FALSE);
    DeleteAllItems();
    for (size_t i = 0; i < order.size(); ++i)
        InsertRow(static_cast<int>(i), order[i]);
    SetRedraw(TRUE);
    Invalidate();
}

void CPointListCtrl::InsertRow(int nRow, size_t nPoint) {
    const CNamedPoint& row = m_book.GetPoints()[nPoint];
    InsertItem(nRow, row.strName);
    SetItemData(nRow, nPoint); // the rows may be in another order than the points
    SetItemText(nRow, static_cast<int>(PointColumn::N), row.point.GetNString());
    SetItemText(nRow, static_cast<int>(PointColumn::E), row.point.GetEString());
    SetItemText(nRow, static_cast<int>(PointColumn::Z), row.point.GetZString());
}

const CNamedPoint* CPointListCtrl::GetSelectedPoint() const {
    const int nRow = GetNextItem(-1, LVNI_SELECTED);
    return nRow < 0 ? nullptr : &m_book.GetPoints()[GetItemData(nRow)];
}

DWORD CPointListCtrl::GetItemAttribute(int nItem) {
    const CNamedPoint& row = m_book.GetPoints()[GetItemData(nItem)];
    return m_book.IsUsed(row.strName) ? static_cast<DWORD>(AttributeHighlight) : 0;
}

void CPointListCtrl::OnColumnClick(NMHDR* pNMHDR, LRESULT* pResult) {
    m_column = static_cast<PointColumn>(reinterpret_cast<const NMLISTVIEW*>(pNMHDR)->iSubItem);
    Refresh();
    *pResult = 0;
}

void CJournalTree::PreSubclassWindow() {
    CnTreeCtrl::PreSubclassWindow();
    SetItemHeight(kRowHeight);
}

BOOL CJournalTree::OnClick(NMHDR*, LRESULT* pResult) {
    CPoint point(static_cast<short>(LOWORD(::GetMessagePos())),
                 static_cast<short>(HIWORD(::GetMessagePos())));
    ScreenToClient(&point);
    UINT nFlags = 0;
    const HTREEITEM hItem = HitTest(point, &nFlags);
    if (hItem != nullptr && (nFlags & TVHT_ONITEM) != 0)
        Expand(hItem, TVE_TOGGLE);
    *pResult = 0;
    return FALSE;
}

void CChoiceList::PreSubclassWindow() {
    CnListBox::PreSubclassWindow();
    SetItemHeight(0, kRowHeight);
}

BOOL CChoiceList::OnSelChange() {
    ::MessageBeep(MB_OK);
    return FALSE; // the dialog wants to know as well
}
