/// @file
/// The workloads in this library and in the plain transcription of its formulas. Inline, so that
/// a case is one call of the library's function, as for its users.
#pragma once

#include "Reference.h"
#include "geometry/Vector.h"

/// Two of the doubles as a point in place. Copied instead, a point would be read as a whole right
/// after its halves were written, and waiting for that would be measured with everything else.
template <class Point>
Point& PointAt(double* out) {
    static_assert(sizeof(Point) == 2 * sizeof(double));
    return *reinterpret_cast<Point*>(out);
}

namespace own {

inline CVector At(const double* in) {
    return CVector(in[0], in[1]);
}

template <int Segment>
int LineLine(const double* in, double* out) {
    return CVector::IntersectLineLine(in[0], in[1], in[2], in[3], in[4], in[5], in[6], in[7], out, out + 1,
                                      Segment);
}
inline int LineCircle(const double* in, double* out) {
    return CVector::IntersectLineArcInf(in[0], in[1], in[2], in[3], in[4], in[5], in[6], out, out + 1,
                                        out + 2, out + 3);
}
inline int SegmentArc(const double* in, double* out) {
    return CVector::IntersectLineArc(in[0], in[1], in[2], in[3], in[4], in[5], in[6], in[7], in[8], in[9],
                                     out, out + 1, out + 2, out + 3);
}
inline int CircleCircle(const double* in, double* out) {
    return CVector::IntersectArcArcInf(At(in), in[2], At(in + 3), in[5], PointAt<CVector>(out),
                                       PointAt<CVector>(out + 2));
}
inline int ArcCentre(const double* in, double* out) {
    PointAt<CVector>(out) = CVector::CalcArcCenter(At(in), At(in + 2), in[4]);
    return 0;
}
inline int Bulge(const double* in, double* out) {
    out[0] = CVector::CalcVertexBulge(At(in), At(in + 2), At(in + 4), in[6] != 0);
    return 0;
}
inline int Corners(const double* in, double* out) {
    int split = 0;
    const int found = CVector::CalcPiOfArc(At(in), At(in + 2), At(in + 4), PointAt<CVector>(out),
                                           PointAt<CVector>(out + 2), split);
    out[4] = split;
    return found;
}
inline int LimitAngle(const double* in, double* out) {
    out[0] = CVector::LimitAngleRange(in[0]);
    return 0;
}

} // namespace own

namespace plain {

using reference::P;

inline P At(const double* in) {
    return {in[0], in[1]};
}
template <int Segment>
int LineLine(const double* in, double* out) {
    return reference::LineLine(At(in), At(in + 2), At(in + 4), At(in + 6), PointAt<P>(out), Segment);
}
inline int LineCircle(const double* in, double* out) {
    return reference::LineCircle(At(in), At(in + 2), At(in + 4), in[6], PointAt<P>(out), PointAt<P>(out + 2));
}
inline int SegmentArc(const double* in, double* out) {
    return reference::LineArc(At(in), At(in + 2), At(in + 4), At(in + 6), At(in + 8), PointAt<P>(out),
                              PointAt<P>(out + 2));
}
inline int CircleCircle(const double* in, double* out) {
    return reference::CircleCircle(At(in), in[2], At(in + 3), in[5], PointAt<P>(out), PointAt<P>(out + 2));
}
inline int ArcCentre(const double* in, double* out) {
    PointAt<P>(out) = reference::ArcCenter(At(in), At(in + 2), in[4]);
    return 0;
}
inline int Bulge(const double* in, double* out) {
    out[0] = reference::VertexBulge(At(in), At(in + 2), At(in + 4), in[6] != 0);
    return 0;
}
inline int Corners(const double* in, double* out) {
    int split = 0;
    const int found =
        reference::PiOfArc(At(in), At(in + 2), At(in + 4), PointAt<P>(out), PointAt<P>(out + 2), split);
    out[4] = split;
    return found;
}
inline int LimitAngle(const double* in, double* out) {
    out[0] = reference::LimitAngleRange(in[0]);
    return 0;
}

} // namespace plain
