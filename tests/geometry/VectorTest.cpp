#include "geometry/Vector.h"

#include <gtest/gtest.h>

#include <limits>
#include <type_traits>

namespace {

static_assert(sizeof(CVector) == 16 && std::is_trivially_copyable_v<CVector>);
static_assert(std::is_standard_layout_v<CVector> && !std::is_polymorphic_v<CVector>);
static_assert(!std::is_trivially_default_constructible_v<CVector>); // CVector() must not clear
static_assert(std::is_same_v<int (CVector::*)(CVector), decltype(&CVector::operator==)>);
static_assert(std::is_same_v<double (CVector::*)() const, decltype(&CVector::GetX)>);
static_assert(std::is_same_v<double (CVector::*)(), decltype(&CVector::UNorm)>);
static_assert(std::is_same_v<void (CVector::*)(CVector), decltype(&CVector::Add)>);
static_assert(std::is_same_v<int (*)(double), decltype(&CVector::Double2Int)>);
static_assert(CVector::Left == 1 && CVector::Right == 0);

constexpr int kLeast = std::numeric_limits<int>::min();
constexpr int kMost = std::numeric_limits<int>::max();
constexpr double kInf = std::numeric_limits<double>::infinity();

TEST(Vector, RoundsHalvesTowardZero) {
    const struct {
        double value;
        int expected;
    } cases[] = {{0, 0},
                 {0.4, 0},
                 {0.5, 0},
                 {-0.5, 0},
                 {1.5, 1},
                 {1.51, 2},
                 {-1.51, -2},
                 {2.5, 2},
                 {-2.5, -2},
                 {2.5000001, 3},
                 {-2.7, -3},
                 {0.9, 1},
                 {-0.9, -1},
                 {2147483647.0, 2147483647},
                 {2147483646.7, 2147483647},
                 {-2147483647.7, kLeast},
                 // Outside of int.
                 {2147483647.7, kMost},
                 {-2147483648.7, kLeast},
                 {kInf, kMost},
                 {-kInf, kLeast},
                 {std::nan(""), 0}};
    for (const auto& c : cases) {
        EXPECT_EQ(c.expected, CVector::Double2Int(c.value)) << c.value;
        EXPECT_EQ(c.expected, CVector(c.value, 9).GetIntX());
        EXPECT_EQ(c.expected, CVector(9, c.value).GetIntY());
    }
}

TEST(Vector, EqualIsInclusiveAndPerCoordinate) {
    const struct {
        double x, y, tol;
        int expected;
    } cases[] = {{0.5, 0.5, 0.5, 1},
                 {0.4, 0.4, 0.5, 1},
                 {std::nextafter(0.5, 1), 0, 0.5, 0},
                 {0, -std::nextafter(0.5, 1), 0.5, 0},
                 {0, 0, 0, 1},
                 {0, 0, -1, 0}};
    for (const auto& c : cases) {
        EXPECT_EQ(c.expected, CVector(0, 0).Equal(CVector(c.x, c.y), c.tol)) << c.x << ' ' << c.y;
        EXPECT_EQ(c.expected, CVector(c.x, c.y).Equal(CVector(0, 0), c.tol)) << c.x << ' ' << c.y;
    }
    EXPECT_FALSE(CVector(1, 1) == CVector(1 + 1e-12, 1));
    EXPECT_TRUE(CVector(1, 1) != CVector(1, 1 + 1e-12));
    EXPECT_TRUE(CVector(0.0, 1) == CVector(-0.0, 1));
}

TEST(Vector, SameDirectionComparesUnitVectors) {
    CVector v(3, 4);
    EXPECT_TRUE(v.IsSameDir(CVector(30, 40), 1e-12));
    EXPECT_TRUE(v == CVector(3, 4));
    EXPECT_FALSE(v.IsSameDir(CVector(-3, -4), 1e-12));
    EXPECT_TRUE(CVector(0, 0).IsSameDir(CVector(0, 0), 0));
    EXPECT_FALSE(CVector(0, 0).IsSameDir(v, 0.7));
    EXPECT_TRUE(CVector(0, 0).IsSameDir(v, 0.8));
}

TEST(Vector, ReturningTwinsAgreeAndLeaveTheObjectAlone) {
    CVector v(3, 4);
    EXPECT_TRUE(v.R_Unit() == CVector(0.6, 0.8));
    EXPECT_TRUE(v.R_Size(10) == CVector(6, 8));
    EXPECT_TRUE(v.R_Size(-10) == CVector(-6, -8));
    EXPECT_TRUE(v.R_Scalar(2) == CVector(6, 8));
    EXPECT_TRUE(v.R_Rotate(0) == CVector(3, 4));
    EXPECT_TRUE(v + CVector(1, 2) == CVector(4, 6));
    EXPECT_TRUE(v - CVector(1, 2) == CVector(2, 2));
    EXPECT_TRUE(v == CVector(3, 4));
    EXPECT_EQ(11, v.DotProduct(CVector(1, 2)));

    v.Add(CVector(1, 2));
    EXPECT_TRUE(v == CVector(4, 6));
    v.SetX(3);
    EXPECT_TRUE(v == CVector(3, 6));
    v.SetY(4);
    v.Subtract(CVector(-1, 2));
    EXPECT_TRUE(v == CVector(4, 2));
    v.Add(CVector(-1, 2));
    v.Scalar(2);
    EXPECT_TRUE(v == CVector(6, 8));
    v.Unit();
    EXPECT_TRUE(v == CVector(0.6, 0.8));
    v.Size(5);
    EXPECT_TRUE(v == CVector(3, 4));
    CVector turned = v.R_Rotate(1);
    v.Rotate(1);
    EXPECT_TRUE(v == turned);
}

TEST(Vector, NullVectorsStayNull) {
    CVector zero(0, 0);
    EXPECT_EQ(0, zero.UNorm());
    zero.Unit();
    zero.Size(7);
    EXPECT_TRUE(zero == CVector(0, 0));
    EXPECT_TRUE(zero.R_Unit() == CVector(0, 0));

    // Too small for its norm: left alone in place, null as a result.
    CVector tiny(1e-200, 0);
    EXPECT_TRUE(tiny.R_Unit() == CVector(0, 0));
    EXPECT_TRUE(tiny.R_Size(10) == CVector(1e-199, 0));
    tiny.Unit();
    EXPECT_TRUE(tiny == CVector(1e-200, 0));
}

TEST(Vector, OnlyLeftTurnsLeft) {
    EXPECT_TRUE(CVector(1, 0).R_Normal(CVector::Left).Equal(CVector(0, 1), 1e-9));
    EXPECT_TRUE(CVector(1, 0).R_Normal(CVector::Right).Equal(CVector(0, -1), 1e-9));
    for (const int other : {2, -1, 1000})
        EXPECT_TRUE(CVector(3, 4).R_Normal(CVector::Direction(other)) ==
                    CVector(3, 4).R_Normal(CVector::Right));
    // The quarter turn has ten digits, so an axis does not come out quite as an axis.
    EXPECT_NE(0, CVector(1, 0).R_Normal(CVector::Left).GetX());
}

TEST(Vector, ShortVectorsHaveAngleZero) {
    const double limit = 0.017;
    const double inside = std::nextafter(limit, 0);
    const struct {
        double x, y, expected;
    } cases[] = {{0.01, 0.01, 0},
                 {-inside, -inside, 0},
                 {0.02, 0, 0},
                 {0, 0.02, std::atan2(1.0, 0.0)},
                 {0, limit, std::atan2(1.0, 0.0)},
                 {0, inside, 0},
                 {-limit, 0, std::atan2(0.0, -1.0)},
                 {-1, 0, std::atan2(0.0, -1.0)},
                 {-1, -0.0, -std::atan2(0.0, -1.0)}};
    for (const auto& c : cases)
        EXPECT_EQ(c.expected, CVector(c.x, c.y).Angle()) << c.x << ' ' << c.y;
}

TEST(Vector, ShowsItsCoordinates) {
    const struct {
        double x, y;
        int prec;
        const char* expected;
    } cases[] = {{1.5, -2, 3, "(  1.500, -2.000)"},
                 {1.5, -2, -1, "(1.500000,-2.000000)"},
                 {0, -0.5, 0, "(      0,     -0)"},
                 {12345.6789, -98765.4321, 2, "( 12345.68,-98765.43)"}};
    for (const auto& c : cases) {
        char own[64];
        EXPECT_STREQ(c.expected, CVector(c.x, c.y).Show(c.prec));
        EXPECT_EQ(own, CVector(c.x, c.y).Show(own, c.prec));
        EXPECT_STREQ(c.expected, own);
    }
}

TEST(Vector, ShowKeepsToItsOwnBuffer) {
    char* const first = CVector(1, 2).Show(1);
    EXPECT_EQ(first, CVector(-1e308, -1e308).Show(20));
    EXPECT_EQ(2u * (1 + 309 + 1 + 20) + 3, std::string(first).size());
    EXPECT_EQ(1023u, std::string(CVector(1, 1).Show(100000)).size());
}

} // namespace
