#include "screens/LineLists.h"

#include "screens/JournalGroups.h"
#include "screens/Resource.h"
#include "screens/Text.h"

namespace {

constexpr int kItemWidth = 130; // pixels at AFX_DESIGN_DPI

void InsertColumns(CListCtrl& list) {
    const int nWidth = AfxScale(list, kItemWidth);
    list.InsertColumn(0, Text(IDS_COLUMN_ITEM), LVCFMT_LEFT, nWidth);
    list.InsertColumn(1, Text(IDS_COLUMN_VALUE), LVCFMT_RIGHT, nWidth);
}

/// @param nData of each row
/// @return whether one of the lines has a value
bool AppendLines(CListCtrl& list, const std::vector<CString>& lines, DWORD_PTR nData) {
    bool bValue = false;
    for (const CString& strLine : lines) {
        const auto [strItem, strValue] = SplitLine(strLine);
        const int nRow = list.InsertItem(list.GetItemCount(), strItem);
        list.SetItemText(nRow, 1, strValue);
        list.SetItemData(nRow, nData);
        bValue = bValue || !strValue.IsEmpty();
    }
    return bValue;
}

/// Sentences stand in the first column: without values it has the whole width.
void FitColumns(CListCtrl& list, bool bValues) {
    CRect rect;
    list.GetClientRect(&rect);
    const int nItemWidth = bValues ? AfxScale(list, kItemWidth) : rect.Width();
    list.SetColumnWidth(0, nItemWidth);
    list.SetColumnWidth(1, rect.Width() - nItemWidth);
}

} // namespace

// clang-format off
BEGIN_MESSAGE_MAP(CResultList, CnListCtrl)
    ON_WM_SIZE()
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CReportList, CSelectListCtrl)
    ON_NOTIFY_REFLECT(NM_CLICK, &CReportList::OnClick)
END_MESSAGE_MAP()
// clang-format on

void CResultList::PreSubclassWindow() {
    CnListCtrl::PreSubclassWindow();
    SetOption(OptionNoSelection);
    InsertColumns(*this);
    FitColumns(*this, true);
}

void CResultList::OnSize(UINT nType, int cx, int cy) {
    CnListCtrl::OnSize(nType, cx, cy);
    SetColumnWidth(1, cx - GetColumnWidth(0));
}

void CResultList::Show(const std::vector<CString>& lines) {
    DeleteAllItems();
    const bool bValues = AppendLines(*this, lines, 0);
    FitColumns(*this, bValues || lines.empty());
}

void CReportList::PreSubclassWindow() {
    CSelectListCtrl::PreSubclassWindow();
    SetOption(OptionNoSelection);
    SetExtendedStyle(LVS_EX_FULLROWSELECT); // a tap anywhere in a row counts
    InsertColumns(*this);
}

void CReportList::Show(const CReport& report, const CSettings& settings) {
    for (size_t i = 0; i < report.points.size(); ++i)
        AppendLines(*this, LinesOf(report.points[i], settings), i);
    std::vector<CString> notes;
    for (const CReportLine& note : report.notes)
        notes.push_back(TextOf(note, settings));
    const bool bValues = AppendLines(*this, notes, kNoSolution);
    FitColumns(*this, bValues || !report.points.empty());
}

DWORD CReportList::GetItemAttribute(int nItem) {
    return GetItemData(nItem) == m_nChosen ? static_cast<DWORD>(AttributeHighlight) : 0;
}

void CReportList::OnClick(NMHDR* pNMHDR, LRESULT* pResult) {
    *pResult = 0;
    const int nRow = reinterpret_cast<const NMITEMACTIVATE*>(pNMHDR)->iItem;
    if (nRow < 0 || GetItemData(nRow) == kNoSolution)
        return;
    m_nChosen = GetItemData(nRow);
    Invalidate();
}
