#include "points/PointFile.h"

#include "TestFile.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using Faults = std::vector<std::pair<int, LineFault>>;

Faults FaultsOf(const CReadReport& report) {
    Faults faults;
    for (const CBadLine& bad : report.badLines)
        faults.emplace_back(bad.nLine, bad.fault);
    return faults;
}

CReadReport Read(const CString& strPath, CPointBook& book) {
    CAsciiFile file;
    if (!file.Open(strPath, CFile::modeRead)) {
        ADD_FAILURE() << "cannot open the file";
        return {};
    }
    return ReadPoints(file, book);
}

CReadReport ReadShipped(const wchar_t* pszName, CPointBook& book) {
    return Read(CString(FIELDBOOK_DATA) + L"/" + pszName, book);
}

TEST(PointFile, ShippedPointsAreReadWithoutAnyFault) {
    CPointBook book;
    EXPECT_EQ(FaultsOf(ReadShipped(L"points.csv", book)), Faults());
    EXPECT_EQ(book.GetCount(), 40);
    EXPECT_TRUE(book.GetPoints().front().strName == L"T1");

    const CCoordinate* pStone = book.Find(L"境界1");
    ASSERT_NE(pStone, nullptr) << "is the OEM code page 932?";
    EXPECT_EQ(pStone->GetN(), -35306.6);
    EXPECT_EQ(pStone->GetE(), 13236.2);
    EXPECT_EQ(pStone->GetZ(), 23.994);
    const CCoordinate* pPole = book.Find(L"電柱1");
    ASSERT_NE(pPole, nullptr);
    EXPECT_TRUE(pPole->IsExistNE());
    EXPECT_FALSE(pPole->IsExistZ());
}

TEST(PointFile, FaultyLinesAreReportedByNumberAndTheRestIsKept) {
    CPointBook book;
    const Faults expected = {
        {4, LineFault::TooFewFields}, {6, LineFault::BadNumber},      {9, LineFault::DuplicateName},
        {10, LineFault::NoName},      {11, LineFault::TooManyFields}, {12, LineFault::BadNumber},
        {14, LineFault::TooLong},     {16, LineFault::NotTerminated},
    };
    EXPECT_EQ(FaultsOf(ReadShipped(L"points_bad.csv", book)), expected);
    EXPECT_EQ(book.GetCount(), 6);
    ASSERT_NE(book.Find(L"K2"), nullptr);
    EXPECT_EQ(book.Find(L"K2")->GetN(), -35285.0) << "the first of two points of one name stays";
    EXPECT_NE(book.Find(L"電柱1"), nullptr) << "the line behind the long one";
}

TEST(PointFile, NoLineIsLostAtTheEdges) {
    const std::string point = "P,1,2\r\n";
    const std::string lf = "P,1,2\nQ,1,2\n";
    const struct {
        const char* pszCase;
        std::string content;
        int nPoints;
        Faults faults;
    } cases[] = {
        {"empty file", "", 0, {}},
        {"only line ends", "\r\n\r\n", 0, {}},
        {"blanks behind the last line", point + " \t\r\n \n", 1, {}},
        {"a header behind line 1", point + "name,N,E,Z\r\n", 1, {{2, LineFault::BadNumber}}},
        {"CR alone", "P,1,2\rQ,1,2\r", 2, {}},
        {"LF alone", lf, 0, {{1, LineFault::NotTerminated}}},
        {"511 bytes", "P,1,2," + std::string(505, '0') + "\r\n" + "Q,1,2\r\n", 2, {}},
        {"512 bytes", "P,1,2," + std::string(506, '0') + "\r\n" + "Q,1,2\r\n", 1, {{1, LineFault::TooLong}}},
        {"several buffers", std::string(5000, 'n') + "\r\n" + point, 1, {{1, LineFault::TooLong}}},
        {"long and never ended", point + std::string(2000, 'n'), 1, {{2, LineFault::TooLong}}},
        {"512 bytes to the end", point + std::string(512, 'n'), 1, {{2, LineFault::NotTerminated}}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.pszCase);
        const CTestFile file(L"fieldbook-edges.csv", c.content);
        CPointBook book;
        EXPECT_EQ(FaultsOf(Read(file.GetPath(), book)), c.faults);
        EXPECT_EQ(book.GetCount(), c.nPoints);
    }
}

TEST(PointFile, OtherKindsOfFilesAreRecognised) {
    const struct {
        const wchar_t* pszName;
        wchar_t chSeparator;
        bool bHeader;
        int nPoints;
    } cases[] = {
        {L"points.csv", L',', true, 40},
        {L"boundary.csv", L';', true, 8},
        {L"levels.csv", L',', false, 5},
        {L"stakes.csv", L';', false, 4},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.pszName);
        CPointBook book;
        const CReadReport report = ReadShipped(c.pszName, book);
        EXPECT_EQ(FaultsOf(report), Faults());
        EXPECT_EQ(report.format.chSeparator, c.chSeparator);
        EXPECT_EQ(report.format.bHeader, c.bHeader);
        EXPECT_EQ(book.GetCount(), c.nPoints);
    }
}

TEST(PointFile, WhatIsBlankInAFileIsAbsentInThePoint) {
    using fieldkit::survey::kNull;
    CPointBook book;
    for (const wchar_t* pszName : {L"boundary.csv", L"levels.csv", L"stakes.csv"})
        ReadShipped(pszName, book);
    const struct {
        const wchar_t* pszName;
        double dN;
        double dE;
        double dZ;
    } cases[] = {
        {L"K1", -35288, 13184, 24.512},      {L"境界1", -35306.6, 13236.2, kNull},
        {L"境界7", -35290.25, kNull, kNull}, {L"境界8", kNull, 13229.5, kNull},
        {L"BM1", kNull, kNull, 25.204},      {L"T7", kNull, kNull, kNull},
        {L"仮BM1", kNull, kNull, 22.6},      {L"No.10+12.5", -35286.475, 13192.225, kNull},
    };
    for (const auto& c : cases) {
        const CCoordinate* pPoint = book.Find(c.pszName);
        ASSERT_NE(pPoint, nullptr) << c.pszName;
        EXPECT_EQ(pPoint->GetN(), c.dN);
        EXPECT_EQ(pPoint->GetE(), c.dE);
        EXPECT_EQ(pPoint->GetZ(), c.dZ);
    }
}

TEST(PointFile, FormatIsThatOfTheFirstLineWithEnoughFields) {
    const struct {
        const char* pszCase;
        std::string content;
        wchar_t chSeparator;
        bool bHeader;
        int nPoints;
        Faults faults;
    } cases[] = {
        {"a title above the header",
         "job 7\r\n\r\nNAME;n;e\r\nP;1;2\r\n",
         L';',
         true,
         1,
         {{1, LineFault::TooFewFields}}},
        {"thousands between semicolons", "P;13,200.5;35,100.25;1\r\n", L';', false, 1, {}},
        {"semicolon in a name", "A;B,1,2,3\r\n", L',', false, 1, {}},
        {"commas further down", "P;1;2\r\nQ,1,2\r\n", L';', false, 1, {{2, LineFault::TooFewFields}}},
        {"E before N is no header of ours",
         "name,E,N,Z\r\nP,1,2\r\n",
         L',',
         false,
         1,
         {{1, LineFault::BadNumber}}},
        {"a bad first point is no header",
         "P,1o,2o,3\r\nQ,1,2\r\n",
         L',',
         false,
         1,
         {{1, LineFault::BadNumber}}},
        {"nothing to tell", "\r\n", L',', false, 0, {}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.pszCase);
        const CTestFile file(L"fieldbook-format.csv", c.content);
        CPointBook book;
        const CReadReport report = Read(file.GetPath(), book);
        EXPECT_EQ(report.format.chSeparator, c.chSeparator);
        EXPECT_EQ(report.format.bHeader, c.bHeader);
        EXPECT_EQ(FaultsOf(report), c.faults);
        EXPECT_EQ(book.GetCount(), c.nPoints);
    }
}

} // namespace
