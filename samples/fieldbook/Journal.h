// The journal of the day: every result shown, kept in a text file beside the points.
#pragma once

#include "JournalGroups.h"

#include <afxwin.h>

class CJournal {
public:
    /// @param strPointsPath the points file; the journal gets its name with "_results.txt"
    explicit CJournal(const CString& strPointsPath);

    /// Appends a title and its lines. A journal that cannot be written is told once and then
    /// only remembered: the results themselves are on the screen.
    void Append(const CString& strTitle, const std::vector<CString>& lines);

    /// The results since the program began, not those that were in the file before.
    const std::vector<CJournalEntry>& GetEntries() const { return m_entries; }

private:
    CString m_strPath;
    bool m_bWritable = true;
    std::vector<CJournalEntry> m_entries;
};
