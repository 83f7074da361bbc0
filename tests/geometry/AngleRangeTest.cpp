#include "geometry/Vector.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

constexpr double kInf = std::numeric_limits<double>::infinity();

TEST(AngleRange, AnglesThatAStepDoesNotChangeComeBack) {
    for (const double huge : {1e300, -1e300, 0x1.0000000000001p56, -0x1.0000000000001p56, kInf, -kInf}) {
        EXPECT_EQ(huge, CVector::LimitAngleRange(huge));
        EXPECT_EQ(huge, CVector::Range0To360(huge));
        EXPECT_EQ(huge, CVector::RangePM90(huge));
    }
    EXPECT_TRUE(std::isnan(CVector::LimitAngleRange(std::nan(""))));
    EXPECT_TRUE(std::isnan(CVector::Range0To360(std::nan(""))));
    EXPECT_TRUE(std::isnan(CVector::RangePM90(std::nan(""))));
}

} // namespace
