#include "points/PointLine.h"

#include "testkit/Rows.h"

#include <gtest/gtest.h>

using fieldkit::survey::kNull;

using testkit::Rows;

namespace {

TEST(PointLine, FieldsAreCheckedOneByOne) {
    const CString strLongest(L'n', 64);
    const Rows<CString, const wchar_t*, const wchar_t*, const wchar_t*, LineFault> cases = {
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
    for (const auto& [strName, pszN, pszE, pszZ, fault] : cases) {
        CNamedPoint point{L"old", CCoordinate()};
        EXPECT_EQ(fault, ParsePoint(strName, pszN, pszE, pszZ, point)) << pszN << ' ' << pszE;
        EXPECT_EQ(fault != LineFault::None, point.strName == L"old");
    }
}

TEST(PointLine, BlankMembersAreAbsentAndTheOthersKept) {
    const Rows<const wchar_t*, const wchar_t*, const wchar_t*, double, double, double> cases = {
        {L"", L"", L"", kNull, kNull, kNull}, {L"5", L"", L"", 5, kNull, kNull},
        {L"", L"0", L"", kNull, 0, kNull},    {L" ", L"\t", L"7", kNull, kNull, 7},
        {L"0", L"0", L"0", 0, 0, 0}, // zero is a value
    };
    for (const auto& [pszN, pszE, pszZ, dN, dE, dZ] : cases) {
        CNamedPoint point;
        ASSERT_EQ(LineFault::None, ParsePoint(L"境 界7", pszN, pszE, pszZ, point));
        EXPECT_STREQ(L"境界7", point.strName);
        EXPECT_EQ(dN, point.point.GetN());
        EXPECT_EQ(dE, point.point.GetE());
        EXPECT_EQ(dZ, point.point.GetZ());
    }
}

} // namespace
