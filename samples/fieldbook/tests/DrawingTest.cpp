#include "plan/Drawing.h"

#include "Positions.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

constexpr double TWO_PI = 6.28318530717958647692;

void ExpectExtent(const CDrawing& drawing, const CCoordinate& lo, const CCoordinate& hi) {
    CCoordinate foundLo, foundHi;
    ASSERT_TRUE(drawing.GetExtent(foundLo, foundHi));
    EXPECT_NEAR(lo.GetN(), foundLo.GetN(), 1e-6);
    EXPECT_NEAR(lo.GetE(), foundLo.GetE(), 1e-6);
    EXPECT_NEAR(hi.GetN(), foundHi.GetN(), 1e-6);
    EXPECT_NEAR(hi.GetE(), foundHi.GetE(), 1e-6);
}

TEST(Drawing, LeavesOutWhatCannotBeDrawn) {
    constexpr double NOT_A_NUMBER = std::numeric_limits<double>::quiet_NaN();
    CCoordinate height;
    height.SetZ(12);
    CDrawing drawing;
    for (const CCoordinate& bad : {CCoordinate(), height, At(NOT_A_NUMBER, 1), At(1, 1e300)}) {
        drawing.AddPoint(L"P", bad, Role::Given);
        drawing.AddLine(bad, At(1, 1), true, Role::Given);
        drawing.AddLine(At(1, 1), bad, true, Role::Given);
        drawing.AddCircle(bad, 5, Role::Given);
        drawing.AddArc(At(1, 1), bad, At(2, 2), Role::Given);
    }
    drawing.AddLine(At(3, 4), At(3, 4), true, Role::Given);
    for (const double dRadius : {0.0, -5.0, NOT_A_NUMBER, 1e300})
        drawing.AddCircle(At(0, 0), dRadius, Role::Given);
    drawing.AddArc(At(5, 5), At(5, 5), At(5, 5), Role::Given);
    EXPECT_TRUE(drawing.IsEmpty());
    CCoordinate lo, hi;
    EXPECT_FALSE(drawing.GetExtent(lo, hi));
}

TEST(Drawing, ExtentHoldsPointsLinesAndCircles) {
    CDrawing drawing;
    drawing.AddPoint(L"T1", At(-35300, 13200), Role::Given);
    ExpectExtent(drawing, At(-35300, 13200), At(-35300, 13200));
    drawing.AddLine(At(-35310, 13190), At(-35290, 13205), true, Role::Given);
    ExpectExtent(drawing, At(-35310, 13190), At(-35290, 13205));
    drawing.AddCircle(At(-35300, 13200), 100, Role::Result);
    ExpectExtent(drawing, At(-35400, 13100), At(-35200, 13300));
    drawing.Clear();
    EXPECT_TRUE(drawing.IsEmpty());
}

TEST(Drawing, ArcTurnsLeftFromStartToEnd) {
    const CCoordinate centre = At(100, 200), east = At(100, 230), north = At(130, 200);
    CDrawing quarter;
    quarter.AddArc(east, centre, north, Role::Given);
    ASSERT_EQ(1U, quarter.GetArcs().size());
    EXPECT_NEAR(TWO_PI / 4, quarter.GetArcs()[0].dSweep, 1e-8);
    ExpectExtent(quarter, At(100, 200), At(130, 230));
    CDrawing rest;
    rest.AddArc(north, centre, east, Role::Given);
    ASSERT_EQ(1U, rest.GetArcs().size());
    EXPECT_NEAR(TWO_PI * 3 / 4, rest.GetArcs()[0].dSweep, 1e-8);
    ExpectExtent(rest, At(70, 170), At(130, 230));
}

TEST(Drawing, ExtentOfAnArcHoldsOnlyTheSidesItReaches) {
    const double dDiagonal = 30 * std::sqrt(0.5);
    CDrawing drawing;
    // From the south-east over the east to the north-east.
    drawing.AddArc(At(-dDiagonal, dDiagonal), At(0, 0), At(dDiagonal, dDiagonal), Role::Given);
    ExpectExtent(drawing, At(-dDiagonal, dDiagonal), At(dDiagonal, 30));
}

} // namespace
