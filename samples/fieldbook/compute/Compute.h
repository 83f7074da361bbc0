/// @file
/// The computations of the fieldbook, on survey coordinates and without any window.
///
/// Points need both N and E; those that have not give Verdict::NoPosition, or the false result.
#pragma once

#include "points/PointBook.h"

#include <optional>
#include <vector>

/// How a computation ended.
enum class Verdict {
    Found,
    SamePoint,   ///< Two points that should give a direction are the same.
    Parallel,    ///< The lines are parallel.
    LineMisses,  ///< The line does not reach the circle.
    Apart,       ///< The circles are too far apart.
    Inside,      ///< One circle lies inside the other.
    SameCircle,  ///< The circles are the same.
    BadAngle,    ///< A central angle of zero or of a full turn.
    RadiusSmall, ///< The end of an arc is too close to its centre.
    NoCorner,    ///< The tangents do not meet.
    NoPosition,  ///< A point has no N or no E.
    TooFewCorners,
};
inline constexpr unsigned kVerdictCount = 12;

struct CResult {
    Verdict verdict;
    std::vector<CCoordinate> points; ///< Empty unless the verdict is Found.
};

/// Whether a point can take part in computations. CCoordinate::IsExistNE is content with one of
/// N and E.
bool HasPosition(const CCoordinate& point);

/// The intersection of two unbounded lines, each given by two points.
CResult IntersectLines(const CCoordinate& a1, const CCoordinate& a2, const CCoordinate& b1,
                       const CCoordinate& b2);
/// Whether a point lies behind another one for somebody who looks in a direction.
bool IsBehind(const CCoordinate& point, const CCoordinate& from, double dDirection);
/// The intersections of an unbounded line and a circle; one point where it touches.
CResult IntersectLineCircle(const CCoordinate& p1, const CCoordinate& p2, const CCoordinate& centre,
                            double dRadius);
/// The intersections of two circles: the one left of the way from the first centre to the
/// second comes first.
CResult IntersectCircles(const CCoordinate& c1, double dRadius1, const CCoordinate& c2, double dRadius2);
/// The centre of an arc.
/// @param dAngle central angle in radians, positive if the arc turns left
CResult FindArcCentre(const CCoordinate& start, const CCoordinate& end, double dAngle);
/// The corners of the tangents of an arc that turns left from start to end: one, or two for
/// an arc of half a turn and more.
CResult FindTangentCorners(const CCoordinate& start, const CCoordinate& centre, const CCoordinate& end);

/// All about an arc that turns left from its start to its end.
struct CCurve {
    double dRadius;                   ///< From the centre to the end; the start may lie elsewhere.
    double dSweep;                    ///< Central angle in radians, more than 0 and less than a full turn.
    double dLength;                   ///< Along the arc.
    double dBulge;                    ///< tan(dSweep / 4)
    std::vector<CCoordinate> corners; ///< As FindTangentCorners.
};

/// @param curve written if the result is Found only
/// @return Found, or a verdict of FindTangentCorners
Verdict FindCurve(const CCoordinate& start, const CCoordinate& centre, const CCoordinate& end, CCurve& curve);

/// The point at a horizontal distance from another one, without height.
/// @param from must have a position
/// @param dDirection radians, clockwise from north
CCoordinate FindPolarPoint(const CCoordinate& from, double dDirection, double dDistance);

/// The way from a point to another one.
struct CInverse {
    double dDistance;  ///< Horizontal.
    double dDirection; ///< Radians, clockwise from north, from 0 to a full turn.
    double dN;         ///< Differences, those of the second point less those of the first.
    double dE;
    std::optional<double> dZ; ///< If both points have a height.
};

/// @param inverse written if the result is true only
/// @return false if the points are the same, to a millimetre, or have no position
bool FindInverse(const CCoordinate& from, const CCoordinate& to, CInverse& inverse);

/// The box around all points with a position; the others do not count.
/// @param lo,hi smallest and largest N, E and Z, without Z if no point has one; written if the
///              result is true only
/// @return false if no point has a position
bool FindExtent(const std::vector<CNamedPoint>& points, CCoordinate& lo, CCoordinate& hi);

/// Whether two points, both with a position, are closer than a millimetre.
bool IsSamePoint(const CCoordinate& a, const CCoordinate& b);
/// The horizontal distance of two points, both with a position.
double Distance(const CCoordinate& a, const CCoordinate& b);
