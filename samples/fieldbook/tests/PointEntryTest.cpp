#include "PointFile.h"

#include <gtest/gtest.h>

#include <string>

namespace {

constexpr wchar_t FILE_NAME[] = L"fieldbook-entry.csv";

class PointEntry : public testing::Test {
protected:
    void TearDown() override { ::DeleteFile(FILE_NAME); }

    static void Write(const std::string& content) {
        CFile file(FILE_NAME, CFile::modeCreate | CFile::modeWrite);
        file.Write(content.data(), static_cast<UINT>(content.size()));
    }

    static size_t ReadBack(CPointBook& book) {
        CAsciiFile file;
        EXPECT_TRUE(file.Open(FILE_NAME, CFile::modeRead));
        return ReadPoints(file, book).size();
    }
};

TEST_F(PointEntry, FieldsAreCheckedOneByOne) {
    const struct {
        const wchar_t* pszName;
        const wchar_t* pszN;
        const wchar_t* pszE;
        const wchar_t* pszZ;
        LineFault fault;
    } cases[] = {
        {L"P1", L"1", L"2", L"3", LineFault::None},       {L"P1", L"1,234.5", L"2", L" ", LineFault::None},
        {L" , ", L"1", L"2", L"3", LineFault::NoName},    {L"P1", L"", L"2", L"3", LineFault::BadNumber},
        {L"P1", L"1", L"2m", L"3", LineFault::BadNumber}, {L"P1", L"1", L"2", L"-", LineFault::BadNumber},
    };
    for (const auto& c : cases) {
        CNamedPoint point{L"old", CCoordinate()};
        EXPECT_EQ(ParsePoint(c.pszName, c.pszN, c.pszE, c.pszZ, point), c.fault);
        EXPECT_EQ(point.strName == L"old", c.fault != LineFault::None);
    }
}

TEST_F(PointEntry, PointsComeBackFromTheFileAsTheyWereEntered) {
    CNamedPoint stone;
    ASSERT_EQ(ParsePoint(L"境 界,7", L"-35300.1234", L"13200", L"24.5", stone), LineFault::None);
    CNamedPoint pole;
    ASSERT_EQ(ParsePoint(L"P2", L"0", L"-0.001", L"", pole), LineFault::None);
    AppendPoint(FILE_NAME, stone); // there is no file yet
    AppendPoint(FILE_NAME, pole);

    CPointBook book;
    EXPECT_EQ(ReadBack(book), 0U);
    const CCoordinate* pStone = book.Find(L"境界7");
    ASSERT_NE(pStone, nullptr);
    EXPECT_EQ(pStone->GetN(), -35300.1234);
    EXPECT_EQ(pStone->GetZ(), 24.5);
    const CCoordinate* pPole = book.Find(L"P2");
    ASSERT_NE(pPole, nullptr);
    EXPECT_EQ(pPole->GetE(), -0.001);
    EXPECT_FALSE(pPole->IsExistZ());
}

TEST_F(PointEntry, PointIsNotGluedToALineWithoutAnEnd) {
    Write("A,1,2\r\nB,3,4");
    AppendPoint(FILE_NAME, {L"C", CCoordinate(6, 5, 0, 1)});
    CPointBook book;
    EXPECT_EQ(ReadBack(book), 0U);
    EXPECT_EQ(book.GetCount(), 3);
    ASSERT_NE(book.Find(L"B"), nullptr);
    EXPECT_EQ(book.Find(L"B")->GetE(), 4);
}

} // namespace
