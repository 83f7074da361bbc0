#include "Floors.h"

#include "geometry/Constants.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

using namespace fieldkit::geometry;

namespace {

constexpr double kStep[] = {0, kTwoPi}; // none or one

/// Two slopes and the crossing: three divisions. @return by how much the slopes differ
double Cross(double x1, double y1, double dxA, double dyA, double x3, double y3, double dxB, double dyB,
             double* out) {
    const double mA = dyA / dxA;
    const double mB = dyB / dxB;
    const double turn = mB - mA;
    out[0] = (mB * x3 - mA * x1 + y1 - y3) / turn;
    out[1] = mA * (out[0] - x1) + y1;
    return turn;
}

int IsBetween(double v, double a, double b) {
    return (v - a) * (v - b) < 0;
}

/// A slope, a root and two more divisions.
void CutOblique(const double* in, double cx, double cy, double r, double* out) {
    const double m = (in[3] - in[1]) / (in[2] - in[0]);
    const double k = in[3] - m * in[2];
    const double qa = m * m + 1;
    const double qb = m * k - cx - m * cy;
    const double qc = cx * cx + cy * cy + k * k - 2 * k * cy - r * r;
    const double s = std::sqrt(qb * qb - qa * qc);
    out[0] = (-qb + s) / qa;
    out[1] = m * out[0] + k;
    out[2] = (-qb - s) / qa;
    out[3] = m * out[2] + k;
}

/// The tangents at two ends of an arc, given by their spokes, and their crossing.
void CrossTangents(double sx, double sy, double ux, double uy, double ex, double ey, double wx, double wy,
                   double* out) {
    const double tx = sx + (ux * kCosHalfPi - uy);
    const double ty = sy + (ux + uy * kCosHalfPi);
    const double vx = ex + (wx * kCosHalfPi - wy);
    const double vy = ey + (wx + wy * kCosHalfPi);
    Cross(sx, sy, tx - sx, ty - sy, ex, ey, vx - ex, vy - ey, out);
}

} // namespace

namespace floors {

/// The crossing and its four range tests.
int Segments(const double* in, double* out) {
    Cross(in[0], in[1], in[2] - in[0], in[3] - in[1], in[4], in[5], in[6] - in[4], in[7] - in[5], out);
    return IsBetween(out[0], in[0], in[2]) & IsBetween(out[1], in[1], in[3]) &
           IsBetween(out[0], in[4], in[6]) & IsBetween(out[1], in[5], in[7]);
}

/// The crossing alone.
int Lines(const double* in, double* out) {
    Cross(in[0], in[1], in[2] - in[0], in[3] - in[1], in[4], in[5], in[6] - in[4], in[7] - in[5], out);
    return 1;
}

int DecidingLines(const double* in, double* out) {
    constexpr double kTolerance = 1e-8;
    const double dxA = in[2] - in[0];
    const double dyA = in[3] - in[1];
    const double dxB = in[6] - in[4];
    const double dyB = in[7] - in[5];
    if (std::fabs(dxA) < kTolerance) {
        out[0] = in[0];
        out[1] = dyB / dxB * (in[0] - in[4]) + in[5];
        return 1;
    }
    if (std::fabs(dxB) < kTolerance) {
        out[0] = in[4];
        out[1] = dyA / dxA * (in[4] - in[0]) + in[1];
        return 1;
    }
    if (std::fabs(dyA) < kTolerance) {
        out[0] = dxB / dyB * (in[1] - in[5]) + in[4];
        out[1] = in[1];
        return 1;
    }
    if (std::fabs(dyB) < kTolerance) {
        out[0] = dxA / dyA * (in[5] - in[1]) + in[0];
        out[1] = in[5];
        return 1;
    }
    double found[2];
    const double turn = Cross(in[0], in[1], dxA, dyA, in[4], in[5], dxB, dyB, found);
    const std::intptr_t nParallel = -std::intptr_t{std::fabs(turn) < kTolerance};
    double discarded[2];
    const auto address = reinterpret_cast<std::intptr_t>(out);
    const auto other = reinterpret_cast<std::intptr_t>(discarded);
    auto* const pOut = reinterpret_cast<double*>(address + ((other - address) & nParallel));
    pOut[0] = found[0];
    pOut[1] = found[1];
    return static_cast<int>(nParallel) + 1;
}

/// Both points of an oblique line: three divisions and a root.
int LineCircle(const double* in, double* out) {
    CutOblique(in, in[4], in[5], in[6], out);
    return 2;
}

/// The radius, both points and whether the segment holds them. That the arc holds them is left
/// out: it can be decided by a few signs.
int SegmentArc(const double* in, double* out) {
    const double wx = in[6] - in[8];
    const double wy = in[7] - in[9];
    CutOblique(in, in[8], in[9], std::sqrt(wx * wx + wy * wy), out);
    return (IsBetween(out[0], in[0], in[2]) & IsBetween(out[1], in[1], in[3])) +
           (IsBetween(out[2], in[0], in[2]) & IsBetween(out[3], in[1], in[3]));
}

/// Two points: the distance, the direction, the common chord; three divisions and two roots.
int CircleCircle(const double* in, double* out) {
    const double dx = in[3] - in[0];
    const double dy = in[4] - in[1];
    const double length = std::sqrt(dx * dx + dy * dy);
    const double ux = dx / length;
    const double uy = dy / length;
    const double a = (in[2] * in[2] - in[5] * in[5] + length * length) / (2 * length);
    const double h = std::sqrt(in[2] * in[2] - a * a);
    const double hx = ux * h;
    const double hy = uy * h;
    out[0] = in[0] + ux * a + (hx * kCosHalfPi - hy);
    out[1] = in[1] + uy * a + (hx + hy * kCosHalfPi);
    out[2] = in[0] + ux * a + (hx * kCosHalfPi + hy);
    out[3] = in[1] + uy * a + (hy * kCosHalfPi - hx);
    return 2;
}

/// A tangent, two lengths and two divisions.
int ArcCentre(const double* in, double* out) {
    const double hx = (in[2] - in[0]) * 0.5;
    const double hy = (in[3] - in[1]) * 0.5;
    const double a = std::fabs(in[4]);
    const double k = std::tan(kHalfPi - std::min(a, kTwoPi - a) / 2) * std::sqrt(hx * hx + hy * hy);
    const double nx = hx * kCosHalfPi - hy;
    const double ny = hx + hy * kCosHalfPi;
    const double norm = std::sqrt(nx * nx + ny * ny);
    out[0] = in[0] + (hx + nx / norm * k);
    out[1] = in[1] + (hy + ny / norm * k);
    return 0;
}

/// Two arc tangents, a turn that is added or not, and a tangent.
int Bulge(const double* in, double* out) {
    const double from = std::atan2(in[1] - in[5], in[0] - in[4]);
    const double to = std::atan2(in[3] - in[5], in[2] - in[4]);
    out[0] = std::tan((to - from + kStep[to < from]) / 4);
    return 0;
}

/// The crossing of two tangents. The sweep decides only that there is one.
int MinorCorner(const double* in, double* out) {
    CrossTangents(in[0], in[1], in[0] - in[2], in[1] - in[3], in[4], in[5], in[4] - in[2], in[5] - in[3],
                  out);
    return 1;
}

/// The sweep, whose half turns the first spoke: two arc tangents, a sine and a cosine. Then two
/// crossings of tangents.
int MajorCorners(const double* in, double* out) {
    const double ux = in[0] - in[2];
    const double uy = in[1] - in[3];
    const double wx = in[4] - in[2];
    const double wy = in[5] - in[3];
    const double half = (std::atan2(wy, wx) - std::atan2(uy, ux)) / 2;
    const double c = std::cos(half);
    const double s = std::sin(half);
    const double mx = in[2] + (ux * c - uy * s);
    const double my = in[3] + (ux * s + uy * c);
    CrossTangents(in[0], in[1], ux, uy, mx, my, mx - in[2], my - in[3], out);
    CrossTangents(mx, my, mx - in[2], my - in[3], in[4], in[5], wx, wy, out + 2);
    return 1;
}

/// One step, taken or not.
int LimitAngle(const double* in, double* out) {
    out[0] = in[0] - kStep[in[0] > kLimitPi];
    return 0;
}

} // namespace floors
