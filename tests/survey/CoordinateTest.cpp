#include "survey/Coordinate.h"

#include <Tesuvo.h>
#include <gtest/gtest.h>

#include <cmath>
#include <optional>
#include <string>
#include <type_traits>
#include <vector>

#ifndef _WIN32
#include <cstdlib>
#endif

namespace {

constexpr double kNull = 1e-37;
constexpr int kDecimals = 1280;

/// The device's shared setting of decimals for the time of a test.
class CDecimalsScope {
public:
    explicit CDecimalsScope(int setting) : m_Saved(TVGetCommonRegInt(kDecimals)) { Store(setting); }
    ~CDecimalsScope() { Store(m_Saved); }
    CDecimalsScope(const CDecimalsScope&) = delete;
    CDecimalsScope& operator=(const CDecimalsScope&) = delete;

private:
    static void Store(int setting) {
#ifdef _WIN32
        const DWORD value = static_cast<DWORD>(setting);
        RegSetKeyValueW(HKEY_CURRENT_USER, L"Software\\Tesuvo\\Common", L"1280", REG_DWORD, &value,
                        sizeof value);
#else
        setenv("TESUVO_SETTING_1280", std::to_string(setting).c_str(), 1);
#endif
    }

    int m_Saved;
};

std::wstring Text(const CString& text) {
    return text.GetString();
}

void ExpectMembers(const CCoordinate& c, double n, double e, double z, int exist) {
    CCoordinate all(c);
    all.SetExist(3); // bares the members
    EXPECT_EQ(n, all.GetN());
    EXPECT_EQ(e, all.GetE());
    EXPECT_EQ(z, all.GetZ());
    EXPECT_EQ(exist, c.GetExist());
}

TEST(Coordinate, StartsWithEverythingMissing) {
    const CCoordinate c;
    ExpectMembers(c, kNull, kNull, kNull, 0);
    EXPECT_EQ(0, c.IsExistNE());
    EXPECT_EQ(0, c.IsExistZ());
    EXPECT_EQ(L"", Text(c.GetNString() + c.GetEString() + c.GetZString()));
}

TEST(Coordinate, TakesEastingBeforeNorthing) {
    CCoordinate c(1, 2, 3, 3);
    EXPECT_EQ(1, c.GetE());
    EXPECT_EQ(2, c.GetN());
    EXPECT_EQ(3, c.GetZ());
    EXPECT_EQ(1, c.IsExistNE());
    EXPECT_EQ(2, c.IsExistZ());

    c.SetExist(0xFFF0); // flags without a meaning are kept
    EXPECT_EQ(0xFFF0, c.GetExist());
    EXPECT_EQ(kNull, c.GetN());
    EXPECT_EQ(kNull, c.GetE());
    EXPECT_EQ(kNull, c.GetZ());
    const CCoordinate copy(c);
    ExpectMembers(copy, 2, 1, 3, 0xFFF0);
}

TEST(Coordinate, SettersKeepTheFlags) {
    CCoordinate c;
    EXPECT_EQ(1, c.SetN(5));
    ExpectMembers(c, 5, kNull, kNull, 1);
    EXPECT_EQ(1, c.SetN(kNull));
    ExpectMembers(c, kNull, kNull, kNull, 0);
    EXPECT_EQ(1, c.SetE(6));
    EXPECT_EQ(1, c.SetN(kNull));
    ExpectMembers(c, kNull, 6, kNull, 1);
    EXPECT_EQ(1, c.SetE(kNull));
    EXPECT_EQ(0, c.GetExist());
    c.SetExist(0x10);
    EXPECT_EQ(1, c.SetZ(7));
    EXPECT_EQ(0x12, c.GetExist());
    EXPECT_EQ(1, c.SetZ(kNull));
    EXPECT_EQ(0x10, c.GetExist());
}

TEST(Coordinate, AddsAndSubtractsWhatBothHave) {
    const struct {
        const char* what;
        unsigned short own, other;
        double sum[3], difference[3]; // N, E, Z
    } cases[] = {
        {"all: the heights are subtracted by both", 3, 3, {11, 22, 4}, {9, 18, 4}},
        {"any flag of the other will do", 1, 2, {11, 22, 5}, {9, 18, 5}},
        {"also one without a meaning", 3, 0x80, {11, 22, 4}, {9, 18, 4}},
        {"height only", 2, 1, {10, 20, 4}, {10, 20, 4}},
        {"nothing to add", 3, 0, {10, 20, 5}, {10, 20, 5}},
        {"nothing to add to", 0, 3, {10, 20, 5}, {10, 20, 5}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        const CCoordinate own(20, 10, 5, c.own);
        const CCoordinate other(2, 1, 1, c.other);
        ExpectMembers(own + other, c.sum[0], c.sum[1], c.sum[2], c.own);
        ExpectMembers(own - other, c.difference[0], c.difference[1], c.difference[2], c.own);
        ExpectMembers(own, 10, 20, 5, c.own);
        CCoordinate changed(own);
        EXPECT_EQ(&changed, &(changed += other));
        EXPECT_TRUE(changed == own + other);
    }
}

TEST(Coordinate, ComparesWhatItHasItself) {
    const double limit = 1e-6;
    const struct {
        const char* what;
        CCoordinate a, b;
        int equal;
    } cases[] = {
        {"northing inside the tolerance", {0, 5e-7, 0, 1}, {0, 0, 0, 1}, 1},
        {"northing just inside", {0, std::nextafter(limit, 0), 0, 1}, {0, 0, 0, 1}, 1},
        {"northing the tolerance away", {0, limit, 0, 1}, {0, 0, 0, 1}, 0},
        {"easting the tolerance away", {-limit, 0, 0, 1}, {0, 0, 0, 1}, 0},
        {"height the tolerance away", {0, 0, limit, 3}, {0, 0, 0, 3}, 0},
        {"height that this lacks", {0, 0, 9, 1}, {0, 0, 0, 3}, 1},
        {"height that the other lacks", {0, 0, 9, 3}, {0, 0, 0, 1}, 0},
        {"no flags here", {1, 2, 3, 0}, {4, 5, 6, 3}, 1},
        {"no flags there", {4, 5, 6, 3}, {1, 2, 3, 0}, 1},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(c.equal, c.a == c.b) << c.what;
        EXPECT_EQ(!c.equal, c.a != c.b) << c.what;
    }
}

TEST(Coordinate, WritesAsManyDecimalsAsTheDeviceIsSetTo) {
    const CCoordinate c(-0.05, 1234.5678, 2, 3);
    const struct {
        int setting;
        const wchar_t *n, *e, *z;
    } cases[] = {{0, L"1234.6", L"-0.1", L"2.0"},
                 {1, L"1234.57", L"-0.05", L"2.00"},
                 {2, L"1234.568", L"-0.050", L"2.000"},
                 {4, L"1234.56780", L"-0.05000", L"2.00000"},
                 // A damaged setting counts as that of a new device.
                 {-1, L"1234.568", L"-0.050", L"2.000"},
                 {5, L"1234.568", L"-0.050", L"2.000"}};
    for (const auto& k : cases) {
        const CDecimalsScope decimals(k.setting);
        EXPECT_EQ(k.n, Text(c.GetNString()));
        EXPECT_EQ(k.e, Text(c.GetEString()));
        EXPECT_EQ(k.z, Text(c.GetZString()));
    }
}

TEST(Coordinate, MissingMembersHaveNoText) {
    EXPECT_EQ(L"", Text(CCoordinate(1, 2, 3, 2).GetNString()));
    EXPECT_EQ(L"", Text(CCoordinate(1, 2, 3, 1).GetZString()));
    EXPECT_EQ(L"", Text(CCoordinate(1, kNull, 3, 3).GetNString()));
}

TEST(Coordinate, ExtentGrowsPointByPoint) {
    const struct {
        const char* what;
        std::vector<CCoordinate> points;
        CCoordinate lo, hi; // expected
    } cases[] = {
        // The easting of an empty corner counts as the null value once its northing is set.
        {"positive eastings leave the low one null",
         {{5, 5, 0, 1}, {7, 3, 0, 1}},
         {kNull, 3, kNull, 1},
         {7, 5, kNull, 1}},
        {"negative eastings leave the high one null",
         {{-5, -5, 0, 1}, {-7, -3, 0, 1}},
         {-7, -5, kNull, 1},
         {kNull, -3, kNull, 1}},
        {"heights only",
         {{1, 1, 4, 2}, {1, 1, -4, 2}, {1, 1, 0, 2}, {1, 1, 9, 2}},
         {kNull, kNull, -4, 2},
         {kNull, kNull, 9, 2}},
        {"a northing that is the null value", {{5, kNull, 0, 1}}, {5, kNull, kNull, 1}, {5, kNull, kNull, 1}},
        {"nothing there", {{1, 1, 4, 0}}, {}, {}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        CCoordinate lo;
        CCoordinate hi;
        for (CCoordinate p : c.points)
            p.AddExtent(lo, hi);
        CCoordinate expected(c.lo);
        expected.SetExist(3);
        ExpectMembers(lo, expected.GetN(), expected.GetE(), expected.GetZ(), c.lo.GetExist());
        expected = c.hi;
        expected.SetExist(3);
        ExpectMembers(hi, expected.GetN(), expected.GetE(), expected.GetZ(), c.hi.GetExist());
    }
}

TEST(Coordinate, ExtentWidensCornersThatAreSet) {
    CCoordinate lo(1, 1, 1, 3);
    CCoordinate hi(2, 2, 2, 3);
    CCoordinate(0, 3, 1.5, 3).AddExtent(lo, hi);
    ExpectMembers(lo, 1, 0, 1, 3);
    ExpectMembers(hi, 3, 2, 2, 3);
}

} // namespace
