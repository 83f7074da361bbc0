#include "points/PointFile.h"
#include "points/PointLine.h"
#include "points/PointSaving.h"

#include "points/FileReplacement.h"

#include "testkit/Rows.h"

#include <gtest/gtest.h>

#include <string>

using fieldkit::survey::kNull;

using testkit::Rows;

namespace {

using Faults = std::vector<std::pair<int, LineFault>>;

Faults FaultsOf(const CReadReport& report) {
    Faults faults;
    for (const CBadLine& bad : report.badLines)
        faults.emplace_back(bad.nLine, bad.fault);
    return faults;
}

std::string Shipped(const wchar_t* pszName) {
    return ReadWholeFile(CString(FIELDBOOK_DATA) + L"/" + pszName);
}

std::string Saved(const std::vector<CNamedPoint>& points, CLineFormat format) {
    std::string bytes;
    CString strBad;
    EXPECT_TRUE(FormatFile(points, format, bytes, strBad));
    return bytes;
}

TEST(PointFile, ShippedFilesAreReadAndComeBackAsTheyWereSaved) {
    const Rows<const wchar_t*, int, const wchar_t*, double, double, double, Faults> cases = {
        {L"points.csv", 40, L"境界1", -35306.6, 13236.2, 23.994, {}},
        {L"boundary.csv", 8, L"K1", -35288, 13184, 24.512, {}},
        {L"boundary.csv", 8, L"境界7", -35290.25, kNull, kNull, {}},
        {L"levels.csv", 5, L"BM1", kNull, kNull, 25.204, {}},
        {L"stakes.csv", 4, L"No.10+12.5", -35286.475, 13192.225, kNull, {}},
        {L"utf8.csv", 5, L"消火栓", -35290.735, 13228.16, 23.994, {}},
        {L"lot.sim", 4, L"K3", -35312, 13216, 24.205, {}},
        {L"points_bad.csv",
         6,
         L"K2",
         -35285,
         13220,
         24.127,
         {{4, LineFault::TooFewFields},
          {6, LineFault::BadNumber},
          {9, LineFault::DuplicateName},
          {10, LineFault::NoName},
          {11, LineFault::TooManyFields},
          {12, LineFault::BadNumber},
          {14, LineFault::TooFewFields},
          {16, LineFault::NotTerminated}}},
    };
    for (const auto& [pszName, nPoints, pszPoint, dN, dE, dZ, faults] : cases) {
        SCOPED_TRACE(testing::Message() << pszName);
        CPointBook book;
        const CReadReport report = ReadPoints(DecodeText(Shipped(pszName)), book);
        EXPECT_EQ(faults, FaultsOf(report));
        EXPECT_EQ(nPoints, book.GetCount());
        const CCoordinate* const pPoint = book.Find(pszPoint);
        ASSERT_NE(nullptr, pPoint) << "is the OEM code page 932?";
        EXPECT_EQ(dN, pPoint->GetN());
        EXPECT_EQ(dE, pPoint->GetE());
        EXPECT_EQ(dZ, pPoint->GetZ());

        const std::string saved = Saved(book.GetPoints(), report.format);
        CPointBook again;
        const CReadReport reread = ReadPoints(DecodeText(saved), again);
        EXPECT_EQ(saved, Saved(again.GetPoints(), reread.format));
        EXPECT_EQ(nPoints, again.GetCount());
        EXPECT_TRUE(IsAsSaved(saved, report.format));
    }
}

/// One point in all these files: N 1, E 2, Z 3, code S; what is not there is left out.
TEST(PointFile, HeadingDecidesWhatIsInAColumnAndIsKept) {
    // pszSaved: as the file if null
    const Rows<const char*, const char*, const wchar_t*, const wchar_t*> cases = {
        {"name,N,E,Z\r\nP,1.000000,2.000000,3.000000\r\n", nullptr, L"PNEZ", nullptr},
        {"ID;easting;NORTHING\r\nP;2.000000;1.000000\r\n", nullptr, L"PEN", nullptr},
        {"Pt\tY (m)\tX (m)\tH[m]\tDesc\nP\t2.000000\t1.000000\t3.000000\tS\n", nullptr, L"PENZC", nullptr},
        {"code,\"point\",E,N\r\nS,\"P\",2.000000,1.000000\r\n", nullptr, L"CPEN", nullptr},
        {"job 7\r\nof May\r\nNo,name,n,e,date\r\n4,P,1.000000,2.000000,\"5,5\"\r\n", nullptr, L"OPNEO",
         nullptr},
        // Their saved form has what was not there before.
        {"P,1,2,3,S\r\n", "P,1.000000,2.000000,3.000000,S\r\n", L"PNEZC", L"P,1,2,3,S"},
        {"P,1,2\rQ,,,\r", "P,1.000000,2.000000,\rQ,,,\r", L"PNEZ", L"P,1,2"},
        {"what,ever,it,says\r\nP,1,2,3\r\n", "what,ever,it,says\r\nP,1.000000,2.000000,3.000000\r\n", L"PNEZ",
         L"what,ever,it,says"},
        {"Z00,job,\r\nA00,\r\nA01,7,P,1.000000,2.000000,3.000000,\r\nA99,\r\n", nullptr, L"OOPNEZC", nullptr},
        // A point may be called A01, too.
        {"name,N,E,Z\r\nA01,1.000000,2.000000,3.000000\r\nP,1.000000,2.000000,\r\n", nullptr, L"PNEZ",
         nullptr},
    };
    for (const auto& [pszFile, pszSaved, pszLetters, pszHeadingAsked] : cases) {
        SCOPED_TRACE(pszFile);
        CString strAsked;
        const CString strColumns = pszLetters;
        CReadHelp help;
        help.chooseColumns = [&](const auto& lines, bool, std::vector<Column>& columns) {
            for (const CString& strField : lines.front())
                strAsked += (strAsked.IsEmpty() ? L"" : L",") + strField;
            columns = ColumnsOf(strColumns);
            return true;
        };
        CPointBook book;
        const CReadReport report = ReadPoints(DecodeText(pszFile), book, help);
        EXPECT_EQ(Faults(), FaultsOf(report));
        EXPECT_STREQ(strColumns, LettersOf(report.format.columns));
        EXPECT_TRUE(strAsked == pszHeadingAsked);
        const CNamedPoint* const pPoint = book.FindPoint(L"P");
        ASSERT_NE(nullptr, pPoint);
        EXPECT_EQ(1, pPoint->point.GetN());
        EXPECT_EQ(2, pPoint->point.GetE());
        EXPECT_TRUE(!pPoint->point.IsExistZ() || pPoint->point.GetZ() == 3);
        EXPECT_STREQ((strColumns.Find(L'C') >= 0 && !report.format.bSima ? L"S" : L""), pPoint->strCode);
        EXPECT_EQ(pszSaved != nullptr ? pszSaved : pszFile, Saved(book.GetPoints(), report.format));
        EXPECT_EQ(pszSaved == nullptr, IsAsSaved(pszFile, report.format));
    }
}

TEST(PointFile, NoLineIsLostOrShifted) {
    const std::string point = "P,1,2\r\n";
    const Rows<const char*, std::string, int, Faults> cases = {
        {"empty file", "", 0, {}},
        {"blanks behind the last line", point + " \t\r\n \n", 1, {}},
        {"a heading behind line 1", point + "name,N,E,Z\r\n", 1, {{2, LineFault::BadNumber}}},
        {"511 characters", "P,1,2,," + std::string(510, 'c') + "\r\n", 1, {}},
        {"512 characters", "P,1,2,," + std::string(511, 'c') + "\r\n", 0, {{1, LineFault::TooLong}}},
        {"a bad first point is no heading", "P,1o,2o,3\r\nQ,1,2\r\n", 1, {{1, LineFault::BadNumber}}},
        {"thousands between semicolons", "P;13,200.5;35,100.25;1\r\n", 1, {}},
        {"commas further down", "P;1;2\r\nQ,1,2\r\n", 1, {{2, LineFault::TooFewFields}}},
        {"a code in a file without", "name,N,E\r\nP,1,2\r\nQ,1,2,3\r\n", 1, {{3, LineFault::TooManyFields}}},
        {"open quotes",
         "\"P,1,2,3\r\n\"Q\",1,2,3\r\n\"R\"x,1,2,3\r\n",
         1,
         {{1, LineFault::TooFewFields}, {3, LineFault::BadQuotes}}},
        {"quotes in a name", "\"a \"\"b\"\"\",1,2,3\r\n", 1, {}},
    };
    for (const auto& [pszCase, content, nPoints, faults] : cases) {
        SCOPED_TRACE(pszCase);
        CPointBook book;
        EXPECT_EQ(faults, FaultsOf(ReadPoints(DecodeText(content), book)));
        EXPECT_EQ(nPoints, book.GetCount());
    }
}

TEST(PointFile, WhatAFileHasNotGotIsAddedBehind) {
    CPointBook book;
    CReadReport report = ReadPoints(DecodeText("name;N;E\r\nP;1;2\r\n"), book);
    book.Add({L"Q", CCoordinate(4, 3, 5, 3), L"STONE"});
    EXPECT_EQ("name;N;E;Z;code\r\nP;1.000000;2.000000;;\r\n"
              "Q;3.000000;4.000000;5.000000;STONE\r\n",
              Saved(book.GetPoints(), report.format));
    report = ReadPoints(DecodeText("A01,7,R,1,2,3,\r\nA01,9,S,1,2,,\r\n"), book);
    EXPECT_NE(std::string::npos,
              Saved(book.GetPoints(), report.format).find("A01,10,P,1.000000,2.000000,,\r\n"))
        << "a point that is new there gets the next number";
}

TEST(PointFile, WhatWouldBeReadOtherwiseIsWrittenAnotherWay) {
    CLineFormat noHeading;
    noHeading.text = {Encoding::Utf8, LineEnd::Lf};
    const Rows<const char*, std::vector<CNamedPoint>, CLineFormat, const char*> cases = {
        {"a mark for a name",
         {{L"\xFEFFP", CCoordinate(2, 1, 0, 1)}},
         noHeading,
         "\xEF\xBB\xBF\xEF\xBB\xBFP,1.000000,2.000000,\n"},
        {"records for names",
         {{L"A01", CCoordinate(2, 1, 0, 1)}, {L"a01", CCoordinate(2, 1, 0, 1)}},
         NewFormat(),
         "\xEF\xBB\xBFname,N,E,Z,code\r\n\"A01\",1.000000,2.000000,,\r\n\"a01\",1.000000,2.000000,,\r\n"},
    };
    for (const auto& [pszCase, points, format, pszFile] : cases) {
        SCOPED_TRACE(pszCase);
        const std::string bytes = Saved(points, format);
        EXPECT_EQ(pszFile, bytes);
        CPointBook book;
        EXPECT_EQ(Faults(), FaultsOf(ReadPoints(DecodeText(bytes), book)));
        EXPECT_NE(nullptr, book.FindPoint(points.front().strName));
    }
}

TEST(PointFile, ExportHasTheChosenColumnsInTheirOrder) {
    const std::vector<CNamedPoint> points = {{L"境界1", CCoordinate(13236.2, -35306.6, 23.994, 3), L"S"},
                                             {L"電柱1", CCoordinate(13225.9, -35282.4, 0, 1)}};
    CLineFormat format = NewFormat();
    format.text = {Encoding::Utf8, LineEnd::Lf};
    format.chSeparator = L';';
    for (const auto& [pszColumns, bHeading, pszFile] : Rows<const wchar_t*, bool, const char*>{
             {L"E-Z", true, "E;;Z\n13236.200000;;23.994000\n13225.900000;;\n"},
             {L"CN", false, "S;-35306.600000\n;-35282.400000\n"}}) {
        format.bHeading = bHeading;
        std::string bytes;
        CString strBad;
        EXPECT_TRUE(FormatPoints(points, ExportFormat(ColumnsOf(pszColumns), format), bytes, strBad));
        EXPECT_EQ(pszFile, bytes);
    }
}

TEST(PointFile, PointThatAFileCannotHoldIsNamed) {
    const CNamedPoint cases[] = {
        {CString(L'n', 65), CCoordinate(1, 2, 0, 1)},
        {L"\x263A", CCoordinate(1, 2, 0, 1)},
        {L"P", CCoordinate(1, 1e300, 0, 1)},
        {L"Q", CCoordinate(1, 2, 0, 1), L"\x263A"},
        {L"R", CCoordinate(1, 2, 0, 1), L"two\r\nlines"},
        {L"S", CCoordinate(1, 2, 0, 1), CString(L'c', 511)},
    };
    for (const CNamedPoint& point : cases) {
        std::string bytes = "old";
        CString strBad;
        CLineFormat format = NewFormat();
        EXPECT_FALSE(FormatFile({point}, format, bytes, strBad));
        EXPECT_TRUE(strBad == point.strName);
        EXPECT_EQ("old", bytes);
    }
}

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
        {L"5", L"", L"", 5, kNull, kNull},
        {L" ", L"\t", L"7", kNull, kNull, 7},
        {L"0", L"0", L"", 0, 0, kNull}, // zero is a value
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
