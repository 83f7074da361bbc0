#include "compute/Figure.h"

#include "compute/LocalPlane.h"

#include <algorithm>
#include <cmath>

namespace {

/// The library takes a line for parallel to an axis if its ends differ by less than the tolerance:
/// with these 10 km that is no angle that matters.
constexpr double kSight = 1e4;

double Cross(CVector u, CVector v) {
    return u.GetX() * v.GetY() - u.GetY() * v.GetX();
}

/// Whether both ends of the second side lie strictly on different sides of the first.
bool Parts(CVector from, CVector to, CVector a, CVector b) {
    const double dA = Cross(to - from, a - from);
    const double dB = Cross(to - from, b - from);
    return (dA > 0 && dB < 0) || (dA < 0 && dB > 0);
}

bool SidesCross(const std::vector<CVector>& corners) {
    const size_t nCount = corners.size();
    for (size_t i = 0; i < nCount; ++i)
        for (size_t j = i + 1; j < nCount; ++j) {
            const CVector a = corners[i];
            const CVector b = corners[(i + 1) % nCount];
            const CVector c = corners[j];
            const CVector d = corners[(j + 1) % nCount];
            if (Parts(a, b, c, d) && Parts(c, d, a, b))
                return true;
        }
    return false;
}

} // namespace

CFigure LineThrough(const CCoordinate& first, const CCoordinate& second) {
    return {first, second};
}

CFigure LineTowards(const CCoordinate& from, double dDirection) {
    return {from, FindPolarPoint(from, dDirection, kSight)};
}

CFigure LineBeside(const CCoordinate& first, const CCoordinate& second, double dOffset) {
    const CLocalPlane plane(first);
    CVector way = plane.ToVector(second);
    if (!HasPosition(first) || !HasPosition(second) || IsSamePoint(first, second))
        return {first, first};
    const CVector right = CVector(way.GetY(), -way.GetX()).R_Unit().R_Scalar(dOffset);
    return {plane.ToCoordinate(right), plane.ToCoordinate(way + right)};
}

CFigure CircleAround(const CCoordinate& centre, double dRadius) {
    return {centre, CCoordinate(), dRadius};
}

CResult Meet(const CFigure& first, const CFigure& second) {
    if (first.IsCircle() && second.IsCircle())
        return IntersectCircles(first.first, first.dRadius, second.first, second.dRadius);
    if (!first.IsCircle() && !second.IsCircle())
        return IntersectLines(first.first, first.second, second.first, second.second);
    const CFigure& line = first.IsCircle() ? second : first;
    const CFigure& circle = first.IsCircle() ? first : second;
    return IntersectLineCircle(line.first, line.second, circle.first, circle.dRadius);
}

Verdict FindOffset(const CCoordinate& first, const CCoordinate& second, const CCoordinate& point,
                   COffset& offset) {
    if (!HasPosition(first) || !HasPosition(second) || !HasPosition(point))
        return Verdict::NoPosition;
    if (IsSamePoint(first, second))
        return Verdict::SamePoint;
    const CLocalPlane plane(first);
    CVector way = plane.ToVector(second);
    const double dLength = way.UNorm();
    const CVector toPoint = plane.ToVector(point);
    offset.dAlong = (toPoint.GetX() * way.GetX() + toPoint.GetY() * way.GetY()) / dLength;
    offset.dToTheRight = Cross(toPoint, way) / dLength;
    offset.foot = plane.ToCoordinate(way.R_Scalar(offset.dAlong / dLength));
    return Verdict::Found;
}

Verdict MeasurePolygon(const std::vector<CCoordinate>& corners, CPolygon& polygon) {
    constexpr size_t kLeastCorners = 3;
    if (corners.size() < kLeastCorners)
        return Verdict::TooFewCorners;
    if (!std::all_of(corners.begin(), corners.end(), HasPosition))
        return Verdict::NoPosition;
    const CLocalPlane plane(corners.front());
    std::vector<CVector> vectors;
    for (const CCoordinate& corner : corners)
        vectors.push_back(plane.ToVector(corner));
    double dTwice = 0;
    double dPerimeter = 0;
    for (size_t i = 0; i < vectors.size(); ++i) {
        CVector next = vectors[(i + 1) % vectors.size()];
        dTwice += Cross(vectors[i], next);
        dPerimeter += (next - vectors[i]).UNorm();
    }
    polygon = {std::fabs(dTwice) / 2, dPerimeter, SidesCross(vectors)};
    return Verdict::Found;
}
