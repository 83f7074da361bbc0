#include "util/AsciiFile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

namespace {

const CString PATH = L"ascii_file_test.txt";

/// A file with these bytes, removed again afterwards.
class AsciiFile : public testing::Test {
protected:
    ~AsciiFile() override { std::remove("ascii_file_test.txt"); }

    static void Put(const std::string& bytes) {
        CFile file(PATH, CFile::modeCreate | CFile::modeWrite);
        file.Write(bytes.data(), static_cast<UINT>(bytes.size()));
    }

    static std::string Bytes() {
        CFile file(PATH, CFile::modeRead);
        std::string bytes(static_cast<size_t>(file.GetLength()), '\0');
        file.Read(bytes.data(), static_cast<UINT>(bytes.size()));
        return bytes;
    }

    /// All lines until the first 0.
    static std::vector<CString> Lines() {
        CAsciiFile file;
        EXPECT_TRUE(file.Open(PATH, CFile::modeRead));
        std::vector<CString> lines;
        CString line;
        while (file.ReadString(line))
            lines.push_back(line);
        return lines;
    }
};

using Texts = std::vector<CString>;

TEST_F(AsciiFile, LinesEndWithCrAndComeWithoutBlanksAndControls) {
    struct Row {
        const char* what;
        std::string bytes;
        Texts lines;
    };
    const Row rows[] = {
        {"unterminated end is dropped", "AB C\r\nDE\r\nF", {L"ABC", L"DE"}},
        {"empty lines", "\r\r", {L"", L""}},
        {"LF alone ends nothing", "A\nB\n", {}},
        {"LF alone joins", "A\nB\r", {L"AB"}},
        {"tabs, controls and DEL", "A\tB\x01\x1F\x7F\r", {L"AB\x7F"}},
        {"a zero byte is a control", std::string("A\0B\r", 4), {L"AB"}},
#ifdef _WIN32 // natively a code page has one byte a character
        {"double-byte characters", "\x8B\xAB\x8A\x45\x31\x2C\x94\x5C\r\n", {L"境界1,能"}},
        {"half-width katakana", "\xB1\xB2\xDF\r", {L"ｱｲﾟ"}},
#else
        {"8-bit characters", "\x80\xFF\r", {L"\x80\xFF"}},
#endif
        {"empty file", "", {}},
    };
    for (const Row& row : rows) {
        Put(row.bytes);
        EXPECT_EQ(Lines(), row.lines) << row.what;
    }
}

TEST_F(AsciiFile, LineOf512BytesIsRefusedAndReadOnFromThere) {
    Put(std::string(511, 'x') + "\r\n" + std::string(512, 'y') + "tail\r\n");
    CAsciiFile file;
    ASSERT_TRUE(file.Open(PATH, CFile::modeRead));
    CString line;
    EXPECT_EQ(file.ReadString(line), 1);
    EXPECT_EQ(line, CString(L'x', 511));
    EXPECT_EQ(file.ReadString(line), 0);
    EXPECT_EQ(line, CString(L'x', 511)) << "not touched by a refused line";
    EXPECT_EQ(file.ReadString(line), 1);
    EXPECT_EQ(line, L"tail");
    EXPECT_EQ(file.ReadString(line), 0);
    EXPECT_EQ(line, L"tail");
}

TEST_F(AsciiFile, WritesLinesInTheOemCodePage) {
    struct Row {
        CString text;
        std::string bytes;
    };
    const Row rows[] = {
        {L"X", "X\r\n"},
        {L"", "\r\n"},
        {L"A B\tC", "A B\tC\r\n"},
#ifdef _WIN32
        {L"境界1", "\x8B\xAB\x8A\x45\x31\r\n"},
        {CString(L'あ', 256), "\r\n"},
#else
        {L"\xFF\x3042", "\xFF?\r\n"},
#endif
        {CString(L'z', 511), std::string(511, 'z') + "\r\n"},
        {CString(L'z', 512), "\r\n"}, // no room for the terminator: an empty line
    };
    for (const Row& row : rows) {
        {
            CAsciiFile file;
            ASSERT_TRUE(file.Open(PATH, CFile::modeCreate | CFile::modeWrite));
            file.WriteString(row.text);
        }
        EXPECT_EQ(Bytes(), row.bytes);
    }
}

TEST_F(AsciiFile, ReadsThroughTheVirtualReadOneByteACall) {
    class CountingFile : public CAsciiFile {
    public:
        UINT Read(void* lpBuf, UINT nCount) override {
            ++m_nCalls;
            m_nLargest = std::max(m_nLargest, nCount);
            return CAsciiFile::Read(lpBuf, nCount);
        }
        int m_nCalls = 0;
        UINT m_nLargest = 0;
    };
    Put("AB\r\nCD\r\n");
    CountingFile file;
    ASSERT_TRUE(file.Open(PATH, CFile::modeRead));
    CString line;
    ASSERT_EQ(file.ReadString(line), 1);
    EXPECT_EQ(file.m_nCalls, 3);
    EXPECT_EQ(file.m_nLargest, 1U);
    EXPECT_EQ(file.GetPosition(), 3U) << "nothing is read ahead";
}

TEST_F(AsciiFile, FileErrorsReachTheCaller) {
    Put("A\r\n");
    CAsciiFile file;
    ASSERT_TRUE(file.Open(PATH, CFile::modeRead));
    try {
        file.WriteString(L"X");
        FAIL() << "writing to a file opened for reading";
    } catch (CFileException* e) {
        EXPECT_NE(e->m_cause, CFileException::none);
        e->Delete();
    }
}

} // namespace
