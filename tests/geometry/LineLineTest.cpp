#include "Tolerance.h"
#include "geometry/Vector.h"

#include <gtest/gtest.h>

namespace {

constexpr double kNo = kUntouched;

struct LineCase {
    const char* what;
    double a[4]; // first line
    double b[4]; // second line
    int bSegment;
    int found;
    double x, y;
};

void Check(const LineCase& c) {
    SCOPED_TRACE(c.what);
    CVector out(kUntouched, kUntouched);
    EXPECT_EQ(c.found,
              CVector::IntersectLineLine(CVector(c.a[0], c.a[1]), CVector(c.a[2], c.a[3]),
                                         CVector(c.b[0], c.b[1]), CVector(c.b[2], c.b[3]), out, c.bSegment));
    EXPECT_EQ(c.x, out.GetX());
    EXPECT_EQ(c.y, out.GetY());
}

TEST(LineLine, SharedEndsComeFirst) {
    const double d = 5e-9;
    const LineCase cases[] = {
        {"starts", {0, 0, 1, 1}, {d, d, 3, 0}, 1, 1, 0, 0},
        {"start and end", {0, 0, 1, 1}, {3, 0, d, d}, 1, 1, 0, 0},
        {"end and start: y of the second line", {0, 0, 2, 2}, {2 + d, 2 + d, 4, 0}, 1, 1, 2, 2 + d},
        {"ends: y of the second line", {0, 0, 2, 2}, {4, 0, 2 + d, 2 + d}, 1, 1, 2, 2 + d},
        {"even on parallels", {0, 0, 2, 2}, {2, 2, 5, 5}, 1, 1, 2, 2},
        {"exactly the tolerance away is not shared", {0, 0, 1, 1}, {0, 1e-8, 0, -1}, 0, 1, 0, 0},
    };
    for (const LineCase& c : cases)
        Check(c);
}

TEST(LineLine, SegmentTestDependsOnTheDirections) {
    const LineCase cases[] = {
        {"crossing", {0, 0, 2, 2}, {0, 2, 2, 0}, 1, 1, 1, 1},
        {"parallel", {0, 0, 1, 1}, {2, 0, 3, 1}, 0, 0, kNo, kNo},
        {"at an end of the second", {0, 0, 2, 2}, {1, 1, 3, 0}, 1, 0, 1, 1},
        {"at an end of the second, unbounded", {0, 0, 2, 2}, {1, 1, 3, 0}, 0, 1, 1, 1},
        {"beyond the first", {0, 0, 2, 2}, {2, 4, 4, 2}, 1, 0, 3, 3},
        {"vertical: the first's extent does not count", {5, -10, 5, -9}, {0, 0, 10, 0}, 1, 1, 5, 0},
        {"vertical at an end of the second", {10, -1, 10, 1}, {0, 0, 10, 0}, 1, 1, 10, 0},
        {"vertical past the second", {More(10), -1, More(10), 1}, {0, 0, 10, 0}, 1, 0, More(10), 0},
        {"second vertical: x of the first, y of the second", {0, 0, 4, 4}, {2, 2, 2, 9}, 1, 1, 2, 2},
        {"second vertical at the first's end", {0, 0, 4, 0}, {4, -1, 4, 1}, 1, 1, 4, 0},
        {"second vertical past the first", {0, 0, 4, 0}, {More(4), -1, More(4), 1}, 1, 0, More(4), 0},
        {"second vertical too short", {0, 0, 4, 4}, {2, 3, 2, 9}, 1, 0, 2, 2},
        {"horizontal: the first's extent does not count", {8, 1, 9, 1}, {0, 0, 2, 2}, 1, 1, 1, 1},
        {"horizontal at an end of the second", {8, 2, 9, 2}, {0, 0, 2, 2}, 1, 1, 2, 2},
        {"horizontal past the second", {8, More(2), 9, More(2)}, {0, 0, 2, 2}, 1, 0, More(2), More(2)},
        {"second horizontal: only its own x range", {0, 0, 1, 1}, {1, 3, 5, 3}, 1, 1, 3, 3},
        {"second horizontal too short", {0, 0, 1, 1}, {4, 3, 5, 3}, 1, 0, 3, 3},
        {"both vertical", {1, 0, 1, 5}, {2, 0, 2, 5}, 0, 0, kNo, kNo},
        {"both horizontal", {0, 1, 5, 1}, {0, 2, 5, 2}, 0, 0, kNo, kNo},
    };
    for (const LineCase& c : cases)
        Check(c);
}

TEST(LineLine, ToleranceIsStrictAndCurrent) {
    const CToleranceScope tolerance(0.5);
    const LineCase cases[] = {
        {"ends less than the tolerance apart", {0, 0, 4, 4}, {Less(0.5), 0, 9, -5}, 0, 1, 0, 0},
        {"ends the tolerance apart", {0, 0, 4, 4}, {0.5, 0, 9, 0}, 0, 1, 0, 0},
        {"a lean below it is vertical", {1, 0, 1.25, 4}, {0, 2, 9, 3}, 0, 1, 1, 1.0 / 9 * 1 + 2},
        {"a lean equal to it is not", {1, 0, 1.5, 4}, {0, 2, 9, 2}, 0, 1, 1.25, 2},
        {"slopes below it apart are parallel", {0, 0, 2, 2}, {0, 9, 8, 13.5}, 0, 0, kNo, kNo},
        {"slopes equal to it apart are not", {0, 0, 2, 2}, {0, 9, 8, 13}, 0, 1, 18, 18},
    };
    for (const LineCase& c : cases)
        Check(c);
}

TEST(LineLine, IntersectionFromTheOriginHasACoarseTolerance) {
    const double e = 0.017;
    const struct {
        const char* what;
        double t[2];
        double a[2];
        double b[2];
        int bInfinite, found;
        double x, y;
    } cases[] = {
        {"both vertical", {Less(e), 5}, {1, 0}, {1, 9}, 1, 0, kNo, kNo},
        {"both horizontal", {5, -Less(e)}, {0, 1}, {9, 1}, 1, 0, kNo, kNo},
        {"a point counts as vertical and horizontal", {0, 0}, {0, 1}, {9, 1}, 1, 0, kNo, kNo},
        {"vertical and horizontal", {0.01, 5}, {-1, 2}, {1, 2.01}, 0, 1, 0, 2},
        {"vertical and horizontal, at the end", {0, 2}, {0, 2}, {1, 2}, 0, 1, 0, 2},
        {"vertical and horizontal, past the end", {0, 2}, {-1, More(2)}, {1, 2}, 0, 0, 0, More(2)},
        {"vertical and horizontal, unbounded", {0, 2}, {4, 9}, {5, 9}, 1, 1, 0, 9},
        {"horizontal and vertical", {10, 0}, {5, -1}, {5, 1}, 0, 1, 5, 0},
        {"horizontal and vertical, past the end", {10, 0}, {15, -1}, {15, 1}, 0, 0, 15, 0},
        {"horizontal and vertical, too short", {10, 0}, {5, 1}, {5, 2}, 0, 0, 5, 0},
        {"vertical and oblique", {0, 4}, {-1, 0}, {1, 4}, 0, 1, 0, 2},
        {"vertical and oblique, beside it", {0, 4}, {0.5, 3}, {1, 4}, 0, 0, 0, 2},
        {"oblique and vertical", {4, 4}, {2, 0}, {2, 9}, 0, 1, 2, 2},
        {"oblique and vertical, above it", {4, 4}, {2, 0}, {2, 1}, 0, 0, 2, 2},
        {"slopes 1 and 1.01 are parallel", {1, 1}, {0, 0.5}, {1, 1.51}, 1, 0, kNo, kNo},
        {"slopes 1 and 1.125 are not", {8, 8}, {0, -0.5}, {8, 8.5}, 0, 1, 4, 4},
        {"just outside is accepted", {4, 4}, {4.0078125, 4.0078125}, {8, 0}, 0, 1, 4.0078125, 4.0078125},
        {"0.017 and more outside is not", {4, 4}, {4.03125, 4.03125}, {8, 0}, 0, 0, 4.03125, 4.03125},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        CVector out(kUntouched, kUntouched);
        EXPECT_EQ(c.found,
                  CVector(c.t[0], c.t[1])
                      .Intersection(CVector(c.a[0], c.a[1]), CVector(c.b[0], c.b[1]), out, c.bInfinite));
        EXPECT_DOUBLE_EQ(c.x, out.GetX());
        EXPECT_DOUBLE_EQ(c.y, out.GetY());
    }
}

TEST(LineLine, IntersectionMayReplaceItsOwnVector) {
    CVector v(4, 4);
    EXPECT_EQ(1, v.Intersection(CVector(0, 2), CVector(4, 0), v, 0));
    EXPECT_TRUE(v.Equal(CVector(4.0 / 3, 4.0 / 3), 1e-12));
}

TEST(LineLine, NearerPointOfATieIsTheSecond) {
    const struct {
        double ax, bx;
        int chosen;
        double x;
    } cases[] = {{1, -2, 1, 1}, {2, -1, 0, -1}, {1, -1, 0, -1}};
    for (const auto& c : cases) {
        double x = kUntouched;
        double y = kUntouched;
        EXPECT_EQ(c.chosen, CVector::GetNearerPoint(0, 0, c.ax, 5, c.bx, -5, &x, &y));
        EXPECT_EQ(c.x, x);
        EXPECT_EQ(c.chosen ? 5 : -5, y);
    }
}

} // namespace
