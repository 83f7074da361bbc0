#include "screens/ColumnChoice.h"

#include "screens/Messages.h"
#include "screens/Resource.h"
#include "screens/SettingsSheet.h"
#include "screens/Text.h"
#include "controls/nListCtrl.h"
#include "dialogs/SelMemberDlg.h"
#include "resources/ResourceIds.h"

#include <algorithm>
#include <memory>

namespace {

constexpr Column kColumns[] = {Column::Name, Column::N, Column::E, Column::Z, Column::Code};

/// The data of a column in the dialog: not the value of its enumerator, since that of a blank has
/// a meaning there.
constexpr unsigned long kFirstData = 100;

unsigned long DataOf(Column column) {
    return column == Column::Blank ? CSelMemberItem::BLANK : kFirstData + static_cast<unsigned long>(column);
}

Column ColumnOf(unsigned long dwData) {
    return dwData == CSelMemberItem::BLANK ? Column::Blank : static_cast<Column>(dwData - kFirstData);
}

static_assert(IDS_COLUMN_LAST - IDS_COLUMN_FIRST + 2 == kColumnCount, "a text for each column but Blank");

CString TitleOf(Column column) {
    return Text(column == Column::Blank ? IDS_FK_BLANK : IDS_COLUMN_FIRST + static_cast<UINT>(column));
}

void Add(CPtrList& list, Column column) {
    CSelMemberDlg::AddSelMemberItemToList(list, TitleOf(column), DataOf(column));
}

using Lines = std::vector<std::vector<CString>>;

/// The dialog with its items, which it does not free itself.
class CColumnsDlg : public CSelMemberDlg {
public:
    CColumnsDlg(UINT nTitleId, CWnd& parent) : CSelMemberDlg(Text(nTitleId), &parent) {}
    ~CColumnsDlg() override {
        FlashSelMemberList(m_listAvailable);
        FlashSelMemberList(m_listCurrent);
    }

    /// @param further can be added any number of times
    void SetColumns(const std::vector<Column>& columns, Column further) {
        for (const Column column : kColumns)
            if (!HasColumn(columns, column))
                Add(m_listAvailable, column);
        Add(m_listAvailable, further);
        for (const Column column : columns)
            Add(m_listCurrent, column);
    }

    std::vector<Column> GetColumns() const {
        std::vector<Column> columns;
        for (POSITION pos = m_listCurrent.GetHeadPosition(); pos != nullptr;)
            columns.push_back(
                ColumnOf(static_cast<const CSelMemberItem*>(m_listCurrent.GetNext(pos))->m_dwData));
        return columns;
    }
};

/// Below the choice stand the first lines of a file, each field under the column that it is taken for.
class CFileColumnsDlg : public CColumnsDlg {
public:
    /// @param nHintId why the user is asked
    CFileColumnsDlg(UINT nHintId, const Lines& lines, CWnd& parent)
        : CColumnsDlg(IDS_FILE_COLUMNS, parent), m_nHintId(nHintId), m_lines(lines) {}

protected:
    BOOL OnInitDialog() override {
        CColumnsDlg::OnInitDialog();
        MakeRoom();
        Fill();
        CenterWindow();
        return TRUE;
    }

    /// A tap on one of the base class's buttons changes the columns.
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
        const BOOL bDone = CColumnsDlg::OnCommand(wParam, lParam);
        if (m_list.m_hWnd != nullptr)
            ShowTitles();
        return bDone;
    }

private:
    /// The buttons at the bottom go down.
    void MakeRoom() {
        const int nHintHeight = AfxScale(m_hWnd, 17), nMargin = AfxScale(m_hWnd, 4);
        CRect window, area;
        GetWindowRect(window);
        GetClientRect(area);
        const int nMore =
            std::min(nHintHeight + AfxScale(m_hWnd, 100), ::GetSystemMetrics(SM_CYSCREEN) - window.Height());
        SetWindowPos(nullptr, 0, 0, window.Width(), window.Height() + nMore, SWP_NOMOVE | SWP_NOZORDER);
        CRect button;
        for (const int nId : {IDOK, IDCANCEL}) {
            GetDlgItem(nId)->GetWindowRect(button);
            ScreenToClient(button);
            GetDlgItem(nId)->SetWindowPos(nullptr, button.left, button.top + nMore, 0, 0,
                                          SWP_NOSIZE | SWP_NOZORDER);
        }
        area.bottom = button.top;
        area.top = area.bottom + nHintHeight;
        m_hint.Create(Text(m_nHintId), WS_CHILD | WS_VISIBLE | SS_NOPREFIX,
                      CRect(nMargin, button.top, area.right, area.top), this);
        area.bottom = button.top + nMore - nMargin;
        m_list.Create(WS_CHILD | WS_VISIBLE | WS_BORDER | LVS_REPORT | LVS_SINGLESEL | LVS_NOSORTHEADER, area,
                      this, IDC_FIRST_LINES);
        m_hint.SetFont(GetFont());
        m_list.SetFont(GetFont());
    }

    void Fill() {
        const int nWidth = AfxScale(m_hWnd, 76);
        for (size_t nLine = 0; nLine < m_lines.size(); ++nLine) {
            m_list.InsertItem(static_cast<int>(nLine), L"");
            for (size_t nField = 0; nField < m_lines[nLine].size(); ++nField) {
                if (nField == m_nFields)
                    m_list.InsertColumn(static_cast<int>(m_nFields++), L"", LVCFMT_LEFT, nWidth);
                m_list.SetItemText(static_cast<int>(nLine), static_cast<int>(nField), m_lines[nLine][nField]);
            }
        }
        ShowTitles();
    }

    void ShowTitles() {
        const CWnd& chosen = *GetDlgItem(IDC_FK_MEMBER_CURRENT);
        const auto nChosen = static_cast<size_t>(chosen.SendMessage(LB_GETCOUNT));
        for (size_t i = 0; i < m_nFields; ++i) {
            const LRESULT nData = i < nChosen ? chosen.SendMessage(LB_GETITEMDATA, i) : 0;
            CString strTitle =
                i < nChosen ? TitleOf(ColumnOf(static_cast<unsigned long>(nData))) : CString(L"?");
            LVCOLUMN column = {};
            column.mask = LVCF_TEXT;
            column.pszText = strTitle.GetBuffer();
            m_list.SetColumn(static_cast<int>(i), &column);
        }
    }

    UINT m_nHintId;
    const Lines& m_lines;
    size_t m_nFields = 0; ///< Of the longest line.
    CStatic m_hint;
    CnListCtrl m_list;
};

/// Asks until the columns are good or the user cancels.
/// @param makeDialog gives a pointer to a dialog
template <class MakeDialog, class IsGood>
bool Choose(MakeDialog makeDialog, UINT nProblemId, Column further, IsGood isGood,
            std::vector<Column>& columns) {
    for (;;) {
        const auto pDialog = makeDialog();
        pDialog->SetColumns(columns, further);
        if (pDialog->DoModal() != IDOK)
            return false;
        const std::vector<Column> chosen = pDialog->GetColumns();
        if (isGood(chosen)) {
            columns = chosen;
            return true;
        }
        TellError(Text(nProblemId));
    }
}

bool ChooseOrder(CWnd& parent, const Lines& lines, UINT nHintId, std::vector<Column>& columns) {
    const auto makeDialog = [&] { return std::make_unique<CFileColumnsDlg>(nHintId, lines, parent); };
    return Choose(makeDialog, IDS_COLUMNS_MISSING, Column::Other, AreComplete, columns);
}

/// Of a heading only what is known for certain is proposed.
void DropDoubles(std::vector<Column>& columns) {
    for (size_t i = 0; i < columns.size(); ++i)
        if (std::find(columns.begin(), columns.begin() + static_cast<std::ptrdiff_t>(i), columns[i]) !=
            columns.begin() + static_cast<std::ptrdiff_t>(i))
            columns[i] = Column::Other;
}

} // namespace

bool ChooseColumns(CWnd& parent, std::vector<Column>& columns) {
    const auto makeDialog = [&] { return std::make_unique<CColumnsDlg>(IDS_EXPORT_COLUMNS, parent); };
    const auto isAny = [](const std::vector<Column>& chosen) { return !chosen.empty(); };
    return Choose(makeDialog, IDS_NO_COLUMNS, Column::Blank, isAny, columns);
}

CReadHelp HelpFor(CSettings& settings, CWnd& parent, CProgressWindow& window) {
    CReadHelp help;
    help.chooseColumns = [&](const Lines& lines, bool bHeading, std::vector<Column>& columns) {
        window.Close();
        if (bHeading) {
            DropDoubles(columns);
            return ChooseOrder(parent, lines, IDS_ASK_HEADING, columns);
        }
        if (settings.order.size() < lines.front().size()) {
            if (!ChooseOrder(parent, lines, IDS_ASK_ORDER, columns))
                return false;
            settings.order = columns;
            KeepSettings(settings);
        }
        columns = settings.order;
        return true;
    };
    return help;
}
