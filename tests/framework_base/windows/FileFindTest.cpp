#include "afxwin.h"

#include <gtest/gtest.h>

namespace {

TEST(FileFind, GoesThroughAFolderAndStatusComesBack) {
    const CString folder = L"find_here";
    ::CreateDirectory(folder, nullptr);
    for (const LPCTSTR name : {L"a.txt", L"b.txt", L"c.dat"})
        CFile(folder + L"\\" + name, CFile::modeCreate | CFile::modeWrite).Write("abc", 3);
    CFileFind find;
    EXPECT_THROW(find.GetFileName(), CInvalidArgException*);
    CString found;
    for (BOOL more = find.FindFile(folder + L"\\*.txt"); more;) {
        more = find.FindNextFile();
        found += find.GetFileTitle();
        EXPECT_EQ(3, find.GetLength());
        EXPECT_FALSE(find.IsDirectory());
        EXPECT_FALSE(find.IsDots());
        EXPECT_EQ(find.GetRoot() + find.GetFileName(), find.GetFilePath());
        EXPECT_EQ(L"\\find_here\\", find.GetRoot().Right(11));
    }
    EXPECT_TRUE(found == L"ab" || found == L"ba");
    EXPECT_FALSE(find.FindFile(folder + L"\\*.none"));

    CFileStatus status;
    const CString path = folder + L"\\a.txt";
    ASSERT_TRUE(CFile::GetStatus(path, status));
    EXPECT_EQ(3, status.m_size);
    EXPECT_EQ(L"find_here\\a.txt", CString(status.m_szFullName).Right(15));
    status.m_mtime = CTime(2020, 5, 6, 7, 8, 9);
    status.m_attribute |= CFile::readOnly;
    CFile::SetStatus(path, status);
    CFileStatus again;
    ASSERT_TRUE(CFile(path, CFile::modeRead).GetStatus(again));
    EXPECT_EQ(status.m_mtime, again.m_mtime);
    EXPECT_NE(0, again.m_attribute & CFile::readOnly);
    status.m_attribute = 0;
    CFile::SetStatus(path, status); // although it was read-only
    SYSTEMTIME st{};
    EXPECT_TRUE(again.m_mtime.GetAsSystemTime(st));
    EXPECT_EQ(CTime(st), again.m_mtime);
    EXPECT_EQ(3, st.wDayOfWeek);
    EXPECT_FALSE(CFile::GetStatus(folder + L"\\none", status));
    EXPECT_THROW(CFile::SetStatus(folder + L"\\none", status), CFileException*);
    for (const LPCTSTR name : {L"a.txt", L"b.txt", L"c.dat"})
        CFile::Remove(folder + L"\\" + name);
    ::RemoveDirectory(folder);
}

TEST(StringOfWindows, MessagesAndVariables) {
    CString s;
    s.FormatMessage(L"%2!d! of %1", CString(L"three"), 5);
    EXPECT_STREQ(L"5 of three", s);
    ::SetEnvironmentVariable(L"FIELDKIT_TEST", CString(L'v', 300));
    EXPECT_TRUE(s.GetEnvironmentVariable(L"FIELDKIT_TEST"));
    EXPECT_EQ(CString(L'v', 300), s);
    EXPECT_FALSE(s.GetEnvironmentVariable(L"FIELDKIT_NONE"));
    EXPECT_TRUE(s.IsEmpty());
    CStringA oem("\x82\xA0");
    oem.AnsiToOem();
    oem.OemToAnsi();
    EXPECT_STREQ("\x82\xA0", oem);
}

} // namespace
