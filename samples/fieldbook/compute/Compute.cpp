#include "compute/Compute.h"

#include "compute/LocalPlane.h"
#include "compute/Turn.h"

#include <cmath>
#include <initializer_list>
#include <utility>

using fieldkit::survey::kNull;

namespace {

constexpr double kSameDirection = 1e-06; // radians
constexpr double kSamePoint = 0.001;
/// Nearer to the centre than this, the library gives points no direction of their own.
constexpr double kMinRadius = 0.1;

template <class... Points>
bool HavePositions(const Points&... points) {
    return (HasPosition(points) && ...);
}

bool IsParallel(CVector u, CVector v) {
    return u.IsSameDir(v, kSameDirection) || u.IsSameDir(v.R_Scalar(-1), kSameDirection);
}

CResult Failed(Verdict verdict) {
    return {verdict, {}};
}

CResult Found(const CLocalPlane& plane, std::initializer_list<CVector> vectors) {
    CResult result{Verdict::Found, {}};
    for (const CVector& v : vectors)
        result.points.push_back(plane.ToCoordinate(v));
    return result;
}

} // namespace

bool HasPosition(const CCoordinate& point) {
    return point.GetN() != kNull && point.GetE() != kNull;
}

bool IsSamePoint(const CCoordinate& a, const CCoordinate& b) {
    return Distance(a, b) < kSamePoint;
}

double Distance(const CCoordinate& a, const CCoordinate& b) {
    return CLocalPlane(a).ToVector(b).UNorm();
}

CResult IntersectLines(const CCoordinate& a1, const CCoordinate& a2, const CCoordinate& b1,
                       const CCoordinate& b2) {
    if (!HavePositions(a1, a2, b1, b2))
        return Failed(Verdict::NoPosition);
    if (IsSamePoint(a1, a2) || IsSamePoint(b1, b2))
        return Failed(Verdict::SamePoint);
    constexpr int kUnbounded = 0;
    const CLocalPlane plane(a1);
    CVector p1 = plane.ToVector(a1);
    CVector p2 = plane.ToVector(a2);
    CVector p3 = plane.ToVector(b1);
    CVector p4 = plane.ToVector(b2);
    CVector meeting;
    // The library lets lines meet in an end that they share, even if they are one and the same.
    if (IsParallel(p2 - p1, p4 - p3) || !CVector::IntersectLineLine(p1, p2, p3, p4, meeting, kUnbounded))
        return Failed(Verdict::Parallel);
    return Found(plane, {meeting});
}

bool IsBehind(const CCoordinate& point, const CCoordinate& from, double dDirection) {
    const CVector way = CLocalPlane(from).ToVector(point);
    return way.GetX() * std::sin(dDirection) + way.GetY() * std::cos(dDirection) < -kSamePoint;
}

CResult IntersectLineCircle(const CCoordinate& p1, const CCoordinate& p2, const CCoordinate& centre,
                            double dRadius) {
    if (!HavePositions(p1, p2, centre))
        return Failed(Verdict::NoPosition);
    if (IsSamePoint(p1, p2))
        return Failed(Verdict::SamePoint);
    const CLocalPlane plane(p1);
    CVector first;
    CVector second;
    switch (CVector::IntersectLineArcInf(plane.ToVector(p1), plane.ToVector(p2), plane.ToVector(centre),
                                         dRadius, first, second)) {
    case 0:
        return Failed(Verdict::LineMisses);
    case 1:
        return Found(plane, {first});
    default:
        return Found(plane, {first, second});
    }
}

CResult IntersectCircles(const CCoordinate& c1, double dRadius1, const CCoordinate& c2, double dRadius2) {
    if (!HavePositions(c1, c2))
        return Failed(Verdict::NoPosition);
    const CLocalPlane plane(c1);
    CVector first;
    CVector second;
    const int nFound = CVector::IntersectArcArcInf(plane.ToVector(c1), dRadius1, plane.ToVector(c2), dRadius2,
                                                   first, second);
    if (nFound == -1)
        return Failed(Verdict::SameCircle);
    // The library leaves it to its callers to find out that a circle lies inside the other.
    if (nFound != 1 && Distance(c1, c2) < std::fabs(dRadius1 - dRadius2))
        return Failed(Verdict::Inside);
    switch (nFound) {
    case 0:
        return Failed(Verdict::Apart);
    case 1:
        return Found(plane, {first});
    default:
        return Found(plane, {first, second});
    }
}

CResult FindArcCentre(const CCoordinate& start, const CCoordinate& end, double dAngle) {
    if (!HavePositions(start, end))
        return Failed(Verdict::NoPosition);
    if (IsSamePoint(start, end))
        return Failed(Verdict::SamePoint);
    // Neither has a centre: no arc at all, and a circle that may lie anywhere.
    if (dAngle == 0 || std::fabs(dAngle) >= kTwoPi)
        return Failed(Verdict::BadAngle);
    const CLocalPlane plane(start);
    // The library's half turn has ten digits, which moves the centre of a flat arc by millimetres.
    const CVector chord = plane.ToVector(end);
    const double dAside = 0.5 / std::tan(dAngle / 2); // of a chord, to its left
    return Found(
        plane, {CVector(chord.GetX() / 2 - chord.GetY() * dAside, chord.GetY() / 2 + chord.GetX() * dAside)});
}

CResult FindTangentCorners(const CCoordinate& start, const CCoordinate& centre, const CCoordinate& end) {
    if (!HavePositions(start, centre, end))
        return Failed(Verdict::NoPosition);
    if (IsSamePoint(start, end))
        return Failed(Verdict::SamePoint);
    if (Distance(centre, start) < kMinRadius || Distance(centre, end) < kMinRadius)
        return Failed(Verdict::RadiusSmall);
    const CLocalPlane plane(centre);
    CVector first;
    CVector second;
    int bSplit = 0;
    if (!CVector::CalcPiOfArc(plane.ToVector(start), plane.ToVector(centre), plane.ToVector(end), first,
                              second, bSplit))
        return Failed(Verdict::NoCorner);
    return bSplit ? Found(plane, {first, second}) : Found(plane, {first});
}

Verdict FindCurve(const CCoordinate& start, const CCoordinate& centre, const CCoordinate& end,
                  CCurve& curve) {
    constexpr int kTurnsLeft = 1;
    CResult tangents = FindTangentCorners(start, centre, end);
    if (tangents.verdict != Verdict::Found)
        return tangents.verdict;
    const CLocalPlane plane(centre);
    curve.dBulge = CVector::CalcVertexBulge(plane.ToVector(start), plane.ToVector(end),
                                            plane.ToVector(centre), kTurnsLeft);
    curve.dSweep = 4 * std::atan(curve.dBulge);
    curve.dRadius = Distance(centre, end);
    curve.dLength = curve.dRadius * curve.dSweep;
    curve.corners = std::move(tangents.points);
    return Verdict::Found;
}

CCoordinate FindPolarPoint(const CCoordinate& from, double dDirection, double dDistance) {
    const CLocalPlane plane(from);
    return plane.ToCoordinate(CVector(dDistance * std::sin(dDirection), dDistance * std::cos(dDirection)));
}

bool FindInverse(const CCoordinate& from, const CCoordinate& to, CInverse& inverse) {
    if (!HavePositions(from, to) || IsSamePoint(from, to))
        return false;
    CVector way = CLocalPlane(from).ToVector(to);
    // The library's angles go from x to y, a direction from north to east. As a unit vector even
    // a short way is above the length below which the library sees no direction.
    CVector northFirst(way.GetY(), way.GetX());
    inverse = {way.UNorm(), CVector::Range0To360(northFirst.R_Unit().Angle()), way.GetY(), way.GetX(), {}};
    if (from.IsExistZ() && to.IsExistZ())
        inverse.dZ = to.GetZ() - from.GetZ();
    return true;
}

bool FindExtent(const std::vector<CNamedPoint>& points, CCoordinate& lo, CCoordinate& hi) {
    bool bFound = false;
    for (const CNamedPoint& named : points) {
        CCoordinate point = named.point;
        if (!HasPosition(point))
            continue;
        // The corners of a box must be set before it can be widened.
        if (!std::exchange(bFound, true))
            lo = hi = point;
        point.AddExtent(lo, hi);
    }
    return bFound;
}
