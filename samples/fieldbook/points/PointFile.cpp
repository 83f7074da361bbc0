#include "points/PointFile.h"

#include <algorithm>
#include <cwchar>
#include <utility>

namespace {

constexpr size_t kMinFields = 3;
constexpr wchar_t kRecord[] = L"A01,"; // of a point in a SIMA file: number, name, X, Y, Z
constexpr size_t kRecordNumber = 1;    // its place among the fields that are kept as they are

// Most programs write nothing behind the last comma of a record.
const std::vector<Column> kRecordColumns = {Column::Other, Column::Other, Column::Name, Column::N,
                                            Column::E,     Column::Z,     Column::Code};
const std::vector<Column> kUsualColumns = {Column::Name, Column::N, Column::E, Column::Z, Column::Code};

bool BeginsWith(const CString& strLine, const wchar_t* pszStart) {
    const CString strStart(pszStart);
    return strLine.Left(strStart.GetLength()).CompareNoCase(strStart) == 0;
}

bool IsRecord(const CString& strLine) {
    return BeginsWith(strLine, kRecord);
}

/// The lines that may stand around records: without a number behind them they are no points.
bool IsBorder(const CString& strLine) {
    const CString strRecord = CString(strLine).TrimRight(L", \t");
    return strRecord == L"A00" || strRecord == L"A99";
}

/// A point may be called A01, too, but not two of them.
bool IsSima(const std::vector<CString>& lines) {
    const auto nRecords = std::count_if(lines.begin(), lines.end(), IsRecord);
    return nRecords > 1 || (nRecords == 1 && std::any_of(lines.begin(), lines.end(), IsBorder));
}

/// Takes the lines of one file in their order.
class CPointReader {
public:
    CPointReader(CPointBook& book, const CReadHelp& help, bool bSima) : m_book(book), m_help(help) {
        m_format.bSima = bSima;
        if (bSima)
            m_format.columns = kRecordColumns;
    }

    LineFault Take(const CString& strLine) {
        if (m_format.bSima && !IsRecord(strLine)) {
            (m_bFormatKnown ? m_format.tail : m_format.head).push_back(strLine);
            return LineFault::None;
        }
        if (!m_bFormatKnown && !Recognise(strLine)) {
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
    bool Recognise(const CString& strLine) {
        if (m_format.bSima)
            return true;
        // Commas last: between the others they can be part of a number.
        for (const wchar_t chSeparator : {L';', L'\t', L','}) {
            std::vector<CString> fields;
            bool bQuoted = false;
            if (!SplitFields(strLine, chSeparator, fields, bQuoted) || fields.size() < kMinFields)
                continue;
            m_format.chSeparator = chSeparator;
            m_format.bQuoted = bQuoted;
            RecogniseColumns(strLine, fields);
            return true;
        }
        return false;
    }

    void RecogniseColumns(const CString& strLine, const std::vector<CString>& fields) {
        const Heading heading = ReadHeading(fields, m_format.columns);
        m_format.bHeading = heading != Heading::None;
        if (heading == Heading::Known)
            return;
        if (heading == Heading::None)
            m_format.columns = kUsualColumns;
        std::vector<Column>& columns = m_format.columns;
        if (m_help.chooseColumns)
            m_bGoOn = m_help.chooseColumns(strLine, m_format.bHeading, fields.size(), columns);
        else if (!AreComplete(columns))
            columns = kUsualColumns;
        // The height may begin further down, but no line may have more than that.
        const size_t nFields = std::max<size_t>(fields.size(), m_format.bHeading ? 0 : 4);
        if (columns.size() > nFields)
            columns.resize(nFields);
        columns.resize(std::max(columns.size(), fields.size()), Column::Other);
    }

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

long RecordNumberOf(const CNamedPoint& point) {
    return point.others.size() > kRecordNumber ? std::wcstol(point.others[kRecordNumber], nullptr, 10) : 0;
}

/// Points that are new among A01 records, with numbers of their own.
class CRecordNumbers {
public:
    explicit CRecordNumbers(const std::vector<CNamedPoint>& points) {
        for (const CNamedPoint& point : points)
            m_nLast = std::max(m_nLast, RecordNumberOf(point));
    }
    CNamedPoint Numbered(const CNamedPoint& point) {
        if (point.others.size() > kRecordNumber)
            return point;
        CNamedPoint numbered = point;
        CString strNumber;
        strNumber.Format(L"%ld", ++m_nLast);
        numbered.others = {L"A01", strNumber};
        return numbered;
    }

private:
    long m_nLast = 0;
};

/// Whether a file without a mark would be taken for what it is the next time.
bool IsReadAs(const std::string& bytes, Encoding encoding) {
    const bool bMarked = encoding != Encoding::Oem && encoding != Encoding::Utf8;
    const auto isAscii = [](char ch) { return static_cast<unsigned char>(ch) < 0x80; };
    if (bMarked || std::all_of(bytes.begin(), bytes.end(), isAscii))
        return true;
    const CFileText again = DecodeText(bytes);
    return again.unreadable.empty() && again.form.encoding == encoding;
}

} // namespace

CReadReport ReadPoints(const CFileText& text, CPointBook& book, const CReadHelp& help) {
    constexpr size_t kLinesBetween = 4096;
    CReadReport report;
    CPointReader points(book, help, IsSima(text.lines));
    for (size_t i = 0; i < text.lines.size() && report.bRead; ++i) {
        if (IsEmptyLine(text.lines[i]))
            continue;
        const bool bKnown = points.KnowsFormat();
        const bool bCut = i + 1 == text.lines.size() && !text.bEnded;
        const LineFault fault = bCut ? LineFault::NotTerminated : points.Take(text.lines[i]);
        if (!bKnown && points.GetFormat().bHeading)
            report.badLines.clear(); // what stands above a heading are titles
        if (fault != LineFault::None)
            report.badLines.push_back({static_cast<int>(i) + 1, fault});
        const bool bPause = i % kLinesBetween == 0 && help.goOn;
        report.bRead = points.GoesOn() && (!bPause || help.goOn(i, text.lines.size()));
    }
    report.format = points.GetFormat();
    report.format.text = text.form;
    if (!report.format.bHeading && !report.format.bSima)
        report.format.head.clear(); // they are told as lines without a point
    return report;
}

CLineFormat NewFormat() {
    CLineFormat format;
    format.bHeading = true;
    return ExportFormat(format.columns, format);
}

CLineFormat FormatFor(const std::vector<CNamedPoint>& points, const CLineFormat& format) {
    CLineFormat complete = format;
    if (format.bSima && points.empty()) { // without a record nothing tells what the file is
        complete = NewFormat();
        complete.text = format.text;
    }
    const auto need = [&](Column column, auto isThere) {
        if (HasColumn(complete.columns, column) || !std::any_of(points.begin(), points.end(), isThere))
            return;
        complete.columns.push_back(column);
        if (complete.bHeading)
            complete.head.back() += CString(complete.chSeparator) + TitleInFile(column);
    };
    need(Column::Z, [](const CNamedPoint& point) { return point.point.IsExistZ(); });
    need(Column::Code, [](const CNamedPoint& point) { return !point.strCode.IsEmpty(); });
    const auto hasBorder = [](const std::vector<CString>& lines) {
        return std::any_of(lines.begin(), lines.end(), IsBorder);
    };
    if (complete.bSima && !hasBorder(format.head) && !hasBorder(format.tail))
        complete.tail.push_back(L"A99,"); // one record alone would be taken for a point called A01
    return complete;
}

CLineFormat ExportFormat(const std::vector<Column>& columns, const CLineFormat& format) {
    CLineFormat exported;
    exported.text = format.text;
    exported.chSeparator = format.chSeparator;
    exported.bQuoted = format.bQuoted;
    exported.bHeading = format.bHeading;
    exported.columns = columns;
    if (!format.bHeading)
        return exported;
    CString strHeading;
    for (size_t i = 0; i < columns.size(); ++i)
        strHeading += (i == 0 ? CString() : CString(format.chSeparator)) + TitleInFile(columns[i]);
    exported.head.push_back(strHeading);
    return exported;
}

bool FormatPoints(const std::vector<CNamedPoint>& points, const CLineFormat& format, std::string& bytes,
                  CString& strBad) {
    CRecordNumbers numbers(points);
    CTextEncoder encoder(format.text);
    for (const CString& strLine : format.head)
        encoder.Add(strLine);
    for (const CNamedPoint& point : points) {
        const CString strLine = FormatPointLine(format.bSima ? numbers.Numbered(point) : point, format);
        if (CheckPoint(point, format.text.encoding) != LineFault::None || !encoder.Add(strLine)) {
            strBad = point.strName;
            return false;
        }
    }
    for (const CString& strLine : format.tail)
        encoder.Add(strLine);
    bytes = encoder.GetBytes();
    if (IsReadAs(bytes, format.text.encoding))
        return true;
    CLineFormat marked = format;
    marked.text.encoding = Encoding::Utf8Bom;
    return FormatPoints(points, marked, bytes, strBad);
}

bool IsAsSaved(const std::string& bytes, const CLineFormat& format) {
    CPointBook book;
    const auto sameColumns = [&](const CString&, bool, size_t, std::vector<Column>& columns) {
        columns = format.columns;
        return true;
    };
    const CReadReport report = ReadPoints(DecodeText(bytes), book, {sameColumns, {}});
    std::string again;
    CString strBad;
    return FormatPoints(book.GetPoints(), report.format, again, strBad) && again == bytes;
}
