/// @file
/// The inputs of the workloads, in coordinates of a building site: metres, some hundred wide.
#pragma once

#include <vector>

namespace cases {

// Each gives `count` cases as doubles one behind the other, the same ones on every call.

/// x1 y1 x2 y2, x3 y3 x4 y4: two segments. Of ten, four cross, three miss, one is parallel to
/// the other and two are parallel to an axis.
std::vector<double> Segments(int count);
/// x1 y1 x2 y2, cx cy r: a line and a circle. Of ten, six cut, two miss, one touches, one is
/// parallel to an axis.
std::vector<double> LineCircle(int count);
/// x1 y1 x2 y2, start, end, centre: a segment and an arc of any sweep.
std::vector<double> SegmentArc(int count);
/// x1 y1 r1, x2 y2 r2. Of ten, six cut, two are too far apart, one touches, one lies inside.
std::vector<double> CircleCircle(int count);
/// x1 y1 x2 y2, central angle: minor and major, of both signs.
std::vector<double> ArcCentre(int count);
/// start, end, centre, 1 for counter-clockwise.
std::vector<double> Bulge(int count);
/// start, centre, end: an arc of less than half a turn.
std::vector<double> MinorArc(int count);
/// start, centre, end: an arc of more than half a turn.
std::vector<double> MajorArc(int count);
/// An angle in -4 pi..4 pi.
std::vector<double> Angle(int count);

} // namespace cases
