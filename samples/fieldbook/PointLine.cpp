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

CString CleanName(const CString& strName) {
    CString strClean;
    for (int i = 0; i < strName.GetLength(); ++i)
        if (strName[i] > L' ' && strName[i] != L',')
            strClean += strName[i];
    return strClean;
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
    return ParsePoint(fields[0], fields[1], fields[2], fields.size() == MAX_FIELDS ? fields[3] : CString(),
                      point);
}

LineFault ParsePoint(const CString& strName, const CString& strN, const CString& strE, const CString& strZ,
                     CNamedPoint& point) {
    const CString strClean = CleanName(strName);
    if (strClean.IsEmpty())
        return LineFault::NoName;
    double dN = 0;
    double dE = 0;
    if (!TVString2Double(&strN, &dN) || !TVString2Double(&strE, &dE))
        return LineFault::BadNumber;
    CCoordinate coordinate;
    coordinate.SetN(dN);
    coordinate.SetE(dE);
    CString strHeight = strZ;
    if (!strHeight.Trim().IsEmpty()) {
        double dZ = 0;
        if (!TVString2Double(&strHeight, &dZ))
            return LineFault::BadNumber;
        coordinate.SetZ(dZ);
    }
    point = CNamedPoint{strClean, coordinate};
    return LineFault::None;
}

CString FormatPointLine(const CNamedPoint& point) {
    CString strLine;
    strLine.Format(L"%s,%.6f,%.6f,", point.strName.GetString(), point.point.GetN(), point.point.GetE());
    if (point.point.IsExistZ())
        strLine.AppendFormat(L"%.6f", point.point.GetZ());
    return strLine;
}
