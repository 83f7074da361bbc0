#include "PointFile.h"

#include "LineReader.h"

namespace {

LineFault TakeLine(const CString& strLine, CPointBook& book) {
    CNamedPoint point;
    const LineFault fault = ParsePointLine(strLine, point);
    if (fault != LineFault::None)
        return fault;
    return book.Add(point) ? LineFault::None : LineFault::DuplicateName;
}

bool EndsInsideALine(CAsciiFile& file) {
    if (file.GetLength() == 0)
        return false;
    file.Seek(-1, CFile::end);
    char ch = 0;
    file.Read(&ch, 1);
    return ch != '\r' && ch != '\n';
}

} // namespace

std::vector<CBadLine> ReadPoints(CAsciiFile& file, CPointBook& book) {
    std::vector<CBadLine> badLines;
    CLineReader reader(file);
    CString strLine;
    for (int nLine = 1;; ++nLine) {
        LineFault fault = LineFault::None;
        switch (reader.Next(strLine)) {
        case CLineReader::Line::End:
            return badLines;
        case CLineReader::Line::TooLong:
            fault = LineFault::TooLong;
            break;
        case CLineReader::Line::NotTerminated:
            fault = LineFault::NotTerminated;
            break;
        case CLineReader::Line::Text:
            if (!strLine.IsEmpty() && !(nLine == 1 && IsHeaderLine(strLine)))
                fault = TakeLine(strLine, book);
            break;
        }
        if (fault != LineFault::None)
            badLines.push_back({nLine, fault});
    }
}

void AppendPoint(const CString& strPath, const CNamedPoint& point) {
    CAsciiFile file;
    CFileException error;
    if (!file.Open(strPath, CFile::modeCreate | CFile::modeNoTruncate | CFile::modeReadWrite, &error))
        AfxThrowFileException(error.m_cause, error.m_lOsError, strPath);
    const bool bEndMissing = EndsInsideALine(file);
    file.SeekToEnd();
    if (bEndMissing)
        file.WriteString(L"");
    file.WriteString(FormatPointLine(point));
    file.Close();
}
