#include "support/ArchiveBytes.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

constexpr UINT kNew = CFile::modeCreate | CFile::modeReadWrite | CFile::shareDenyNone;
const LPCTSTR kName = L"stdio.txt";

struct StdioFile : testing::Test {
    void SetUp() override { std::filesystem::remove(kName); }
    void TearDown() override { SetUp(); }
    static Bytes OnDisk() {
        CFile file(kName, CFile::modeRead | CFile::shareDenyNone);
        return ContentOf(file);
    }
};

TEST_F(StdioFile, LinesHaveTheirEndsInTheFile) {
    CStdioFile file(kName, kNew);
    file.WriteString(L"one\n\ntwo");
    EXPECT_TRUE(file.GetPosition() == 10 && file.GetLength() == 10);
    file.Flush();
    EXPECT_EQ("6f 6e 65 0d 0a 0d 0a 74 77 6f", ToHex(OnDisk()));
    file.SeekToBegin();
    CString line = L"old";
    TCHAR text[3];
    EXPECT_STREQ(L"on", file.ReadString(text, 3));
    EXPECT_TRUE(file.GetPosition() == 2 && file.GetLength() == 10 && file.ReadString(line) && line == L"e");
    EXPECT_STREQ(L"\n", file.ReadString(text, 3));
    file.Write("!", 1); // where reading stopped
    EXPECT_EQ(10U, file.GetLength());
    EXPECT_TRUE(file.ReadString(line) && line == L"wo");
    file.SeekToBegin();
    char bytes[20] = {};
    EXPECT_EQ(8U, file.Read(bytes, 20));
    EXPECT_STREQ("one\n\n!wo", bytes);
    EXPECT_TRUE(!file.ReadString(line) && line.IsEmpty() && file.ReadString(text, 3) == nullptr);
    file.SetLength(2);
    EXPECT_EQ("6f 6e", ToHex(OnDisk()));
}

TEST_F(StdioFile, ReadsWhateverIsThere) {
    for (const auto& [hex, mode, wanted] : Rows<const char*, UINT, std::vector<LPCTSTR>>{
             {"61 0d 62 0d 0d 0a 63 0d", CFile::typeText, {L"a\rb\r", L"c\r"}},
             {"61 0a 62", CFile::typeText, {L"a", L"b"}},
             {"61 1a 62", CFile::typeText, {L"a"}}, // Ctrl+Z
             {"61 00 1a 00 0d 00 0a 00 62 00 63", CFile::typeBinary, {L"a\x1A\r", L"b"}},
#ifdef _WIN32
             {"82 a0 b1 0a 82 0d 0a 61", CFile::typeText, {L"\x3042\xFF71", L"\x30FB", L"a"}},
#else
             {"c3 a9 e3 81 82 f0 9f 98 80 0a 62", CFile::typeText, {L"\xE9\x3042\U0001F600", L"b"}},
             {"e3 81 0d 0a c3 41 f0 9f", CFile::typeText, {L"\xFFFD", L"\xFFFD\x41\xFFFD"}}, // damaged
#endif
         }) {
        SCOPED_TRACE(hex);
        const Bytes bytes = FromHex(hex);
        CFile(kName, kNew).Write(bytes.data(), static_cast<UINT>(bytes.size()));
        CStdioFile file(kName, CFile::modeRead | mode);
        CString line;
        for (const LPCTSTR expected : wanted) {
            EXPECT_TRUE(file.ReadString(line));
            EXPECT_STREQ(expected, line);
        }
        EXPECT_FALSE(file.ReadString(line));
    }
}

TEST_F(StdioFile, ADamagedCharacterDoesNotPassTheCallersMemory) {
    CFile(kName, kNew).Write("\xE3!\n", 3);
    CStdioFile file(kName, CFile::modeRead);
    TCHAR text[] = L"??";
    EXPECT_EQ(text, file.ReadString(text, 2));
    EXPECT_TRUE(text[0] > 0x7F && text[1] == L'\0');
    EXPECT_STREQ(L"!", file.ReadString(text, 2));
}

TEST_F(StdioFile, BinaryKeepsCharactersAsTheyAre) {
    CStdioFile file(kName, kNew | CFile::typeBinary);
    file.WriteString(L"\xFEFFz\r\n");
    file.Write("\n", 1);
    file.Close();
    file.Close();
    EXPECT_EQ("ff fe 7a 00 0d 00 0a 00 0a", ToHex(OnDisk()));
}

TEST_F(StdioFile, OpeningAnotherLosesNothing) {
    CStdioFile file(kName, kNew);
    file.WriteString(L"kept");
    CFileException error;
    EXPECT_FALSE(file.Open(L"none", CFile::modeRead, &error));
    EXPECT_EQ(CFileException::fileNotFound, error.m_cause);
    EXPECT_EQ("6b 65 70 74", ToHex(OnDisk()));
    EXPECT_TRUE(file.m_hFile == CFile::hFileNull && file.Open(kName, kNew));
    file.WriteString(L"given up");
    file.Abort();
    EXPECT_EQ("", ToHex(OnDisk()));
}

TEST_F(StdioFile, RefusesWhatItCannotDo) {
    CStdioFile file(kName, kNew);
    TCHAR text[2];
    EXPECT_THROW(file.WriteString(nullptr), CInvalidArgException*);
    EXPECT_THROW(file.ReadString(nullptr, 2), CInvalidArgException*);
    EXPECT_THROW(file.ReadString(text, 0), CInvalidArgException*);
    EXPECT_THROW(static_cast<void>(file.Duplicate()), CNotSupportedException*);
    EXPECT_THROW(file.LockRange(0, 1), CNotSupportedException*);
    EXPECT_THROW(file.UnlockRange(0, 1), CNotSupportedException*);
    EXPECT_TRUE(Throws<CFileException>([] { CStdioFile(L"none", CFile::modeRead); }));
}

TEST_F(StdioFile, AStreamStaysTheCallersAndAsItIs) {
    struct Row {
        const char *mode, *before, *after; ///< what the stream writes itself, what is on disk in the end
    };
    for (const Row& row : {
#ifdef _WIN32
             Row{"w", "1\n", "31 0d 0a 61 0d 0a 32 0d 0a"}, Row{"wb", "1\n", "31 0a 61 00 0a 00 32 0a"},
             Row{"a", "", "31 0a 61 00 0a 00 32 0a 61 0d 0a 32 0d 0a"}, // behind the row before
#else
             Row{"w", "1\n", "31 0a 61 0d 0a 32 0a"},
             Row{"a", "", "31 0a 61 0d 0a 32 0a 61 0d 0a 32 0a"},
#endif
         }) {
        SCOPED_TRACE(row.mode);
        std::FILE* const stream = std::fopen("stdio.txt", row.mode);
        ASSERT_NE(nullptr, stream);
        std::fputs(row.before, stream);
        {
            CStdioFile file(stream);
            EXPECT_EQ(stream, file.m_pStream);
            file.WriteString(L"a\n");
        }
        EXPECT_GE(std::fputs("2\n", stream), 0);
        CStdioFile(stream).Close();
        EXPECT_EQ(row.after, ToHex(OnDisk()));
    }
    CStdioFile file(std::fopen("stdio.txt", "r"));
    CString line;
    EXPECT_TRUE(file.ReadString(line) && line == L"1");
    EXPECT_TRUE(Throws<CFileException>([&] {
        file.WriteString(L"x");
        file.Flush();
    }));
    file.Abort();
    EXPECT_TRUE(file.m_hFile == CFile::hFileNull && file.m_pStream == nullptr);
}

TEST_F(StdioFile, LongTextsPassTheBuffer) {
    {
        CStdioFile file(kName, kNew);
        for (int i = 0; i < 3; ++i)
            file.WriteString(CString(L'x', 4095) + L"\n");
    }
    CStdioFile file(kName, CFile::modeRead);
    CString line;
    for (int i = 0; i < 3; ++i)
        EXPECT_TRUE(file.ReadString(line) && line.GetLength() == 4095);
    EXPECT_FALSE(file.ReadString(line));
}

} // namespace
