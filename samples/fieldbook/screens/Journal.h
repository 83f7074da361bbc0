/// @file
/// CJournal: the results of the day.
#pragma once

#include "screens/JournalGroups.h"

#include <afxwin.h>

/// Every result shown, kept in a text file beside the points.
class CJournal {
public:
    /// Without a file: results are remembered only.
    CJournal() = default;
    /// @param strPointsPath as for SetPointsPath
    explicit CJournal(const CString& strPointsPath) { SetPointsPath(strPointsPath); }

    /// Results go into another file from now on.
    /// @param strPointsPath the points file; the journal gets its name with "_results.txt"
    void SetPointsPath(const CString& strPointsPath);

    /// Appends a title, with the time, and its lines. That it cannot be written is told once; then what is
    /// missing comes with the next result.
    void Append(const CString& strTitle, const std::vector<CString>& lines);

    /// The results since the points file was opened, not those that were in the journal before.
    const std::vector<CJournalEntry>& GetEntries() const { return m_entries; }

private:
    void WriteMissing();

    CString m_strPath; ///< Empty without a file.
    CString m_strFile; ///< The name of the points file.
    std::vector<CJournalEntry> m_entries;
    size_t m_nWritten = 0; ///< So many of them are in the file, or not meant for it.
    bool m_bTold = false;  ///< That it cannot be written.
};
