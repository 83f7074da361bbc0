#include "screens/Journal.h"

#include "points/CodePage.h"
#include "screens/Messages.h"
#include "screens/Resource.h"
#include "screens/Text.h"
#include "util/AsciiFile.h"

void CJournal::SetPointsPath(const CString& strPointsPath) {
    const int nDot = strPointsPath.ReverseFind(L'.');
    const int nSlash = strPointsPath.ReverseFind(L'\\');
    m_strFile = strPointsPath.Mid(nSlash + 1);
    m_strPath = (nDot > nSlash ? strPointsPath.Left(nDot) : strPointsPath) + L"_results.txt";
    m_bWritable = true;
}

void CJournal::Append(const CString& strTitle, const std::vector<CString>& lines) {
    const CString strTime = CTime::GetCurrentTime().Format(L"%Y-%m-%d %H:%M");
    m_entries.push_back({strTitle, lines, strTime, m_strFile});
    if (!m_bWritable)
        return;
    try {
        CAsciiFile file;
        CFileException error;
        if (!file.Open(m_strPath, CFile::modeCreate | CFile::modeNoTruncate | CFile::modeWrite, &error))
            AfxThrowFileException(error.m_cause, error.m_lOsError, m_strPath);
        file.SeekToEnd();
        file.WriteString(strTime + L"  " + SpellForOem(strTitle));
        for (const CString& strLine : lines)
            file.WriteString(SpellForOem(strLine));
        file.Close();
    } catch (CFileException* e) {
        e->Delete();
        m_bWritable = false;
        TellError(Text(IDS_NO_JOURNAL));
    }
}
