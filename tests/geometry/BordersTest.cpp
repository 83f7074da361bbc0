// What made-up inputs do not come upon: results at limits that are met to the last bit, values
// that are not finite, texts.

#include "Tolerance.h"
#include "support/Rows.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <type_traits>

namespace {

static_assert(sizeof(CVector) == 16 && std::is_trivially_copyable_v<CVector>);
static_assert(!std::is_trivially_default_constructible_v<CVector>); // CVector() must not clear

constexpr double kInf = std::numeric_limits<double>::infinity();

TEST(Vector, RoundsHalvesTowardZeroAndKeepsToInt) {
    constexpr int kLeast = std::numeric_limits<int>::min();
    constexpr int kMost = std::numeric_limits<int>::max();
    const Rows<double, int> rows = {{0.5, 0},    {-0.5, 0},     {1.5, 1},        {2.5000001, 3},
                                    {-1.51, -2}, {kInf, kMost}, {-kInf, kLeast}, {std::nan(""), 0}};
    for (const auto& [value, expected] : rows)
        EXPECT_EQ(expected, CVector::Double2Int(value)) << value;
}

TEST(Vector, ShowsItsCoordinates) {
    const Rows<double, double, int, const char*> rows = {{1.5, -2, -1, "(1.500000,-2.000000)"},
                                                         {0, -0.5, 0, "(      0,     -0)"}};
    for (const auto& [x, y, prec, expected] : rows) {
        char own[64];
        EXPECT_STREQ(expected, CVector(x, y).Show(prec));
        EXPECT_STREQ(expected, CVector(x, y).Show(own, prec));
    }
    EXPECT_EQ(1023U, std::string(CVector(-1e308, 1).Show(100000)).size());
}

TEST(AngleRange, AnglesThatAStepDoesNotChangeComeBack) {
    for (const auto range : {CVector::LimitAngleRange, CVector::Range0To360, CVector::RangePM90}) {
        for (const double huge : {1e300, 0x1.0000000000001p56, -0x1.0000000000001p56, kInf, -kInf})
            EXPECT_EQ(huge, range(huge));
        EXPECT_TRUE(std::isnan(range(std::nan(""))));
    }
}

// To the last bit: the segment ends at 0, the lines meet at -0.017.
TEST(Lines, IntersectionTheCoarseToleranceAwayIsNone) {
    CVector out;
    EXPECT_EQ(0, CVector(-0.034, 2).Intersection(CVector(0, 1), CVector(1, 1), out, 0));
    EXPECT_EQ(-0.017, out.GetX());
}

// All figures are exact in binary, so the differences equal the tolerance to the last bit.
TEST(Circles, TouchingAndDistanceAreStrict) {
    const Rows<const char*, double, double, double, double, int> rows = {
        {"touching, without a tolerance", 0, 1, 1, 2, 2},
        {"centres the tolerance apart are the same", 0.5, 2, 2, 0.5, -1},
        {"radii the tolerance apart are not", 0.5, 2, 1.5, 0, 0},
    };
    CVector p1, p2;
    for (const auto& [what, allowed, r1, r2, distance, found] : rows) {
        const CToleranceScope tolerance(allowed);
        const CVector c2(distance, 0);
        EXPECT_EQ(found, CVector::IntersectArcArcInf(CVector(0, 0), r1, c2, r2, p1, p2)) << what;
    }
    EXPECT_EQ(1, CVector::IntersectArcArc(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, nullptr, nullptr));
}

// A margin equal to the tolerance still touches an oblique line, but no other.
TEST(LineArc, TouchingDependsOnTheToleranceItself) {
    const CToleranceScope tolerance(0.5);
    CVector p1, p2;
    const CVector origin(0, 0);
    EXPECT_EQ(2, CVector::IntersectLineArcInf(CVector(0, 0.25), CVector(9, 0.25), origin, 0.75, p1, p2));
    EXPECT_EQ(1, CVector::IntersectLineArcInf(CVector(0, 1), CVector(1, 2), origin, 0.5, p1, p2));
    // A touching point has no root to take off, whose sign would be that of a null.
    EXPECT_EQ(
        1, CVector::IntersectLineArcInf(CVector(-1, 0), CVector(0, 1), CVector(1, 0), std::sqrt(2), p1, p2));
    EXPECT_TRUE(std::signbit(p1.GetX()));
}

// Half a turn to the last bit, where the C library's arc tangent is the usual one.
TEST(LineArc, HalfATurnHoldsThePointsThatOneChordDoesNot) {
    CVector start(-1.1469828380997749, -1.6384231349393799), end(1.146982837427682, 1.6384231354098804);
    CVector on(-0.87655572791837522, -1.7976790747665412);
    const CVector centre(0, 0);
    CVector out1, out2;
    const double sweep =
        CVector::Range0To360(end.Angle()) + 6.283185308 - CVector::Range0To360(start.Angle());
    EXPECT_EQ(sweep >= 3.141592654,
              CVector::IntersectLineArc(centre, on.R_Scalar(2), start, end, centre, out1, out2));
}

// The first could be halved for ever: its ends are too near the centre to have a direction. Of the
// cross product of the last one half overflows.
TEST(ArcConstruction, FullTurnHasNoCorner) {
    const Rows<CVector, CVector> rows = {
        {{0, 0}, {0, 0}},
        {{0x1.9480583abdfb6p+511, 0x1.9d8dbb3a5bde4p+511}, {0x1.3cf0d4f48e39p+512, 0x1.440895906bb2cp+512}}};
    for (const auto& [start, end] : rows) {
        CVector p1, p2;
        int split = -1;
        EXPECT_EQ(0, CVector::CalcPiOfArc(start, CVector(0, 0), end, p1, p2, split));
        EXPECT_EQ(1, split);
    }
}

} // namespace
