#include "support/TempFolder.h"

#include <cerrno>
#include <cstdio>

namespace {

using namespace std::string_literals;

struct StdioFile : TempFolder {
    static constexpr UINT kNew = kCreate | CFile::shareDenyNone;

    std::string OnDisk() const { return Text(m_path); }
    CString Line(CStdioFile& file) const {
        CString line = L"old";
        return file.ReadString(line) != FALSE ? line : line + L"(none)";
    }

    const CString m_path = Path(L"stdio.txt");
};

TEST_F(StdioFile, LinesHaveTheirEndsInTheFile) {
    CStdioFile file(m_path, kNew);
    file.WriteString(L"one\n\ntwo");
    EXPECT_EQ(10U, file.GetLength());
    file.Flush();
    EXPECT_EQ("one\r\n\r\ntwo", OnDisk());
    file.SeekToBegin();
    TCHAR text[3];
    EXPECT_STREQ(L"on", file.ReadString(text, 3));
    EXPECT_EQ(2U, file.GetPosition());
    EXPECT_EQ(10U, file.GetLength());
    EXPECT_STREQ(L"e", Line(file));
    EXPECT_STREQ(L"\n", file.ReadString(text, 3));
    file.Write("!", 1); // where reading stopped
    EXPECT_EQ(10U, file.GetLength());
    EXPECT_STREQ(L"w", file.ReadString(text, 2));
    file.Write("O", 1);
    file.SeekToBegin();
    char bytes[20] = {};
    file.Read(bytes, 20);
    EXPECT_STREQ("one\n\n!wO", bytes);
    EXPECT_EQ(nullptr, file.ReadString(text, 3));
    file.WriteString(L"x");
    file.SetLength(2);
    file.Close();
    EXPECT_EQ("on", OnDisk());
}

TEST_F(StdioFile, ReadsWhateverIsThere) {
    for (const auto& [bytes, mode, wanted] : Rows<std::string, UINT, std::vector<LPCTSTR>>{
             {"a\rb\r\r\nc\r", CFile::typeText, {L"a\rb\r", L"c\r"}},
             {"a\x1A"
              "b",
              CFile::typeText,
              {L"a"}}, // Ctrl+Z
             {"a\0\x1A\0\x42\x30\r\0\n\0b\0c"s, CFile::typeBinary, {L"a\x1A\x3042\r", L"b"}},
#ifdef _WIN32
             {"\x82\xA0\xB1\n\x82\r\na", CFile::typeText, {L"\x3042\xFF71", L"\x30FB", L"a"}},
#else
             {"\u00E9\u3042\U0001F600\nb", CFile::typeText, {L"\u00E9\u3042\U0001F600", L"b"}},
             {"\xE3\x81\r\n\xC3\x41\xF0\x9F", CFile::typeText, {L"\xFFFD", L"\xFFFD\x41\xFFFD"}}, // damaged
             // Trailing bytes that are too many, at every length.
             {"\xF0\x9F\x98\x80\x80"
              "\xE0\xA0\x80\x80"
              "\xC3\xA9\x80"
              "\x80\x80"
              "\xC0\x80",
              CFile::typeText,
              {L"\U0001F600\xFFFD\x0800\xFFFD\xE9\xFFFD\xFFFD\xFFFD\xFFFD"}},
#endif
         }) {
        CStdioFile file(Make(L"any", bytes), CFile::modeRead | mode);
        for (const LPCTSTR line : wanted)
            EXPECT_STREQ(line, Line(file)) << bytes;
        EXPECT_STREQ(L"(none)", Line(file)) << bytes;
    }
}

TEST_F(StdioFile, BinaryKeepsCharactersAsTheyAre) {
    CStdioFile file(m_path, kNew | CFile::typeBinary);
    file.WriteString(L"\xFEFFz\r\n");
    file.Write("\n", 1);
    file.SeekToBegin();
    char bytes[9];
    file.Read(bytes, 9);
    file.Write("!", 1); // behind a buffer that is used up
    file.Close();
    file.Close();
    EXPECT_EQ("\xFF\xFEz\0\r\0\n\0\n!"s, OnDisk());
}

TEST_F(StdioFile, OpeningAnotherLosesNothing) {
    CStdioFile file(m_path, kNew);
    file.WriteString(L"kept");
    EXPECT_FALSE(file.Open(Path(L"none"), CFile::modeRead));
    EXPECT_EQ("kept", OnDisk());
    EXPECT_TRUE(file.Open(m_path, kNew));
    file.WriteString(L"given up");
    file.Abort();
    EXPECT_EQ("", OnDisk());
    EXPECT_TRUE(file.Open(m_path, kNew));
    file.WriteString(CString(L'x', 5000)); // passes the buffer
    file.Close();
    EXPECT_EQ(std::string(5000, 'x'), OnDisk());
}

TEST_F(StdioFile, RefusesWhatItCannotDo) {
    CStdioFile file(m_path, kNew);
    TCHAR text[2];
    EXPECT_THROW(file.WriteString(nullptr), CInvalidArgException*);
    EXPECT_THROW(file.ReadString(nullptr, 2), CInvalidArgException*);
    EXPECT_THROW(file.ReadString(text, 0), CInvalidArgException*);
    EXPECT_THROW(static_cast<void>(file.Duplicate()), CNotSupportedException*);
    EXPECT_THROW(file.LockRange(0, 1), CNotSupportedException*);
    EXPECT_THROW(file.UnlockRange(0, 1), CNotSupportedException*);
    EXPECT_EQ(CFileException::accessDenied, CauseOf([&] { CStdioFile(Path(L""), CFile::modeRead); }));
}

TEST_F(StdioFile, AStreamStaysTheCallersAndAsItIs) {
    const CStringA path(m_path);
    // before: what the stream writes itself
    for (const auto& [mode, before, after] : Rows<const char*, const char*, std::string>{
#ifdef _WIN32
             {"w", "1\n", "1\r\na\r\n2"},
             {"wb", "1\n", "1\na\0\n\0002"s},
#else
             {"w", "1\n", "1\na\r\n2"},
#endif
         }) {
        SCOPED_TRACE(mode);
        std::FILE* const stream = std::fopen(path, mode);
        std::fputs(before, stream);
        {
            CStdioFile file(stream);
            file.WriteString(L"a\n");
            errno = EIO; // of something else
            file.Flush();
        }
        EXPECT_EQ(after, OnDisk() + "2");
        EXPECT_GE(std::fputs("2", stream), 0);
        CStdioFile(stream).Close();
        EXPECT_EQ(after, OnDisk());
    }
    std::FILE* const stream = std::fopen(CStringA(Make(L"read", "1\r\na\r\n")), "r");
    EXPECT_EQ('1', std::fgetc(stream));
    CStdioFile file(stream);
    EXPECT_STREQ(L"", Line(file));
    EXPECT_STREQ(L"a", Line(file));
    EXPECT_NE(0, CauseOf([&] { file.WriteString(L"x"), file.Flush(); }));
    file.Abort();
    EXPECT_EQ(CFile::hFileNull, file.m_hFile);
    EXPECT_EQ(nullptr, file.m_pStream);
}

} // namespace
