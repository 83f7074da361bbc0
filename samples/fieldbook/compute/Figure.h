/// @file
/// Lines and circles as they are given in the field, and where any two of them meet.
#pragma once

#include "compute/Compute.h"

/// A line without ends, or a circle.
struct CFigure {
    CCoordinate first;  ///< A point of the line, or the centre.
    CCoordinate second; ///< Another point of the line.
    double dRadius = 0; ///< 0 for a line.

    bool IsCircle() const { return dRadius > 0; }
};

CFigure LineThrough(const CCoordinate& first, const CCoordinate& second);
/// @param dDirection radians, clockwise from north
CFigure LineTowards(const CCoordinate& from, double dDirection);
/// The parallel to the line through two points.
/// @param dOffset to the right of the way from first to second, in metres; negative to the left.
///                Two equal points give no line, which is found out where it meets another figure.
CFigure LineBeside(const CCoordinate& first, const CCoordinate& second, double dOffset);
/// @param dRadius more than 0
CFigure CircleAround(const CCoordinate& centre, double dRadius);

/// Where two figures meet; of two points the order is that of IntersectLineCircle and
/// IntersectCircles.
CResult Meet(const CFigure& first, const CFigure& second);

/// A point beside a line.
struct COffset {
    CCoordinate foot;   ///< Where the perpendicular from the point meets the line; without height.
    double dAlong;      ///< From the line's first point to the foot, negative behind it; metres.
    double dToTheRight; ///< Of the way from first to second, negative to the left.
};

/// @param offset written if the result is Found only
/// @return Found, SamePoint for a line of two equal points, NoPosition
Verdict FindOffset(const CCoordinate& first, const CCoordinate& second, const CCoordinate& point,
                   COffset& offset);

/// A closed polygon.
struct CPolygon {
    double dArea;      ///< Square metres; without meaning if sides cross.
    double dPerimeter; ///< Metres.
    bool bCrosses;     ///< Whether two of its sides cross.
};

/// @param corners in their order, the first not again at the end
/// @param polygon written if the result is Found only
/// @return Found, TooFewCorners below three, NoPosition
Verdict MeasurePolygon(const std::vector<CCoordinate>& corners, CPolygon& polygon);
