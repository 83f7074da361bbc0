#include "compute/PackedAngle.h"
#include "compute/ValueText.h"
#include "points/ChangeLog.h"
#include "points/FileReplacement.h"
#include "points/PointFile.h"
#include "points/PointOrder.h"
#include "points/PointSaving.h"
#include "screens/JournalGroups.h"

#include "TestFile.h"
#include "testkit/Rows.h"

#include <gtest/gtest.h>

#include <functional>

using testkit::Rows;

namespace {

constexpr double RADIANS = 3.14159265358979323846 / 180;

TEST(DirectionText, IsRoundedOnTheWholeAndStaysWithinOneTurn) {
    const Rows<double, bool, const wchar_t*> cases = {
        {0, false, L"0°00'00\""},
        {53 + 7 / 60.0 + 48.4 / 3600, true, L"53°07'48.4\""},
        {12 + 59 / 60.0 + 59.6 / 3600, false, L"13°00'00\""}, // the carry goes all the way
        {12 + 59 / 60.0 + 59.96 / 3600, true, L"13°00'00.0\""},
        {359.99999, false, L"0°00'00\""},
        {-0.5, false, L"359°30'00\""}};
    for (const auto& [dDegrees, bTenths, pszText] : cases)
        EXPECT_STREQ(pszText, DirectionText(dDegrees * RADIANS, bTenths)) << dDegrees;
}

TEST(PackedAngle, ReadsDegreesMinutesAndSeconds) {
    const Rows<const wchar_t*, double> cases = {
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
        {L"", AngleFault::NoNumber},       {L"90-30-15", AngleFault::NoNumber},
        {L"90.6", AngleFault::BadSixties}, {L"90.0060", AngleFault::BadSixties},
        {L"400", AngleFault::TooLarge},    {L"-1e300", AngleFault::TooLarge},
    };
    for (const auto& [pszText, fault] : cases) {
        double dRadians = 7;
        EXPECT_EQ(fault, ParsePackedAngle(pszText, dRadians)) << CString(pszText).GetLength();
        EXPECT_EQ(7, dRadians);
    }
}

TEST(JournalGroups, ResultsStayInTheirOrderUnderTheirTitles) {
    const std::vector<CJournalEntry> entries = {
        {L"b", {L"始点  K10"}, L"", L""}, {L"a", {}, L"", L""}, {L"b", {}, L"", L""}};
    const std::vector<CJournalGroup> groups = GroupByTitle(entries, L"");
    ASSERT_EQ(2U, groups.size());
    EXPECT_STREQ(L"b", groups[0].strTitle);
    EXPECT_EQ((std::vector<size_t>{0, 2}), groups[0].entries);
    EXPECT_EQ((std::vector<size_t>{1}), groups[1].entries);
    const std::vector<CJournalGroup> found = GroupByTitle(entries, L"k1");
    ASSERT_EQ(1U, found.size());
    EXPECT_EQ(std::vector<size_t>{0}, found[0].entries);
}

TEST(JournalGroups, LinesComeApartAtTwoBlanksOnly) {
    const Rows<const wchar_t*, const wchar_t*, const wchar_t*> cases = {
        {L"  N  -35300.000", L"N", L"-35300.000"},
        {L"始点の半径  30.000", L"始点の半径", L"30.000"},
        {L"注意: 半径が一致しません", L"注意: 半径が一致しません", L""},
        {L"", L"", L""}};
    for (const auto& [pszLine, pszItem, pszValue] : cases) {
        const auto [strItem, strValue] = SplitLine(pszLine);
        EXPECT_STREQ(pszItem, strItem);
        EXPECT_STREQ(pszValue, strValue);
    }
}

TEST(PointOrder, EachColumnSortsBothWaysAndWhatIsMissingComesLast) {
    using fieldkit::survey::kNull;
    const std::vector<CNamedPoint> points = {
        {L"K10", CCoordinate(3, 1, 0, 1)}, // E, N, Z; no height
        {L"K2", CCoordinate(1, 2, 9, 3), L"B"},
        {L"K1", CCoordinate(2, 2, -4, 3), L"A"},
        {L"BM", CCoordinate(0, 0, 5, 2)}, // a height alone
    };
    const Rows<PointColumn, bool, std::vector<size_t>> cases = {
        {PointColumn::Name, false, {3, 2, 1, 0}}, {PointColumn::Name, true, {0, 1, 2, 3}},
        {PointColumn::N, false, {0, 1, 2, 3}}, // those that are alike stay as they were
        {PointColumn::N, true, {1, 2, 0, 3}},     {PointColumn::E, false, {1, 2, 0, 3}},
        {PointColumn::Z, false, {2, 3, 1, 0}},    {PointColumn::Code, true, {1, 2, 0, 3}}};
    for (const auto& [column, bTurned, order] : cases) {
        std::vector<size_t> places = FindPoints(points, L"");
        OrderPoints(points, places, {column, bTurned});
        EXPECT_EQ(order, places) << static_cast<int>(column);
    }
    std::vector<size_t> some = FindPoints(points, L"K1");
    OrderPoints(points, some, {PointColumn::E, false});
    EXPECT_EQ((std::vector<size_t>{2, 0}), some);
}

TEST(Progress, AllWorkThatCanBeLongCanBeStopped) {
    const std::vector<CNamedPoint> points(3, {L"K", CCoordinate(1, 2, 3, 3)});
    const CFileText text = DecodeText("K,1,2\r\n");
    const CTestFile file(L"fieldbook-stopped.csv", "K,1,2\r\n");
    CPointBook book;
    CLineFormat format;
    std::string bytes = "A,1,2\r\n";
    CString strBad;
    std::vector<size_t> places = {2, 1, 0};
    const std::function<void(const Progress&)> works[] = {
        [&](const Progress& progress) { ReadWholeFile(file.GetPath(), progress); },
        [&](const Progress& progress) { RewriteFile(file.GetPath(), bytes, progress); },
        [&](const Progress& progress) { DecodeText(bytes, progress); },
        [&](const Progress& progress) {
            ReadPoints(text, book, {{}, progress});
        },
        [&](const Progress& progress) { ReadChanges(BaseLine(1), progress); },
        [&](const Progress& progress) { FormatPoints(points, format, bytes, strBad, progress); },
        [&](const Progress& progress) { FormatFile(points, format, bytes, strBad, progress); },
        [&](const Progress& progress) { FindPoints(points, L"K", progress); },
        [&](const Progress& progress) {
            OrderPoints(points, places, {PointColumn::Name, false}, progress);
        },
        [&](const Progress& progress) {
            OrderPoints(points, places, {PointColumn::N, false}, progress);
        },
    };
    const Progress stop = [](size_t nDone, size_t nAll) {
        EXPECT_LE(nDone, nAll);
        throw std::exception();
    };
    for (const auto& work : works)
        EXPECT_THROW(work(stop), std::exception) << &work - works;
    EXPECT_EQ("K,1,2\r\n", file.Read());
    EXPECT_EQ("A,1,2\r\n", bytes);
    EXPECT_EQ(0, book.GetCount());
    EXPECT_EQ((std::vector<size_t>{2, 1, 0}), places);
}

TEST(PointOrder, NumbersInNamesCount) {
    const wchar_t* const names[] = {L"",    L"A",     L"K1",     L"K2",    L"K2A",
                                    L"K10", L"K10-2", L"K10-11", L"境界9", L"境界10"};
    for (size_t i = 0; i < std::size(names); ++i)
        for (size_t j = 0; j < std::size(names); ++j)
            EXPECT_EQ(i < j, IsNameBefore(names[i], names[j])) << i << ' ' << j;
    EXPECT_FALSE(IsNameBefore(L"K02", L"K2"));
    EXPECT_TRUE(IsNameBefore(L"K002", L"K3"));
}

TEST(LengthText, HasTheDecimalsAndNoSignOfNothing) {
    const Rows<double, int, const wchar_t*> cases = {{-0.0004, 3, L"0.000"},
                                                     {-0.0006, 3, L"-0.001"},
                                                     {-10, 2, L"-10.00"},
                                                     {fieldkit::survey::kNull, 3, L""}};
    for (const auto& [dMetres, nDecimals, pszText] : cases)
        EXPECT_STREQ(pszText, LengthText(dMetres, nDecimals)) << dMetres;
}

} // namespace
