#include "PointFile.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using Faults = std::vector<std::pair<int, LineFault>>;

Faults Read(CAsciiFile& file, CPointBook& book) {
    Faults faults;
    for (const CBadLine& bad : ReadPoints(file, book))
        faults.emplace_back(bad.nLine, bad.fault);
    return faults;
}

Faults ReadShipped(const wchar_t* pszName, CPointBook& book) {
    CAsciiFile file;
    if (!file.Open(CString(FIELDBOOK_DATA) + L"/" + pszName, CFile::modeRead)) {
        ADD_FAILURE() << "cannot open the shipped file";
        return {};
    }
    return Read(file, book);
}

/// A file of the working folder, removed at the end.
class CTempFile {
public:
    explicit CTempFile(const std::string& content) {
        CFile file(NAME, CFile::modeCreate | CFile::modeWrite);
        file.Write(content.data(), static_cast<UINT>(content.size()));
    }
    ~CTempFile() { CFile::Remove(NAME); }
    static constexpr wchar_t NAME[] = L"fieldbook-test.csv";
};

TEST(PointFile, ShippedPointsAreReadWithoutAnyFault) {
    CPointBook book;
    EXPECT_EQ(ReadShipped(L"points.csv", book), Faults());
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
    EXPECT_EQ(ReadShipped(L"points_bad.csv", book), expected);
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
        {"511 bytes", std::string(505, 'n') + ",1,2,3\r\n" + "Q,1,2\r\n", 2, {}},
        {"512 bytes", std::string(506, 'n') + ",1,2,3\r\n" + "Q,1,2\r\n", 1, {{1, LineFault::TooLong}}},
        {"several buffers", std::string(5000, 'n') + "\r\n" + point, 1, {{1, LineFault::TooLong}}},
        {"long and never ended", point + std::string(2000, 'n'), 1, {{2, LineFault::TooLong}}},
        {"512 bytes to the end", point + std::string(512, 'n'), 1, {{2, LineFault::NotTerminated}}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.pszCase);
        const CTempFile content(c.content);
        CAsciiFile file;
        ASSERT_TRUE(file.Open(CTempFile::NAME, CFile::modeRead));
        CPointBook book;
        EXPECT_EQ(Read(file, book), c.faults);
        EXPECT_EQ(book.GetCount(), c.nPoints);
    }
}

} // namespace
