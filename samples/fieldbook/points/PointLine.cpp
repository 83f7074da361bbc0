#include "points/PointLine.h"

#include "points/CodePage.h"
#include "Tesuvo.h"

#include <cmath>
#include <vector>

using fieldkit::survey::kNull;

namespace {

constexpr size_t kMinFields = 3;
constexpr size_t kMaxFields = 4;
// Together they keep every line within the 511 bytes that the file class writes.
constexpr int kMaxName = 64;
constexpr double kNumberLimit = 1e9;

std::vector<CString> Split(const CString& strLine, wchar_t chSeparator) {
    std::vector<CString> fields;
    int nStart = 0;
    for (int nEnd = strLine.Find(chSeparator); nEnd >= 0; nEnd = strLine.Find(chSeparator, nStart)) {
        fields.push_back(strLine.Mid(nStart, nEnd - nStart));
        nStart = nEnd + 1;
    }
    fields.push_back(strLine.Mid(nStart));
    return fields;
}

bool IsOneOf(const CString& strField, const std::vector<const wchar_t*>& words) {
    for (const wchar_t* pszWord : words)
        if (strField.CompareNoCase(pszWord) == 0)
            return true;
    return false;
}

/// Only titles that tell the order of the columns: with E before N, all points would be
/// mirrored. X is north, as in the country's plane coordinates.
bool IsHeader(const std::vector<CString>& fields) {
    return IsOneOf(fields[1], {L"N", L"X", L"X座標"}) && IsOneOf(fields[2], {L"E", L"Y", L"Y座標"});
}

CString CleanName(const CString& strName) {
    CString strClean;
    for (int i = 0; i < strName.GetLength(); ++i)
        if (strName[i] > L' ' && strName[i] != L',' && strName[i] != L';')
            strClean += strName[i];
    return strClean;
}

/// @param dValue the null value for a blank text; written on success only
bool ParseNumber(CString strText, double& dValue) {
    if (strText.Trim().IsEmpty()) {
        dValue = kNull;
        return true;
    }
    if (strText.FindOneOf(L",，") >= 0 && strText.FindOneOf(L".．") < 0)
        return false;
    return TVString2Double(&strText, &dValue) != FALSE;
}

} // namespace

bool RecogniseFormat(const CString& strLine, CLineFormat& format) {
    // Commas last: between semicolons they can be part of a number.
    for (const wchar_t chSeparator : {L';', L','}) {
        const std::vector<CString> fields = Split(strLine, chSeparator);
        if (fields.size() < kMinFields)
            continue;
        format = CLineFormat{chSeparator, IsHeader(fields)};
        return true;
    }
    return false;
}

LineFault ParsePointLine(const CString& strLine, wchar_t chSeparator, CNamedPoint& point) {
    const std::vector<CString> fields = Split(strLine, chSeparator);
    if (fields.size() < kMinFields)
        return LineFault::TooFewFields;
    if (fields.size() > kMaxFields)
        return LineFault::TooManyFields;
    return ParsePoint(fields[0], fields[1], fields[2], fields.size() == kMaxFields ? fields[3] : CString(),
                      point);
}

LineFault ParsePoint(const CString& strName, const CString& strN, const CString& strE, const CString& strZ,
                     CNamedPoint& point) {
    CNamedPoint candidate{CleanName(strName), CCoordinate()};
    if (candidate.strName.IsEmpty())
        return LineFault::NoName;
    double dN = 0;
    double dE = 0;
    double dZ = 0;
    if (!ParseNumber(strN, dN) || !ParseNumber(strE, dE) || !ParseNumber(strZ, dZ))
        return LineFault::BadNumber;
    candidate.point.SetN(dN);
    candidate.point.SetE(dE);
    candidate.point.SetZ(dZ);
    const LineFault fault = CheckPoint(candidate);
    if (fault == LineFault::None)
        point = candidate;
    return fault;
}

LineFault CheckPoint(const CNamedPoint& point) {
    if (point.strName.IsEmpty())
        return LineFault::NoName;
    if (point.strName.GetLength() > kMaxName || !SurvivesCodePage(point.strName))
        return LineFault::BadName;
    for (const double dMember : {point.point.GetN(), point.point.GetE(), point.point.GetZ()})
        if (!(std::fabs(dMember) < kNumberLimit))
            return LineFault::BadNumber;
    return LineFault::None;
}
