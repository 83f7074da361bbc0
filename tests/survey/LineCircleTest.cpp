#include "survey/2DCircle.h"
#include "survey/2DLine.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

constexpr double kPi = 3.141592653589793;
constexpr double kNotFinite = 1e+32;
constexpr double kLimit = 1e-05;
double More(double v) {
    return std::nextafter(v, 1e9);
}
double Less(double v) {
    return std::nextafter(v, -1e9);
}

CCoordinate At(double n, double e) {
    return CCoordinate(e, n, 0, 1);
}

void ExpectParameters(const C2DLine& line, double a, double b, double c) {
    double la = 0;
    double lb = 0;
    double lc = 0;
    line.GetParameter(la, lb, lc);
    EXPECT_EQ(a, la);
    EXPECT_EQ(b, lb);
    EXPECT_EQ(c, lc);
}

TEST(Line2D, PassesThroughTwoPoints) {
    const struct {
        const char* what;
        double n1, e1, n2, e2;
        int status;
        double a, b, c;
    } cases[] = {
        {"oblique", 1, 2, 4, 8, 0, -3, 6, 0},
        {"north-south", 1, 2, 5, 2, 1, -4, 0, -8},
        {"east-west", 3, 1, 3, 9, 2, 0, 8, 24},
        {"close in both, which GetStatus calls undefined", 0, 0, 5e-6, 5e-6, 1, -5e-6, 5e-6, 0},
        {"the limit itself is not negligible here", 0, 0, -1, kLimit, 0, 1, kLimit, 0},
        {"just below it is", 0, 0, -1, Less(kLimit), 1, 1, Less(kLimit), 0},
        {"nor in the other coordinate", 0, 0, -kLimit, 1, 0, kLimit, 1, 0},
        {"where just below it is", 0, 0, -Less(kLimit), 1, 2, Less(kLimit), 1, 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        C2DLine line;
        EXPECT_EQ(c.status, line.Setup(At(c.n1, c.e1), At(c.n2, c.e2)));
        ExpectParameters(line, c.a, c.b, c.c);
        ExpectParameters(C2DLine(At(c.n1, c.e1), At(c.n2, c.e2)), c.a, c.b, c.c);
    }
}

TEST(Line2D, RejectedPointsLeaveItAsItWas) {
    C2DLine line(1, 2, 3);
    EXPECT_EQ(3, line.Setup(At(4, 5), At(4, 5)));
    EXPECT_EQ(3, line.Setup(CCoordinate(5, 4, 0, 2), At(1, 1)));
    EXPECT_EQ(3, line.Setup(At(1, 1), CCoordinate(5, 4, 0, 2)));
    ExpectParameters(line, 1, 2, 3);
    ExpectParameters(C2DLine(At(4, 5), At(4, 5)), 0, 0, 0);
}

TEST(Line2D, RecognisesFourDirections) {
    const double half = kPi / 2;
    const struct {
        double angle;
        int status;
    } cases[] = {{0, 1},           {kLimit, 1},        {-kLimit, 1},      {More(kLimit), 0},
                 {kPi, 1},         {kPi + 9e-6, 1},    {kPi + 1.1e-5, 0}, {half, 2},
                 {half - 9e-6, 2}, {half - 1.1e-5, 0}, {3 * half, 2},     {3 * half + 1.1e-5, 0},
                 {2 * kPi, 0},     {-half, 0},         {0.5, 0},          {100, 0}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.angle);
        C2DLine line;
        EXPECT_EQ(c.status, line.Setup(At(7, 3), c.angle));
        const double slope = std::tan(half - c.angle);
        if (c.status == 1)
            ExpectParameters(line, 1, 0, 3);
        else if (c.status == 2)
            ExpectParameters(line, 0, 1, 7);
        else
            ExpectParameters(line, slope, -1, -7 + 3 * slope);
    }
    const C2DLine diagonal(At(0, 0), kPi / 4);
    EXPECT_DOUBLE_EQ(1, diagonal.GetSlope());
}

TEST(Line2D, MissingCoordinatesEnterAsTheNullValue) {
    C2DLine line;
    EXPECT_EQ(1, line.Setup(CCoordinate(5, 4, 0, 0), 0));
    ExpectParameters(line, 1, 0, 1e-37);
}

TEST(Line2D, ValuesThatAreNotFiniteHaveANumber) {
    const struct {
        double a, b;
        int status;
        double slope, interceptN, interceptE;
    } cases[] = {
        {2, 4, 0, -0.5, 2, 4},
        {2, kLimit, 1, kNotFinite, kNotFinite, 4},
        {kLimit, 4, 2, -kLimit / 4, 2, kNotFinite},
        {kLimit, -kLimit, 3, kNotFinite, kNotFinite, kNotFinite},
        {More(kLimit), -More(kLimit), 0, 1, 8 / -More(kLimit), 8 / More(kLimit)},
    };
    for (const auto& c : cases) {
        const C2DLine line(c.a, c.b, 8);
        EXPECT_EQ(c.status, line.GetStatus());
        EXPECT_EQ(c.slope, line.GetSlope());
        EXPECT_EQ(c.interceptN, line.GetInterceptN());
        EXPECT_EQ(c.interceptE, line.GetInterceptE());
    }
    EXPECT_EQ(3, C2DLine().GetStatus());
    C2DLine copy;
    copy = C2DLine(1, 2, 3);
    ExpectParameters(copy, 1, 2, 3);
}

TEST(Circle2D, TakesACentreAndAnythingButATinyRadius) {
    C2DCircle circle(At(1, 2), 5);
    EXPECT_EQ(1, circle.Setup(At(3, 4), kLimit));
    EXPECT_EQ(1, circle.Setup(At(3, 4), -kLimit));
    EXPECT_EQ(1, circle.Setup(CCoordinate(3, 4, 0, 2), 7));
    EXPECT_EQ(5, circle.GetRadius());
    EXPECT_EQ(1, circle.GetCenter()->GetN());

    EXPECT_EQ(0, circle.Setup(At(3, 4), More(kLimit)));
    EXPECT_EQ(0, circle.Setup(At(3, 4), -2));
    EXPECT_EQ(-2, circle.GetRadius());
    CCoordinate centre;
    static_cast<const C2DCircle&>(circle).GetCenter(centre);
    EXPECT_EQ(3, centre.GetN());
    EXPECT_EQ(4, centre.GetE());

    circle.GetCenter()->SetN(9); // in place
    C2DCircle copy;
    EXPECT_EQ(0, copy.GetRadius());
    EXPECT_EQ(0, copy.GetCenter()->GetExist());
    copy = circle;
    EXPECT_EQ(9, copy.GetCenter()->GetN());
    EXPECT_EQ(-2, copy.GetRadius());
    EXPECT_EQ(0, C2DCircle(At(1, 1), 0).GetRadius());
}

} // namespace
