#include "points/PointFile.h"

#include "points/Export.h"
#include "points/FileReplacement.h"
#include "points/LineReader.h"

namespace {

/// Takes the lines of one file in their order.
class CPointReader {
public:
    explicit CPointReader(CPointBook& book) : m_book(book) {}

    LineFault Take(const CString& strLine) {
        if (strLine.IsEmpty())
            return LineFault::None;
        if (!m_bFormatKnown) {
            m_bFormatKnown = RecogniseFormat(strLine, m_format);
            if (m_format.bHeader)
                return LineFault::None;
        }
        CNamedPoint point;
        const LineFault fault = ParsePointLine(strLine, m_format.chSeparator, point);
        if (fault != LineFault::None)
            return fault;
        return m_book.Add(point) ? LineFault::None : LineFault::DuplicateName;
    }

    const CLineFormat& GetFormat() const { return m_format; }

private:
    CPointBook& m_book;
    CLineFormat m_format;
    bool m_bFormatKnown = false;
};

} // namespace

CReadReport ReadPoints(CAsciiFile& file, CPointBook& book) {
    CReadReport report;
    CPointReader points(book);
    CLineReader lines(file);
    CString strLine;
    for (int nLine = 1;; ++nLine) {
        LineFault fault = LineFault::None;
        switch (lines.Next(strLine)) {
        case CLineReader::Line::End:
            report.format = points.GetFormat();
            return report;
        case CLineReader::Line::TooLong:
            fault = LineFault::TooLong;
            break;
        case CLineReader::Line::NotTerminated:
            fault = LineFault::NotTerminated;
            break;
        case CLineReader::Line::Text:
            fault = points.Take(strLine);
            break;
        }
        if (fault != LineFault::None)
            report.badLines.push_back({nLine, fault});
    }
}

void SavePoints(const CString& strPath, const CPointBook& book, const CLineFormat& format) {
    ExportPoints(strPath, book.GetPoints(), {Column::Name, Column::N, Column::E, Column::Z}, format);
}

bool KeepBackup(const CString& strPath) {
    try {
        CFile original(strPath, CFile::modeRead | CFile::shareDenyWrite);
        RewriteFile(strPath + L".bak", [&original](CFile& copy) {
            char block[4096];
            while (const UINT nRead = original.Read(block, sizeof block))
                copy.Write(block, nRead);
        });
        return true;
    } catch (CFileException* pError) {
        pError->Delete();
        return false;
    }
}
