#include "points/Export.h"

#include "TestFile.h"

#include <gtest/gtest.h>

namespace {

const CNamedPoint STONE{L"境界1", CCoordinate(13236.2, -35306.6, 23.994, 3)}; // E, N, Z
const CNamedPoint POLE{L"電柱1", CCoordinate(13225.906, -35282.417, 0, 1)};

TEST(Export, LineHasTheChosenColumnsInTheirOrder) {
    const struct {
        const CNamedPoint& point;
        std::vector<Column> columns;
        wchar_t chSeparator;
        const wchar_t* pszLine;
    } cases[] = {
        {STONE, {Column::E, Column::N, Column::Name}, L';', L"13236.200000;-35306.600000;境界1"},
        {STONE, {Column::Name, Column::Blank, Column::Z, Column::Blank}, L',', L"境界1,,23.994000,"},
        {POLE, {Column::Z}, L',', L""},
        {POLE, {Column::Name, Column::Name}, L',', L"電柱1,電柱1"},
    };
    for (const auto& c : cases)
        EXPECT_TRUE(FormatExportLine(c.point, c.columns, c.chSeparator) == c.pszLine) << c.pszLine;
}

TEST(Export, FileHasTheTitlesOfItsColumns) {
    const CTestFile file(L"fieldbook-export.csv", "old");
    ExportPoints(file.GetPath(), {POLE}, {Column::N, Column::Blank, Column::Z, Column::E}, {L';', true});
    EXPECT_EQ(file.Read(), "N;;Z;E\r\n-35282.417000;;;13225.906000\r\n");

    ExportPoints(file.GetPath(), {}, {Column::Name}, {});
    EXPECT_EQ(file.Read(), "");
}

} // namespace
