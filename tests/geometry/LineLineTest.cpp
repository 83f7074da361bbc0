#include "geometry/Vector.h"

#include <gtest/gtest.h>

namespace {

TEST(LineLine, IntersectionMayReplaceItsOwnVector) {
    CVector v(4, 4);
    EXPECT_EQ(1, v.Intersection(CVector(0, 2), CVector(4, 0), v, 0));
    EXPECT_TRUE(v.Equal(CVector(4.0 / 3, 4.0 / 3), 1e-12));
}

// To the last bit: the segment ends at 0, the lines meet at -0.017.
TEST(LineLine, IntersectionTheCoarseToleranceAwayIsNone) {
    CVector out;
    EXPECT_EQ(0, CVector(-0.034, 2).Intersection(CVector(0, 1), CVector(1, 1), out, 0));
    EXPECT_EQ(-0.017, out.GetX());
}

} // namespace
