#include "points/PointLine.h"

#include <gtest/gtest.h>

using fieldkit::survey::kNull;

namespace {

TEST(PointLine, FieldsAreCheckedOneByOne) {
    const CString strLongest(L'n', 64);
    const struct {
        CString strName;
        const wchar_t* pszN;
        const wchar_t* pszE;
        const wchar_t* pszZ;
        LineFault fault;
    } cases[] = {
        {L"P1", L"1", L"2", L"3", LineFault::None},
        {L"P1", L"1,234.5", L"2", L" ", LineFault::None},
        {L"P1", L"1,234", L"2", L"3", LineFault::BadNumber}, // 1.234 or 1234?
        {L"P1", L"１，２３４", L"2", L"3", LineFault::BadNumber},
        {L"P1", L"1", L"2m", L"3", LineFault::BadNumber},
        {L"P1", L"1", L"2", L"-", LineFault::BadNumber},
        {L"P1", L"1", L"-999999999.9", L"3", LineFault::None},
        {L"P1", L"1e9", L"2", L"3", LineFault::BadNumber},
        {L" \t ", L"1", L"2", L"3", LineFault::NoName},
        {strLongest, L"1", L"2", L"3", LineFault::None},
        {strLongest + L"n", L"1", L"2", L"3", LineFault::BadName},
    };
    for (const auto& c : cases) {
        CNamedPoint point{L"old", CCoordinate()};
        EXPECT_EQ(ParsePoint(c.strName, c.pszN, c.pszE, c.pszZ, point), c.fault) << c.pszN << ' ' << c.pszE;
        EXPECT_EQ(point.strName == L"old", c.fault != LineFault::None);
    }
}

TEST(PointLine, BlankMembersAreAbsentAndTheOthersKept) {
    const struct {
        const wchar_t* pszN;
        const wchar_t* pszE;
        const wchar_t* pszZ;
        double dN;
        double dE;
        double dZ;
    } cases[] = {
        {L"", L"", L"", kNull, kNull, kNull}, {L"5", L"", L"", 5, kNull, kNull},
        {L"", L"0", L"", kNull, 0, kNull},    {L" ", L"\t", L"7", kNull, kNull, 7},
        {L"0", L"0", L"0", 0, 0, 0}, // zero is a value
    };
    for (const auto& c : cases) {
        CNamedPoint point;
        ASSERT_EQ(ParsePoint(L"境 界7", c.pszN, c.pszE, c.pszZ, point), LineFault::None);
        EXPECT_TRUE(point.strName == L"境界7");
        EXPECT_EQ(point.point.GetN(), c.dN);
        EXPECT_EQ(point.point.GetE(), c.dE);
        EXPECT_EQ(point.point.GetZ(), c.dZ);
    }
}

} // namespace
