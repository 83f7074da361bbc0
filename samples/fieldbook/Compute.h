/// @file
/// The computations of the fieldbook, on survey coordinates and without any window.
#pragma once

#include "survey/Coordinate.h"

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
};

struct CResult {
    Verdict verdict;
    std::vector<CCoordinate> points; ///< Empty unless the verdict is Found.
};

/// The intersection of two unbounded lines, each given by two points.
CResult IntersectLines(const CCoordinate& a1, const CCoordinate& a2, const CCoordinate& b1,
                       const CCoordinate& b2);
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

/// The point at a horizontal distance from another one, without height.
/// @param dDirection radians, clockwise from north
CCoordinate FindPolarPoint(const CCoordinate& from, double dDirection, double dDistance);

/// The horizontal distance.
double Distance(const CCoordinate& a, const CCoordinate& b);
