#include "screens/ColumnChoice.h"

#include "screens/Resource.h"
#include "screens/SettingsSheet.h"
#include "screens/Text.h"
#include "dialogs/ResMsgBox.h"
#include "dialogs/SelMemberDlg.h"
#include "resources/ResourceIds.h"

#include <algorithm>

namespace {

constexpr Column kColumns[] = {Column::Name, Column::N, Column::E, Column::Z, Column::Code};

/// The data of a column in the dialog: not the value of its enumerator, since that of a blank has
/// a meaning there.
constexpr unsigned long kFirstData = 100;

unsigned long DataOf(Column column) {
    return column == Column::Blank ? CSelMemberItem::BLANK : kFirstData + static_cast<unsigned long>(column);
}

Column ColumnOf(const CSelMemberItem& item) {
    return item.m_dwData == CSelMemberItem::BLANK ? Column::Blank
                                                  : static_cast<Column>(item.m_dwData - kFirstData);
}

CString TitleOf(Column column) {
    return Text(column == Column::Blank ? IDS_FK_BLANK : IDS_COLUMN_FIRST + static_cast<UINT>(column));
}

void Add(CPtrList& list, Column column) {
    CSelMemberDlg::AddSelMemberItemToList(list, TitleOf(column), DataOf(column));
}

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
            columns.push_back(ColumnOf(*static_cast<const CSelMemberItem*>(m_listCurrent.GetNext(pos))));
        return columns;
    }
};

/// Asks until the columns are good or the user cancels.
template <class IsGood>
bool Choose(CWnd& parent, UINT nTitleId, UINT nProblemId, Column further, IsGood isGood,
            std::vector<Column>& columns) {
    for (;;) {
        CColumnsDlg dialog(nTitleId, parent);
        dialog.SetColumns(columns, further);
        if (dialog.DoModal() != IDOK)
            return false;
        const std::vector<Column> chosen = dialog.GetColumns();
        if (isGood(chosen)) {
            columns = chosen;
            return true;
        }
        CResMsgBox().ErrorMsgBox(nProblemId);
    }
}

bool ChooseOrder(CWnd& parent, const CString& strLine, UINT nQuestionId, std::vector<Column>& columns) {
    constexpr int kLongest = 80;
    CResMsgBox().InformationMsgBox(Text(nQuestionId, strLine.Left(kLongest).GetString()));
    return Choose(parent, IDS_FILE_COLUMNS, IDS_COLUMNS_MISSING, Column::Other, AreComplete, columns);
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
    const auto isAny = [](const std::vector<Column>& chosen) { return !chosen.empty(); };
    return Choose(parent, IDS_EXPORT_COLUMNS, IDS_NO_COLUMNS, Column::Blank, isAny, columns);
}

CReadHelp HelpFor(CSettings& settings, CWnd& parent) {
    CReadHelp help;
    help.chooseColumns = [&](const CString& strLine, bool bHeading, size_t nFields,
                             std::vector<Column>& columns) {
        if (bHeading) {
            DropDoubles(columns);
            return ChooseOrder(parent, strLine, IDS_ASK_HEADING, columns);
        }
        if (settings.order.size() < nFields) {
            if (!ChooseOrder(parent, strLine, IDS_ASK_ORDER, columns))
                return false;
            settings.order = columns;
            KeepSettings(settings);
        }
        columns = settings.order;
        return true;
    };
    return help;
}
