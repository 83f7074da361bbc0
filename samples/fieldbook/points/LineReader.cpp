#include "points/LineReader.h"

CLineReader::Line CLineReader::Next(CString& strLine) {
    const ULONGLONG nStart = m_file.GetPosition();
    if (m_file.ReadString(strLine))
        return Line::Text;
    if (m_file.GetPosition() < m_file.GetLength()) {
        SkipRestOfLine();
        return Line::TooLong;
    }
    return HasTextFrom(nStart) ? Line::NotTerminated : Line::End;
}

/// After a line that is too long the file goes on inside it.
void CLineReader::SkipRestOfLine() {
    CString strRest;
    while (!m_file.ReadString(strRest) && m_file.GetPosition() < m_file.GetLength()) {
    }
}

bool CLineReader::HasTextFrom(ULONGLONG nPosition) {
    constexpr unsigned char kLastSkipped = ' '; // the reader takes no notice of these either
    m_file.Seek(static_cast<LONGLONG>(nPosition), CFile::begin);
    bool bText = false;
    unsigned char ch = 0;
    while (m_file.Read(&ch, 1) == 1)
        bText = bText || ch > kLastSkipped;
    return bText;
}
