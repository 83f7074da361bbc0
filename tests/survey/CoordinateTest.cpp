#include "survey/Coordinate.h"

#include "Tesuvo.h"
#include "support/Rows.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <string>
#include <vector>

#ifndef _WIN32
#include <cstdlib>
#endif

namespace {

constexpr double kNull = 1e-37;

/// The device's shared setting of decimals.
void StoreDecimals(int setting) {
#ifdef _WIN32
    const DWORD value = static_cast<DWORD>(setting);
    RegSetKeyValueW(HKEY_CURRENT_USER, L"Software\\Tesuvo\\Common", L"1280", REG_DWORD, &value, sizeof value);
#else
    setenv("TESUVO_SETTING_1280", std::to_string(setting).c_str(), 1);
#endif
}

using Members = std::array<double, 4>; ///< N, E, Z, flags

Members MembersOf(const CCoordinate& c) {
    CCoordinate all(c);
    all.SetExist(3); // bares the members
    return {all.GetN(), all.GetE(), all.GetZ(), static_cast<double>(c.GetExist())};
}

TEST(Coordinate, SettersKeepTheFlags) {
    CCoordinate c;
    c.SetExist(0x10); // without a meaning
    const Rows<int (CCoordinate::*)(double), double, Members> steps = {
        {&CCoordinate::SetN, 5, {5, kNull, kNull, 0x11}},
        {&CCoordinate::SetE, kNull, {5, kNull, kNull, 0x11}},
        {&CCoordinate::SetN, kNull, {kNull, kNull, kNull, 0x10}},
        {&CCoordinate::SetE, 6, {kNull, 6, kNull, 0x11}},
        {&CCoordinate::SetN, kNull, {kNull, 6, kNull, 0x11}},
        {&CCoordinate::SetE, kNull, {kNull, kNull, kNull, 0x10}},
        {&CCoordinate::SetZ, 7, {kNull, kNull, 7, 0x12}},
        {&CCoordinate::SetZ, kNull, {kNull, kNull, kNull, 0x10}},
    };
    CCoordinate copy;
    for (const auto& [set, value, members] : steps) {
        EXPECT_EQ(1, (c.*set)(value));
        EXPECT_EQ(members, MembersOf(copy = c));
    }
}

TEST(Coordinate, AddsAndSubtractsWhatBothHave) {
    const Rows<const char*, CCoordinate, CCoordinate, Members, Members> rows = {
        {"northing and easting only", {20, 10, 5, 1}, {2, 1, 1, 2}, {11, 22, 5, 1}, {9, 18, 5, 1}},
        {"height only", {20, 10, 5, 2}, {2, 1, 1, 1}, {10, 20, 4, 2}, {10, 20, 4, 2}},
        {"nothing to add", {20, 10, 5, 3}, {2, 1, 1, 0}, {10, 20, 5, 3}, {10, 20, 5, 3}},
    };
    for (const auto& [what, own, other, sum, difference] : rows) {
        EXPECT_EQ(sum, MembersOf(own + other)) << what;
        EXPECT_EQ(difference, MembersOf(own - other)) << what;
    }
}

TEST(Coordinate, ComparesWhatItHasItself) {
    const double limit = 1e-6;
    const Rows<const char*, CCoordinate, CCoordinate, int> rows = {
        {"nearly the same", {7, 8 + 5e-7, 9, 3}, {7, 8, 9, 3}, 1},
        {"northing the tolerance away", {0, limit, 0, 1}, {0, 0, 0, 1}, 0},
        {"easting the tolerance away", {-limit, 0, 0, 1}, {0, 0, 0, 1}, 0},
        {"height the tolerance away", {0, 0, limit, 3}, {0, 0, 0, 3}, 0},
        {"height that this lacks", {0, 0, 9, 1}, {0, 0, 0, 3}, 1},
        {"no flags here", {1, 2, 3, 0}, {4, 5, 6, 3}, 1},
        {"no flags there", {4, 5, 6, 3}, {1, 2, 3, 0}, 1},
    };
    for (const auto& [what, a, b, equal] : rows) {
        EXPECT_EQ(equal, a == b) << what;
        EXPECT_EQ(!equal, a != b) << what;
    }
}

TEST(Coordinate, WritesAsManyDecimalsAsTheDeviceIsSetTo) {
    const CCoordinate all(-0.05, 1234.5678, 2, 3), plane(1, 2, 3, 1);
    // setting: a damaged one counts as that of a new device
    const Rows<int, const wchar_t*> rows = {
        {0, L"1234.6/-0.1/2.0"},          {1, L"1234.57/-0.05/2.00"},          {2, L"1234.568/-0.050/2.000"},
        {3, L"1234.5678/-0.0500/2.0000"}, {4, L"1234.56780/-0.05000/2.00000"}, {-1, L"1234.568/-0.050/2.000"},
        {5, L"1234.568/-0.050/2.000"}};
    for (const auto& [setting, text] : rows) {
        StoreDecimals(setting);
        EXPECT_STREQ(text, all.GetNString() + L"/" + all.GetEString() + L"/" + all.GetZString());
    }
    StoreDecimals(2);
    EXPECT_STREQ(L"", plane.GetZString() + CCoordinate(1, 2, 3, 2).GetNString());
}

TEST(Coordinate, ExtentGrowsPointByPoint) {
    const Rows<const char*, std::vector<CCoordinate>, Members, Members> rows = {
        // The easting of an empty corner counts as the null value once its northing is set.
        {"positive eastings leave the low one null",
         {{5, 5, 0, 1}, {7, 3, 0, 1}},
         {3, kNull, kNull, 1},
         {5, 7, kNull, 1}},
        {"negative eastings leave the high one null",
         {{-5, -5, 0, 1}, {-7, -3, 0, 1}},
         {-5, -7, kNull, 1},
         {-3, kNull, kNull, 1}},
        {"heights above zero", {{1, 1, 4, 2}, {1, 1, 9, 2}}, {kNull, kNull, 4, 2}, {kNull, kNull, 9, 2}},
        {"and below", {{1, 1, -4, 2}, {1, 1, -9, 2}}, {kNull, kNull, -9, 2}, {kNull, kNull, -4, 2}},
        {"a northing that is the null value", {{5, kNull, 0, 1}}, {kNull, 5, kNull, 1}, {kNull, 5, kNull, 1}},
    };
    for (const auto& [what, points, low, high] : rows) {
        CCoordinate lo, hi;
        for (CCoordinate p : points)
            p.AddExtent(lo, hi);
        EXPECT_EQ(low, MembersOf(lo)) << what;
        EXPECT_EQ(high, MembersOf(hi)) << what;
    }
}

} // namespace
