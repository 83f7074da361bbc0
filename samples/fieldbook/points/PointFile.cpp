#include "points/PointFile.h"

#include "points/SimaRecord.h"

#include <algorithm>
#include <utility>

namespace {

constexpr size_t kMinFields = 3;
const std::vector<Column> kUsualColumns = {Column::Name, Column::N, Column::E, Column::Z, Column::Code};

/// Takes the lines of one file in their order.
class CPointReader {
public:
    /// @param lines of the file
    CPointReader(const std::vector<CString>& lines, CPointBook& book, const CReadHelp& help)
        : m_lines(lines), m_book(book), m_help(help) {
        m_format.bSima = AreRecords(lines);
        if (m_format.bSima)
            m_format.columns = kRecordColumns;
    }

    LineFault Take(size_t nLine) {
        const CString& strLine = m_lines[nLine];
        if (m_format.bSima && !IsRecord(strLine)) {
            (m_bFormatKnown ? m_format.tail : m_format.head).push_back(strLine);
            return LineFault::None;
        }
        if (!m_bFormatKnown && !Recognise(nLine)) {
            m_format.head.push_back(strLine);
            return LineFault::TooFewFields;
        }
        if (!std::exchange(m_bFormatKnown, true) && m_format.bHeading) {
            m_format.head.push_back(strLine);
            return LineFault::None;
        }
        CNamedPoint point;
        const LineFault fault = ParsePointLine(strLine, m_format, point);
        if (fault != LineFault::None)
            return fault;
        return m_book.AddRead(point) ? LineFault::None : LineFault::DuplicateName;
    }

    const CLineFormat& GetFormat() const { return m_format; }
    bool KnowsFormat() const { return m_bFormatKnown; }
    bool GoesOn() const { return m_bGoOn; }

private:
    /// @return false for a line of fewer than three fields, which tells nothing
    bool Recognise(size_t nLine) {
        if (m_format.bSima)
            return true;
        // Commas last: between the others they can be part of a number.
        for (const wchar_t chSeparator : {L';', L'\t', L','}) {
            std::vector<CString> fields;
            bool bQuoted = false;
            if (!SplitFields(m_lines[nLine], chSeparator, fields, bQuoted) || fields.size() < kMinFields)
                continue;
            m_format.chSeparator = chSeparator;
            m_format.bQuoted = bQuoted;
            RecogniseColumns(nLine, fields);
            return true;
        }
        return false;
    }

    void RecogniseColumns(size_t nLine, const std::vector<CString>& fields) {
        const Heading heading = ReadHeading(fields, m_format.columns);
        m_format.bHeading = heading != Heading::None;
        if (heading == Heading::Known)
            return;
        if (heading == Heading::None)
            m_format.columns = kUsualColumns;
        std::vector<Column>& columns = m_format.columns;
        if (m_help.chooseColumns)
            m_bGoOn = m_help.chooseColumns(FieldsFrom(nLine), m_format.bHeading, columns);
        else if (!AreComplete(columns))
            columns = kUsualColumns;
        // The height may begin further down, but no line may have more than that.
        const size_t nFields = std::max<size_t>(fields.size(), m_format.bHeading ? 0 : 4);
        if (columns.size() > nFields)
            columns.resize(nFields);
        columns.resize(std::max(columns.size(), fields.size()), Column::Other);
    }

    /// What a person needs to see to tell one column from the other.
    std::vector<std::vector<CString>> FieldsFrom(size_t nLine) const {
        constexpr size_t kShown = 4;
        std::vector<std::vector<CString>> lines;
        for (; nLine < m_lines.size() && lines.size() < kShown; ++nLine) {
            std::vector<CString> fields;
            bool bQuoted = false;
            if (SplitFields(m_lines[nLine], m_format.chSeparator, fields, bQuoted))
                lines.push_back(fields);
        }
        return lines;
    }

    const std::vector<CString>& m_lines;
    CPointBook& m_book;
    const CReadHelp& m_help;
    CLineFormat m_format;
    bool m_bFormatKnown = false;
    bool m_bGoOn = true;
};

bool IsEmptyLine(const CString& strLine) {
    for (int i = 0; i < strLine.GetLength(); ++i)
        if (strLine[i] > L' ')
            return false;
    return true;
}

} // namespace

CReadReport ReadPoints(const CFileText& text, CPointBook& book, const CReadHelp& help) {
    CReadReport report;
    CPointReader points(text.lines, book, help);
    CSteps steps(help.progress, text.lines.size());
    for (size_t i = 0; i < text.lines.size() && points.GoesOn(); ++i) {
        steps.At(i);
        if (IsEmptyLine(text.lines[i]))
            continue;
        const bool bKnown = points.KnowsFormat();
        const bool bCut = i + 1 == text.lines.size() && !text.bEnded;
        const LineFault fault = bCut ? LineFault::NotTerminated : points.Take(i);
        if (!bKnown && points.GetFormat().bHeading)
            report.badLines.clear(); // what stands above a heading are titles
        if (fault != LineFault::None)
            report.badLines.push_back({static_cast<int>(i) + 1, fault});
    }
    report.bRead = points.GoesOn();
    report.format = points.GetFormat();
    report.format.text = text.form;
    if (!report.format.bHeading && !report.format.bSima)
        report.format.head.clear(); // they are told as lines without a point
    return report;
}
