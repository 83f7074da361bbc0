#include "compute/PackedAngle.h"

#include "testkit/Rows.h"

#include <gtest/gtest.h>

using testkit::Rows;

namespace {

constexpr double RADIANS = 3.14159265358979323846 / 180;

TEST(PackedAngle, ReadsDegreesMinutesAndSeconds) {
    const Rows<const wchar_t*, double> cases = {
        {L"90", 90},
        {L"90.0000", 90},
        {L"45.3", 45.5},
        {L"12.29", 12 + 29 / 60.0}, // 0.29 * 100 is less than 29
        {L"0.0036", 0.01},
        {L"-45.3015", -(45 + 30 / 60.0 + 15 / 3600.0)},
        {L"1.00001525", 1 + 0.1525 / 3600},
        {L" 359.5959 ", 360 - 1 / 3600.0},
        {L"９０．３０００", 90.5}, // full width, as a Japanese panel types it
    };
    for (const auto& [pszText, dDegrees] : cases) {
        double dRadians = 0;
        EXPECT_EQ(AngleFault::None, ParsePackedAngle(pszText, dRadians)) << CString(pszText).GetLength();
        EXPECT_NEAR(dDegrees, dRadians / RADIANS, 1e-12);
    }
}

TEST(PackedAngle, RefusesWhatIsNoAngleAndKeepsTheOldValue) {
    const Rows<const wchar_t*, AngleFault> cases = {
        {L"", AngleFault::NoNumber},          {L"abc", AngleFault::NoNumber},
        {L"90-30-15", AngleFault::NoNumber},  {L"90.6", AngleFault::BadSixties},
        {L"45.7500", AngleFault::BadSixties}, {L"90.0060", AngleFault::BadSixties},
        {L"400", AngleFault::TooLarge},       {L"-1e300", AngleFault::TooLarge},
    };
    for (const auto& [pszText, fault] : cases) {
        double dRadians = 7;
        EXPECT_EQ(fault, ParsePackedAngle(pszText, dRadians)) << CString(pszText).GetLength();
        EXPECT_EQ(7, dRadians);
    }
}

} // namespace
