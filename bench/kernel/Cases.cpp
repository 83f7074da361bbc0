#include "Cases.h"

#include <cmath>
#include <functional>
#include <numbers>
#include <random>

namespace {

using std::numbers::pi;

class CDraw {
public:
    double Between(double lo, double hi) {
        return lo + (hi - lo) * static_cast<double>(m_Engine() >> 11) * 0x1p-53;
    }
    double Site() { return Between(0, 300); }
    double Turn() { return Between(-pi, pi); }
    int Below(int n) { return static_cast<int>(Between(0, n)); }

private:
    std::mt19937_64 m_Engine{20240229};
};

using Doubles = std::vector<double>;

Doubles Repeat(int count, const std::function<Doubles(CDraw&)>& one) {
    CDraw draw;
    Doubles all;
    for (int i = 0; i < count; ++i) {
        const Doubles next = one(draw);
        all.insert(all.end(), next.begin(), next.end());
    }
    return all;
}

/// Two segments through one point, which divides each at the given share of its length.
Doubles Through(CDraw& draw, double direction1, double direction2, double share1, double share2) {
    const double x = draw.Site();
    const double y = draw.Site();
    const double c1 = draw.Between(5, 80) * std::cos(direction1);
    const double s1 = draw.Between(5, 80) * std::sin(direction1);
    const double c2 = draw.Between(5, 80) * std::cos(direction2);
    const double s2 = draw.Between(5, 80) * std::sin(direction2);
    return {x - c1 * share1, y - s1 * share1, x + c1 * (1 - share1), y + s1 * (1 - share1),
            x - c2 * share2, y - s2 * share2, x + c2 * (1 - share2), y + s2 * (1 - share2)};
}

Doubles OneSegmentPair(CDraw& draw) {
    const double direction = draw.Turn();
    const double other = direction + draw.Between(0.3, pi - 0.3);
    const double hit = draw.Between(0.05, 0.95);
    // Half of the misses lie beyond one segment, half beyond both.
    const double miss = draw.Between(1.05, 3) * (draw.Below(2) ? 1 : -1);
    const double maybe = draw.Between(-0.5, 1.5);
    const int kind = draw.Below(10);
    if (kind < 4)
        return Through(draw, direction, other, hit, draw.Between(0.05, 0.95));
    if (kind < 7)
        return Through(draw, direction, other, draw.Below(2) ? hit : miss, miss);
    if (kind < 8) {
        Doubles p = Through(draw, direction, direction, hit, hit);
        const double dx = p[2] - p[0];
        const double dy = p[3] - p[1];
        const double x = draw.Site();
        const double y = draw.Site();
        return {p[0], p[1], p[2], p[3], x, y, x + dx * 2, y + dy * 2};
    }
    // One of the two horizontal or vertical, exactly.
    Doubles p = Through(draw, direction, other, hit, maybe);
    switch (draw.Below(4)) {
    case 0:
        p[2] = p[0];
        break;
    case 1:
        p[3] = p[1];
        break;
    case 2:
        p[6] = p[4];
        break;
    default:
        p[7] = p[5];
    }
    return p;
}

/// A line at the given distance from a centre, and that centre.
Doubles LineAt(CDraw& draw, double distance, double direction) {
    const double cx = draw.Site();
    const double cy = draw.Site();
    const double c = std::cos(direction);
    const double s = std::sin(direction);
    const double from = draw.Between(-60, -20);
    const double to = draw.Between(20, 60);
    const double fx = cx - s * distance;
    const double fy = cy + c * distance;
    return {fx + from * c, fy + from * s, fx + to * c, fy + to * s, cx, cy};
}

Doubles OneLineCircle(CDraw& draw) {
    const double r = draw.Between(5, 50);
    const double direction = draw.Turn();
    const int kind = draw.Below(10);
    Doubles p;
    if (kind < 6 || kind == 9)
        p = LineAt(draw, r * draw.Between(-0.95, 0.95), direction);
    else if (kind < 8)
        p = LineAt(draw, r * draw.Between(1.05, 3), direction);
    else
        p = LineAt(draw, r, direction);
    if (kind == 9) {
        if (draw.Below(2))
            p[3] = p[1];
        else
            p[2] = p[0];
    }
    p.push_back(r);
    return p;
}

Doubles OneSegmentArc(CDraw& draw) {
    const double r = draw.Between(5, 50);
    const double distance = draw.Below(4) ? draw.Between(-0.95, 0.95) : draw.Between(1.05, 2);
    const Doubles p = LineAt(draw, r * distance, draw.Turn());
    const double cx = p[4];
    const double cy = p[5];
    const double from = draw.Turn();
    const double to = from + draw.Between(0.2, 2 * pi - 0.2);
    return {p[0],
            p[1],
            p[2],
            p[3],
            cx + r * std::cos(from),
            cy + r * std::sin(from),
            cx + r * std::cos(to),
            cy + r * std::sin(to),
            cx,
            cy};
}

Doubles OneCirclePair(CDraw& draw) {
    const double r1 = draw.Between(5, 50);
    const double r2 = draw.Between(5, 50);
    const double nearest = std::fabs(r1 - r2);
    const int kind = draw.Below(10);
    double distance = 0;
    if (kind < 6)
        distance = draw.Between(nearest + 0.1, r1 + r2 - 0.1);
    else if (kind < 8)
        distance = r1 + r2 + draw.Between(1, 50);
    else if (kind < 9)
        distance = draw.Below(2) ? r1 + r2 : nearest;
    else
        distance = nearest * draw.Between(0.1, 0.9);
    const double direction = draw.Turn();
    const double x = draw.Site();
    const double y = draw.Site();
    return {x, y, r1, x + distance * std::cos(direction), y + distance * std::sin(direction), r2};
}

/// start, end and centre of an arc.
Doubles OneArc(CDraw& draw, double leastSweep, double mostSweep) {
    const double r = draw.Between(5, 50);
    const double x = draw.Site();
    const double y = draw.Site();
    const double from = draw.Turn();
    const double to = from + draw.Between(leastSweep, mostSweep);
    return {x + r * std::cos(from), y + r * std::sin(from), x + r * std::cos(to), y + r * std::sin(to), x, y};
}

Doubles StartCentreEnd(const Doubles& arc) {
    return {arc[0], arc[1], arc[4], arc[5], arc[2], arc[3]};
}

} // namespace

namespace cases {

std::vector<double> Segments(int count) {
    return Repeat(count, OneSegmentPair);
}

std::vector<double> LineCircle(int count) {
    return Repeat(count, OneLineCircle);
}

std::vector<double> SegmentArc(int count) {
    return Repeat(count, OneSegmentArc);
}

std::vector<double> CircleCircle(int count) {
    return Repeat(count, OneCirclePair);
}

std::vector<double> ArcCentre(int count) {
    return Repeat(count, [](CDraw& draw) -> Doubles {
        const double angle = draw.Between(0.1, 2 * pi - 0.1);
        return {draw.Site(), draw.Site(), draw.Site(), draw.Site(), draw.Below(2) ? angle : -angle};
    });
}

std::vector<double> Bulge(int count) {
    return Repeat(count, [](CDraw& draw) {
        Doubles p = OneArc(draw, 0.1, 2 * pi - 0.1);
        p.push_back(draw.Below(2));
        return p;
    });
}

std::vector<double> MinorArc(int count) {
    return Repeat(count, [](CDraw& draw) { return StartCentreEnd(OneArc(draw, 0.1, pi - 0.1)); });
}

std::vector<double> MajorArc(int count) {
    return Repeat(count, [](CDraw& draw) { return StartCentreEnd(OneArc(draw, pi + 0.1, 2 * pi - 0.1)); });
}

std::vector<double> Angle(int count) {
    return Repeat(count, [](CDraw& draw) -> Doubles { return {draw.Between(-4 * pi, 4 * pi)}; });
}

} // namespace cases
