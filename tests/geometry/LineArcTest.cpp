#include "Tolerance.h"
#include "geometry/Vector.h"

#include <gtest/gtest.h>

namespace {

constexpr double kNo = kUntouched;

struct ArcCase {
    const char* what;
    double line[4];
    double arc[6]; // start, end, centre
    int found;
    double p[4];
};

void Check(const ArcCase& c) {
    SCOPED_TRACE(c.what);
    CVector p1(kUntouched, kUntouched);
    CVector p2(kUntouched, kUntouched);
    EXPECT_EQ(c.found, CVector::IntersectLineArc(CVector(c.line[0], c.line[1]), CVector(c.line[2], c.line[3]),
                                                 CVector(c.arc[0], c.arc[1]), CVector(c.arc[2], c.arc[3]),
                                                 CVector(c.arc[4], c.arc[5]), p1, p2));
    EXPECT_DOUBLE_EQ(c.p[0], p1.GetX());
    EXPECT_DOUBLE_EQ(c.p[1], p1.GetY());
    EXPECT_DOUBLE_EQ(c.p[2], p2.GetX());
    EXPECT_DOUBLE_EQ(c.p[3], p2.GetY());
}

const double kRoot = std::sqrt(0.75);
const double kDiagonal = std::sqrt(0.5);

TEST(LineArc, AcceptsPointsOnSegmentAndArc) {
    const ArcCase cases[] = {
        {"quarter arc", {0, 0, 2, 2}, {1, 0, 0, 1, 0, 0}, 1, {kDiagonal, kDiagonal, kNo, kNo}},
        {"larger x first, whatever the line's direction",
         {2, 0.5, -2, 0.5},
         {1, 0, -1, 0, 0, 0},
         2,
         {kRoot, 0.5, -kRoot, 0.5}},
        {"larger y first on a vertical line",
         {0.5, -2, 0.5, 2},
         {0, -1, 0, 1, 0, 0},
         2,
         {0.5, kRoot, 0.5, -kRoot}},
        {"second candidate alone comes first",
         {-2, 0.5, 0, 0.5},
         {1, 0, -1, 0, 0, 0},
         1,
         {-kRoot, 0.5, kNo, kNo}},
        {"a half circle is judged by its diameter alone",
         {-2, -0.5, 2, -0.5},
         {1, 0, -1, 0, 0, 0},
         2,
         {kRoot, -0.5, -kRoot, -0.5}},
        {"three quarters, split in the middle",
         {-2, -0.5, 2, -0.5},
         {1, 0, 0, -1, 0, 0},
         1,
         {-kRoot, -0.5, kNo, kNo}},
        {"the gap of three quarters", {0, 0, 2, -2}, {1, 0, 0, -1, 0, 0}, 0, {kNo, kNo, kNo, kNo}},
        {"touching", {-2, 1, 2, 1}, {1, 0, -1, 0, 0, 0}, 1, {0, 1, kNo, kNo}},
        {"missing", {-2, 1.1, 2, 1.1}, {1, 0, -1, 0, 0, 0}, 0, {kNo, kNo, kNo, kNo}},
        {"segment ends on the circle", {0, 0, 0.6, 0.8}, {1, 0, 0, 1, 0, 0}, 1, {0.6, 0.8, kNo, kNo}},
        {"equal directions are no full circle",
         {-2, 0.5, 2, 0.5},
         {1, 0, 1, 0, 0, 0},
         0,
         {kNo, kNo, kNo, kNo}},
        {"the end makes the radius, not the start",
         {0, 0, 9, 9},
         {1.5, 0, 0, 1, 0, 0},
         1,
         {kDiagonal, kDiagonal, kNo, kNo}},
        {"both points of the line the same: horizontal",
         {kRoot, 0.5, kRoot, 0.5},
         {1, 0, 0, 1, 0, 0},
         1,
         {kRoot, 0.5, kNo, kNo}},
        {"an end in the dead band points along +x",
         {0, 0, 1, 1},
         {0.01, -0.01, 0, 0.02, 0, 0},
         1,
         {0.02 * kDiagonal, 0.02 * kDiagonal, kNo, kNo}},
    };
    for (const ArcCase& c : cases)
        Check(c);
}

TEST(LineArc, SegmentTestHasNoTolerance) {
    const double end = std::sqrt(1 - 0.5 * 0.5); // as the kernel finds it
    const double arc[6] = {1, 0, 0, 1, 0, 0};
    for (const auto& [x, found] : {std::pair(end, 1), std::pair(Less(end), 0), std::pair(More(end), 1)}) {
        double px = kUntouched;
        double py = kUntouched;
        EXPECT_EQ(found, CVector::IntersectLineArc(0, 0.5, x, 0.5, arc[0], arc[1], arc[2], arc[3], arc[4],
                                                   arc[5], &px, &py));
        EXPECT_EQ(found ? end : kUntouched, px);
    }
}

TEST(LineArc, OneResultIsTheNearerToThePointPassedIn) {
    const struct {
        double y1, x, y;
        int found;
        double px, py;
    } cases[] = {{0.5, 3, 0, 1, kRoot, 0.5},
                 {0.5, -3, 0, 1, -kRoot, 0.5},
                 {0.5, 0, 7, 1, -kRoot, 0.5}, // as near to both
                 {1, 4, 5, 1, 0, 1},
                 {2, 4, 5, 0, 4, 5}};
    for (const auto& c : cases) {
        CVector out(c.x, c.y);
        EXPECT_EQ(c.found, CVector::IntersectLineArc(CVector(-2, c.y1), CVector(2, c.y1), CVector(1, 0),
                                                     CVector(-1, 0), CVector(0, 0), out));
        EXPECT_DOUBLE_EQ(c.px, out.GetX());
        EXPECT_DOUBLE_EQ(c.py, out.GetY());
    }
}

TEST(LineArc, CircleFormIsUnboundedAndExactAboutAxes) {
    const struct {
        const char* what;
        double line[4];
        double radius;
        int found;
        double p[4];
    } cases[] = {
        {"far beside the segment", {10, 0.5, 11, 0.5}, 1, 2, {kRoot, 0.5, -kRoot, 0.5}},
        {"vertical", {0.5, 10, 0.5, 11}, 1, 2, {0.5, kRoot, 0.5, -kRoot}},
        {"oblique", {10, 10, 11, 11}, 1, 2, {kDiagonal, kDiagonal, -kDiagonal, -kDiagonal}},
        {"touching stands in both outputs", {10, 1, 11, 1}, 1, 1, {0, 1, 0, 1}},
        {"touching vertical", {-1, 3, -1, 4}, 1, 1, {-1, 0, -1, 0}},
        {"a negative radius is its magnitude", {10, 0.5, 11, 0.5}, -1, 2, {kRoot, 0.5, -kRoot, 0.5}},
        {"missing", {10, 1.1, 11, 1.1}, 1, 0, {kNo, kNo, kNo, kNo}},
        {"missing obliquely", {0, 2, 2, 0}, 1, 0, {kNo, kNo, kNo, kNo}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        CVector p1(kUntouched, kUntouched);
        CVector p2(kUntouched, kUntouched);
        EXPECT_EQ(c.found,
                  CVector::IntersectLineArcInf(CVector(c.line[0], c.line[1]), CVector(c.line[2], c.line[3]),
                                               CVector(0, 0), c.radius, p1, p2));
        EXPECT_DOUBLE_EQ(c.p[0], p1.GetX());
        EXPECT_DOUBLE_EQ(c.p[1], p1.GetY());
        EXPECT_DOUBLE_EQ(c.p[2], p2.GetX());
        EXPECT_DOUBLE_EQ(c.p[3], p2.GetY());
    }

    // A lean below the tolerance: the arc form takes the first point's y, the circle form follows the lean.
    const double lean = 5e-9;
    CVector p1;
    CVector p2;
    CVector::IntersectLineArc(CVector(-2, 0.5), CVector(2, 0.5 + lean), CVector(1, 0), CVector(-1, 0),
                              CVector(0, 0), p1, p2);
    EXPECT_EQ(0.5, p1.GetY());
    CVector::IntersectLineArcInf(CVector(-2, 0.5), CVector(2, 0.5 + lean), CVector(0, 0), 1, p1, p2);
    EXPECT_GT(p1.GetY(), 0.5 + lean / 2);
}

// A margin equal to the tolerance still touches an oblique line, but no other.
TEST(LineArc, TouchingDependsOnTheToleranceItself) {
    const CToleranceScope tolerance(0.5);
    const struct {
        const char* what;
        double line[4];
        double radius;
        int found;
    } cases[] = {{"horizontal, over by the tolerance", {0, 0.25, 9, 0.25}, 0.75, 2},
                 {"horizontal, over by less", {0, 0.5, 9, 0.5}, 0.75, 1},
                 {"horizontal, short by less", {0, 1, 9, 1}, 0.75, 1},
                 {"oblique, over by the tolerance", {0, 0, 1, 1}, 0.5, 1},
                 {"oblique, over by more", {0, 0, 1, 1}, 0.5625, 2}};
    for (const auto& c : cases) {
        double p[4];
        EXPECT_EQ(c.found, CVector::IntersectLineArcInf(c.line[0], c.line[1], c.line[2], c.line[3], 0, 0,
                                                        c.radius, &p[0], &p[1], &p[2], &p[3]))
            << c.what;
    }
}

} // namespace
