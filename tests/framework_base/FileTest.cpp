#include "support/TempFolder.h"

#include <memory>

namespace {

struct File : TempFolder {};

TEST_F(File, OpenFlagsDecideOnMakingAndCutting) {
    // written: with these flags, nothing for reading
    for (const auto& [flags, before, written, after] : Rows<UINT, const char*, const char*, const char*>{
             {CFile::modeWrite, "12", "x", "x2"},
             {CFile::modeCreate | CFile::modeNoTruncate | CFile::modeWrite, "12", "x", "x2"},
             {CFile::modeCreate | CFile::modeNoTruncate | CFile::modeRead, "12", "", "12"},
             {CFile::modeCreate | CFile::modeWrite, "12", "x", "x"},
             {CFile::modeCreate | CFile::modeRead, "12", "", ""},
             {CFile::modeCreate | CFile::modeNoTruncate | CFile::modeWrite, nullptr, "x", "x"}}) {
        const CString path = before != nullptr ? Make(L"a", before) : Path(L"new");
        CFile(path, flags).Write(written, static_cast<UINT>(std::strlen(written)));
        EXPECT_EQ(after, Text(path)) << flags;
    }
}

TEST_F(File, FailuresToOpenAreReportedNotThrown) {
    CFile file;
    for (const auto& [path, flags, cause] : Rows<CString, UINT, int>{
             {Path(L"none"), CFile::modeRead, CFileException::fileNotFound},
             {CString(m_folder.c_str()), CFile::modeRead, CFileException::accessDenied}}) {
        CFileException error;
        EXPECT_FALSE(file.Open(path, flags, &error));
        EXPECT_EQ(cause, error.m_cause);
        EXPECT_GT(error.m_lOsError, 0);
        EXPECT_STREQ(path, error.m_strFileName);
        EXPECT_EQ(CFile::hFileNull, file.m_hFile);
        EXPECT_EQ(cause, CauseOf([&p = path, f = flags] { CFile(p, f); }));
    }
    EXPECT_FALSE(file.Open(nullptr, CFile::modeRead));
    EXPECT_NO_THROW((file.Flush(), file.Close(), file.Abort())); // not open
}

TEST_F(File, SharingKeepsOthersOut) {
    const CString path = Make(L"a", "1");
    CFile first;
    CFileException error;
    ASSERT_TRUE(first.Open(path, CFile::modeRead | CFile::shareExclusive));
    EXPECT_FALSE(CFile().Open(path, CFile::modeRead | CFile::shareDenyWrite, &error));
    EXPECT_EQ(CFileException::sharingViolation, error.m_cause);
    ASSERT_TRUE(first.Open(path, CFile::modeRead | CFile::shareDenyWrite)); // lets go of itself first
    EXPECT_TRUE(CFile().Open(path, CFile::modeRead | CFile::shareDenyWrite));
    EXPECT_FALSE(CFile().Open(path, CFile::modeReadWrite | CFile::shareDenyWrite));
    first.Close();
    EXPECT_EQ("1", Text(path));
    ASSERT_TRUE(first.Open(path, CFile::modeWrite | CFile::shareDenyNone));
    EXPECT_TRUE(CFile().Open(path, CFile::modeWrite | CFile::shareDenyNone));
}

TEST_F(File, ReadsWritesAndSeeks) {
    CFile file(Path(L"a"), kCreate);
    file.Write("abcdef", 6);
    file.Seek(2, CFile::begin);
    EXPECT_EQ(3U, file.Seek(1, CFile::current));
    EXPECT_EQ(5U, file.Seek(-1, CFile::end));
    char buffer[8] = {};
    EXPECT_EQ(1U, file.Read(buffer, 8));
    EXPECT_EQ(CFileException::badSeek, CauseOf([&] { file.Seek(-1, CFile::begin); }));
    file.SetLength(3);
    file.SetLength(4);
    file.Flush();
    EXPECT_EQ(4U, file.SeekToEnd());
    file.Close();
    EXPECT_EQ(std::string("abc\0", 4), Text(Path(L"a")));
}

struct Told : CFile {
    void SetFilePath(LPCTSTR path) override {
        m_told = path;
        CFile::SetFilePath(path);
    }
    CString m_told;
};

TEST_F(File, KnowsItsNames) {
    Told file;
    EXPECT_TRUE(file.Open(Path(L"x.y.txt"), kCreate));
    EXPECT_STREQ(Path(L"x.y.txt"), file.m_told);
    EXPECT_STREQ(L"x.y.txt", file.GetFileName());
    EXPECT_STREQ(L"x.y", file.GetFileTitle());
    for (const auto& [path, title] : {std::pair{L".hidden", L".hidden"}, {L"a.b", L"a"}}) {
        file.SetFilePath(path);
        EXPECT_STREQ(title, file.GetFileTitle());
    }
    file.Close();
    EXPECT_STREQ(L"", file.GetFilePath());
    CFileException error;
    file.Open(L"fieldkit-none", CFile::modeRead, &error);
    EXPECT_GT(error.m_strFileName.GetLength(), 14) << "the path must be complete";
}

TEST_F(File, NamesMayHaveAnyCharacters) {
    const CString path = Make(L"\u00E9\u6E2C\u70B9\U00020BB7.txt", "1");
    const auto expected = m_folder / u8"\u00E9\u6E2C\u70B9\U00020BB7.txt";
    EXPECT_TRUE(std::filesystem::exists(expected));
    CFile::Rename(path, Path(L"\x65B0"));
    EXPECT_EQ("1", Text(Path(L"\x65B0")));
}

TEST_F(File, RenameReplacesNothing) {
    const CString a = Make(L"a", "A"), b = Make(L"b", "B");
    EXPECT_EQ(CFileException::accessDenied, CauseOf([&] { CFile::Rename(a, b); }));
    EXPECT_EQ("B", Text(b));
    CFile::Remove(a);
    EXPECT_EQ(CFileException::fileNotFound, CauseOf([&] { CFile::Remove(a); }));
    EXPECT_THROW(CFile::Remove(nullptr), CInvalidArgException*);
    EXPECT_THROW(CFile::Rename(nullptr, a), CInvalidArgException*);
    EXPECT_THROW(CFile::Rename(a, nullptr), CInvalidArgException*);
}

TEST_F(File, HandlesAreClosedByTheirOwnerOnly) {
    const CString path = Make(L"a", "123");
    CFile file(path, CFile::modeRead | CFile::shareDenyNone);
    char c = 0;
    {
        CFile guest(static_cast<HANDLE>(file));
        guest.Read(&c, 1);
        CFile former(path, CFile::modeRead | CFile::shareDenyNone);
        former.Close();
        former.m_hFile = file.m_hFile; // not what it has opened
        CFile aborted(path, CFile::modeRead | CFile::shareDenyNone);
        aborted.Abort();
        EXPECT_STREQ(L"", aborted.GetFilePath());
        aborted.m_hFile = file.m_hFile;
        CFile failed(static_cast<HANDLE>(file));
        EXPECT_FALSE(failed.Open(Path(L"none"), CFile::modeRead));
        EXPECT_EQ(CFile::hFileNull, failed.m_hFile);
        EXPECT_TRUE(failed.GetFilePath().IsEmpty());
    }
    const std::unique_ptr<CFile> twin(file.Duplicate());
    EXPECT_STREQ(path, twin->GetFilePath());
    file.Close();
    twin->Read(&c, 1); // outlives the first, and shared its position
    EXPECT_EQ('2', c);
}

TEST_F(File, LockedRangesKeepOthersOut) {
    const CString path = Make(L"a", "123456");
    CFile file(path, CFile::modeReadWrite | CFile::shareDenyNone);
    file.SeekToEnd();
    file.LockRange(1, 3);
    for (const auto& [position, cause] : Rows<ULONGLONG, int>{
             {0, CFileException::none}, {3, CFileException::lockViolation}, {4, CFileException::none}})
        EXPECT_EQ(cause, CauseOfLocking(path, position, 1)) << position;
    file.UnlockRange(1, 3);
    EXPECT_EQ(CFileException::none, CauseOfLocking(path, 1, 3));
}

#ifdef _WIN32
TEST_F(File, OnlyFilesOnDiskAreOpened) {
    for (const LPCTSTR name :
         {L"NUL", L"nul", L"CON", L"PRN", L"COM1", L"LPT1", L"CONIN$", L"CONOUT$", L"//./NUL",
          LR"(\\.\pipe\fieldkit)", LR"(\\.\PhysicalDrive0)", LR"(\\.\C:)", LR"(\\?\C:)"}) {
        for (const UINT mode : {UINT{CFile::modeRead}, UINT{CFile::modeWrite}, kCreate}) {
            CFileException error;
            EXPECT_FALSE(CFile().Open(name, mode, &error)) << testing::PrintToString(name);
            EXPECT_NE(CFileException::none, error.m_cause);
        }
    }
    EXPECT_TRUE(CFile().Open(LR"(\\?\)" + Path(L"long"), kCreate)) << "the form for long paths";
}
#endif

} // namespace
