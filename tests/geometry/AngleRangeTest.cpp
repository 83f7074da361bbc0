#include "geometry/Vector.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

constexpr double kInf = std::numeric_limits<double>::infinity();
double Above(double v) {
    return std::nextafter(v, kInf);
}
double Below(double v) {
    return std::nextafter(v, -kInf);
}

TEST(AngleRange, FoldsByWholeStepsAndKeepsTheEnds) {
    constexpr double kPi = 3.141592654;
    constexpr double kTwoPi = 6.283185308;
    constexpr double kHalfPi = 1.570796327;
    constexpr double kLimit = 3.141592664;
    using Fold = double (*)(double);
    const Fold limit = &CVector::LimitAngleRange;
    const Fold turn = &CVector::Range0To360;
    const Fold half = &CVector::RangePM90;
    const struct {
        const char* name;
        Fold fold;
        double angle, expected;
    } cases[] = {
        {"limit", limit, kLimit, kLimit},
        {"limit", limit, -kLimit, -kLimit},
        {"limit", limit, Above(kLimit), Above(kLimit) - kTwoPi},
        {"limit", limit, Below(-kLimit), Below(-kLimit) + kTwoPi},
        {"limit", limit, 7, 7 - kTwoPi},
        {"limit", limit, -20, -20 + kTwoPi + kTwoPi + kTwoPi},
        {"turn", turn, 0, 0},
        {"turn", turn, kTwoPi, kTwoPi},
        {"turn", turn, 6.283185307179586, 6.283185307179586},
        {"turn", turn, Above(kTwoPi), Above(kTwoPi) - kTwoPi},
        {"turn", turn, -1e-20, kTwoPi}, // lost in the addition
        {"turn", turn, -1, -1 + kTwoPi},
        {"turn", turn, 20, 20 - kTwoPi - kTwoPi - kTwoPi},
        {"half", half, kHalfPi, kHalfPi},
        {"half", half, -kHalfPi, -kHalfPi},
        {"half", half, Above(kHalfPi), Above(kHalfPi) - kPi},
        {"half", half, Below(-kHalfPi), Below(-kHalfPi) + kPi},
        {"half", half, kPi, 0},
        {"half", half, -kPi, 0},
        {"half", half, 2, 2 - kPi},
    };
    for (const auto& c : cases)
        EXPECT_EQ(c.expected, c.fold(c.angle)) << c.name << ' ' << c.angle;
    EXPECT_TRUE(std::signbit(CVector::Range0To360(-0.0)));
}

TEST(AngleRange, SweepFollowsTheTurningSense) {
    const struct {
        int turn;
        double angle, expected;
    } cases[] = {{1, -1, -1 + 6.283185308},
                 {1, 1, 1},
                 {-1, 1, 1 - 6.283185308},
                 {-1, -1, -1},
                 {1, 5e-9, 0},
                 {1, Below(1e-8), 0},
                 {1, 1e-8, 1e-8},
                 {1, -1e-8, -1e-8 + 6.283185308},
                 {-1, -1e-8, -1e-8},
                 {0, 1, 0},
                 {2, 1, 0},
                 {1, -7, -7 + 6.283185308}}; // one turn only
    for (const auto& c : cases)
        EXPECT_EQ(c.expected, CVector::AbsAngle(c.turn, c.angle)) << c.turn << ' ' << c.angle;
}

TEST(AngleRange, DistanceIsTheSmallerGap) {
    EXPECT_EQ(3.141592654, CVector::CalcAngleDist(0, 3.141592654));
    EXPECT_EQ(6.283185308 - Above(3.141592654), CVector::CalcAngleDist(Above(3.141592654), 0));
    EXPECT_NEAR(0.183185308, CVector::CalcAngleDist(0.1, 6.2), 1e-12);
    EXPECT_NEAR(0.2, CVector::CalcAngleDist(-0.1, 0.1), 1e-12);
}

TEST(AngleRange, AnglesThatAStepDoesNotChangeComeBack) {
    for (const double huge : {1e300, -1e300, 0x1.0000000000001p56, -0x1.0000000000001p56, kInf, -kInf}) {
        EXPECT_EQ(huge, CVector::LimitAngleRange(huge));
        EXPECT_EQ(huge, CVector::Range0To360(huge));
        EXPECT_EQ(huge, CVector::RangePM90(huge));
    }
    EXPECT_TRUE(std::isnan(CVector::LimitAngleRange(std::nan(""))));
    EXPECT_TRUE(std::isnan(CVector::Range0To360(std::nan(""))));
    EXPECT_TRUE(std::isnan(CVector::RangePM90(std::nan(""))));
}

} // namespace
