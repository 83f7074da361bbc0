#include "geometry/Vector.h"

#include <algorithm>

using namespace fieldkit::geometry;

namespace {

// The points found on the circle go to a and b in the order in which they are reported;
// a touching point goes to both. The functions return their number.

/// A line parallel to an axis at `offset` from the centre; `centre` and the results are
/// coordinates along that axis.
inline int CutParallel(double rr, double offset, double centre, double t, double& a, double& b) {
    const double d = rr - offset * offset;
    if (std::fabs(d) < t) {
        a = b = centre;
        return 1;
    }
    if (!(d > 0))
        return 0;
    const double s = std::sqrt(d);
    a = centre + s;
    b = centre - s;
    return 2;
}

/// An oblique line y = m x + k, put into the circle's equation: qa x^2 + 2 qb x + qc = 0.
inline int CutOblique(double m, double k, double cx, double cy, double rr, double t, double& ax, double& ay,
                      double& bx, double& by) {
    const double qa = m * m + 1;
    const double qb = m * k - cx - m * cy;
    const double qc = cx * cx + cy * cy + k * k - 2 * k * cy - rr;
    double d = qb * qb - qa * qc;
    if (std::fabs(d) <= t)
        d = 0;
    if (std::fabs(d) < t) {
        ax = bx = -qb / qa;
        ay = by = m * ax + k;
        return 1;
    }
    if (!(d > 0))
        return 0;
    const double s = std::sqrt(d);
    ax = (-qb + s) / qa;
    ay = m * ax + k;
    bx = (-qb - s) / qa;
    by = m * bx + k;
    return 2;
}

/// The line through (x1, y1) and (x2, y2); the caller says what passes for horizontal or vertical.
inline int CutCircle(bool bHorizontal, bool bVertical, double x1, double y1, double x2, double y2, double cx,
                     double cy, double rr, double t, double& ax, double& ay, double& bx, double& by) {
    if (bHorizontal) {
        ay = by = y1;
        return CutParallel(rr, y1 - cy, cx, t, ax, bx);
    }
    if (bVertical) {
        ax = bx = x1;
        return CutParallel(rr, x1 - cx, cy, t, ay, by);
    }
    const double m = (y2 - y1) / (x2 - x1);
    return CutOblique(m, y2 - m * x2, cx, cy, rr, t, ax, ay, bx, by);
}

bool IsInBox(double x, double y, double x1, double y1, double x2, double y2) {
    return std::min(x1, x2) <= x && x <= std::max(x1, x2) && std::min(y1, y2) <= y && y <= std::max(y1, y2);
}

bool SegmentsMeet(CVector a, CVector b, CVector p, CVector q) {
    CVector meeting;
    return CVector::IntersectLineLine(a, b, p, q, meeting, 1) != 0;
}

/// Decides whether a point of the circle lies on the arc: the segment from it to the centre
/// has to cross the arc's chord. An arc of half a turn or more has two chords, from its ends
/// to its middle.
class CArcSweep {
public:
    CArcSweep(CVector start, CVector end, CVector centre) : m_Start(start), m_End(end), m_Centre(centre) {
        CVector spoke = start - centre;
        const double from = CVector::Range0To360(spoke.Angle());
        double to = CVector::Range0To360((end - centre).Angle());
        if (to < from)
            to += kTwoPi;
        const double sweep = to - from;
        m_bSplit = kPi <= sweep;
        if (m_bSplit)
            m_Middle = m_Centre + spoke.R_Rotate(sweep / 2);
    }

    bool Holds(CVector p) const {
        if (!m_bSplit)
            return SegmentsMeet(m_Start, m_End, p, m_Centre);
        return SegmentsMeet(m_Start, m_Middle, p, m_Centre) || SegmentsMeet(m_Middle, m_End, p, m_Centre);
    }

private:
    CVector m_Start;
    CVector m_Middle;
    CVector m_End;
    CVector m_Centre;
    bool m_bSplit;
};

} // namespace

int CVector::IntersectLineArc(double x1, double y1, double x2, double y2, double sx, double sy, double ex,
                              double ey, double cx, double cy, double* px1, double* py1, double* px2,
                              double* py2) {
    const double t = m_dTolerance;
    const double r = std::sqrt((ex - cx) * (ex - cx) + (ey - cy) * (ey - cy));
    double ax;
    double ay;
    double bx;
    double by;
    const int found = CutCircle(std::fabs(y1 - y2) < t, std::fabs(x1 - x2) < t, x1, y1, x2, y2, cx, cy, r * r,
                                t, ax, ay, bx, by);
    if (found == 0)
        return 0;

    // The segment's box first: it is exact and cheap, the sweep takes two arc tangents.
    bool bFirst = IsInBox(ax, ay, x1, y1, x2, y2);
    bool bSecond = found == 2 && IsInBox(bx, by, x1, y1, x2, y2);
    if (!bFirst && !bSecond)
        return 0;
    const CArcSweep sweep(CVector(sx, sy), CVector(ex, ey), CVector(cx, cy));
    bFirst = bFirst && sweep.Holds(CVector(ax, ay));
    bSecond = bSecond && sweep.Holds(CVector(bx, by));

    if (bFirst) {
        *px1 = ax;
        *py1 = ay;
        if (!bSecond)
            return 1;
        *px2 = bx;
        *py2 = by;
        return 2;
    }
    if (!bSecond)
        return 0;
    *px1 = bx;
    *py1 = by;
    return 1;
}

int CVector::IntersectLineArc(double x1, double y1, double x2, double y2, double sx, double sy, double ex,
                              double ey, double cx, double cy, double* px, double* py) {
    double ax;
    double ay;
    double bx;
    double by;
    const int found = IntersectLineArc(x1, y1, x2, y2, sx, sy, ex, ey, cx, cy, &ax, &ay, &bx, &by);
    if (found == 0)
        return 0;
    if (found == 2) {
        GetNearerPoint(*px, *py, ax, ay, bx, by, px, py);
        return 1;
    }
    *px = ax;
    *py = ay;
    return 1;
}

int CVector::IntersectLineArcInf(double x1, double y1, double x2, double y2, double cx, double cy,
                                 double radius, double* px1, double* py1, double* px2, double* py2) {
    double ax;
    double ay;
    double bx;
    double by;
    // Unlike the arc form, only an exactly horizontal or vertical line is taken as such.
    const int found =
        CutCircle(y1 == y2, x1 == x2, x1, y1, x2, y2, cx, cy, radius * radius, m_dTolerance, ax, ay, bx, by);
    if (found == 0)
        return 0;
    *px1 = ax;
    *py1 = ay;
    *px2 = bx;
    *py2 = by;
    return found;
}
