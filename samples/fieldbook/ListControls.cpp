#include "ListControls.h"

#include "JournalGroups.h"
#include "Resource.h"
#include "Text.h"

#include <numeric>

namespace {

// Pixels.
constexpr int NAME_WIDTH = 46;
constexpr int COORDINATE_WIDTH = 78;
constexpr int HEIGHT_WIDTH = 60;
constexpr int ITEM_WIDTH = 112;
constexpr int ROW_HEIGHT = 22; // what a pen hits without care

} // namespace

// clang-format off
BEGIN_MESSAGE_MAP(CPointListCtrl, CSelectListCtrl)
    ON_NOTIFY_REFLECT(LVN_COLUMNCLICK, &CPointListCtrl::OnColumnClick)
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CResultList, CnListCtrl)
    ON_WM_SIZE()
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
    InsertColumn(static_cast<int>(PointColumn::Name), Text(IDS_COLUMN_NAME), LVCFMT_LEFT, NAME_WIDTH);
    InsertColumn(static_cast<int>(PointColumn::N), L"N", LVCFMT_RIGHT, COORDINATE_WIDTH);
    InsertColumn(static_cast<int>(PointColumn::E), L"E", LVCFMT_RIGHT, COORDINATE_WIDTH);
    InsertColumn(static_cast<int>(PointColumn::Z), L"Z", LVCFMT_RIGHT, HEIGHT_WIDTH);
    std::vector<size_t> order(m_book.GetPoints().size());
    std::iota(order.begin(), order.end(), size_t{0});
    SetRows(order);
}

void CPointListCtrl::SetRows(const std::vector<size_t>& order) {
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

DWORD CPointListCtrl::GetItemAttribute(int nItem) {
    const CNamedPoint& row = m_book.GetPoints()[GetItemData(nItem)];
    return m_book.IsUsed(row.strName) ? static_cast<DWORD>(AttributeHighlight) : 0;
}

void CPointListCtrl::OnColumnClick(NMHDR* pNMHDR, LRESULT* pResult) {
    const int nColumn = reinterpret_cast<const NMLISTVIEW*>(pNMHDR)->iSubItem;
    SetRows(OrderPoints(m_book.GetPoints(), static_cast<PointColumn>(nColumn)));
    *pResult = 0;
}

void CResultList::PreSubclassWindow() {
    CnListCtrl::PreSubclassWindow();
    SetOption(OptionNoSelection);
    InsertColumn(0, Text(IDS_COLUMN_ITEM), LVCFMT_LEFT, ITEM_WIDTH);
    InsertColumn(1, Text(IDS_COLUMN_VALUE), LVCFMT_RIGHT, ITEM_WIDTH);
}

void CResultList::OnSize(UINT nType, int cx, int cy) {
    CnListCtrl::OnSize(nType, cx, cy);
    SetColumnWidth(1, cx - GetColumnWidth(0));
}

void CResultList::Show(const std::vector<CString>& lines) {
    DeleteAllItems();
    for (size_t i = 0; i < lines.size(); ++i) {
        const auto [strItem, strValue] = SplitLine(lines[i]);
        InsertItem(static_cast<int>(i), strItem);
        SetItemText(static_cast<int>(i), 1, strValue);
    }
    // A sentence stands in the first column alone: then it has the whole width.
    CRect rect;
    GetClientRect(&rect);
    const bool bSentence = lines.size() == 1;
    SetColumnWidth(0, bSentence ? rect.Width() : ITEM_WIDTH);
    SetColumnWidth(1, bSentence ? 0 : rect.Width() - ITEM_WIDTH);
}

void CJournalTree::PreSubclassWindow() {
    CnTreeCtrl::PreSubclassWindow();
    SetItemHeight(ROW_HEIGHT);
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
    SetItemHeight(0, ROW_HEIGHT);
}

BOOL CChoiceList::OnSelChange() {
    ::MessageBeep(MB_OK);
    return FALSE; // the dialog wants to know as well
}
