#include "Compute.h"

#include "PackedAngle.h"
#include "PointFile.h"
#include "geometry/Vector.h"

#include <gtest/gtest.h>

#include <cmath>
#include <ostream>

void PrintTo(const CCoordinate& point, std::ostream* pOut) {
    *pOut << "N " << point.GetN() << " E " << point.GetE();
}

namespace {

/// On the shipped points, which are laid out for round results; see data/README.md.
class Compute : public testing::Test {
protected:
    void SetUp() override {
        CVector::SetTolerance(1e-6);
        CAsciiFile file;
        ASSERT_TRUE(file.Open(CString(FIELDBOOK_DATA) + L"/points.csv", CFile::modeRead));
        ReadPoints(file, m_book);
    }

    CCoordinate Point(const wchar_t* pszName) const {
        const CCoordinate* pPoint = m_book.Find(pszName);
        EXPECT_NE(pPoint, nullptr);
        return pPoint != nullptr ? *pPoint : CCoordinate();
    }

    CPointBook m_book;
};

CCoordinate At(double dN, double dE) {
    CCoordinate point;
    point.SetN(dN);
    point.SetE(dE);
    return point;
}

void ExpectPoints(const CResult& result, const std::vector<CCoordinate>& expected) {
    EXPECT_EQ(result.verdict, Verdict::Found);
    ASSERT_EQ(result.points.size(), expected.size());
    for (size_t i = 0; i < expected.size(); ++i) {
        EXPECT_NEAR(result.points[i].GetN(), expected[i].GetN(), 1e-6);
        EXPECT_NEAR(result.points[i].GetE(), expected[i].GetE(), 1e-6);
        EXPECT_FALSE(result.points[i].IsExistZ());
    }
}

void ExpectNone(const CResult& result, Verdict verdict) {
    EXPECT_EQ(result.verdict, verdict);
    EXPECT_TRUE(result.points.empty());
}

TEST_F(Compute, DiagonalsOfTheLotMeetInItsMiddle) {
    ExpectPoints(IntersectLines(Point(L"K1"), Point(L"K3"), Point(L"K2"), Point(L"K4")), {At(-35300, 13200)});
}

TEST_F(Compute, LinesWithoutASinglePointAreTold) {
    const CCoordinate k1 = Point(L"K1");
    const CCoordinate k2 = Point(L"K2");
    ExpectNone(IntersectLines(k1, k2, k2, k1), Verdict::Parallel);
    ExpectNone(IntersectLines(k1, k1, k2, Point(L"K3")), Verdict::SamePoint);
    // Running north: their slopes differ by a lot, their directions do not.
    ExpectNone(IntersectLines(At(0, 0), At(1000, 1e-5), At(0, 5), At(1000, 5.0001)), Verdict::Parallel);
}

TEST_F(Compute, WallMeetsTheCurveInItsEnd) {
    const CCoordinate w1 = Point(L"W1");
    const CCoordinate w2 = Point(L"W2");
    const CCoordinate centre = Point(L"CC1");
    ExpectPoints(IntersectLineCircle(w1, w2, centre, 30), {Point(L"EC"), At(-35240, 13210)});
    ExpectNone(IntersectLineCircle(w1, w2, centre, 13), Verdict::LineMisses);
    ExpectNone(IntersectLineCircle(w1, w1, centre, 30), Verdict::SamePoint);
}

TEST_F(Compute, LineThatTouchesGivesOnePointFarFromTheOriginToo) {
    // 3-4-5: the touching point lies (24, 18) from the centre, the line runs along (-18, 24).
    const CCoordinate touch = At(-35222, 13264);
    ExpectPoints(IntersectLineCircle(At(-35246, 13282), At(-35198, 13246), Point(L"CC1"), 30), {touch});
}

TEST_F(Compute, DistancesFromTwoTraversePointsGiveTheStones) {
    ExpectPoints(IntersectCircles(Point(L"T1"), 40, Point(L"T2"), 30), {Point(L"境界1"), Point(L"境界2")});
}

TEST_F(Compute, CirclesAreScreened) {
    const CCoordinate c = At(-35300, 13200);
    const struct {
        const char* pszCase;
        CCoordinate centre;
        double dRadius1;
        double dRadius2;
        Verdict verdict;
    } cases[] = {
        {"apart", At(-35300, 13270), 40, 29, Verdict::Apart},
        {"second inside first", At(-35300, 13205), 40, 30, Verdict::Inside},
        {"first inside second", At(-35300, 13205), 30, 40, Verdict::Inside},
        {"concentric", c, 40, 30, Verdict::Inside},
        {"identical", c, 40, 40, Verdict::SameCircle},
    };
    for (const auto& example : cases) {
        SCOPED_TRACE(example.pszCase);
        ExpectNone(IntersectCircles(c, example.dRadius1, example.centre, example.dRadius2), example.verdict);
    }
    ExpectPoints(IntersectCircles(c, 40, At(-35300, 13270), 30), {At(-35300, 13240)});
    ExpectPoints(IntersectCircles(c, 40, At(-35300, 13210), 30), {At(-35300, 13240)});
}

TEST_F(Compute, CentreOfTheCurveFromItsCentralAngle) {
    double dQuarter = 0;
    ASSERT_TRUE(ParsePackedAngle(L"90.0000", dQuarter));
    const CCoordinate bc = Point(L"BC");
    const CCoordinate ec = Point(L"EC");
    const CResult result = FindArcCentre(bc, ec, dQuarter);
    ExpectPoints(result, {Point(L"CC1")});
    EXPECT_NEAR(Distance(result.points.at(0), bc), 30, 1e-6);
    // Turning right from BC, the centre is CC1 mirrored on the chord: the corner of the tangents.
    ExpectPoints(FindArcCentre(bc, ec, -dQuarter), {Point(L"IP1")});
    ExpectPoints(FindArcCentre(bc, ec, 2 * dQuarter), {At(-35237, 13261)});

    ExpectNone(FindArcCentre(bc, ec, 0), Verdict::BadAngle);
    ExpectNone(FindArcCentre(bc, ec, 4 * dQuarter), Verdict::BadAngle);
    ExpectNone(FindArcCentre(bc, bc, dQuarter), Verdict::SamePoint);
}

TEST_F(Compute, TangentsOfTheCurveMeetInItsCorner) {
    const CCoordinate bc = Point(L"BC");
    const CCoordinate ec = Point(L"EC");
    const CCoordinate centre = Point(L"CC1");
    ExpectPoints(FindTangentCorners(bc, centre, ec), {Point(L"IP1")});

    // The other way round it is three quarters of a circle: two corners, both at the same
    // distance from the centre.
    const CResult major = FindTangentCorners(ec, centre, bc);
    ASSERT_EQ(major.points.size(), 2U);
    for (const CCoordinate& corner : major.points)
        EXPECT_NEAR(Distance(centre, corner), 30 / std::cos(67.5 * 3.14159265358979 / 180), 1e-6);

    ExpectNone(FindTangentCorners(bc, centre, bc), Verdict::SamePoint);
    ExpectNone(FindTangentCorners(bc, centre, centre), Verdict::RadiusSmall);
    // On one spoke: the directions are the same, which counts as a full turn.
    ExpectNone(FindTangentCorners(bc, centre, At(-35249, 13252)), Verdict::NoCorner);
}

TEST_F(Compute, DirectionAndDistanceLeadToThePoint) {
    constexpr double QUARTER = 3.14159265358979323846 / 2;
    const CCoordinate t1 = Point(L"T1"); // T2 lies 30 to the north and 40 to the east
    ExpectPoints({Verdict::Found, {FindPolarPoint(t1, std::atan2(40, 30), 50)}}, {Point(L"T2")});
    ExpectPoints({Verdict::Found, {FindPolarPoint(t1, QUARTER, 10)}}, {At(-35345, 13235)});
    ExpectPoints({Verdict::Found, {FindPolarPoint(t1, -QUARTER, 10)}}, {At(-35345, 13215)});
}

} // namespace
