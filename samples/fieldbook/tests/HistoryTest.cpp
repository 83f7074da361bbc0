#include "points/History.h"

#include "TestFile.h"

#include <gtest/gtest.h>

namespace {

/// What Save writes is all that a history tells without a window.
std::string ContentOf(CHistory& history, const CTestFile& file) {
    EXPECT_TRUE(history.Save());
    return file.Read();
}

/// A good archive of something else.
std::string ArchiveOfAList(const CTestFile& file) {
    {
        CFile target(file.GetPath(), CFile::modeCreate | CFile::modeWrite);
        CArchive archive(&target, CArchive::store);
        CStringList list;
        list.AddTail(L"T1");
        archive << &list;
    }
    return file.Read();
}

struct History : testing::Test {
    const CTestFile m_file{L"fieldbook-history.dat"};
};

TEST_F(History, KeepsTheLastOfEachKindAndTwentyKinds) {
    CHistory all(m_file.GetPath()), last(m_file.GetPath());
    for (int i = 0; i < 50; ++i) {
        CString strName;
        strName.Format(L"%c%d", L'A' + i / 2, i);
        all.Add(strName);
        if (i > 10 && i % 2 != 0)
            last.Add(strName);
    }
    EXPECT_EQ(ContentOf(last, m_file), ContentOf(all, m_file));
}

TEST_F(History, AbsentAndDamagedFilesGiveAnEmptyOne) {
    CHistory empty(m_file.GetPath());
    const std::string nothing = ContentOf(empty, m_file);
    empty.Add(L"T1");
    const std::string whole = ContentOf(empty, m_file);

    std::vector<std::string> damaged = {"", std::string(1000, '\0'), std::string(1000, '\xff'),
                                        "T1,1,2,3\r\n", ArchiveOfAList(m_file)};
    for (size_t nLength = 1; nLength < whole.size(); ++nLength)
        damaged.push_back(whole.substr(0, nLength));
    for (const std::string& content : damaged) {
        m_file.Write(content);
        CHistory history(m_file.GetPath());
        history.Add(L"before");
        history.Load();
        EXPECT_EQ(nothing, ContentOf(history, m_file)) << content.size();
    }

    ::DeleteFile(m_file.GetPath());
    CHistory history(m_file.GetPath());
    history.Load();
    EXPECT_EQ(nothing, ContentOf(history, m_file));
}

} // namespace
