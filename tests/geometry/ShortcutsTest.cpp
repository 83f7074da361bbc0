// The kernel's short ways against the formulas as written down, by the million and above all
// near the limits at which a short way hands over.

#include "Inputs.h"
#include "Tolerance.h"
#include "bench/kernel/Reference.h"
#include "geometry/Vector.h"
#include "geometry/detail/Turn.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <limits>

namespace {

using fieldkit::geometry::Turn;
using fieldkit::geometry::TurnBetween;
using reference::P;

// An emulated processor takes a hundred times as long.
constexpr bool kEmulated = sizeof(void*) != 8;
constexpr int kRounds = kEmulated ? 20000 : 1000000;

bool SameBits(double a, double b) {
    return std::memcmp(&a, &b, sizeof a) == 0 || (std::isnan(a) && std::isnan(b));
}
bool SameBits(P a, P b) {
    return SameBits(a.x, b.x) && SameBits(a.y, b.y);
}
bool SameBits(const P (&a)[2], const P (&b)[2]) {
    return SameBits(a[0], b[0]) && SameBits(a[1], b[1]);
}

/// The library's and the plain form's tolerance for the time of a test.
class CBothTolerances {
public:
    explicit CBothTolerances(double t) : m_Library(t) { reference::tolerance = t; }
    ~CBothTolerances() { reference::tolerance = fieldkit::geometry::kDefaultTolerance; }
    CBothTolerances(const CBothTolerances&) = delete;
    CBothTolerances& operator=(const CBothTolerances&) = delete;

private:
    CToleranceScope m_Library;
};

/// 10 to some power between lo and hi, of either sign.
double Magnitude(CInputs& inputs, double lo, double hi) {
    const double exponent = lo + (hi - lo) * (inputs.Unit() + 1) / 2;
    return std::pow(10, exponent) * (inputs.Below(2) ? 1 : -1);
}

P Along(double direction, double length) {
    return {length * std::cos(direction), length * std::sin(direction)};
}

/// Half of the time any turn, otherwise one next to a multiple of a quarter turn.
double SomeTurn(CInputs& inputs) {
    if (inputs.Below(2))
        return 3.2 * (inputs.Unit() + 1);
    const double quarters = static_cast<double>(inputs.Below(5));
    return quarters * 1.5707963267948966 + Magnitude(inputs, -16, -0.5);
}

double SomeDirection(CInputs& inputs) {
    return SomeTurn(inputs) - 3.141592653589793;
}

TEST(Shortcuts, CrossProductTellsMinorFromMajorArcsAsTheAnglesDo) {
    CInputs inputs(11);
    int told = 0;
    for (int round = 0; round < kRounds; ++round) {
        const double from = SomeDirection(inputs);
        const P u = Along(from, Magnitude(inputs, -2, 4));
        const P w = Along(from + SomeTurn(inputs), Magnitude(inputs, -2, inputs.Below(8) ? 4 : 200));
        const Turn turn = TurnBetween(u.x, u.y, w.x, w.y);
        if (turn == Turn::Unclear)
            continue;
        ++told;
        const double a = reference::Range0To360(reference::Angle(u));
        const double b = reference::Range0To360(reference::Angle(w));
        const double sweep = a < b ? b - a : 6.283185308 - (a - b);
        ASSERT_EQ(sweep < 3.141592654, turn == Turn::Minor) << u.x << ' ' << u.y << ", " << w.x << ' ' << w.y;
    }
    EXPECT_GT(told, kRounds / 2);
}

struct ArcCase {
    P p1, p2, start, end, centre;
};

/// A segment through a point of an arc's circle that lies anywhere, near an end of the arc, its
/// middle or their opposites. Chords and spokes are often almost parallel to an axis. Centres lie
/// up to 10000 radii away, some much further.
ArcCase SomeArc(CInputs& inputs) {
    ArcCase c;
    const double r = std::fabs(Magnitude(inputs, -2, 3));
    c.centre = Along(SomeDirection(inputs), r * Magnitude(inputs, -2, inputs.Below(8) ? 4 : 12));
    const double sweep = SomeTurn(inputs);
    const double from = SomeDirection(inputs) - (inputs.Below(2) ? sweep / 2 : 0);
    const P start = Along(from, inputs.Below(4) ? r : r * (1 + Magnitude(inputs, -9, -1)));
    const P end = Along(from + sweep, r);
    const double marks[] = {from, from + sweep, from + sweep / 2, SomeDirection(inputs)};
    const double near = inputs.Below(2) ? Magnitude(inputs, -16, -0.5) : 0;
    const double opposite = inputs.Below(4) ? 0 : 3.141592653589793;
    const P on = Along(marks[inputs.Below(4)] + near + opposite, r);
    const P along = Along(SomeDirection(inputs), r);
    const double before = 3 * inputs.Unit(), after = 3 * inputs.Unit();
    c.start = {c.centre.x + start.x, c.centre.y + start.y};
    c.end = {c.centre.x + end.x, c.centre.y + end.y};
    c.p1 = {c.centre.x + on.x + before * along.x, c.centre.y + on.y + before * along.y};
    c.p2 = {c.centre.x + on.x + after * along.x, c.centre.y + on.y + after * along.y};
    return c;
}

TEST(Shortcuts, DirectionsTellTheArcsPointsAsTheCrossedChordsDo) {
    static constexpr double kTolerances[] = {1e-8, 1e-8, 1e-4, 0.01};
    for (unsigned tolerance = 0; tolerance < 4; ++tolerance) {
        const CBothTolerances scope(kTolerances[tolerance]);
        CInputs inputs(12 + tolerance);
        for (int round = 0; round < kRounds / 4; ++round) {
            const ArcCase c = SomeArc(inputs);
            P o[2] = {{kUntouched, kUntouched}, {kUntouched, kUntouched}};
            P e[2] = {{kUntouched, kUntouched}, {kUntouched, kUntouched}};
            const int found = CVector::IntersectLineArc(c.p1.x, c.p1.y, c.p2.x, c.p2.y, c.start.x, c.start.y,
                                                        c.end.x, c.end.y, c.centre.x, c.centre.y, &o[0].x,
                                                        &o[0].y, &o[1].x, &o[1].y);
            ASSERT_EQ(reference::LineArc(c.p1, c.p2, c.start, c.end, c.centre, e[0], e[1]), found)
                << "round " << round << " at tolerance " << kTolerances[tolerance];
            ASSERT_TRUE(SameBits(o, e)) << "round " << round;
        }
    }
}

TEST(Shortcuts, TangentsAreToldFromCutsAndMissesAtTheLastDigit) {
    constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();
    for (const double tolerance : {1e-8, 1e-3, 0.0, -1e-3, kNotANumber}) {
        const CBothTolerances scope(tolerance);
        CInputs inputs(21);
        int found[3] = {0, 0, 0};
        for (int round = 0; round < kRounds / 20; ++round) {
            // On a grid half of the time, where differences become null.
            const double grid = inputs.Below(2) ? 1 : 0.3141;
            const double r = grid * static_cast<double>(1 + inputs.Below(5));
            const P centre = {grid * static_cast<double>(inputs.Below(5)), grid * inputs.Below(5)};
            const double turn = SomeDirection(inputs);
            const P foot = Along(turn, inputs.Below(3) ? r : r * (1 + Magnitude(inputs, -16, -1)));
            const P p1 = {centre.x + foot.x - foot.y, centre.y + foot.y + foot.x};
            const P p2 = {centre.x + foot.x + foot.y, centre.y + foot.y - foot.x};
            P o[2] = {{kUntouched, kUntouched}, {kUntouched, kUntouched}};
            P e[2] = {{kUntouched, kUntouched}, {kUntouched, kUntouched}};
            const int points = CVector::IntersectLineArcInf(p1.x, p1.y, p2.x, p2.y, centre.x, centre.y, r,
                                                            &o[0].x, &o[0].y, &o[1].x, &o[1].y);
            ASSERT_EQ(reference::LineCircle(p1, p2, centre, r, e[0], e[1]), points) << "round " << round;
            ASSERT_TRUE(SameBits(o, e)) << "round " << round;
            ++found[points];
        }
        EXPECT_LT(0, std::min(found[0], found[2]));
        EXPECT_EQ(tolerance > 0, found[1] > 0) << tolerance;
    }
}

struct AngleRange {
    const char* name;
    double (*ours)(double);
    double (*plain)(double);
    double step;
};
const AngleRange kAngleRanges[] = {
    {"LimitAngleRange", CVector::LimitAngleRange, reference::LimitAngleRange, 6.283185308},
    {"Range0To360", CVector::Range0To360, reference::Range0To360, 6.283185308},
    {"RangePM90", CVector::RangePM90, reference::RangePM90, 3.141592654},
};

TEST(Shortcuts, StepsTakenAtOnceGiveTheBitsOfTheLoop) {
    CInputs inputs(31);
    for (int round = 0; round < kRounds; ++round) {
        const double a = round % 1000 ? inputs.Angle() : Magnitude(inputs, 1, 6);
        for (const AngleRange& range : kAngleRanges)
            ASSERT_TRUE(SameBits(range.plain(a), range.ours(a))) << range.name << " of " << a;
        const int turn = inputs.Below(2) ? 1 : -1;
        ASSERT_TRUE(SameBits(reference::AbsAngle(turn, a), CVector::AbsAngle(turn, a))) << turn << ", " << a;
    }
}

// The loop would run for days: but an angle and the one that a step makes of it end alike.
TEST(Shortcuts, AStepLessDoesNotChangeTheEndOfAnyAngle) {
    CInputs inputs(32);
    for (int round = 0; round < kRounds / 10; ++round) {
        const double power = std::ldexp(1, 5 + static_cast<int>(inputs.Below(50)));
        // Next to powers of two the ARM compiler's run-time library misrounds, see Inputs.h.
        const bool bNext = !kEmulated && inputs.Below(4) == 0;
        const double a = bNext ? std::nextafter(power, 1e300) : power * (1.5 + inputs.Unit() / 2);
        for (const AngleRange& range : kAngleRanges) {
            ASSERT_TRUE(SameBits(range.ours(a - range.step), range.ours(a))) << range.name << " of " << a;
            ASSERT_TRUE(SameBits(range.ours(range.step - a), range.ours(-a))) << range.name << " of " << -a;
        }
    }
}

} // namespace
