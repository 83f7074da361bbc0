#include "PointLine.h"

#include "Tesuvo.h"

#include <vector>

namespace {

constexpr wchar_t HEADER[] = L"name,N,E,Z";
constexpr size_t MIN_FIELDS = 3;
constexpr size_t MAX_FIELDS = 4;

std::vector<CString> SplitAtCommas(const CString& strLine) {
    std::vector<CString> fields;
    int nStart = 0;
    for (int nComma = strLine.Find(L','); nComma >= 0; nComma = strLine.Find(L',', nStart)) {
        fields.push_back(strLine.Mid(nStart, nComma - nStart));
        nStart = nComma + 1;
    }
    fields.push_back(strLine.Mid(nStart));
    return fields;
}

} // namespace

bool IsHeaderLine(const CString& strLine) {
    return strLine.CompareNoCase(HEADER) == 0;
}

LineFault ParsePointLine(const CString& strLine, CNamedPoint& point) {
    const std::vector<CString> fields = SplitAtCommas(strLine);
    if (fields.size() < MIN_FIELDS)
        return LineFault::TooFewFields;
    if (fields.size() > MAX_FIELDS)
        return LineFault::TooManyFields;
    if (fields[0].IsEmpty())
        return LineFault::NoName;

    double dN = 0;
    double dE = 0;
    if (!TVString2Double(&fields[1], &dN) || !TVString2Double(&fields[2], &dE))
        return LineFault::BadNumber;
    CCoordinate coordinate;
    coordinate.SetN(dN);
    coordinate.SetE(dE);
    if (fields.size() == MAX_FIELDS && !fields[3].IsEmpty()) {
        double dZ = 0;
        if (!TVString2Double(&fields[3], &dZ))
            return LineFault::BadNumber;
        coordinate.SetZ(dZ);
    }
    point = CNamedPoint{fields[0], coordinate};
    return LineFault::None;
}
