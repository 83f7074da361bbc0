#include "Compute.h"

#include "LocalPlane.h"

#include <cmath>
#include <initializer_list>

namespace {

constexpr double TWO_PI = 6.28318530717958647692;
constexpr double SAME_DIRECTION = 1e-06; // radians
constexpr double SAME_POINT = 0.001;
/// Nearer to the centre than this, the library gives points no direction of their own.
constexpr double MIN_RADIUS = 0.1;

bool IsSamePoint(const CCoordinate& a, const CCoordinate& b) {
    return Distance(a, b) < SAME_POINT;
}

bool IsParallel(CVector u, CVector v) {
    return u.IsSameDir(v, SAME_DIRECTION) || u.IsSameDir(v.R_Scalar(-1), SAME_DIRECTION);
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

double Distance(const CCoordinate& a, const CCoordinate& b) {
    return CLocalPlane(a).ToVector(b).UNorm();
}

CResult IntersectLines(const CCoordinate& a1, const CCoordinate& a2, const CCoordinate& b1,
                       const CCoordinate& b2) {
    if (IsSamePoint(a1, a2) || IsSamePoint(b1, b2))
        return Failed(Verdict::SamePoint);
    const CLocalPlane plane(a1);
    CVector p1 = plane.ToVector(a1);
    CVector p2 = plane.ToVector(a2);
    CVector p3 = plane.ToVector(b1);
    CVector p4 = plane.ToVector(b2);
    CVector meeting;
    constexpr int UNBOUNDED = 0;
    // The library lets lines meet in an end that they share, even if they are one and the same.
    if (IsParallel(p2 - p1, p4 - p3) || !CVector::IntersectLineLine(p1, p2, p3, p4, meeting, UNBOUNDED))
        return Failed(Verdict::Parallel);
    return Found(plane, {meeting});
}

CResult IntersectLineCircle(const CCoordinate& p1, const CCoordinate& p2, const CCoordinate& centre,
                            double dRadius) {
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
    if (IsSamePoint(start, end))
        return Failed(Verdict::SamePoint);
    // Neither has a centre: no arc at all, and a circle that may lie anywhere.
    if (dAngle == 0 || std::fabs(dAngle) >= TWO_PI)
        return Failed(Verdict::BadAngle);
    const CLocalPlane plane(start);
    return Found(plane, {CVector::CalcArcCenter(plane.ToVector(start), plane.ToVector(end), dAngle)});
}

CResult FindTangentCorners(const CCoordinate& start, const CCoordinate& centre, const CCoordinate& end) {
    if (IsSamePoint(start, end))
        return Failed(Verdict::SamePoint);
    if (Distance(centre, start) < MIN_RADIUS || Distance(centre, end) < MIN_RADIUS)
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

CCoordinate FindPolarPoint(const CCoordinate& from, double dDirection, double dDistance) {
    const CLocalPlane plane(from);
    return plane.ToCoordinate(CVector(dDistance * std::sin(dDirection), dDistance * std::cos(dDirection)));
}
