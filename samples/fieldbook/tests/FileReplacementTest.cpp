#include "points/FileReplacement.h"

#include "TestFile.h"

#include <gtest/gtest.h>

namespace {

constexpr char OLD[] = "all that was measured\r\n";

/// @return the cause of the exception; none if there was none
int CauseOf(const CString& strPath, const std::function<void(CFile&)>& write) {
    try {
        RewriteFile(strPath, write);
    } catch (CFileException* pError) {
        const int nCause = pError->m_cause;
        EXPECT_TRUE(pError->m_strFileName == strPath) << "the user knows the file by this name only";
        pError->Delete();
        return nCause;
    }
    return CFileException::none;
}

void WriteNew(CFile& file) {
    file.Write("new\r\n", 5);
}

struct FileReplacement : testing::Test {
    void ExpectOldFileAlone() const {
        EXPECT_EQ(m_file.Read(), OLD);
        EXPECT_FALSE(CTestFile::Exists(m_file.GetPath() + L".new"));
    }

    const CTestFile m_file{L"fieldbook-replaced.txt", OLD};
};

TEST_F(FileReplacement, NewFileTakesTheOldOnesPlace) {
    RewriteFile(m_file.GetPath(), [this](CFile& file) {
        file.Write("new\r\n", 5);
        EXPECT_EQ(m_file.Read(), OLD) << "whole until the new one is complete";
    });
    EXPECT_EQ(m_file.Read(), "new\r\n");
    EXPECT_FALSE(CTestFile::Exists(m_file.GetPath() + L".new"));

    ::DeleteFile(m_file.GetPath());
    RewriteFile(m_file.GetPath(), WriteNew);
    EXPECT_EQ(m_file.Read(), "new\r\n") << "where there was none";
}

TEST_F(FileReplacement, FullDiskLeavesTheOldFile) {
    const int nCause = CauseOf(m_file.GetPath(), [this](CFile& file) {
        file.Write("half", 4);
        AfxThrowFileException(CFileException::diskFull, ERROR_DISK_FULL, file.GetFilePath());
    });
    EXPECT_EQ(nCause, CFileException::diskFull);
    ExpectOldFileAlone();
}

TEST_F(FileReplacement, ReadOnlyFileIsLeftAlone) {
    ASSERT_TRUE(::SetFileAttributes(m_file.GetPath(), FILE_ATTRIBUTE_READONLY));
    EXPECT_EQ(CauseOf(m_file.GetPath(), WriteNew), CFileException::accessDenied);
    ExpectOldFileAlone();
}

TEST_F(FileReplacement, FileThatIsOpenElsewhereIsLeftAlone) {
    {
        const CFile other(m_file.GetPath(), CFile::modeRead | CFile::shareDenyWrite);
        EXPECT_NE(CauseOf(m_file.GetPath(), WriteNew), CFileException::none);
    }
    ExpectOldFileAlone();
}

TEST_F(FileReplacement, NameThatCannotBeUsedStopsItBeforeAnythingHappens) {
    const CString strInTheWay = m_file.GetPath() + L".new";
    ASSERT_TRUE(::CreateDirectory(strInTheWay, nullptr));
    EXPECT_NE(CauseOf(m_file.GetPath(), WriteNew), CFileException::none);
    EXPECT_EQ(m_file.Read(), OLD);
    EXPECT_TRUE(CTestFile::Exists(strInTheWay)) << "what others have made stays";

    EXPECT_EQ(CauseOf(L"no such folder\\points.csv", WriteNew), CFileException::badPath);
}

TEST_F(FileReplacement, RestOfACrashIsWrittenOver) {
    const CTestFile rest(m_file.GetPath() + L".new", "a long half of a file that never became whole");
    RewriteFile(m_file.GetPath(), WriteNew);
    EXPECT_EQ(m_file.Read(), "new\r\n");
}

TEST_F(FileReplacement, BackupHoldsTheFileByteForByte) {
    const CTestFile backup(m_file.GetPath() + L".bak", "older");
    ASSERT_TRUE(KeepBackup(m_file.GetPath()));
    EXPECT_EQ(backup.Read(), OLD);
    EXPECT_TRUE(!KeepBackup(L"no such file.csv") && !CTestFile::Exists(L"no such file.csv.bak"));
}

} // namespace
