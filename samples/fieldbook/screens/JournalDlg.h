/// @file
/// CJournalDlg: the results of the day.
#pragma once

#include "controls/nDialog.h"

#include "screens/EntryControls.h"
#include "screens/Journal.h"
#include "screens/LineLists.h"
#include "screens/ListControls.h"

/// A tree of the computations with their results; the lines of the result that is selected stand
/// below.
class CJournalDlg : public CnDialog {
public:
    /// @param journal must outlive the dialog
    CJournalDlg(const CJournal& journal, CWnd* pParent);

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    /// Leaves the results that have what was typed in one of their lines.
    afx_msg void OnPart();
    afx_msg void OnSelChanged(NMHDR* pNMHDR, LRESULT* pResult);
    DECLARE_MESSAGE_MAP()

private:
    void FillTree();

    const CJournal& m_journal;
    CCodeEdit m_part;
    CJournalTree m_tree;
    CResultList m_lines;
};
