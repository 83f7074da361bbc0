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
