#include "survey/2DCircle.h"
#include "survey/2DLine.h"

#include "support/Rows.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

namespace {

constexpr double kPi = 3.141592653589793, kNotFinite = 1e+32, kLimit = 1e-05;
const double kMore = std::nextafter(kLimit, 1);
const double kLess = std::nextafter(kLimit, 0);

CCoordinate At(double n, double e) {
    return CCoordinate(e, n, 0, 1);
}

using Parameters = std::array<double, 3>;

Parameters ParametersOf(const C2DLine& line) {
    Parameters p;
    line.GetParameter(p[0], p[1], p[2]);
    return p;
}

TEST(Line2D, PassesThroughTwoPoints) {
    const Rows<const char*, CCoordinate, CCoordinate, int, Parameters> rows = {
        {"oblique", At(1, 2), At(4, 9), 0, {-3, 7, 1}},
        {"the limit itself is not negligible here", At(0, 0), At(-1, kLimit), 0, {1, kLimit, 0}},
        {"just below it is", At(0, 0), At(-1, kLess), 1, {1, kLess, 0}},
        {"nor in the other coordinate", At(0, 0), At(-kLimit, 1), 0, {kLimit, 1, 0}},
        {"where just below it is", At(0, 0), At(-kLess, 1), 2, {kLess, 1, 0}},
        {"one coordinate in common", At(4, 5), At(4, 6), 2, {0, 1, 4}},
        {"the same point: rejected", At(4, 5), At(4, 5), 3, {0, 0, 0}},
        {"on either side", At(1, 1), CCoordinate(5, 4, 0, 2), 3, {0, 0, 0}},
        {"a height alone is no point", CCoordinate(5, 4, 0, 2), At(1, 1), 3, {0, 0, 0}},
    };
    for (const auto& [what, p1, p2, status, parameters] : rows) {
        C2DLine line;
        EXPECT_EQ(status, line.Setup(p1, p2)) << what;
        EXPECT_EQ(parameters, ParametersOf(C2DLine(p1, p2))) << what;
    }
}

TEST(Line2D, RecognisesFourDirections) {
    const double half = kPi / 2;
    const Rows<double, int> rows = {{kLimit, 1},        {-kLimit, 1},      {kMore, 0},
                                    {kPi + 9e-6, 1},    {kPi + 1.1e-5, 0}, {half - 9e-6, 2},
                                    {half - 1.1e-5, 0}, {3 * half, 2},     {3 * half + 1.1e-5, 0},
                                    {2 * kPi, 0},       {-half, 0},        {0.5, 0}};
    for (const auto& [angle, status] : rows) {
        C2DLine line;
        EXPECT_EQ(status, line.Setup(At(7, 3), angle)) << angle;
        const double slope = std::tan(half - angle);
        const Parameters expected[] = {{slope, -1, -7 + 3 * slope}, {1, 0, 3}, {0, 1, 7}};
        EXPECT_EQ(expected[status], ParametersOf(line)) << angle;
    }
    EXPECT_DOUBLE_EQ(1, C2DLine(At(0, 0), kPi / 4).GetSlope());
}

TEST(Line2D, ValuesThatAreNotFiniteHaveANumber) {
    const Rows<double, double, int, double, double, double> rows = {
        {2, 4, 0, -0.5, 2, 4},
        {2, kLimit, 1, kNotFinite, kNotFinite, 4},
        {kLimit, 4, 2, -kLimit / 4, 2, kNotFinite},
        {kLimit, -kLimit, 3, kNotFinite, kNotFinite, kNotFinite},
    };
    for (const auto& [a, b, status, slope, interceptN, interceptE] : rows) {
        C2DLine line;
        line = C2DLine(a, b, 8);
        EXPECT_EQ(status, line.GetStatus());
        EXPECT_EQ(slope, line.GetSlope());
        EXPECT_EQ(interceptN, line.GetInterceptN());
        EXPECT_EQ(interceptE, line.GetInterceptE());
    }
}

TEST(Circle2D, TakesACentreAndAnythingButATinyRadius) {
    C2DCircle circle(At(1, 2), kMore);
    EXPECT_EQ(1, circle.Setup(At(3, 4), -kLimit));
    EXPECT_EQ(1, circle.Setup(CCoordinate(3, 4, 0, 2), 7));
    C2DCircle copy;
    EXPECT_EQ(0, C2DCircle(At(1, 2), kLimit).GetRadius());
    copy = circle;
    EXPECT_EQ(kMore, copy.GetRadius());
    EXPECT_EQ(1, copy.GetCenter()->GetN());
    EXPECT_EQ(0, circle.Setup(At(3, 4), -2));
    CCoordinate centre;
    static_cast<const C2DCircle&>(circle).GetCenter(centre);
    EXPECT_EQ(4, centre.GetE());
}

} // namespace
