#include "geometry/Vector.h"

#include "geometry/detail/Turn.h"

#include <algorithm>

using namespace fieldkit::geometry;

namespace {

/// A central angle this close to half a turn puts the centre on the chord, radians.
constexpr double kHalfTurnBand = 1e-08;

/// An arc that lies in the dead band of CVector::Angle seems a full turn however often it
/// is halved. Others come to rest after some four halvings, ten at the edge of the band.
constexpr int kMaxHalvings = 32;
constexpr int kNeverEnds = -1;

// Ends and centre go from hand to hand as single doubles, which stay in registers.

/// From start counter-clockwise to end, radians; the same direction gives a full turn.
double SweepBetween(double ux, double uy, double wx, double wy) {
    const double from = CVector::Range0To360(CVector(ux, uy).Angle());
    const double to = CVector::Range0To360(CVector(wx, wy).Angle());
    return from < to ? to - from : kTwoPi - (from - to);
}

/// Where the tangents at the ends meet.
int MeetTangents(double sx, double sy, double cx, double cy, double ex, double ey, double* px, double* py) {
    CVector t1 = CVector(sx - cx, sy - cy).R_Normal(CVector::Left);
    CVector t2 = CVector(ex - cx, ey - cy).R_Normal(CVector::Left);
    return CVector::IntersectLineLine(sx, sy, sx + t1.GetX(), sy + t1.GetY(), ex, ey, ex + t2.GetX(),
                                      ey + t2.GetY(), px, py, 0);
}

// Not inlined: the way of the minor arcs is to stay short.
[[gnu::noinline]] int HalveArc(double sx, double sy, double cx, double cy, double ex, double ey, double* px1,
                               double* py1, double* px2, double* py2, int* split, int halvings);

/// CVector::CalcPiOfArc; kNeverEnds as a third result.
int FindCorners(double sx, double sy, double cx, double cy, double ex, double ey, double* px1, double* py1,
                double* px2, double* py2, int* split, int halvings) {
    if (TurnBetween(sx - cx, sy - cy, ex - cx, ey - cy) != Turn::Minor)
        return HalveArc(sx, sy, cx, cy, ex, ey, px1, py1, px2, py2, split, halvings);
    *split = 0;
    return MeetTangents(sx, sy, cx, cy, ex, ey, px1, py1);
}

/// The same by the sweep itself.
int HalveArc(double sx, double sy, double cx, double cy, double ex, double ey, double* px1, double* py1,
             double* px2, double* py2, int* split, int halvings) {
    const double sweep = SweepBetween(sx - cx, sy - cy, ex - cx, ey - cy);
    *split = kPi <= sweep;
    if (!*split)
        return MeetTangents(sx, sy, cx, cy, ex, ey, px1, py1);
    if (halvings == 0)
        return kNeverEnds;

    CVector turned = CVector(sx - cx, sy - cy).R_Rotate(sweep / 2);
    const double mx = cx + turned.GetX();
    const double my = cy + turned.GetY();
    double unused[2];
    int split1;
    int split2;
    const int found1 =
        FindCorners(sx, sy, cx, cy, mx, my, px1, py1, &unused[0], &unused[1], &split1, halvings - 1);
    if (found1 == kNeverEnds)
        return kNeverEnds;
    const int found2 =
        FindCorners(mx, my, cx, cy, ex, ey, px2, py2, &unused[0], &unused[1], &split2, halvings - 1);
    if (found2 == kNeverEnds)
        return kNeverEnds;
    return !split1 && !split2 && found1 && found2;
}

} // namespace

void CVector::CentreOnChord(double x1, double y1, double x2, double y2, double angle, double* px,
                            double* py) {
    const bool bCcw = angle > 0;
    const double a = std::fabs(angle);
    CVector half = CVector(x2 - x1, y2 - y1).R_Scalar(0.5);
    if (std::fabs(kPi - a) < kHalfTurnBand) {
        *px = x1 + half.m_dX;
        *py = y1 + half.m_dY;
        return;
    }

    // The centre of a major arc lies on the other side of the chord.
    const bool bMinor = a < kPi;
    const double inner = std::min(a, kTwoPi - a); // the latter for a major arc
    const double k = std::tan(kHalfPi - inner / 2) * half.UNorm();
    CVector across = half.R_Normal(static_cast<Direction>(bCcw == bMinor)).R_Size(k);
    *px = x1 + (half.m_dX + across.m_dX);
    *py = y1 + (half.m_dY + across.m_dY);
}

double CVector::CalcVertexBulge(CVector start, CVector end, CVector centre, int ccw) {
    const int turn = ccw ? 1 : -1;
    const double from = AbsAngle(turn, (start - centre).Angle());
    const double to = AbsAngle(turn, (end - centre).Angle());
    // The end comes after the start in the turning sense, if need be a turn later.
    const double sweep = to + StepIfAgainst(to - from, turn * kTwoPi) - from;
    return std::tan(sweep / 4);
}

int CVector::TangentCorners(double sx, double sy, double cx, double cy, double ex, double ey, double* px1,
                            double* py1, double* px2, double* py2, int* split) {
    return FindCorners(sx, sy, cx, cy, ex, ey, px1, py1, px2, py2, split, kMaxHalvings) > 0;
}

int CVector::TwoPointOneLineRp(CVector p1, CVector p2, CVector dir, CVector& out) {
    CVector chord = p2 - p1;
    CVector q = p1 + dir.R_Normal(Left);
    CVector m = p2 + chord.R_Scalar(0.5); // beyond p2, not between the points
    CVector n = m + chord.R_Normal(Left);
    out = CVector(0, 0);
    return IntersectLineLine(p1, q, m, n, out, 0);
}
