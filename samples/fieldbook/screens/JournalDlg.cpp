#include "screens/JournalDlg.h"

#include "screens/Resource.h"
#include "screens/Text.h"

namespace {

/// Item data of a title, which has no lines.
constexpr DWORD_PTR kTitle = static_cast<DWORD_PTR>(-1);

} // namespace

// clang-format off
BEGIN_MESSAGE_MAP(CJournalDlg, CnDialog)
    ON_EN_CHANGE(IDC_PART, &CJournalDlg::OnPart)
    ON_NOTIFY(TVN_SELCHANGED, IDC_JOURNAL_TREE, &CJournalDlg::OnSelChanged)
END_MESSAGE_MAP()
// clang-format on

CJournalDlg::CJournalDlg(const CJournal& journal, CWnd* pParent)
    : CnDialog(IDD_JOURNAL, pParent), m_journal(journal) {
    SetOption(OptionOkButton);
}

void CJournalDlg::DoDataExchange(CDataExchange* pDX) {
    CnDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_JOURNAL_TREE, m_tree);
    DDX_Control(pDX, IDC_JOURNAL_LINES, m_lines);
}

BOOL CJournalDlg::OnInitDialog() {
    CnDialog::OnInitDialog();
    Anchor(IDC_PART, 0, 0, 100, 0);
    Anchor(IDC_JOURNAL_TREE, 0, 0, 100, 50);
    Anchor(IDC_JOURNAL_LINES, 0, 50, 100, 100);
    m_part.Attach(IDC_PART, this, SipOptionMode0);
    FillTree();
    m_tree.SetFocus(); // the panel comes with the field
    return FALSE;
}

void CJournalDlg::OnPart() {
    m_tree.DeleteAllItems();
    m_lines.Show({});
    FillTree();
}

void CJournalDlg::FillTree() {
    CString strPart;
    m_part.GetWindowText(strPart);
    for (const CJournalGroup& group : GroupByTitle(m_journal.GetEntries(), strPart)) {
        const HTREEITEM hTitle = m_tree.InsertItem(group.strTitle);
        m_tree.SetItemData(hTitle, kTitle);
        int nNumber = 0;
        for (const size_t nEntry : group.entries)
            m_tree.SetItemData(m_tree.InsertItem(Text(IDS_RESULT_NUMBER, ++nNumber), hTitle), nEntry);
        if (!strPart.IsEmpty())
            m_tree.Expand(hTitle, TVE_EXPAND); // who looks for a point wants to see it
    }
}

void CJournalDlg::OnSelChanged(NMHDR* pNMHDR, LRESULT* pResult) {
    const LPARAM nEntry = reinterpret_cast<const NMTREEVIEW*>(pNMHDR)->itemNew.lParam;
    const auto nIndex = static_cast<size_t>(nEntry);
    std::vector<CString> lines;
    if (nIndex != kTitle) {
        const CJournalEntry& entry = m_journal.GetEntries()[nIndex];
        lines = entry.lines;
        lines.push_back(Text(IDS_TIME, entry.strTime.GetString()));
        lines.push_back(Text(IDS_FILE, entry.strFile.GetString()));
    }
    m_lines.Show(lines);
    *pResult = 0;
}
