// Two circles, and what is constructed of an arc.

#include "Tolerance.h"
#include "geometry/Vector.h"

#include <gtest/gtest.h>

namespace {

// All figures are exact in binary, so the differences equal the tolerance to the last bit.
TEST(Circles, TouchingAndDistanceAreStrict) {
    const struct {
        const char* what;
        double tolerance, r1, r2, distance;
        int found;
    } cases[] = {
        {"short of touching by the tolerance", 0.5, 1, 1.5, 3, 0},
        {"short of it by less", 0.5, 1, 1.5, 2.75, 1},
        {"touching, without a tolerance", 0, 1, 1, 2, 2},
        {"centres the tolerance apart are the same", 0.5, 2, 2, 0.5, -1},
        {"radii the tolerance apart are not", 0.5, 2, 1.5, 0, 0},
        {"half chord squared equal to the tolerance", 0.5, 0.75, 1.125, 1.125, 2},
    };
    for (const auto& c : cases) {
        const CToleranceScope tolerance(c.tolerance);
        CVector p1;
        CVector p2;
        EXPECT_EQ(c.found,
                  CVector::IntersectArcArcInf(CVector(0, 0), c.r1, CVector(c.distance, 0), c.r2, p1, p2))
            << c.what;
    }
}

TEST(Circles, BoundedFormOnlyKeepsItsPlace) {
    double x = kUntouched;
    double y = kUntouched;
    EXPECT_EQ(1, CVector::IntersectArcArc(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, &x, &y));
    EXPECT_EQ(kUntouched, x);
    EXPECT_EQ(kUntouched, y);
}

// The numbers next to the end of the band, of which none is in it to the last bit.
TEST(ArcConstruction, CentreOfHalfATurnLiesOnTheChord) {
    constexpr double kPi = 3.141592654;
    for (const double inside : {kPi - 1e-8, kPi + 1e-8}) {
        const double outside = std::nextafter(inside, inside < kPi ? 0 : 4);
        EXPECT_EQ(0.5, CVector::CalcArcCenter(CVector(1, 0), CVector(0, 1), inside).GetX());
        EXPECT_NE(0.5, CVector::CalcArcCenter(CVector(1, 0), CVector(0, 1), outside).GetX());
    }
}

// Three could be halved for ever: their ends are too near the centre to have a direction. Of the
// next only the second half needs halving again. Of the last cross product one half overflows.
TEST(ArcConstruction, FullTurnHasNoCorner) {
    const struct {
        double start[2], end[2];
    } cases[] = {
        {{1, 0}, {1, 0}},
        {{1, 1}, {4, 4}},
        {{0, 0}, {0, 0}},
        {{0.01, 0.01}, {-0.01, 0.01}},
        {{0, 0}, {1, 0}},
        {{-12, -15}, {-12, -15}},
        {{0x1.9480583abdfb6p+511, 0x1.9d8dbb3a5bde4p+511}, {0x1.3cf0d4f48e39p+512, 0x1.440895906bb2cp+512}}};
    for (const auto& c : cases) {
        CVector p1;
        CVector p2;
        int split = -1;
        EXPECT_EQ(0, CVector::CalcPiOfArc(CVector(c.start[0], c.start[1]), CVector(0, 0),
                                          CVector(c.end[0], c.end[1]), p1, p2, split));
        EXPECT_EQ(1, split);
    }
}

} // namespace
