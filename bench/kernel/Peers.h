/// @file
/// The workloads in other geometry libraries, as one of their users would write them. Inputs and
/// outputs are those of the workloads in Cases.h, plain doubles: turning them into the library's own
/// types and back is part of the work.
#pragma once

namespace peers {

namespace boost_geometry {
int Segments(const double* in, double* out);
int Lines(const double* in, double* out); ///< from a detail header: no public one does it
} // namespace boost_geometry

namespace eigen {
int Segments(const double* in, double* out);   ///< composed of parametrised lines
int Lines(const double* in, double* out);      ///< hyperplanes
int LineCircle(const double* in, double* out); ///< composed: projection of the centre
int ArcCentre(const double* in, double* out);  ///< composed: fixed point of a rotation
int Corner(const double* in, double* out);     ///< composed: hyperplanes, minor arcs only
} // namespace eigen

namespace cgal {
int Segments(const double* in, double* out);
int Lines(const double* in, double* out);
int LineCircle(const double* in, double* out);
int SegmentArc(const double* in, double* out);
int CircleCircle(const double* in, double* out);
int ArcCentre(const double* in, double* out); ///< composed: circle through the arc's ends and middle
int Corner(const double* in, double* out);    ///< composed: perpendicular lines, minor arcs only
} // namespace cgal

namespace geos_library {
int Segments(const double* in, double* out);
int Lines(const double* in, double* out);
int LimitAngle(const double* in, double* out);
} // namespace geos_library

/// The C library's remainder.
int LimitAngleByRemainder(const double* in, double* out);

} // namespace peers
