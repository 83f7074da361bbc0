#include "points/FileReplacement.h"

#include "TestFile.h"

#include <gtest/gtest.h>

namespace {

constexpr char OLD[] = "all that was measured\r\n";

void WriteNew(CFile& file) {
    file.Write("new\r\n", 5);
}

struct FileReplacement : testing::Test {
    /// @return the cause of the exception; none if there was none
    int CauseOf(const CString& strPath, const std::function<void(CFile&)>& write) const {
        int nCause = CFileException::none;
        try {
            RewriteFile(strPath, write);
        } catch (CFileException* pError) {
            nCause = pError->m_cause;
            EXPECT_STREQ(strPath, pError->m_strFileName) << "the user knows the file by this name only";
            pError->Delete();
        }
        return nCause;
    }
    bool IsNewThere() const { return CTestFile::Exists(m_file.GetPath() + L".new"); }

    const CTestFile m_file{L"fieldbook-replaced.txt", OLD};
};

TEST_F(FileReplacement, NewFileTakesTheOldOnesPlace) {
    RewriteFile(m_file.GetPath(), [this](CFile& file) {
        WriteNew(file);
        EXPECT_EQ(OLD, m_file.Read()) << "whole until the new one is complete";
    });
    EXPECT_EQ("new\r\n", m_file.Read());
    EXPECT_FALSE(IsNewThere());

    ::DeleteFile(m_file.GetPath());
    RewriteFile(m_file.GetPath(), WriteNew);
    EXPECT_EQ("new\r\n", m_file.Read()) << "where there was none";
}

TEST_F(FileReplacement, FileThatCannotBeReplacedIsLeftAlone) {
    EXPECT_EQ(CFileException::diskFull, CauseOf(m_file.GetPath(), [](CFile& file) {
                  file.Write("half", 4);
                  AfxThrowFileException(CFileException::diskFull, ERROR_DISK_FULL, file.GetFilePath());
              }));
    EXPECT_EQ(OLD, m_file.Read());
    EXPECT_FALSE(IsNewThere());
    ASSERT_TRUE(::SetFileAttributes(m_file.GetPath(), FILE_ATTRIBUTE_READONLY));
    EXPECT_EQ(CFileException::accessDenied, CauseOf(m_file.GetPath(), WriteNew));
    EXPECT_EQ(OLD, m_file.Read());
    ::SetFileAttributes(m_file.GetPath(), FILE_ATTRIBUTE_NORMAL);
    {
        const CFile other(m_file.GetPath(), CFile::modeRead | CFile::shareDenyWrite);
        EXPECT_NE(CFileException::none, CauseOf(m_file.GetPath(), WriteNew));
    }
    EXPECT_EQ(OLD, m_file.Read());
    EXPECT_FALSE(IsNewThere());
    ASSERT_TRUE(::CreateDirectory(m_file.GetPath() + L".new", nullptr));
    EXPECT_NE(CFileException::none, CauseOf(m_file.GetPath(), WriteNew));
    EXPECT_EQ(OLD, m_file.Read());
    EXPECT_TRUE(IsNewThere()) << "what others have made stays";
    EXPECT_EQ(CFileException::badPath, CauseOf(L"no such folder\\points.csv", WriteNew));
}

TEST_F(FileReplacement, RestOfACrashIsWrittenOver) {
    const CTestFile rest(m_file.GetPath() + L".new", "a long half of a file that never became whole");
    RewriteFile(m_file.GetPath(), WriteNew);
    EXPECT_EQ("new\r\n", m_file.Read());
}

TEST_F(FileReplacement, BackupHoldsTheFileByteForByte) {
    const CTestFile backup(m_file.GetPath() + L".bak", "older");
    ASSERT_TRUE(KeepBackup(m_file.GetPath()));
    EXPECT_EQ(OLD, backup.Read());
    EXPECT_FALSE(KeepBackup(L"no such file.csv"));
    EXPECT_FALSE(CTestFile::Exists(L"no such file.csv.bak"));
}

} // namespace
