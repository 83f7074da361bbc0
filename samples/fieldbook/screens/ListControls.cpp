#include "screens/ListControls.h"

#include "compute/ValueText.h"
#include "screens/ProgressWindow.h"
#include "screens/Resource.h"
#include "screens/Text.h"

#include <algorithm>

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
    Arrange({}, CString());
}

/// @return false, with the rows as they were, if the user has stopped it
bool CPointListCtrl::Arrange(const CPointOrder& by, const CString& strPart) {
    std::vector<size_t> order;
    try {
        CProgressWindow window(IDS_SORTING);
        order = FindPoints(m_book.GetPoints(), strPart, PartOf(window.Get(), 0, 2));
        OrderPoints(m_book.GetPoints(), order, by, PartOf(window.Get(), 1, 2));
    } catch (CUserException* e) {
        e->Delete();
        return false;
    }
    m_order = std::move(order);
    m_by = by;
    m_strPart = strPart;
    ShowRows();
    return true;
}

void CPointListCtrl::ShowRows() {
    SetItemCountEx(static_cast<int>(m_order.size()), LVSICF_NOSCROLL);
    Invalidate();
}

void CPointListCtrl::Follow(const CPointChange& change) {
    const size_t nPlace = change.nPlace;
    m_order.reserve(m_order.size() + 1); // what needs memory comes first: the rows follow or stay
    if (change.kind != CPointChange::Kind::Add)
        m_order.erase(std::remove(m_order.begin(), m_order.end(), nPlace), m_order.end());
    for (size_t& nOther : m_order) {
        if (change.kind == CPointChange::Kind::Remove && nOther > nPlace)
            --nOther;
        else if (change.kind == CPointChange::Kind::Add && nOther >= nPlace)
            ++nOther;
    }
    if (change.kind != CPointChange::Kind::Remove && HasPart(change.after.strName, m_strPart)) {
        const auto isBefore = [this](size_t a, size_t b) { return m_by.IsBefore(m_book.GetPoints(), a, b); };
        m_order.insert(std::lower_bound(m_order.begin(), m_order.end(), nPlace, isBefore), nPlace);
    }
    ShowRows();
}

void CPointListCtrl::ShowOnly(const CString& strPart) {
    const CString strCapitals = CString(strPart).MakeUpper();
    SetItemState(-1, 0, LVIS_SELECTED | LVIS_FOCUSED);
    if (!Arrange(m_by, strCapitals))
        Arrange({}, strCapitals);
}

void CPointListCtrl::Select(const CString& strName) {
    for (size_t i = 0; i < m_order.size(); ++i)
        if (PointAt(static_cast<int>(i))->strName == strName) {
            SetItemState(static_cast<int>(i), LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
            EnsureVisible(static_cast<int>(i), FALSE);
            return;
        }
}

const CNamedPoint* CPointListCtrl::PointAt(int nRow) const {
    if (nRow < 0 || static_cast<size_t>(nRow) >= m_order.size())
        return nullptr;
    const size_t nPlace = m_order[static_cast<size_t>(nRow)];
    return nPlace < m_book.GetPoints().size() ? &m_book.GetPoints()[nPlace] : nullptr;
}

const CNamedPoint* CPointListCtrl::GetSelectedPoint() const {
    return PointAt(GetNextItem(-1, LVNI_SELECTED));
}

CString CPointListCtrl::TextOf(const CNamedPoint& point, PointColumn column) const {
    switch (column) {
    case PointColumn::Name:
        return point.strName;
    case PointColumn::N:
        return LengthText(point.point.GetN(), m_nDecimals);
    case PointColumn::E:
        return LengthText(point.point.GetE(), m_nDecimals);
    case PointColumn::Z:
        return LengthText(point.point.GetZ(), m_nDecimals);
    default:
        return point.strCode;
    }
}

/// The control asks for what it is about to draw and for nothing else.
void CPointListCtrl::OnGetDispInfo(NMHDR* pNMHDR, LRESULT* pResult) {
    LVITEM& item = reinterpret_cast<NMLVDISPINFO*>(pNMHDR)->item;
    *pResult = 0;
    const CNamedPoint* const pPoint = PointAt(item.iItem);
    if ((item.mask & LVIF_TEXT) != 0 && pPoint != nullptr)
        ::lstrcpyn(item.pszText, TextOf(*pPoint, static_cast<PointColumn>(item.iSubItem)), item.cchTextMax);
}

DWORD CPointListCtrl::GetItemAttribute(int nItem) {
    const CNamedPoint* const pPoint = PointAt(nItem);
    return pPoint != nullptr && m_book.IsUsed(pPoint->strName) ? static_cast<DWORD>(AttributeHighlight) : 0;
}

void CPointListCtrl::OnColumnClick(NMHDR* pNMHDR, LRESULT* pResult) {
    const auto column = static_cast<PointColumn>(reinterpret_cast<const NMLISTVIEW*>(pNMHDR)->iSubItem);
    Arrange({column, m_by.column == column && !m_by.bTurned}, m_strPart);
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
