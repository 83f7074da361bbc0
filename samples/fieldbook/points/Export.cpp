#include "points/Export.h"

#include "points/FileReplacement.h"

namespace {

CString NumberField(double dMember) {
    CString strField;
    if (dMember != fieldkit::survey::kNull)
        strField.Format(L"%.6f", dMember);
    return strField;
}

CString PointField(const CNamedPoint& point, Column column) {
    switch (column) {
    case Column::Name:
        return point.strName;
    case Column::N:
        return NumberField(point.point.GetN());
    case Column::E:
        return NumberField(point.point.GetE());
    case Column::Z:
        return NumberField(point.point.GetZ());
    default:
        return CString();
    }
}

CString Title(Column column) {
    switch (column) {
    case Column::Name:
        return L"name";
    case Column::N:
        return L"N";
    case Column::E:
        return L"E";
    case Column::Z:
        return L"Z";
    default:
        return CString();
    }
}

template <class FieldOf>
CString Join(const std::vector<Column>& columns, wchar_t chSeparator, FieldOf fieldOf) {
    CString strLine;
    for (size_t i = 0; i < columns.size(); ++i) {
        if (i != 0)
            strLine += chSeparator;
        strLine += fieldOf(columns[i]);
    }
    return strLine;
}

} // namespace

CString FormatExportLine(const CNamedPoint& point, const std::vector<Column>& columns, wchar_t chSeparator) {
    return Join(columns, chSeparator, [&point](Column column) { return PointField(point, column); });
}

void ExportPoints(const CString& strPath, const std::vector<CNamedPoint>& points,
                  const std::vector<Column>& columns, const CLineFormat& format) {
    // The file class would write something else for them without a word.
    for (const CNamedPoint& point : points)
        if (CheckPoint(point) != LineFault::None)
            AfxThrowFileException(CFileException::genericException, -1, strPath);
    RewriteFile(strPath, [&](CAsciiFile& file) {
        if (format.bHeader)
            file.WriteString(Join(columns, format.chSeparator, Title));
        for (const CNamedPoint& point : points)
            file.WriteString(FormatExportLine(point, columns, format.chSeparator));
    });
}
