// The kernel's short ways: those of angles against the loops as written down, by the million and
// above all near the limits at which a short way hands over.

#include "Inputs.h"
#include "bench/kernel/Reference.h"
#include "geometry/Vector.h"
#include "geometry/detail/Turn.h"

#include <gtest/gtest.h>

#include <cstring>

namespace {

using fieldkit::geometry::Turn;
using fieldkit::geometry::TurnBetween;

// An emulated processor takes a hundred times as long.
constexpr bool kEmulated = sizeof(void*) != 8;
constexpr int kRounds = kEmulated ? 20000 : 1000000;

bool SameBits(double a, double b) {
    return std::memcmp(&a, &b, sizeof a) == 0 || (std::isnan(a) && std::isnan(b));
}

/// 10 to some power between lo and hi, of either sign.
double Magnitude(CInputs& inputs, double lo, double hi) {
    const double exponent = lo + (hi - lo) * (inputs.Unit() + 1) / 2;
    return std::pow(10, exponent) * (inputs.Below(2) ? 1 : -1);
}

// Where the cross product leaves it to the angles is proved; here it has to tell.
TEST(Shortcuts, CrossProductTellsMinorFromMajorArcs) {
    EXPECT_EQ(Turn::Minor, TurnBetween(0, 1, -1, 0));
    EXPECT_EQ(Turn::Minor, TurnBetween(1, 0, 0, 1));
    EXPECT_EQ(Turn::Major, TurnBetween(1, 0, 0, -1));
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
