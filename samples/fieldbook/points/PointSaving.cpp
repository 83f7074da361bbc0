#include "points/PointSaving.h"

#include "points/PointFile.h"
#include "points/SimaRecord.h"

#include <algorithm>
#include <utility>

namespace {

/// Adds the columns that the points need.
CLineFormat Completed(const std::vector<CNamedPoint>& points, const CLineFormat& format) {
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
    if (complete.bSima && !HasBorder(format.head) && !HasBorder(format.tail))
        complete.tail.push_back(L"A99,"); // one record alone would be taken for a point called A01
    return complete;
}

CLineFormat Marked(CLineFormat format) {
    format.text.encoding = Encoding::Utf8Bom;
    return format;
}

/// A form that can hold all points that a form can hold, with all of their fields.
CLineFormat PlainFormat(const std::vector<CNamedPoint>& points) {
    size_t nOthers = 0;
    for (const CNamedPoint& point : points)
        nOthers = std::max(nOthers, point.others.size());
    std::vector<Column> columns = {Column::Name, Column::N, Column::E, Column::Z, Column::Code};
    columns.insert(columns.end(), nOthers, Column::Other);
    CLineFormat format = ExportFormat(columns, Marked(NewFormat()));
    format.bQuoted = true;
    return format;
}

/// Reads what was written; a person asked for the columns would choose the same.
CReadReport ReadAgain(const std::string& bytes, const CLineFormat& format, CPointBook& book,
                      const Progress& progress) {
    const auto sameColumns = [&](const auto&, bool, std::vector<Column>& columns) {
        columns = format.columns;
        return true;
    };
    const CFileText text = DecodeText(bytes, PartOf(progress, 0, 2));
    return ReadPoints(text, book, {sameColumns, PartOf(progress, 1, 2)});
}

bool IsReadAs(const std::vector<CNamedPoint>& points, const CLineFormat& format, const std::string& bytes,
              const Progress& progress) {
    CPointBook book;
    const CLineFormat again = ReadAgain(bytes, format, book, PartOf(progress, 0, 2)).format;
    if (again.bHeading != format.bHeading || again.bSima != format.bSima || again.head != format.head ||
        again.tail != format.tail)
        return false;
    const CLineFormat all = PlainFormat(points);
    const Progress comparison = PartOf(progress, 1, 2);
    CSteps steps(comparison, points.size());
    const auto isSame = [&](const CNamedPoint& first, const CNamedPoint& second) {
        steps.Next();
        return FormatPointLine(first, all) == FormatPointLine(second, all);
    };
    const std::vector<CNamedPoint>& read = book.GetPoints();
    return std::equal(points.begin(), points.end(), read.begin(), read.end(), isSame);
}

/// @return false if a point has no place in this form; strBad is written then
bool Encode(const std::vector<CNamedPoint>& points, const CLineFormat& format, std::string& bytes,
            CString& strBad, const Progress& progress) {
    CTextEncoder encoder(format.text);
    for (const CString& strLine : format.head)
        encoder.Add(strLine);
    CSteps steps(progress, points.size());
    for (const CNamedPoint& point : points) {
        steps.Next();
        if (CheckPoint(point, format.text.encoding) != LineFault::None ||
            !encoder.Add(FormatPointLine(point, format))) {
            strBad = point.strName;
            return false;
        }
    }
    for (const CString& strLine : format.tail)
        encoder.Add(strLine);
    bytes = encoder.GetBytes();
    return true;
}

} // namespace

CLineFormat NewFormat() {
    CLineFormat format;
    format.bHeading = true;
    return ExportFormat(format.columns, format);
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
                  CString& strBad, const Progress& progress) {
    return format.bSima ? Encode(WithRecordNumbers(points), format, bytes, strBad, progress)
                        : Encode(points, format, bytes, strBad, progress);
}

bool FormatFile(const std::vector<CNamedPoint>& points, CLineFormat& format, std::string& bytes,
                CString& strBad, const Progress& progress) {
    const CLineFormat complete = Completed(points, format);
    for (const CLineFormat& form : {complete, Marked(complete), PlainFormat(points)}) {
        std::string file;
        const std::vector<CNamedPoint> numbered = form.bSima ? WithRecordNumbers(points) : points;
        if (!Encode(numbered, form, file, strBad, PartOf(progress, 0, 2)))
            return false;
        if (!IsReadAs(numbered, form, file, PartOf(progress, 1, 2)))
            continue;
        bytes = std::move(file);
        format = form;
        return true;
    }
    CSteps steps(progress, points.size());
    const auto isLost = [&](const CNamedPoint& point) {
        steps.Next();
        std::string line;
        CString strName;
        const std::vector<CNamedPoint> alone = {point};
        const CLineFormat form = PlainFormat(alone);
        return !Encode(alone, form, line, strName, {}) || !IsReadAs(alone, form, line, {});
    };
    const auto lost = std::find_if(points.begin(), points.end(), isLost);
    strBad = lost != points.end() ? lost->strName : CString();
    return false;
}

bool IsAsSaved(const std::string& bytes, const CLineFormat& format, const Progress& progress) {
    CPointBook book;
    const CReadReport report = ReadAgain(bytes, format, book, PartOf(progress, 0, 2));
    std::string again;
    CString strBad;
    return FormatPoints(book.GetPoints(), report.format, again, strBad, PartOf(progress, 1, 2)) &&
           again == bytes;
}
