#include "compute/PackedAngle.h"

#include <gtest/gtest.h>

namespace {

constexpr double RADIANS = 3.14159265358979323846 / 180;

TEST(PackedAngle, ReadsDegreesMinutesAndSeconds) {
    const struct {
        const wchar_t* pszText;
        double dDegrees;
    } cases[] = {
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
    for (const auto& c : cases) {
        double dRadians = 0;
        EXPECT_TRUE(ParsePackedAngle(c.pszText, dRadians)) << CString(c.pszText).GetLength();
        EXPECT_NEAR(dRadians / RADIANS, c.dDegrees, 1e-12);
    }
}

TEST(PackedAngle, RefusesWhatIsNoAngleAndKeepsTheOldValue) {
    for (const wchar_t* pszText : {L"", L"abc", L"90.6", L"90.0060", L"360.0001", L"-1e300", L"90-30-15"}) {
        double dRadians = 7;
        EXPECT_FALSE(ParsePackedAngle(pszText, dRadians));
        EXPECT_EQ(dRadians, 7);
    }
}

} // namespace
