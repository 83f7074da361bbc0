#include "screens/ColumnChoice.h"

#include "screens/Resource.h"
#include "screens/Text.h"
#include "dialogs/ResMsgBox.h"
#include "dialogs/SelMemberDlg.h"
#include "resources/ResourceIds.h"

#include <algorithm>

namespace {

constexpr Column kColumns[] = {Column::Name, Column::N, Column::E, Column::Z};

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
    explicit CColumnsDlg(CWnd& parent) : CSelMemberDlg(Text(IDS_EXPORT_COLUMNS), &parent) {}
    ~CColumnsDlg() override {
        FlashSelMemberList(m_listAvailable);
        FlashSelMemberList(m_listCurrent);
    }

    void SetColumns(const std::vector<Column>& columns) {
        for (const Column column : kColumns)
            if (std::find(columns.begin(), columns.end(), column) == columns.end())
                Add(m_listAvailable, column);
        Add(m_listAvailable, Column::Blank);
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

} // namespace

bool ChooseColumns(CWnd& parent, std::vector<Column>& columns) {
    for (;;) {
        CColumnsDlg dialog(parent);
        dialog.SetColumns(columns);
        if (dialog.DoModal() != IDOK)
            return false;
        const std::vector<Column> chosen = dialog.GetColumns();
        if (!chosen.empty()) {
            columns = chosen;
            return true;
        }
        CResMsgBox().ErrorMsgBox(IDS_NO_COLUMNS);
    }
}
