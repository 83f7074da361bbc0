#include "Tolerance.h"
#include "geometry/Vector.h"

#include <gtest/gtest.h>

namespace {

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
                 {"oblique, short by the tolerance", {0, 1, 1, 2}, 0.5, 1},
                 {"oblique, over by more", {0, 0, 1, 1}, 0.5625, 2}};
    for (const auto& c : cases) {
        double p[4];
        EXPECT_EQ(c.found, CVector::IntersectLineArcInf(c.line[0], c.line[1], c.line[2], c.line[3], 0, 0,
                                                        c.radius, &p[0], &p[1], &p[2], &p[3]))
            << c.what;
    }
}

} // namespace
