#include "plan/Drawing.h"
#include "plan/PlanClip.h"
#include "plan/PlanScale.h"
#include "plan/PlanSpace.h"

#include "Positions.h"
#include "testkit/Rows.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using testkit::Rows;

namespace {

constexpr double TWO_PI = 6.28318530717958647692;
const CSize VIEW(240, 232);
const CRect VIEW_RECT(0, 0, 240, 232);

void ExpectPixel(CVector pixel, double dX, double dY) {
    EXPECT_NEAR(dX, pixel.GetX(), 1e-6);
    EXPECT_NEAR(dY, pixel.GetY(), 1e-6);
}

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
    drawing.AddLine(At(-35310, 13190), At(-35290, 13205), true, Role::Given);
    ExpectExtent(drawing, At(-35310, 13190), At(-35290, 13205));
    drawing.AddCircle(At(-35300, 13200), 100, Role::Result);
    ExpectExtent(drawing, At(-35400, 13100), At(-35200, 13300));
    drawing.Clear();
    EXPECT_TRUE(drawing.IsEmpty());
}

TEST(Drawing, ArcTurnsLeftAndReachesOnlySomeSides) {
    const double dDiagonal = 30 * std::sqrt(0.5);
    const CCoordinate centre = At(100, 200), east = At(100, 230), north = At(130, 200);
    const CCoordinate southEast = At(100 - dDiagonal, 200 + dDiagonal);
    const CCoordinate northEast = At(100 + dDiagonal, 200 + dDiagonal);
    const Rows<CCoordinate, CCoordinate, double, CCoordinate, CCoordinate> cases = {
        {north, east, TWO_PI * 3 / 4, At(70, 170), At(130, 230)},
        {southEast, northEast, TWO_PI / 4, southEast, At(100 + dDiagonal, 230)},
    };
    for (const auto& [start, end, dSweep, lo, hi] : cases) {
        CDrawing drawing;
        drawing.AddArc(start, centre, end, Role::Given);
        ASSERT_EQ(1U, drawing.GetArcs().size());
        EXPECT_NEAR(dSweep, drawing.GetArcs()[0].dSweep, 1e-8);
        ExpectExtent(drawing, lo, hi);
    }
}

TEST(PlanScale, ShowsTheWholeBoxNorthUpWithOneScale) {
    const Rows<const char*, double, double> cases = {
        {"wide", 10, 100}, {"high", 100, 10}, {"line to the east", 0, 50}};
    for (const auto& [pszCase, dHeight, dWidth] : cases) {
        SCOPED_TRACE(pszCase);
        const CCoordinate lo = At(-35300, 13200), hi = At(-35300 + dHeight, 13200 + dWidth);
        const CPlanScale scale(lo, hi, VIEW);
        CVector southWest = scale.ToPixel(lo), northEast = scale.ToPixel(hi);
        EXPECT_GE(southWest.GetX(), 20);
        EXPECT_LE(southWest.GetY(), VIEW.cy - 20);
        EXPECT_LE(northEast.GetX(), VIEW.cx - 20);
        EXPECT_GE(northEast.GetY(), 20);
        CVector diagonal = northEast - southWest;
        EXPECT_NEAR(dWidth * scale.GetFactor(), diagonal.GetX(), 1e-6);
        EXPECT_NEAR(-dHeight * scale.GetFactor(), diagonal.GetY(), 1e-6);
        EXPECT_GT(diagonal.UNorm(), 160); // and as large as there is room
    }
}

TEST(PlanScale, PutsASinglePointIntoTheMiddle) {
    const CPlanScale scale(At(7, 3), At(7, 3), VIEW);
    ExpectPixel(scale.ToPixel(At(7, 3)), 120, 116);
    EXPECT_LT(scale.GetFactor(), 100); // some surroundings are to be seen
}

TEST(PlanScale, ZoomsAboutTheMiddleWithinLimits) {
    const CPlanScale whole(At(0, 0), At(100, 100), VIEW);
    const CPlanScale larger = whole.Zoomed(2);
    ExpectPixel(larger.ToPixel(At(50, 50)), 120, 116);
    EXPECT_DOUBLE_EQ(2 * whole.GetFactor(), larger.GetFactor());
    CPlanScale scale = whole;
    for (int i = 0; i < 100; ++i)
        scale = scale.Zoomed(0.5);
    EXPECT_GT(scale.GetFactor(), whole.GetFactor() / 10);
    for (int i = 0; i < 100; ++i)
        scale = scale.Zoomed(2);
    EXPECT_LT(scale.GetFactor(), 1e6);
}

TEST(PlanScale, PanMovesThePlanWithThePen) {
    const CPlanScale whole = CPlanScale(At(0, 0), At(100, 100), VIEW).Zoomed(4);
    CVector before = whole.ToPixel(At(20, 30));
    const CPlanScale panned = whole.Panned(CSize(-50, 17));
    ExpectPixel(panned.ToPixel(At(20, 30)), before.GetX() - 50, before.GetY() + 17);
}

TEST(PlanScale, BarHasARoundLength) {
    const Rows<double, const wchar_t*, int> cases = {
        {0.9, L"100 m", 90},     {0.91, L"50 m", 46}, {4, L"20 m", 80},
        {20000, L"0.002 m", 40}, {0.09, L"1 km", 90},
    };
    for (const auto& [dFactor, pszText, nPixels] : cases) {
        SCOPED_TRACE(dFactor);
        const CScaleBar bar = FindScaleBar(dFactor, 90);
        EXPECT_STREQ(pszText, ScaleBarText(bar.dLength));
        EXPECT_EQ(nPixels, bar.nPixels);
    }
}

TEST(PlanClip, CutsLinesAtTheBorders) {
    const Rows<const char*, CSegment, bool, bool, CSegment> cases = {
        {"inside", {{10, 20}, {30, 40}}, false, true, {{10, 20}, {30, 40}}},
        {"through", {{-1e9, 100}, {1e9, 100}}, false, true, {{0, 100}, {240, 100}}},
        {"down the border", {{0, -5}, {0, 500}}, false, true, {{0, 0}, {0, 232}}},
        {"beside", {{-5, 0}, {-5, 300}}, true, false, {}},
        {"past a corner", {{-20, 10}, {10, -20}}, true, false, {}},
        {"ends before", {{-200, 100}, {-100, 100}}, false, false, {}},
        {"ends before, without ends", {{-200, 100}, {-100, 100}}, true, true, {{0, 100}, {240, 100}}},
        {"point", {{5, 5}, {5, 5}}, false, true, {{5, 5}, {5, 5}}},
        {"point without direction", {{5, 5}, {5, 5}}, true, false, {}},
    };
    for (const auto& [pszCase, given, bUnbounded, bSeen, seen] : cases) {
        SCOPED_TRACE(pszCase);
        CSegment line = given;
        ASSERT_EQ(bSeen, ClipSegment(line, VIEW_RECT, bUnbounded));
        if (!bSeen)
            continue;
        ExpectPixel(line.start, seen.start.GetX(), seen.start.GetY());
        ExpectPixel(line.end, seen.end.GetX(), seen.end.GetY());
    }
}

double LengthOf(const std::vector<CSegment>& pieces) {
    double dLength = 0;
    for (const CSegment& piece : pieces) {
        CVector start = piece.start;
        dLength += (start - piece.end).UNorm();
    }
    return dLength;
}

TEST(PlanClip, ArcsKeepToTheirCircleInTheView) {
    // dLength: Pixels in the view.
    const Rows<const char*, CVector, double, double, double, double> cases = {
        {"whole circle", {120, 116}, 50, 0, TWO_PI, 50 * TWO_PI},
        {"quarter to the upper right", {0, 232}, 100, 0, TWO_PI / 4, 25 * TWO_PI},
        {"its other three quarters", {0, 232}, 100, TWO_PI / 4, TWO_PI * 3 / 4, 0},
        {"long arc that starts outside", {120, 0}, 40, TWO_PI / 8, TWO_PI * 7 / 8, 20 * TWO_PI},
        {"almost a line, from the side", {120 + 1e7, 116}, 1e7, 0, TWO_PI, 232},
        {"beyond all whole numbers", {120, 100 - 1e12}, 1e12, 0, TWO_PI, 240},
        {"around the view", {120, 116}, 1e6, 0, TWO_PI, 0},
        {"a dot", {120, 116}, 0.1, 0, TWO_PI, 0.1 * TWO_PI},
        {"beside", {-500, 116}, 400, 0, TWO_PI, 0},
    };
    for (const auto& [pszCase, centre, dRadius, dStart, dSweep, dLength] : cases) {
        SCOPED_TRACE(pszCase);
        const std::vector<CSegment> pieces = ClipArc(centre, dRadius, dStart, dSweep, VIEW_RECT);
        EXPECT_NEAR(dLength, LengthOf(pieces), 0.01 * dLength + 0.2);
        EXPECT_LT(pieces.size(), 300U);
        for (const CSegment& piece : pieces) {
            CVector start = piece.start;
            EXPECT_NEAR(dRadius, (start - centre).UNorm(), 0.3);
            EXPECT_NEAR(VIEW_RECT.CenterPoint().x, start.GetX(), VIEW_RECT.Width() / 2.0);
            EXPECT_NEAR(VIEW_RECT.CenterPoint().y, start.GetY(), VIEW_RECT.Height() / 2.0);
        }
    }
}

const CSize NAME(30, 14);

TEST(PlanSpace, NamesLieInTheViewAndOnNoOtherName) {
    CPlanSpace space(VIEW);
    std::vector<CRect> names;
    // All at one border and all with the same mark: after a few there is no room.
    const CRect mark(229, 100, 236, 107);
    space.Put(mark, Space::Mark);
    CRect place;
    while (space.PlaceName(mark, NAME, Space::Line, place))
        names.push_back(place);
    EXPECT_GE(names.size(), 2U);
    EXPECT_LT(names.size(), 13U);
    for (size_t i = 0; i < names.size(); ++i) {
        EXPECT_EQ(names[i], names[i] & VIEW_RECT);
        EXPECT_TRUE((names[i] & mark).IsRectEmpty());
        for (size_t j = 0; j < i; ++j)
            EXPECT_TRUE((names[i] & names[j]).IsRectEmpty());
    }
}

TEST(PlanSpace, NameKeepsOffALineWhileThereIsRoomElsewhere) {
    CPlanSpace space(VIEW);
    const CRect mark(117, 113, 124, 120);
    space.PutLine(CPoint(120, 116), CPoint(240, 80), Space::Line); // through the best place
    CRect place;
    ASSERT_TRUE(space.PlaceName(mark, NAME, Space::Line, place));
    CPlanSpace full(VIEW);
    for (int y = 0; y < VIEW.cy; ++y)
        full.PutLine(CPoint(0, y), CPoint(VIEW.cx, y), Space::Line);
    CRect onLine;
    EXPECT_FALSE(full.PlaceName(mark, NAME, Space::Free, onLine));
    ASSERT_TRUE(full.PlaceName(mark, NAME, Space::Line, onLine));
    EXPECT_NE(onLine, place);
    EXPECT_FALSE(CPlanSpace(VIEW).PlaceName(mark, CSize(300, 14), Space::Mark, place));
}

TEST(PlanSpace, ScaleAndArrowGoToCornersWithoutMarks) {
    const auto takeIn = [](CPlanSpace& space) {
        return space.TakeCorner(CSize(60, 20), 4, {Corner::BottomLeft, Corner::TopRight});
    };
    const CRect bottomLeft(CPoint(4, VIEW.cy - 24), CSize(60, 20)),
        topRight(CPoint(VIEW.cx - 64, 4), CSize(60, 20));
    const Rows<const char*, std::vector<CRect>, Space, CRect, CRect> cases = {
        {"a line may go through", {bottomLeft}, Space::Line, bottomLeft, topRight},
        {"a mark in the first corner", {bottomLeft}, Space::Mark, topRight, bottomLeft},
        {"marks everywhere", {bottomLeft, topRight}, Space::Mark, bottomLeft, topRight},
    };
    for (const auto& [pszCase, there, what, first, second] : cases) {
        SCOPED_TRACE(pszCase);
        CPlanSpace space(VIEW);
        for (const CRect& rect : there)
            space.Put(rect, what);
        EXPECT_EQ(first, takeIn(space));
        EXPECT_EQ(second, takeIn(space));
    }
}

} // namespace
