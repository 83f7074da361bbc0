#include "geometry/Vector.h"

#include "geometry/detail/Within.h"

#include <algorithm>
#include <cstdint>

using namespace fieldkit::geometry;

namespace {

/// Tolerance of the member Intersection: of coordinates, in their unit, and of slopes.
constexpr double kCoarse = 0.017;

bool IsNull(double difference, double t) {
    return std::fabs(difference) < t;
}
bool IsSamePoint(double xa, double ya, double xb, double yb, double t) {
    return IsNull(xa - xb, t) && IsNull(ya - yb, t);
}

/// The least of four distances, or a; what is not a number does not displace a.
double Least(double a, double b, double c, double d) {
    return std::min(std::min(std::min(std::fabs(a), std::fabs(b)), std::fabs(c)), std::fabs(d));
}

int Store(double x, double y, double* px, double* py) {
    *px = x;
    *py = y;
    return 1;
}

/// Where to store: at p, or at pDiscarded, if all bits of nDiscarded are set. Computed, for of a condition
/// the compiler makes a branch again.
double* Unless(std::intptr_t nDiscarded, double* p, double* pDiscarded) {
    const auto address = reinterpret_cast<std::intptr_t>(p);
    const auto other = reinterpret_cast<std::intptr_t>(pDiscarded);
    return reinterpret_cast<double*>(address + ((other - address) & nDiscarded));
}

/// Whether v lies in the common extent of a0-a1 and b0-b1, or no further than kCoarse from an end of it.
bool IsInCommonExtent(double v, double a0, double a1, double b0, double b1) {
    const auto [lo, hi] = Common(a0, a1, b0, b1);
    return (lo <= v && v <= hi) || !(std::fabs(lo - v) >= kCoarse && std::fabs(hi - v) >= kCoarse);
}

/// The end that line 1-2 shares with line 3-4; false when it shares none. Seldom needed, hence
/// not inlined.
[[gnu::noinline]] bool MeetAtEnds(double x1, double y1, double x2, double y2, double x3, double y3, double x4,
                                  double y4, double t, double* px, double* py) {
    if (IsSamePoint(x1, y1, x3, y3, t))
        return Store(x1, y1, px, py);
    if (IsSamePoint(x1, y1, x4, y4, t))
        return Store(x1, y1, px, py);
    // Here x is the first line's and y the second's.
    if (IsSamePoint(x2, y2, x3, y3, t))
        return Store(x2, y3, px, py);
    if (IsSamePoint(x2, y2, x4, y4, t))
        return Store(x2, y4, px, py);
    return false;
}

/// Twice, since lines without ends then need to keep less at hand.
template <bool Segment>
int Meet(double x1, double y1, double x2, double y2, double x3, double y3, double x4, double y4, double t,
         double* px, double* py) {
    // Ends are seldom shared: one test, of the abscissas alone, spares four of points.
    if (!(Least(x1 - x3, x1 - x4, x2 - x3, x2 - x4) >= t) &&
        MeetAtEnds(x1, y1, x2, y2, x3, y3, x4, y4, t, px, py))
        return 1;

    const double dxA = x2 - x1;
    const double dyA = y2 - y1;
    const double dxB = x4 - x3;
    const double dyB = y4 - y3;

    if (IsNull(dxA, t)) {
        if (IsNull(dxB, t))
            return 0;
        const double oy = (dyB / dxB) * (x1 - x3) + y3;
        Store(x1, oy, px, py);
        return !Segment || IsInBox(x1, oy, x3, y3, x4, y4);
    }
    if (IsNull(dxB, t)) {
        const double oy = (dyA / dxA) * (x3 - x1) + y1;
        Store(x3, oy, px, py);
        return !Segment || (IsWithin(x3, x1, x2) & IsWithin(oy, y3, y4));
    }
    if (IsNull(dyA, t)) {
        if (IsNull(dyB, t))
            return 0;
        const double ox = (dxB / dyB) * (y1 - y3) + x3;
        Store(ox, y1, px, py);
        return !Segment || IsInBox(ox, y1, x3, y3, x4, y4);
    }
    if (IsNull(dyB, t)) {
        const double ox = (dxA / dyA) * (y3 - y1) + x1;
        Store(ox, y3, px, py);
        return !Segment || IsWithin(ox, x3, x4); // y3 is an end of the second segment
    }

    const double mA = dyA / dxA;
    const double mB = dyB / dxB;
    const double turn = mB - mA;
    const double ox = (mB * x3 - mA * x1 + y1 - y3) / turn;
    const double oy = mA * (ox - x1) + y1;
    // Parallels are computed like the rest and discarded: a misprediction, found out only after the
    // divisions, would cost more.
    const std::intptr_t nParallel = -std::intptr_t{IsNull(turn, t)}; // all bits or none
    double discarded;
    Store(ox, oy, Unless(nParallel, px, &discarded), Unless(nParallel, py, &discarded));
    const int bMeet = static_cast<int>(nParallel) + 1;
    if constexpr (Segment)
        return bMeet & IsStrictlyInBoth(ox, x1, x2, x3, x4) & IsStrictlyInBoth(oy, y1, y2, y3, y4);
    else
        return bMeet;
}

} // namespace

int CVector::IntersectLineLine(double x1, double y1, double x2, double y2, double x3, double y3, double x4,
                               double y4, double* px, double* py, int bSegment) {
    const double t = m_dTolerance;
    return bSegment ? Meet<true>(x1, y1, x2, y2, x3, y3, x4, y4, t, px, py)
                    : Meet<false>(x1, y1, x2, y2, x3, y3, x4, y4, t, px, py);
}

int CVector::Intersection(CVector a, CVector b, CVector& out, int bInfinite) {
    const double tx = m_dX;
    const double ty = m_dY;
    const double ax = a.m_dX;
    const double ay = a.m_dY;
    const double bx = b.m_dX;
    const double by = b.m_dY;
    const double dx = bx - ax;
    const double dy = by - ay;
    const bool bVerticalT = IsNull(tx, kCoarse);
    const bool bVerticalS = IsNull(dx, kCoarse);
    const bool bHorizontalT = IsNull(ty, kCoarse);
    const bool bHorizontalS = IsNull(dy, kCoarse);

    if ((bVerticalT && bVerticalS) || (bHorizontalT && bHorizontalS))
        return 0;
    if (bVerticalT && bHorizontalS) {
        Store(0, ay, &out.m_dX, &out.m_dY);
        return bInfinite || (IsWithin(ay, 0, ty) && IsWithin(0, ax, bx));
    }
    if (bHorizontalT && bVerticalS) {
        Store(ax, 0, &out.m_dX, &out.m_dY);
        return bInfinite || (IsWithin(ax, 0, tx) && IsWithin(0, ay, by));
    }
    if (bVerticalT) {
        const double oy = (dy / dx) * (tx - ax) + ay;
        Store(tx, oy, &out.m_dX, &out.m_dY);
        return bInfinite || (IsWithin(tx, ax, bx) && IsWithin(oy, 0, ty));
    }
    if (bVerticalS) {
        const double oy = (ty / tx) * (ax - tx) + ty;
        Store(ax, oy, &out.m_dX, &out.m_dY);
        return bInfinite || (IsWithin(ax, 0, tx) && IsWithin(oy, ay, by));
    }

    const double m0 = ty / tx;
    const double m1 = dy / dx;
    const double turn = m1 - m0;
    if (IsNull(turn, kCoarse))
        return 0;
    const double ox = (ty - by + m1 * bx - m0 * tx) / turn;
    const double oy = m0 * (ox - tx) + ty;
    Store(ox, oy, &out.m_dX, &out.m_dY);
    return bInfinite || (IsInCommonExtent(ox, ax, bx, 0, tx) && IsInCommonExtent(oy, ay, by, 0, ty));
}

int CVector::GetNearerPoint(double x, double y, double ax, double ay, double bx, double by, double* px,
                            double* py) {
    const double squareA = (x - ax) * (x - ax) + (y - ay) * (y - ay);
    const double squareB = (x - bx) * (x - bx) + (y - by) * (y - by);
    if (squareA < squareB)
        return Store(ax, ay, px, py);
    Store(bx, by, px, py);
    return 0;
}
