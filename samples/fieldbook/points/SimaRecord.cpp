#include "points/SimaRecord.h"

#include <algorithm>
#include <cwchar>

namespace {

constexpr wchar_t kRecord[] = L"A01,";
constexpr size_t kNumber = 1; // its place among the fields that are kept as they are
constexpr long kMaxNumber = 999'999'999;

/// Without a number behind it such a line is no point.
bool IsBorder(const CString& strLine) {
    const CString strRecord = CString(strLine).TrimRight(L", \t");
    return strRecord == L"A00" || strRecord == L"A99";
}

bool HasNumber(const CNamedPoint& point) {
    return point.others.size() > kNumber;
}

} // namespace

const std::vector<Column> kRecordColumns = {Column::Other, Column::Other, Column::Name, Column::N,
                                            Column::E,     Column::Z,     Column::Code};

bool IsRecord(const CString& strLine) {
    const CString strStart(kRecord);
    return strLine.Left(strStart.GetLength()).CompareNoCase(strStart) == 0;
}

bool HasBorder(const std::vector<CString>& lines) {
    return std::any_of(lines.begin(), lines.end(), IsBorder);
}

bool AreRecords(const std::vector<CString>& lines) {
    const auto nRecords = std::count_if(lines.begin(), lines.end(), IsRecord);
    return nRecords > 1 || (nRecords == 1 && HasBorder(lines));
}

std::vector<CNamedPoint> WithRecordNumbers(std::vector<CNamedPoint> points) {
    long nLast = 0;
    for (const CNamedPoint& point : points) {
        const long nNumber = HasNumber(point) ? std::wcstol(point.others[kNumber], nullptr, 10) : 0;
        nLast = std::max(nLast, nNumber <= kMaxNumber ? nNumber : 0);
    }
    for (CNamedPoint& point : points) {
        if (HasNumber(point))
            continue;
        CString strNumber;
        strNumber.Format(L"%ld", ++nLast);
        point.others = {L"A01", strNumber};
    }
    return points;
}
