#include "geometry/Vector.h"

using namespace fieldkit::geometry;

namespace {

/// A central angle this close to half a turn puts the centre on the chord, radians.
constexpr double kHalfTurnBand = 1e-08;

/// An arc that lies in the dead band of CVector::Angle seems a full turn however often it
/// is halved. Others come to rest after some four halvings, ten at the edge of the band.
constexpr int kMaxHalvings = 32;
constexpr int kNeverEnds = -1;

/// An end of an arc and what its centre sees of it.
struct ArcEnd {
    ArcEnd(double px, double py, double cx, double cy) : x(px), y(py), spoke(px - cx, py - cy) {
        angle = CVector::Range0To360(spoke.Angle());
    }

    double x;
    double y;
    CVector spoke;
    double angle;
};

/// Where the tangents at the ends meet.
int MeetTangents(ArcEnd& start, ArcEnd& end, double* px, double* py) {
    CVector t1 = start.spoke.R_Normal(CVector::Left);
    CVector t2 = end.spoke.R_Normal(CVector::Left);
    return CVector::IntersectLineLine(start.x, start.y, start.x + t1.GetX(), start.y + t1.GetY(), end.x,
                                      end.y, end.x + t2.GetX(), end.y + t2.GetY(), px, py, 0);
}

/// CVector::CalcPiOfArc with each end's direction taken once; kNeverEnds as a third result.
int HalveArc(ArcEnd& start, ArcEnd& end, double cx, double cy, double* px1, double* py1, double* px2,
             double* py2, int* split, int halvings) {
    const double sweep =
        start.angle < end.angle ? end.angle - start.angle : kTwoPi - (start.angle - end.angle);
    *split = kPi <= sweep;
    if (!*split)
        return MeetTangents(start, end, px1, py1);
    if (halvings == 0)
        return kNeverEnds;

    CVector turned = start.spoke.R_Rotate(sweep / 2);
    ArcEnd middle(cx + turned.GetX(), cy + turned.GetY(), cx, cy);
    double unusedX;
    double unusedY;
    int split1;
    int split2;
    const int found1 = HalveArc(start, middle, cx, cy, px1, py1, &unusedX, &unusedY, &split1, halvings - 1);
    if (found1 == kNeverEnds)
        return kNeverEnds;
    const int found2 = HalveArc(middle, end, cx, cy, px2, py2, &unusedX, &unusedY, &split2, halvings - 1);
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

    const bool bMinor = a < kPi;
    const double k = std::tan(kHalfPi - (bMinor ? a : kTwoPi - a) / 2) * half.UNorm();
    // The centre of a major arc lies on the other side of the chord.
    CVector across = half.R_Normal(bCcw == bMinor ? Left : Right).R_Size(k);
    *px = x1 + (half.m_dX + across.m_dX);
    *py = y1 + (half.m_dY + across.m_dY);
}

double CVector::CalcVertexBulge(CVector start, CVector end, CVector centre, int ccw) {
    const int turn = ccw ? 1 : -1;
    const double from = AbsAngle(turn, (start - centre).Angle());
    const double to = AbsAngle(turn, (end - centre).Angle());
    double sweep;
    if (ccw)
        sweep = to + (to < from ? kTwoPi : 0) - from;
    else
        sweep = to - (from < to ? kTwoPi : 0) - from;
    return std::tan(sweep / 4);
}

int CVector::TangentCorners(double sx, double sy, double cx, double cy, double ex, double ey, double* px1,
                            double* py1, double* px2, double* py2, int* split) {
    ArcEnd start(sx, sy, cx, cy);
    ArcEnd end(ex, ey, cx, cy);
    return HalveArc(start, end, cx, cy, px1, py1, px2, py2, split, kMaxHalvings) > 0;
}

int CVector::TwoPointOneLineRp(CVector p1, CVector p2, CVector dir, CVector& out) {
    CVector chord = p2 - p1;
    CVector q = p1 + dir.R_Normal(Left);
    CVector m = p2 + chord.R_Scalar(0.5); // beyond p2, not between the points
    CVector n = m + chord.R_Normal(Left);
    out = CVector(0, 0);
    return IntersectLineLine(p1, q, m, n, out, 0);
}
