#include "Reference.h"

#include <algorithm>
#include <cmath>

namespace reference {

double tolerance = 1e-08;

namespace {

P operator+(P a, P b) {
    return {a.x + b.x, a.y + b.y};
}
P operator-(P a, P b) {
    return {a.x - b.x, a.y - b.y};
}
P operator*(P a, double k) {
    return {a.x * k, a.y * k};
}
double Square(double v) {
    return v * v;
}

bool Within(double v, double a, double b) {
    return std::min(a, b) <= v && v <= std::max(a, b);
}
bool Inside(double v, double a, double b) {
    return std::min(a, b) < v && v < std::max(a, b);
}

double Norm(P v) {
    return v.x == 0 && v.y == 0 ? 0 : std::sqrt(v.x * v.x + v.y * v.y);
}
P Unit(P v) {
    return Norm(v) == 0 ? v : P{v.x / Norm(v), v.y / Norm(v)};
}
P Rotate(P v, double a) {
    const double c = std::cos(a);
    const double s = std::sin(a);
    return {v.x * c - v.y * s, v.x * s + v.y * c};
}
P Normal(P v, int direction) {
    return direction == 1 ? Rotate(v, 1.570796327) : Rotate(v, -1.570796327);
}
P Size(P v, double length) {
    return Unit(v) * length;
}
int Equal(P a, P b, double tol) {
    return std::fabs(a.x - b.x) <= tol && std::fabs(a.y - b.y) <= tol;
}

} // namespace

double Angle(P v) {
    return std::fabs(v.x) < 0.017 && std::fabs(v.y) < 0.017 ? 0 : std::atan2(v.y, v.x);
}
double LimitAngleRange(double a) {
    const bool down = a >= 0;
    while (!(a <= 3.141592664 && a >= -3.141592664))
        a = down ? a - 6.283185308 : a + 6.283185308;
    return a;
}
double Range0To360(double a) {
    while (!(a >= 0 && a <= 6.283185308))
        a = a < 0 ? a + 6.283185308 : a - 6.283185308;
    return a;
}
double RangePM90(double a) {
    if (a > 0)
        while (a > 1.570796327)
            a -= 3.141592654;
    else
        while (a < -1.570796327)
            a += 3.141592654;
    return a;
}
double AbsAngle(int turn, double a) {
    if (std::fabs(a) < 1e-8)
        return 0;
    if (turn == 1)
        return a < 0 ? a + 6.283185308 : a;
    if (turn == -1)
        return a > 0 ? a - 6.283185308 : a;
    return 0;
}
int LineLine(P p1, P p2, P p3, P p4, P& out, int bSegment) {
    const double t = tolerance;
    const auto same = [t](double a, double b) { return std::fabs(a - b) < t; };
    if (same(p1.x, p3.x) && same(p1.y, p3.y))
        return out = p1, 1;
    if (same(p1.x, p4.x) && same(p1.y, p4.y))
        return out = p1, 1;
    if (same(p2.x, p3.x) && same(p2.y, p3.y))
        return out = {p2.x, p3.y}, 1;
    if (same(p2.x, p4.x) && same(p2.y, p4.y))
        return out = {p2.x, p4.y}, 1;
    const P dA = p2 - p1;
    const P dB = p4 - p3;
    const bool verticalA = std::fabs(dA.x) < t;
    const bool verticalB = std::fabs(dB.x) < t;
    const bool horizontalA = std::fabs(dA.y) < t;
    const bool horizontalB = std::fabs(dB.y) < t;
    const auto inBoxB = [&] { return Within(out.x, p3.x, p4.x) && Within(out.y, p3.y, p4.y); };
    if (verticalA && verticalB)
        return 0;
    if (verticalA) {
        out = {p1.x, dB.y / dB.x * (p1.x - p3.x) + p3.y};
        return bSegment == 0 || inBoxB();
    }
    if (verticalB) {
        out = {p3.x, dA.y / dA.x * (p3.x - p1.x) + p1.y};
        return bSegment == 0 || (Within(out.x, p1.x, p2.x) && Within(out.y, p3.y, p4.y));
    }
    if (horizontalA && horizontalB)
        return 0;
    if (horizontalA) {
        out = {dB.x / dB.y * (p1.y - p3.y) + p3.x, p1.y};
        return bSegment == 0 || inBoxB();
    }
    if (horizontalB) {
        out = {dA.x / dA.y * (p3.y - p1.y) + p1.x, p3.y};
        return bSegment == 0 || inBoxB();
    }
    const double mA = dA.y / dA.x;
    const double mB = dB.y / dB.x;
    if (std::fabs(mA - mB) < t)
        return 0;
    out.x = (mB * p3.x - mA * p1.x + p1.y - p3.y) / (mB - mA);
    out.y = mA * (out.x - p1.x) + p1.y;
    return bSegment == 0 || (Inside(out.x, p1.x, p2.x) && Inside(out.y, p1.y, p2.y) &&
                             Inside(out.x, p3.x, p4.x) && Inside(out.y, p3.y, p4.y));
}

namespace {

int Candidates(P p1, P p2, P c, double r, bool horizontal, bool vertical, P& a, P& b) {
    const double t = tolerance;
    if (horizontal) {
        const double d = r * r - Square(p1.y - c.y);
        if (std::fabs(d) < t)
            return a = b = {c.x, p1.y}, 1;
        if (!(d > 0))
            return 0;
        a = {c.x + std::sqrt(d), p1.y};
        b = {c.x - std::sqrt(d), p1.y};
        return 2;
    }
    if (vertical) {
        const double d = r * r - Square(p1.x - c.x);
        if (std::fabs(d) < t)
            return a = b = {p1.x, c.y}, 1;
        if (!(d > 0))
            return 0;
        a = {p1.x, c.y + std::sqrt(d)};
        b = {p1.x, c.y - std::sqrt(d)};
        return 2;
    }
    const double m = (p2.y - p1.y) / (p2.x - p1.x);
    const double k = p2.y - m * p2.x;
    const double qa = Square(m) + 1;
    const double qb = m * k - c.x - m * c.y;
    const double qc = Square(c.x) + Square(c.y) + Square(k) - 2 * k * c.y - Square(r);
    double d = Square(qb) - qa * qc;
    if (std::fabs(d) <= t)
        d = 0;
    if (std::fabs(d) < t) {
        a.x = -qb / qa;
        a.y = m * a.x + k;
        b = a;
        return 1;
    }
    if (!(d > 0))
        return 0;
    a.x = (-qb + std::sqrt(d)) / qa;
    a.y = m * a.x + k;
    b.x = (-qb - std::sqrt(d)) / qa;
    b.y = m * b.x + k;
    return 2;
}

bool IsOnArc(P p, P s, P e, P c) {
    const double from = Range0To360(Angle(s - c));
    double to = Range0To360(Angle(e - c));
    while (to < from)
        to += 6.283185308;
    P scratch;
    if (!(3.141592654 <= to - from))
        return LineLine(s, e, p, c, scratch, 1) != 0;
    const P m = c + Rotate(s - c, (to - from) / 2);
    return LineLine(s, m, p, c, scratch, 1) != 0 || LineLine(m, e, p, c, scratch, 1) != 0;
}

} // namespace

int LineArc(P p1, P p2, P start, P end, P centre, P& out1, P& out2) {
    const double r = std::sqrt(Square(end.x - centre.x) + Square(end.y - centre.y));
    P a;
    P b;
    const int found = Candidates(p1, p2, centre, r, std::fabs(p1.y - p2.y) < tolerance,
                                 std::fabs(p1.x - p2.x) < tolerance, a, b);
    const auto accepted = [&](P p) {
        return IsOnArc(p, start, end, centre) && Within(p.x, p1.x, p2.x) && Within(p.y, p1.y, p2.y);
    };
    const bool first = found >= 1 && accepted(a);
    const bool second = found == 2 && accepted(b);
    if (first && second)
        return out1 = a, out2 = b, 2;
    if (first || second)
        return out1 = first ? a : b, 1;
    return 0;
}

int LineCircle(P p1, P p2, P centre, double radius, P& out1, P& out2) {
    P a;
    P b;
    const int found = Candidates(p1, p2, centre, radius, p1.y == p2.y, p1.x == p2.x, a, b);
    if (found != 0) {
        out1 = a;
        out2 = b;
    }
    return found;
}

int CircleCircle(P c1, double r1, P c2, double r2, P& p1, P& p2) {
    const double t = tolerance;
    if (Equal(c1, c2, t))
        return std::fabs(r1 - r2) < t ? -1 : 0;
    const P v = c2 - c1;
    const double length = Norm(v);
    if (std::fabs(r1 + r2 - length) < t)
        return p1 = c1 + Size(v, r1), 1;
    if (r1 + r2 < length)
        return 0;
    const double a = (Square(r1) - Square(r2) + Square(length)) / (2 * length);
    const P foot = c1 + Size(v, a);
    if (std::fabs(Square(r1) - Square(a)) < t)
        return p1 = foot, 1;
    const double h = std::sqrt(Square(r1) - Square(a));
    p1 = foot + Normal(Size(v, h), 1);
    p2 = foot + Normal(Size(v, h), 0);
    return 2;
}

P ArcCenter(P p1, P p2, double angle) {
    const bool ccw = angle > 0;
    const double a = std::fabs(angle);
    const P h = (p2 - p1) * 0.5;
    P offset = h;
    if (std::fabs(3.141592654 - a) < 1e-08) {
    } else if (a < 3.141592654) {
        const double k = std::tan(1.570796327 - a / 2) * Norm(h);
        offset = h + Size(Normal(h, ccw ? 1 : 0), k);
    } else {
        const double k = std::tan(1.570796327 - (6.283185308 - a) / 2) * Norm(h);
        offset = h + Size(Normal(h, ccw ? 0 : 1), k);
    }
    return p1 + offset;
}

double VertexBulge(P start, P end, P centre, int ccw) {
    const double u = AbsAngle(ccw == 0 ? -1 : 1, Angle(start - centre));
    const double w = AbsAngle(ccw == 0 ? -1 : 1, Angle(end - centre));
    if (ccw == 0)
        return std::tan((w - (u < w ? 6.283185308 : 0) - u) / 4);
    return std::tan((w + (w < u ? 6.283185308 : 0) - u) / 4);
}

int PiOfArc(P start, P centre, P end, P& pi1, P& pi2, int& split, int depth) {
    const P u = start - centre;
    const P w = end - centre;
    const double from = Range0To360(Angle(u));
    const double to = Range0To360(Angle(w));
    const double sweep = from < to ? to - from : 6.283185308 - (from - to);
    split = 3.141592654 <= sweep ? 1 : 0;
    if (split == 0)
        return LineLine(start, start + Normal(u, 1), end, end + Normal(w, 1), pi1, 0);
    if (depth == 24)
        return -1;
    const P m = centre + Rotate(u, sweep / 2);
    P scratch;
    int s1;
    int s2;
    const int r1 = PiOfArc(start, centre, m, pi1, scratch, s1, depth + 1);
    if (r1 < 0)
        return -1;
    const int r2 = PiOfArc(m, centre, end, pi2, scratch, s2, depth + 1);
    if (r2 < 0)
        return -1;
    return s1 == 0 && s2 == 0 && (r1 & r2) != 0;
}

} // namespace reference
