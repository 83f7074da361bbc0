#include "compute/Figure.h"

#include "points/FileReplacement.h"
#include "points/PointFile.h"
#include "geometry/Vector.h"

#include "Positions.h"
#include "testkit/Rows.h"

#include <gtest/gtest.h>

#include <cmath>

using testkit::Rows;

namespace {

constexpr double QUARTER = 3.14159265358979323846 / 2; // of a turn

/// On the shipped points, which are laid out for round results; see data/README.md.
struct Compute : testing::Test {
    void SetUp() override {
        CVector::SetTolerance(1e-6);
        ReadPoints(DecodeText(ReadWholeFile(CString(FIELDBOOK_DATA) + L"/points.csv")), m_book);
    }

    CCoordinate Point(const wchar_t* pszName) const {
        const CCoordinate* pPoint = m_book.Find(pszName);
        EXPECT_NE(nullptr, pPoint);
        return pPoint != nullptr ? *pPoint : CCoordinate();
    }

    CPointBook m_book;
};

void ExpectPoints(const CResult& result, const std::vector<CCoordinate>& expected) {
    EXPECT_EQ(Verdict::Found, result.verdict);
    ASSERT_EQ(expected.size(), result.points.size());
    for (size_t i = 0; i < expected.size(); ++i) {
        EXPECT_NEAR(expected[i].GetN(), result.points[i].GetN(), 1e-6);
        EXPECT_NEAR(expected[i].GetE(), result.points[i].GetE(), 1e-6);
        EXPECT_FALSE(result.points[i].IsExistZ());
    }
}

void ExpectNone(const CResult& result, Verdict verdict) {
    EXPECT_EQ(verdict, result.verdict);
    EXPECT_TRUE(result.points.empty());
}

TEST_F(Compute, LinesMeetUnlessTheyAreParallel) {
    const CCoordinate k1 = Point(L"K1"), k2 = Point(L"K2"), k3 = Point(L"K3");
    ExpectPoints(IntersectLines(k1, k3, k2, Point(L"K4")), {At(-35300, 13200)}); // the middle of the lot
    ExpectNone(IntersectLines(k1, k2, k2, k1), Verdict::Parallel);
    ExpectNone(IntersectLines(k1, k1, k2, k3), Verdict::SamePoint);
    // Running north: their slopes differ by a lot, their directions do not.
    ExpectNone(IntersectLines(At(0, 0), At(1000, 1e-5), At(0, 5), At(1000, 5.0001)), Verdict::Parallel);
}

TEST_F(Compute, LineMeetsACircleTwiceOnceOrNotAtAll) {
    const CCoordinate w1 = Point(L"W1"), w2 = Point(L"W2"), centre = Point(L"CC1");
    ExpectPoints(IntersectLineCircle(w1, w2, centre, 30), {Point(L"EC"), At(-35240, 13210)});
    ExpectNone(IntersectLineCircle(w1, w2, centre, 13), Verdict::LineMisses);
    ExpectNone(IntersectLineCircle(w1, w1, centre, 30), Verdict::SamePoint);
    // 3-4-5: the touching point lies (24, 18) from the centre, the line runs along (-18, 24).
    ExpectPoints(IntersectLineCircle(At(-35246, 13282), At(-35198, 13246), centre, 30), {At(-35222, 13264)});
}

TEST_F(Compute, CirclesAreScreened) {
    const CCoordinate c = At(-35300, 13200);
    ExpectNone(IntersectCircles(c, 40, At(-35300, 13270), 29), Verdict::Apart);
    ExpectNone(IntersectCircles(c, 30, At(-35300, 13205), 40), Verdict::Inside);
    ExpectNone(IntersectCircles(c, 40, c, 40), Verdict::SameCircle);
    ExpectPoints(IntersectCircles(c, 40, At(-35300, 13210), 30), {At(-35300, 13240)});
}

TEST_F(Compute, CentreOfTheCurveFromItsCentralAngle) {
    const CCoordinate bc = Point(L"BC"), ec = Point(L"EC");
    ExpectPoints(FindArcCentre(bc, ec, QUARTER), {Point(L"CC1")});
    // Turning right from BC, the centre is CC1 mirrored on the chord: the corner of the tangents.
    ExpectPoints(FindArcCentre(bc, ec, -QUARTER), {Point(L"IP1")});
    // 10 minutes over 50 m: (25, 25 / tan 5') along and left of the chord, from formulas of 50 digits.
    ExpectPoints(FindArcCentre(At(0, 0), At(0, 50), 10 / 60.0 / 90 * QUARTER), {At(17188.721733581, 25)});
    ExpectNone(FindArcCentre(bc, ec, 0), Verdict::BadAngle);
    ExpectNone(FindArcCentre(bc, ec, 4 * QUARTER), Verdict::BadAngle);
    ExpectNone(FindArcCentre(bc, bc, QUARTER), Verdict::SamePoint);
}

TEST_F(Compute, CurveOfTheRoad) {
    const CCoordinate bc = Point(L"BC"), ec = Point(L"EC"), centre = Point(L"CC1");
    CCurve curve{};
    ASSERT_EQ(Verdict::Found, FindCurve(bc, centre, ec, curve));
    EXPECT_NEAR(30, curve.dRadius, 1e-9);
    EXPECT_NEAR(QUARTER, curve.dSweep, 1e-8);
    EXPECT_NEAR(30 * QUARTER, curve.dLength, 1e-6);
    EXPECT_NEAR(std::tan(QUARTER / 4), curve.dBulge, 1e-8);
    ExpectPoints({Verdict::Found, curve.corners}, {Point(L"IP1")});

    // The other way round it is three quarters of a circle: two corners, as far from the centre.
    ASSERT_EQ(Verdict::Found, FindCurve(ec, centre, bc, curve));
    EXPECT_NEAR(3 * QUARTER, curve.dSweep, 1e-8);
    ASSERT_EQ(2U, curve.corners.size());
    for (const CCoordinate& corner : curve.corners)
        EXPECT_NEAR(30 / std::cos(3 * QUARTER / 4), Distance(centre, corner), 1e-6);

    // The last end is on the spoke of the start: one direction counts as a full turn.
    for (const auto& [end, verdict] : Rows<CCoordinate, Verdict>{{bc, Verdict::SamePoint},
                                                                 {centre, Verdict::RadiusSmall},
                                                                 {At(-35249, 13252), Verdict::NoCorner}})
        EXPECT_EQ(verdict, FindCurve(bc, centre, end, curve));
    EXPECT_NEAR(3 * QUARTER, curve.dSweep, 1e-8) << "not written";
}

TEST_F(Compute, FiguresMeetInAnyCombination) {
    const CCoordinate t1 = Point(L"T1"), t2 = Point(L"T2");
    CVector::SetTolerance(1e-4);
    ExpectPoints(Meet(LineTowards(t1, 5e-7), LineTowards(At(-25345, 13325), -QUARTER)),
                 {At(-25345, 13225.005)}); // 10 km
    CVector::SetTolerance(1e-6);

    // 4 m to the right of a wall that runs north, 3 m to the left of one that runs east.
    const CFigure wall = LineBeside(At(0, 0), At(10, 0), 4);
    ExpectPoints(Meet(wall, LineBeside(At(0, 0), At(0, 10), -3)), {At(3, 4)});
    ExpectPoints(Meet(CircleAround(At(0, 0), 5), LineTowards(At(-9, 4), 0)), {At(3, 4), At(-3, 4)});
    ExpectPoints(Meet(CircleAround(t1, 40), CircleAround(t2, 30)), {Point(L"境界1"), Point(L"境界2")});
    ExpectNone(Meet(LineBeside(t1, t1, 4), wall), Verdict::SamePoint);
}

TEST_F(Compute, PointBesideALine) {
    COffset offset{};
    EXPECT_EQ(Verdict::Found, FindOffset(At(0, 0), At(20, 0), At(-3, -2), offset));
    ExpectPoints({Verdict::Found, {offset.foot}}, {At(-3, 0)});
    EXPECT_DOUBLE_EQ(-3, offset.dAlong);
    EXPECT_DOUBLE_EQ(-2, offset.dToTheRight);
    EXPECT_EQ(Verdict::SamePoint, FindOffset(At(1, 1), At(1, 1), At(2, 2), offset));
    EXPECT_EQ(Verdict::NoPosition, FindOffset(At(1, 1), CCoordinate(), At(2, 2), offset));
}

TEST_F(Compute, PolygonIsMeasuredEitherWayRound) {
    const CCoordinate a = At(-35300, 13200), b = At(-35300, 13230);
    const CCoordinate c = At(-35260, 13230), d = At(-35260, 13200);
    const Rows<const char*, std::vector<CCoordinate>, double, double, bool> cases = {
        {"clockwise", {d, c, b, a}, 1200, 140, false},
        {"a corner on a side", {a, b, At(-35280, 13230), c, d}, 1200, 140, false},
        {"sides that cross", {a, c, b, d}, 0, 180, true},
    };
    CPolygon polygon{};
    for (const auto& [pszCase, corners, dArea, dPerimeter, bCrosses] : cases) {
        SCOPED_TRACE(pszCase);
        EXPECT_EQ(Verdict::Found, MeasurePolygon(corners, polygon));
        EXPECT_NEAR(dArea, polygon.dArea, 1e-9);
        EXPECT_NEAR(dPerimeter, polygon.dPerimeter, 1e-9);
        EXPECT_EQ(bCrosses, polygon.bCrosses);
    }
    EXPECT_EQ(Verdict::TooFewCorners, MeasurePolygon({a, b}, polygon));
    EXPECT_EQ(Verdict::NoPosition, MeasurePolygon({a, b, CCoordinate()}, polygon));
}

TEST_F(Compute, WayBackFromAPointIsFoundInEveryQuadrant) {
    const CCoordinate t1 = Point(L"T1"); // T2 lies 30 to the north and 40 to the east
    ExpectPoints({Verdict::Found, {FindPolarPoint(t1, std::atan2(40, 30), 50)}}, {Point(L"T2")});
    for (const double dDistance : {0.002, 0.016, 50.0, 1e6}) // the second: below what the kernel sees
        for (int nDegrees = 0; nDegrees < 360; nDegrees += 15) {
            const double dDirection = nDegrees * QUARTER / 90;
            CInverse inverse{};
            ASSERT_TRUE(FindInverse(t1, FindPolarPoint(t1, dDirection, dDistance), inverse));
            EXPECT_NEAR(dDistance, inverse.dDistance, 1e-9);
            // The points carry their coordinates to about 1e-11 m.
            EXPECT_NEAR(0, std::remainder(inverse.dDirection - dDirection, 4 * QUARTER),
                        2e-9 + 1e-11 / dDistance);
            EXPECT_GE(inverse.dDirection, 0);
        }
    CInverse inverse{1, 2, 0, 0, {}};
    EXPECT_FALSE(FindInverse(t1, t1, inverse));
    EXPECT_EQ(2, inverse.dDirection);
}

TEST_F(Compute, ExtentTakesInWhatHasAPosition) {
    CCoordinate north; // N alone
    north.SetN(1000);
    CCoordinate height;
    height.SetZ(99);
    CCoordinate lo, hi;
    EXPECT_FALSE(FindExtent({{L"P", north}, {L"Q", height}}, lo, hi));
    // All beyond the origin: what is not there yet must not count as zero.
    ASSERT_TRUE(FindExtent({{L"P", north}, {L"Q", At(20, 300)}, {L"R", CCoordinate(200, 10, 5, 3)}}, lo, hi));
    EXPECT_EQ(10, lo.GetN());
    EXPECT_EQ(200, lo.GetE());
    EXPECT_EQ(20, hi.GetN());
    EXPECT_EQ(300, hi.GetE());
    EXPECT_EQ(5, lo.GetZ());
    EXPECT_EQ(5, hi.GetZ());
}

TEST_F(Compute, PointsWithoutPositionGiveNoResult) {
    const CCoordinate p = At(1, 2), q = At(3, 4);
    CCoordinate none;
    none.SetN(5);
    ExpectNone(IntersectLines(p, q, none, At(9, 9)), Verdict::NoPosition);
    ExpectNone(IntersectLineCircle(p, q, none, 3), Verdict::NoPosition);
    ExpectNone(IntersectCircles(none, 1, p, 1), Verdict::NoPosition);
    ExpectNone(FindArcCentre(p, none, 1), Verdict::NoPosition);
    CCurve curve{};
    EXPECT_EQ(Verdict::NoPosition, FindCurve(p, q, none, curve));
    CInverse inverse{};
    EXPECT_FALSE(FindInverse(none, p, inverse));
}

} // namespace
