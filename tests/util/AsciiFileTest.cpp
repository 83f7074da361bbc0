#include "util/AsciiFile.h"

#include "support/Rows.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <vector>

namespace {

const CString PATH = L"ascii_file_test.txt";

/// A file that is removed again afterwards.
struct AsciiFile : testing::Test {
    ~AsciiFile() override { std::remove("ascii_file_test.txt"); }
};

/// What the calls give until the end; in brackets what the text holds after a refused line.
std::vector<CString> LinesOf(const std::string& bytes) {
    CFile(PATH, CFile::modeCreate | CFile::modeWrite).Write(bytes.data(), static_cast<UINT>(bytes.size()));
    CAsciiFile file;
    EXPECT_TRUE(file.Open(PATH, CFile::modeRead));
    std::vector<CString> lines;
    CString line;
    do
        lines.push_back(file.ReadString(line) == 1 ? line : L"(" + line + L")");
    while (file.GetPosition() < bytes.size());
    return lines;
}

TEST_F(AsciiFile, LinesEndWithCrAndComeWithoutBlanksAndControls) {
    const std::string x(511, 'x');
    const CString strX(L'x', 511);
    const struct {
        std::string bytes;
        std::vector<CString> lines;
    } rows[] = {
        {"AB C\r\nDE\r\nF", {L"ABC", L"DE", L"(DE)"}},
        {std::string("\rA\n\t\x01\x1F\x7F\0!\r", 10), {L"", L"A\x7F!"}},
#ifdef _WIN32 // natively a code page has one byte a character
        {"\x8B\xAB\x8A\x45\x31\x2C\x94\x5C\xB1\r", {L"境界1,能ｱ"}},
#else
        {"\x80\xFF\r", {L"\x80\xFF"}},
#endif
        {x + "\r" + x + "ytail\r", {strX, L"(" + strX + L")", L"tail"}},
        {"", {L"()"}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(row.lines, LinesOf(row.bytes)) << row.bytes;
}

TEST_F(AsciiFile, WritesLinesInTheOemCodePage) {
    const Rows<CString, std::string> rows = {
        {L"", "\r\n"},
        {L"A B\tC", "A B\tC\r\n"},
#ifdef _WIN32
        {L"境界1", "\x8B\xAB\x8A\x45\x31\r\n"},
        {CString(L'あ', 256), "\r\n"},
#else
        {L"\xFF\x100", "\xFF?\r\n"},
#endif
        {CString(L'z', 511), std::string(511, 'z') + "\r\n"},
        {CString(L'z', 512), "\r\n"}, // no room for the terminator: an empty line
    };
    for (const auto& [line, content] : rows) {
        CAsciiFile file;
        ASSERT_TRUE(file.Open(PATH, CFile::modeCreate | CFile::modeReadWrite));
        file.WriteString(line);
        std::string bytes(static_cast<size_t>(file.GetLength()), '\0');
        file.SeekToBegin();
        file.Read(bytes.data(), static_cast<UINT>(bytes.size()));
        EXPECT_EQ(content, bytes);
    }
}

} // namespace
