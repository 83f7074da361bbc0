#include "geometry/Vector.h"

#include "geometry/detail/ArcDirections.h"
#include "geometry/detail/Turn.h"
#include "geometry/detail/Within.h"

#include <algorithm>
#include <limits>

using namespace fieldkit::geometry;

namespace {

// The points found on the circle go to a and b in the order in which they are reported;
// a touching point goes to both. The functions return their number.

/// A line parallel to an axis at `offset` from the centre; `centre` and the results are
/// coordinates along that axis.
inline int CutParallel(double rr, double offset, double centre, double t, double& a, double& b) {
    const double d = rr - offset * offset;
    a = b = centre;
    if (std::fabs(d) < t)
        return 1;
    if (!(d > 0))
        return 0;
    const double s = std::sqrt(d);
    a = centre + s;
    b = centre - s;
    return 2;
}

/// The horizontal or vertical line through (x1, y1).
inline int CutAligned(bool bHorizontal, double x1, double y1, double cx, double cy, double rr, double t,
                      double& ax, double& ay, double& bx, double& by) {
    if (bHorizontal) {
        ay = by = y1;
        return CutParallel(rr, y1 - cy, cx, t, ax, bx);
    }
    ax = bx = x1;
    return CutParallel(rr, x1 - cx, cy, t, ay, by);
}

/// Two abscissas or two ordinates; computed at once, above all divided.
using Pair [[gnu::vector_size(2 * sizeof(double))]] = double;

/// Any other line through (x1, y1) and (x2, y2): y = m x + k, put into the circle's equation, is
/// qa x^2 + 2 qb x + qc = 0. For a miss the results mean nothing.
inline int CutOblique(double x1, double y1, double x2, double y2, double cx, double cy, double rr, double t,
                      Pair& x, Pair& y) {
    const double m = (y2 - y1) / (x2 - x1);
    const double k = y2 - m * x2;
    const double qa = m * m + 1;
    const double qb = m * k - cx - m * cy;
    const double qc = cx * cx + cy * cy + k * k - 2 * k * cy - rr;
    const double d = qb * qb - qa * qc;
    // No branch here, for it would be mispredicted time and again. A touching point is
    // -qb / qa, and so are the roots of -0.0: plus that null leaves the sign of a null qb alone.
    const bool bCut = d > std::max(0.0, t);
    const bool bFound = d >= (t > 0 ? -t : std::numeric_limits<double>::denorm_min()); // cut or touched
    const double roots[] = {-0.0, d};
    const double s = std::sqrt(roots[bCut]);
    x = (Pair{s, -std::fabs(s)} - qb) / qa;
    y = m * x + k;
    return bCut + bFound;
}

bool SegmentsMeet(CVector a, CVector b, CVector p, CVector q) {
    CVector meeting;
    return CVector::IntersectLineLine(a, b, p, q, meeting, 1) != 0;
}

/// Whether the arc holds the point p of its circle by the crossing itself: the spoke from p to the centre
/// has to cross the arc's chord. An arc of half a turn or more has two, from its ends to its
/// middle.
bool ArcHolds(double sx, double sy, double ex, double ey, double cx, double cy, double px, double py) {
    CVector s(sx, sy);
    CVector e(ex, ey);
    CVector c(cx, cy);
    CVector p(px, py);
    // The sweep itself, kPi <= sweep, only where the spokes do not tell or it has to be halved.
    if (TurnBetween(sx - cx, sy - cy, ex - cx, ey - cy) == Turn::Minor)
        return SegmentsMeet(s, e, p, c);
    CVector spoke = s - c;
    const double from = CVector::Range0To360(spoke.Angle());
    double to = CVector::Range0To360((e - c).Angle());
    if (to < from)
        to += kTwoPi;
    const double sweep = to - from;
    if (sweep < kPi)
        return SegmentsMeet(s, e, p, c);
    const CVector m = c + spoke.R_Rotate(sweep / 2);
    return SegmentsMeet(s, m, p, c) || SegmentsMeet(m, e, p, c);
}

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
    const bool bHorizontal = std::fabs(y1 - y2) < t;
    int found;
    if (bHorizontal || std::fabs(x1 - x2) < t) {
        found = CutAligned(bHorizontal, x1, y1, cx, cy, r * r, t, ax, ay, bx, by);
    } else {
        Pair x;
        Pair y;
        found = CutOblique(x1, y1, x2, y2, cx, cy, r * r, t, x, y);
        ax = x[0];
        ay = y[0];
        bx = x[1];
        by = y[1];
    }
    // The segment's box first: it is exact and cheap.
    bool bFirst = (found >= 1) & IsInBox(ax, ay, x1, y1, x2, y2);
    bool bSecond = (found == 2) & IsInBox(bx, by, x1, y1, x2, y2);
    if (!(bFirst | bSecond))
        return 0;
    const CArcDirections arc(sx, sy, ex, ey, cx, cy, r);
    const bool bAskFirst = bFirst & !arc.CanTell(ax, ay, t);
    const bool bAskSecond = bSecond & !arc.CanTell(bx, by, t);
    bFirst = bFirst & arc.Holds(ax, ay);
    bSecond = bSecond & arc.Holds(bx, by);
    if (bAskFirst | bAskSecond) {
        bFirst = bAskFirst ? ArcHolds(sx, sy, ex, ey, cx, cy, ax, ay) : bFirst;
        bSecond = bAskSecond ? ArcHolds(sx, sy, ex, ey, cx, cy, bx, by) : bSecond;
    }

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
    const auto cutAligned = [=](bool bHorizontal) {
        double ax;
        double ay;
        double bx;
        double by;
        const int found =
            CutAligned(bHorizontal, x1, y1, cx, cy, radius * radius, m_dTolerance, ax, ay, bx, by);
        if (found != 0) {
            *px1 = ax;
            *py1 = ay;
            *px2 = bx;
            *py2 = by;
        }
        return found;
    };
    // Unlike the arc form, only an exactly horizontal or vertical line is taken as such.
    if (y1 == y2)
        return cutAligned(true);
    if (x1 == x2)
        return cutAligned(false);

    Pair x;
    Pair y;
    const int found = CutOblique(x1, y1, x2, y2, cx, cy, radius * radius, m_dTolerance, x, y);
    // A miss is computed like the rest and discarded.
    double discarded;
    double* const to[][4] = {{&discarded, &discarded, &discarded, &discarded}, {px1, py1, px2, py2}};
    double* const* const out = to[found != 0];
    *out[0] = x[0];
    *out[1] = y[0];
    *out[2] = x[1];
    *out[3] = y[1];
    return found;
}
