#include "screens/JobFile.h"
#include "TestFile.h"
#include "WindowCloser.h"

#include <gtest/gtest.h>

namespace {

constexpr char GOOD_FILE[] = "A,1.000000,2.000000,3.000000\r\nB,4.000000,5.000000,\r\n";
constexpr char BAD_FILE[] = "A,1,2,3\r\nB,4\r\n";

class JobFile : public testing::Test {
protected:
    void SetUp() override {
        AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), SW_SHOWNORMAL);
        m_parent.CreateEx(0, L"STATIC", L"", WS_POPUP, CRect(0, 0, 1, 1), nullptr, 0);
    }
    void TearDown() override { m_parent.DestroyWindow(); }

    CWnd m_parent;
    CJob m_job{L"no-history.dat"};
    CWindowCloser m_closer; // of whatever the user is told
};

TEST_F(JobFile, FileThatCannotBeReadLeavesTheJobAsItWas) {
    const CTestFile file(L"fieldbook-job.csv", GOOD_FILE);
    ASSERT_TRUE(OpenPointsFile(m_job, file.GetPath(), m_parent));
    EXPECT_FALSE(m_job.book.IsModified());
    m_job.book.Remove(L"A");
    EXPECT_FALSE(OpenPointsFile(m_job, L"fieldbook-no-such.csv", m_parent));
    EXPECT_TRUE(m_job.strPath == file.GetPath());
    EXPECT_EQ(m_job.book.GetCount(), 1);
    EXPECT_TRUE(m_job.book.IsModified());
}

TEST_F(JobFile, UnreadLinesAreKeptBeforeTheFirstSavingOnly) {
    const CTestFile file(L"fieldbook-job.csv", BAD_FILE);
    const CString strBackup = file.GetPath() + L".bak";
    ASSERT_TRUE(OpenPointsFile(m_job, file.GetPath(), m_parent));
    ASSERT_EQ(m_job.badLines.size(), 1U);
    EXPECT_TRUE(SavePointsFile(m_job, L".\\fieldbook-JOB.csv")) << "the same file by another path";
    EXPECT_EQ(CTestFile::ReadFrom(strBackup), BAD_FILE);

    ::DeleteFile(strBackup);
    EXPECT_TRUE(SavePointsFile(m_job, file.GetPath()));
    EXPECT_FALSE(CTestFile::Exists(strBackup));
}

TEST_F(JobFile, UnreadLinesCountForTheirOwnFileOnly) {
    const CTestFile file(L"fieldbook-job.csv", BAD_FILE);
    const CTestFile other(L"fieldbook-other.csv", GOOD_FILE);
    ASSERT_TRUE(OpenPointsFile(m_job, file.GetPath(), m_parent));
    EXPECT_TRUE(SavePointsFile(m_job, other.GetPath()));
    EXPECT_TRUE(m_job.strPath == other.GetPath());
    EXPECT_FALSE(CTestFile::Exists(other.GetPath() + L".bak"));
    EXPECT_EQ(file.Read(), BAD_FILE);
}

TEST_F(JobFile, PointsThatAreNotWrittenStayUnsaved) {
    m_job.book.Add({L"A", CCoordinate(2, 1, 0, 1)});
    EXPECT_FALSE(SavePointsFile(m_job, L"fieldbook-no-folder\\points.csv"));
    EXPECT_FALSE(MakePointsFile(m_job, L"fieldbook-no-folder\\points.csv"));
    EXPECT_TRUE(m_job.book.IsModified());
    EXPECT_EQ(m_job.book.GetCount(), 1);
    EXPECT_TRUE(m_job.strPath.IsEmpty());
}

} // namespace
