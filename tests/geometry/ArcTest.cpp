// Two circles, and what is constructed of an arc.

#include "Tolerance.h"
#include "geometry/Vector.h"

#include <gtest/gtest.h>

namespace {

constexpr double kNo = kUntouched;
const double kRoot = std::sqrt(0.75);

#define EXPECT_POINT(px, py, v, tolerance)                                                                   \
    EXPECT_NEAR(px, (v).GetX(), tolerance);                                                                  \
    EXPECT_NEAR(py, (v).GetY(), tolerance)

TEST(Circles, MeetLeftOfTheCentresFirst) {
    const struct {
        const char* what;
        double c1[2], r1, c2[2], r2;
        int found;
        double p[4];
    } cases[] = {
        {"two points", {0, 0}, 1, {1, 0}, 1, 2, {0.5, kRoot, 0.5, -kRoot}},
        {"two points, seen from the other", {1, 0}, 1, {0, 0}, 1, 2, {0.5, -kRoot, 0.5, kRoot}},
        {"touching outside", {0, 0}, 1, {2, 0}, 1, 1, {1, 0, kNo, kNo}},
        {"touching inside", {0, 0}, 2, {1, 0}, 1, 1, {2, 0, kNo, kNo}},
        {"touching inside, behind the smaller", {1, 0}, 1, {0, 0}, 2, 1, {2, 0, kNo, kNo}},
        {"the same", {3, 3}, 2, {3 + 5e-9, 3}, 2 + 5e-9, -1, {kNo, kNo, kNo, kNo}},
        {"the same within the tolerance itself", {0, 0}, 2, {1e-8, -1e-8}, 2, -1, {kNo, kNo, kNo, kNo}},
        {"concentric", {3, 3}, 2, {3, 3}, 1, 0, {kNo, kNo, kNo, kNo}},
        {"radii the tolerance apart", {0, 0}, 1e-8, {0, 0}, 0, 0, {kNo, kNo, kNo, kNo}},
        {"too far apart", {0, 0}, 1, {10, 0}, 1, 0, {kNo, kNo, kNo, kNo}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        CVector p1(kUntouched, kUntouched);
        CVector p2(kUntouched, kUntouched);
        EXPECT_EQ(c.found, CVector::IntersectArcArcInf(CVector(c.c1[0], c.c1[1]), c.r1,
                                                       CVector(c.c2[0], c.c2[1]), c.r2, p1, p2));
        EXPECT_POINT(c.p[0], c.p[1], p1, 1e-9);
        EXPECT_POINT(c.p[2], c.p[3], p2, 1e-9);
    }
}

TEST(Circles, ContainedCircleGivesNoNumbers) {
    CVector p1(0, 0);
    CVector p2(0, 0);
    EXPECT_EQ(2, CVector::IntersectArcArcInf(CVector(0, 0), 3, CVector(0.5, 0), 1, p1, p2));
    for (const double v : {p1.GetX(), p1.GetY(), p2.GetX(), p2.GetY()})
        EXPECT_TRUE(std::isnan(v));
}

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

TEST(ArcConstruction, CentreLiesOnTheSideOfTheTurn) {
    constexpr double kPi = 3.141592654;
    const struct {
        const char* what;
        double angle, x, y, tolerance;
    } cases[] = {
        {"quarter, left", kPi / 2, 0, 0, 1e-9},
        {"quarter, right", -kPi / 2, 1, 1, 1e-9},
        {"three quarters, left", 3 * kPi / 2, 1, 1, 1e-9},
        {"three quarters, right", -3 * kPi / 2, 0, 0, 1e-9},
        {"half", kPi, 0.5, 0.5, 0},
        {"half, right, within the band", -kPi + 9e-9, 0.5, 0.5, 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        EXPECT_POINT(c.x, c.y, CVector::CalcArcCenter(CVector(1, 0), CVector(0, 1), c.angle), c.tolerance);
    }
    // Outside the band the centre leaves the chord, if only just.
    EXPECT_NE(0.5, CVector::CalcArcCenter(CVector(1, 0), CVector(0, 1), kPi - 1.1e-8).GetX());
    // No angle: far away, on the clockwise side.
    CVector far = CVector::CalcArcCenter(CVector(0, 0), CVector(1, 0), 0);
    EXPECT_GT(far.GetY(), 1e8);
}

TEST(ArcConstruction, BulgeTakesDirectionsOnly) {
    const struct {
        const char* what;
        double start[2], end[2];
        int ccw;
        double bulge;
    } cases[] = {
        {"quarter", {1, 0}, {0, 1}, 1, std::tan(std::atan(1.0) / 2)},
        {"the same ends clockwise", {1, 0}, {0, 1}, 0, -std::tan(3 * std::atan(1.0) / 2)},
        {"any flag but 0 is counter-clockwise", {1, 0}, {0, 1}, -7, std::tan(std::atan(1.0) / 2)},
        {"half", {0, -1}, {0, 1}, 1, 1},
        {"half, clockwise", {0, 1}, {0, -1}, 0, -1},
        {"across the +x axis", {0, -5}, {9, 9}, 1, std::tan(3 * std::atan(1.0) / 4)},
        {"equal directions", {2, 2}, {5, 5}, 1, 0},
        {"equal directions, clockwise", {2, 2}, {5, 5}, 0, 0},
    };
    for (const auto& c : cases)
        EXPECT_NEAR(c.bulge,
                    CVector::CalcVertexBulge(CVector(c.start[0] + 10, c.start[1] + 20),
                                             CVector(c.end[0] + 10, c.end[1] + 20), CVector(10, 20), c.ccw),
                    2e-9)
            << c.what;
}

TEST(ArcConstruction, TangentsMeetAtOneCornerOrTwo) {
    const double far = 1 + std::sqrt(2.0); // tan 67.5 degrees
    const struct {
        const char* what;
        double start[2], end[2];
        int found, split;
        double p[4];
    } cases[] = {
        {"quarter", {1, 0}, {0, 1}, 1, 0, {1, 1, kNo, kNo}},
        {"three quarters", {1, 0}, {0, -1}, 1, 1, {1, far, -far, -1}},
        {"the start's distance from the centre counts", {1, 0}, {0, 3}, 1, 0, {1, 3, kNo, kNo}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        CVector p1(kUntouched, kUntouched);
        CVector p2(kUntouched, kUntouched);
        int split = -1;
        EXPECT_EQ(c.found, CVector::CalcPiOfArc(CVector(c.start[0], c.start[1]), CVector(0, 0),
                                                CVector(c.end[0], c.end[1]), p1, p2, split));
        EXPECT_EQ(c.split, split);
        EXPECT_POINT(c.p[0], c.p[1], p1, 1e-8);
        EXPECT_POINT(c.p[2], c.p[3], p2, 1e-8);
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

TEST(ArcConstruction, PointStandsHalfALengthBeyondTheSecond) {
    CVector out(kUntouched, kUntouched);
    EXPECT_EQ(1, CVector::TwoPointOneLineRp(CVector(0, 0), CVector(2, 0), CVector(1, -1), out));
    EXPECT_POINT(3, 3, out, 1e-8); // not (1, 1), above the middle
    EXPECT_EQ(0, CVector::TwoPointOneLineRp(CVector(0, 0), CVector(2, 0), CVector(5, 0), out));
    EXPECT_TRUE(out == CVector(0, 0));
}

} // namespace
