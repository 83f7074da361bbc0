#include "points/PointFile.h"

#include "TestFile.h"

#include <gtest/gtest.h>

namespace {

CReadReport Read(const CString& strPath, CPointBook& book) {
    CAsciiFile file;
    EXPECT_TRUE(file.Open(strPath, CFile::modeRead));
    return ReadPoints(file, book);
}

TEST(PointSave, EveryKindOfFileComesBackAsItWasSaved) {
    for (const wchar_t* pszName : {L"points.csv", L"boundary.csv", L"levels.csv", L"stakes.csv"}) {
        SCOPED_TRACE(testing::Message() << pszName);
        CPointBook book;
        const CReadReport original = Read(CString(FIELDBOOK_DATA) + L"/" + pszName, book);
        const CTestFile file(L"fieldbook-saved.csv");
        SavePoints(file.GetPath(), book, original.format);

        CPointBook saved;
        const CReadReport report = Read(file.GetPath(), saved);
        EXPECT_TRUE(report.badLines.empty());
        EXPECT_EQ(report.format.chSeparator, original.format.chSeparator);
        EXPECT_EQ(report.format.bHeader, original.format.bHeader);
        ASSERT_EQ(saved.GetCount(), book.GetCount());
        for (size_t i = 0; i < book.GetPoints().size(); ++i) {
            const CNamedPoint& expected = book.GetPoints()[i];
            const CNamedPoint& actual = saved.GetPoints()[i];
            EXPECT_TRUE(actual.strName == expected.strName) << i;
            EXPECT_EQ(actual.point.GetN(), expected.point.GetN()) << i;
            EXPECT_EQ(actual.point.GetE(), expected.point.GetE()) << i;
            EXPECT_EQ(actual.point.GetZ(), expected.point.GetZ()) << i;
        }
    }
}

TEST(PointSave, FileIsWrittenInItsFormat) {
    CPointBook book;
    book.Add({L"T1", CCoordinate(13225.5, -35345, 24.318, 3)}); // E, N, Z
    book.Add({L"P", CCoordinate()});
    const struct {
        CLineFormat format;
        const char* pszContent;
    } cases[] = {
        {{L',', false}, "T1,-35345.000000,13225.500000,24.318000\r\nP,,,\r\n"},
        {{L';', true}, "name;N;E;Z\r\nT1;-35345.000000;13225.500000;24.318000\r\nP;;;\r\n"},
    };
    for (const auto& c : cases) {
        const CTestFile file(L"fieldbook-saved.csv", "old");
        SavePoints(file.GetPath(), book, c.format);
        EXPECT_EQ(file.Read(), c.pszContent);
    }
}

TEST(PointSave, PointThatAFileCannotHoldLosesNothing) {
    const CNamedPoint cases[] = {
        {CString(L'n', 65), CCoordinate(1, 2, 0, 1)},
        {L"\x263A", CCoordinate(1, 2, 0, 1)},
        {L"P", CCoordinate(1, 1e300, 0, 1)},
    };
    for (const CNamedPoint& point : cases) {
        const CTestFile file(L"fieldbook-saved.csv", "old");
        CPointBook book;
        book.Add(point);
        bool bTold = false;
        try {
            SavePoints(file.GetPath(), book, {});
        } catch (CFileException* pError) {
            pError->Delete();
            bTold = true;
        }
        EXPECT_TRUE(bTold);
        EXPECT_EQ(file.Read(), "old");
    }
}

TEST(PointSave, BackupHoldsTheFileByteForByte) {
    const std::string content = std::string(10'000, 'n') + "\r\nP,1,2\r\nno end";
    const CTestFile file(L"fieldbook-backup.csv", content);
    ASSERT_TRUE(KeepBackup(file.GetPath()));
    EXPECT_EQ(CTestFile::ReadFrom(file.GetPath() + L".bak"), content);

    file.Write("later");
    ASSERT_TRUE(KeepBackup(file.GetPath()));
    EXPECT_EQ(CTestFile::ReadFrom(file.GetPath() + L".bak"), "later");

    EXPECT_FALSE(KeepBackup(L"no such file.csv"));
    EXPECT_FALSE(CTestFile::Exists(L"no such file.csv.bak"));
}

} // namespace
