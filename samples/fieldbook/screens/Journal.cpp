#include "screens/Journal.h"

#include "points/CodePage.h"
#include "screens/Messages.h"
#include "screens/Resource.h"
#include "screens/Text.h"
#include "util/AsciiFile.h"

#include <utility>

void CJournal::SetPointsPath(const CString& strPointsPath) {
    const int nDot = strPointsPath.ReverseFind(L'.');
    const int nSlash = strPointsPath.ReverseFind(L'\\');
    m_strFile = strPointsPath.Mid(nSlash + 1);
    m_strPath = (nDot > nSlash ? strPointsPath.Left(nDot) : strPointsPath) + L"_results.txt";
    m_bTold = false;
}

void CJournal::Append(const CString& strTitle, const std::vector<CString>& lines) {
    const CString strTime = CTime::GetCurrentTime().Format(L"%Y-%m-%d %H:%M");
    m_entries.push_back({strTitle, lines, strTime, m_strFile});
    try {
        WriteMissing();
        m_bTold = false;
    } catch (CFileException* e) {
        const CString strCause = Text(CauseTextId(*e));
        e->Delete();
        if (!std::exchange(m_bTold, true))
            TellError(Text(IDS_NO_JOURNAL, strCause.GetString()));
    }
}

/// All of what is missing or nothing.
void CJournal::WriteMissing() {
    if (m_strPath.IsEmpty()) {
        m_nWritten = m_entries.size();
        return;
    }
    CAsciiFile file;
    CFileException error;
    if (!file.Open(m_strPath, CFile::modeCreate | CFile::modeNoTruncate | CFile::modeWrite, &error))
        AfxThrowFileException(error.m_cause, error.m_lOsError, m_strPath);
    LARGE_INTEGER end = {};
    end.QuadPart = static_cast<LONGLONG>(file.SeekToEnd());
    try {
        for (size_t i = m_nWritten; i < m_entries.size(); ++i) {
            file.WriteString(m_entries[i].strTime + L"  " + SpellForOem(m_entries[i].strTitle));
            for (const CString& strLine : m_entries[i].lines)
                file.WriteString(SpellForOem(strLine));
        }
    } catch (CFileException*) {
        ::SetFilePointerEx(file.m_hFile, end, nullptr, FILE_BEGIN);
        ::SetEndOfFile(file.m_hFile);
        throw;
    }
    file.Close();
    m_nWritten = m_entries.size();
}
