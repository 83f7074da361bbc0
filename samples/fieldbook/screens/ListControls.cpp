#include "screens/ListControls.h"

#include "compute/ValueText.h"
#include "screens/Resource.h"
#include "screens/Text.h"

#include <algorithm>
#include <numeric>

namespace {

// Pixels at AFX_DESIGN_DPI.
constexpr int kNameWidth = 46;
constexpr int kCoordinateWidth = 78;
constexpr int kHeightWidth = 60;
constexpr int kRowHeight = 28; // what a gloved hand hits

} // namespace

// clang-format off
BEGIN_MESSAGE_MAP(CPointListCtrl, CSelectListCtrl)
    ON_NOTIFY_REFLECT(LVN_COLUMNCLICK, &CPointListCtrl::OnColumnClick)
    ON_NOTIFY_REFLECT(LVN_GETDISPINFO, &CPointListCtrl::OnGetDispInfo)
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
    // A row is as high as its image, though there is none.
    m_rowImages.Create(1, AfxScale(m_hWnd, kRowHeight) - 1, ILC_COLOR, 0, 1);
    SetImageList(&m_rowImages, LVSIL_SMALL);
    const auto insert = [this](PointColumn column, LPCTSTR pszTitle, int nFormat, int nWidth) {
        InsertColumn(static_cast<int>(column), pszTitle, nFormat, AfxScale(m_hWnd, nWidth));
    };
    insert(PointColumn::Name, Text(IDS_COLUMN_NAME), LVCFMT_LEFT, kNameWidth);
    insert(PointColumn::N, L"N", LVCFMT_RIGHT, kCoordinateWidth);
    insert(PointColumn::E, L"E", LVCFMT_RIGHT, kCoordinateWidth);
    insert(PointColumn::Z, L"Z", LVCFMT_RIGHT, kHeightWidth);
    insert(PointColumn::Code, Text(IDS_COLUMN_CODE), LVCFMT_LEFT, kHeightWidth);
    Refresh();
}

void CPointListCtrl::Refresh() {
    const std::vector<CNamedPoint>& points = m_book.GetPoints();
    if (m_column) {
        m_order = OrderPoints(points, *m_column, m_bTurned);
    } else {
        m_order.resize(points.size());
        std::iota(m_order.begin(), m_order.end(), size_t{0});
    }
    const auto isLeftOut = [&](size_t i) {
        return CString(points[i].strName).MakeUpper().Find(m_strPart) < 0;
    };
    if (!m_strPart.IsEmpty())
        m_order.erase(std::remove_if(m_order.begin(), m_order.end(), isLeftOut), m_order.end());
    SetItemCountEx(static_cast<int>(m_order.size()), LVSICF_NOSCROLL);
    Invalidate();
}

void CPointListCtrl::ShowOnly(const CString& strPart) {
    m_strPart = CString(strPart).MakeUpper();
    SetItemState(-1, 0, LVIS_SELECTED | LVIS_FOCUSED);
    Refresh();
}

void CPointListCtrl::Select(const CString& strName) {
    for (size_t i = 0; i < m_order.size(); ++i)
        if (PointAt(static_cast<int>(i)).strName == strName) {
            SetItemState(static_cast<int>(i), LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
            EnsureVisible(static_cast<int>(i), FALSE);
            return;
        }
}

const CNamedPoint& CPointListCtrl::PointAt(int nRow) const {
    return m_book.GetPoints()[m_order[static_cast<size_t>(nRow)]];
}

const CNamedPoint* CPointListCtrl::GetSelectedPoint() const {
    const int nRow = GetNextItem(-1, LVNI_SELECTED);
    return nRow < 0 || static_cast<size_t>(nRow) >= m_order.size() ? nullptr : &PointAt(nRow);
}

CString CPointListCtrl::TextAt(int nRow, PointColumn column) const {
    const CNamedPoint& row = PointAt(nRow);
    switch (column) {
    case PointColumn::Name:
        return row.strName;
    case PointColumn::N:
        return LengthText(row.point.GetN(), m_nDecimals);
    case PointColumn::E:
        return LengthText(row.point.GetE(), m_nDecimals);
    case PointColumn::Z:
        return LengthText(row.point.GetZ(), m_nDecimals);
    default:
        return row.strCode;
    }
}

/// The control asks for what it is about to draw and for nothing else.
void CPointListCtrl::OnGetDispInfo(NMHDR* pNMHDR, LRESULT* pResult) {
    LVITEM& item = reinterpret_cast<NMLVDISPINFO*>(pNMHDR)->item;
    *pResult = 0;
    if ((item.mask & LVIF_TEXT) == 0 || item.iItem < 0 || static_cast<size_t>(item.iItem) >= m_order.size())
        return;
    const CString strText = TextAt(item.iItem, static_cast<PointColumn>(item.iSubItem));
    ::lstrcpyn(item.pszText, strText, item.cchTextMax);
}

DWORD CPointListCtrl::GetItemAttribute(int nItem) {
    const bool bUsed = static_cast<size_t>(nItem) < m_order.size() && m_book.IsUsed(PointAt(nItem).strName);
    return bUsed ? static_cast<DWORD>(AttributeHighlight) : 0;
}

void CPointListCtrl::OnColumnClick(NMHDR* pNMHDR, LRESULT* pResult) {
    const auto column = static_cast<PointColumn>(reinterpret_cast<const NMLISTVIEW*>(pNMHDR)->iSubItem);
    m_bTurned = m_column == column && !m_bTurned;
    m_column = column;
    Refresh();
    *pResult = 0;
}

void CJournalTree::PreSubclassWindow() {
    CnTreeCtrl::PreSubclassWindow();
    SetItemHeight(static_cast<SHORT>(AfxScale(m_hWnd, kRowHeight)));
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
    SetItemHeight(0, static_cast<UINT>(AfxScale(m_hWnd, kRowHeight)));
}

BOOL CChoiceList::OnSelChange() {
    ::MessageBeep(MB_OK);
    return FALSE; // the dialog wants to know as well
}
