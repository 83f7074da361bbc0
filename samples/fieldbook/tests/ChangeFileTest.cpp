#include "points/ChangeFile.h"

#include "TestFile.h"

#include "testkit/Rows.h"

#include <gtest/gtest.h>

using testkit::Rows;

namespace {

CNamedPoint At(const wchar_t* pszName, double dN) {
    CNamedPoint point{pszName, CCoordinate(2, dN, 0, 1), L"石\t1", {L"a,b", L""}};
    return point;
}

/// A record of three changes to a file with the hash 1, saved after two of them as 2.
std::string Record() {
    CPointBook book;
    std::string bytes = BaseLine(1);
    int nChanges = 0;
    book.SetObserver([&](const CPointChange& change) {
        bytes += ChangeLine(change);
        bytes += ++nChanges == 2 ? SavedLine(2) : "";
    });
    book.Add(At(L"境界1", 0.1));
    book.Replace(L"境界1", At(L"K1", 1 / 3.0));
    book.Remove(L"K1");
    return bytes;
}

TEST(ChangeLog, RecordIsReadUpToTheFirstLineThatIsNotWhole) {
    const std::string whole = Record();
    const CChangeRecord all = ReadChanges(whole);
    EXPECT_EQ(whole.size(), all.nGoodBytes);
    ASSERT_EQ(3U, all.changes.size());
    EXPECT_STREQ(L"境界1", all.changes[0].after.strName);
    EXPECT_STREQ(L"石 1", all.changes[1].after.strCode) << "a tab would end the field";
    EXPECT_EQ(1 / 3.0, all.changes[1].after.point.GetN()) << "to the last bit";
    EXPECT_EQ(2U, all.changes[1].after.others.size());
    for (size_t nCut = 0; nCut < whole.size(); ++nCut) {
        const CChangeRecord cut = ReadChanges(whole.substr(0, nCut) + "\xE6");
        EXPECT_LE(cut.nGoodBytes, nCut);
        EXPECT_LT(cut.changes.size() + cut.saved.size(), 4U);
        std::string wrong = whole;
        wrong[nCut] ^= 1;
        EXPECT_LT(ReadChanges(wrong).nGoodBytes, nCut + 1) << "a line with a wrong byte counts for nothing";
    }
}

TEST(ChangeLog, ChangesThatTheFileHasAreNotRepeated) {
    const Rows<std::uint64_t, bool, size_t> cases = {{1, true, 0}, {2, true, 2}, {3, false, 0}};
    for (const auto& [nHash, bFits, nWanted] : cases) {
        size_t nFirst = 9;
        EXPECT_EQ(bFits, ReadChanges(Record()).FitsTo(nHash, nFirst));
        EXPECT_EQ(nWanted, nFirst);
    }
}

struct ChangeFile : testing::Test {
    void SetUp() override {
        ::CreateDirectory(L"own", nullptr);
        Restart();
        m_pFile->Begin(1);
    }
    void TearDown() override { m_pFile->Begin(1); }

    void Restart() {
        m_pFile.reset();
        m_pFile = std::make_unique<CChangeFile>(L"own");
        ASSERT_TRUE(m_pFile->Claim(m_points.GetPath()));
    }
    void Add(const wchar_t* pszName) { m_pFile->Append({{CPointChange::Kind::Add, 0, {}, At(pszName, 1)}}); }
    /// The names of points that were added and are in no file, after a restart that goes on with them.
    CString Left(std::uint64_t nHash = 1) {
        Restart();
        const std::optional<CLeftChanges> left = m_pFile->FindLeft(m_points.GetPath(), nHash);
        CString strNames;
        if (!left)
            return strNames;
        for (const CPointChange& change : left->changes)
            strNames += change.after.strName;
        m_pFile->Resume(*left);
        return strNames;
    }

    const CTestFile m_points{L"fieldbook-changes.csv", ""}, m_record{L"fieldbook-changes.csv.changes"};
    std::unique_ptr<CChangeFile> m_pFile;
};

TEST_F(ChangeFile, ChangesAreThereAfterARestartUntilTheFileHasThem) {
    EXPECT_TRUE(Left().IsEmpty());
    EXPECT_FALSE(CTestFile::Exists(m_record.GetPath())) << "nothing to record";
    Add(L"A");
    Add(L"B");
    EXPECT_STREQ(L"AB", Left());
    Add(L"C");
    EXPECT_STREQ(L"ABC", Left());
    m_pFile->AppendSaving(2);
    EXPECT_STREQ(L"ABC", Left()) << "the file was not written";
    EXPECT_TRUE(Left(2).IsEmpty()) << "the file was written, but nobody could tell the record";
    Restart();
    m_pFile->Begin(2);
    Add(L"D");
    EXPECT_STREQ(L"D", Left(2));
    EXPECT_FALSE(m_pFile->FindLeft(m_points.GetPath(), 7)->bFits) << "another file by the same name";
}

TEST_F(ChangeFile, RecordGoesOnInTheOwnFolderIfItMust) {
    Add(L"A");
    Restart();
    ASSERT_TRUE(Left() == L"A");
    m_pFile->PutAside();
    ASSERT_TRUE(::CreateDirectory(m_record.GetPath(), nullptr));
    Add(L"B");
    ASSERT_TRUE(::RemoveDirectory(m_record.GetPath()));
    EXPECT_STREQ(L"AB", Left()) << "all of it";
    EXPECT_FALSE(CTestFile::Exists(m_record.GetPath()));
    ::DeleteFile(m_record.GetPath() + L".old");
}

TEST_F(ChangeFile, OneProgramAloneHasTheRecord) {
    CChangeFile other(L"own");
    EXPECT_FALSE(other.IsFree(L".\\fieldbook-CHANGES.csv"));
    EXPECT_FALSE(other.Claim(m_points.GetPath()));
    EXPECT_TRUE(m_pFile->IsFree(m_points.GetPath()));
    EXPECT_TRUE(m_pFile->Claim(m_points.GetPath())) << "one's own, once more";
    m_pFile.reset();
    EXPECT_TRUE(other.IsFree(m_points.GetPath()));
    Restart();
}

} // namespace
