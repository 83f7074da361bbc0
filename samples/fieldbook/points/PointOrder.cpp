#include "points/PointOrder.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string_view>
#include <utility>

namespace {

double ValueOf(const CNamedPoint& point, PointColumn column) {
    return column == PointColumn::N   ? point.point.GetN()
           : column == PointColumn::E ? point.point.GetE()
                                      : point.point.GetZ();
}

bool IsText(PointColumn column) {
    return column == PointColumn::Name || column == PointColumn::Code;
}

const CString& TextOf(const CNamedPoint& point, PointColumn column) {
    return column == PointColumn::Name ? point.strName : point.strCode;
}

bool IsMissing(const CNamedPoint& point, PointColumn column) {
    return IsText(column) ? TextOf(point, column).IsEmpty()
                          : ValueOf(point, column) == fieldkit::survey::kNull;
}

bool Precedes(const CNamedPoint& a, const CNamedPoint& b, PointColumn column) {
    return IsText(column) ? IsNameBefore(TextOf(a, column), TextOf(b, column))
                          : ValueOf(a, column) < ValueOf(b, column);
}

bool IsDigit(wchar_t ch) {
    return ch >= L'0' && ch <= L'9';
}

/// The digits from a place on without leading zeros. @param i moved behind them
const wchar_t* SkipZeros(const wchar_t*& i) {
    while (*i == L'0')
        ++i;
    const wchar_t* const pszDigits = i;
    while (IsDigit(*i))
        ++i;
    return pszDigits;
}

} // namespace

bool IsNameBefore(const CString& strName1, const CString& strName2) {
    const wchar_t* p1 = strName1;
    const wchar_t* p2 = strName2;
    while (*p1 != 0 && *p2 != 0) {
        if (!IsDigit(*p1) || !IsDigit(*p2)) {
            if (*p1 != *p2)
                return *p1 < *p2;
            ++p1;
            ++p2;
            continue;
        }
        const wchar_t* const pDigits1 = SkipZeros(p1);
        const wchar_t* const pDigits2 = SkipZeros(p2);
        const auto nLength1 = p1 - pDigits1;
        const auto nLength2 = p2 - pDigits2;
        if (nLength1 != nLength2)
            return nLength1 < nLength2;
        const int nOrder = std::wstring_view(pDigits1, static_cast<size_t>(nLength1))
                               .compare(std::wstring_view(pDigits2, static_cast<size_t>(nLength2)));
        if (nOrder != 0)
            return nOrder < 0;
    }
    return *p1 == 0 && *p2 != 0;
}

bool CPointOrder::IsBefore(const std::vector<CNamedPoint>& points, size_t nFirst, size_t nSecond) const {
    if (!column)
        return nFirst < nSecond;
    const CNamedPoint& first = points[nFirst];
    const CNamedPoint& second = points[nSecond];
    const bool bMissing = IsMissing(first, *column);
    if (bMissing != IsMissing(second, *column))
        return !bMissing;
    if (!bMissing && Precedes(first, second, *column))
        return !bTurned;
    if (!bMissing && Precedes(second, first, *column))
        return bTurned;
    return nFirst < nSecond;
}

namespace {

/// How many a sort makes, about.
size_t Comparisons(size_t nPoints) {
    return nPoints * static_cast<size_t>(std::log2(static_cast<double>(nPoints) + 1));
}

/// The same order as IsBefore has it, without a look at the points for each comparison.
void OrderByValue(const std::vector<CNamedPoint>& points, std::vector<size_t>& places,
                  const CPointOrder& order, const Progress& progress) {
    std::vector<std::pair<double, size_t>> values;
    values.reserve(places.size());
    for (const size_t nPlace : places) {
        const double dValue = ValueOf(points[nPlace], *order.column);
        const double dKey = order.bTurned ? -dValue : dValue;
        const bool bMissing = IsMissing(points[nPlace], *order.column);
        values.emplace_back(bMissing ? std::numeric_limits<double>::infinity() : dKey, nPlace);
    }
    CSteps steps(progress, Comparisons(places.size()));
    std::sort(values.begin(), values.end(), [&](const auto& first, const auto& second) {
        steps.Next();
        return first < second;
    });
    std::transform(values.begin(), values.end(), places.begin(),
                   [](const auto& value) { return value.second; });
}

} // namespace

bool HasPart(const CString& strName, const CString& strPart) {
    return strPart.IsEmpty() || CString(strName).MakeUpper().Find(strPart) >= 0;
}

std::vector<size_t> FindPoints(const std::vector<CNamedPoint>& points, const CString& strPart,
                               const Progress& progress) {
    std::vector<size_t> places;
    CSteps steps(progress, points.size());
    for (size_t nPlace = 0; nPlace < points.size(); ++nPlace) {
        steps.Next();
        if (HasPart(points[nPlace].strName, strPart))
            places.push_back(nPlace);
    }
    return places;
}

void OrderPoints(const std::vector<CNamedPoint>& points, std::vector<size_t>& places,
                 const CPointOrder& order, const Progress& progress) {
    if (!order.column)
        return;
    if (!IsText(*order.column))
        return OrderByValue(points, places, order, progress);
    CSteps steps(progress, Comparisons(places.size()));
    std::sort(places.begin(), places.end(), [&](size_t a, size_t b) {
        steps.Next();
        return order.IsBefore(points, a, b);
    });
}
