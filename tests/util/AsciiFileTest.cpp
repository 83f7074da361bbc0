#include "util/AsciiFile.h"

#include "support/TempFolder.h"

namespace {

struct AsciiFile : TempFolder {
    std::vector<CString> LinesOf(const std::string& bytes) const;
};

/// What the calls give until the end; in brackets what the text holds after a refused line.
std::vector<CString> AsciiFile::LinesOf(const std::string& bytes) const {
    CAsciiFile file;
    EXPECT_TRUE(file.Open(Make(L"a", bytes), CFile::modeRead));
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
    const Rows<std::string, std::vector<CString>> rows = {
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
    for (const auto& [bytes, lines] : rows)
        EXPECT_EQ(lines, LinesOf(bytes)) << bytes;
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
        ASSERT_TRUE(file.Open(Path(L"a"), kCreate | CFile::shareDenyNone));
        file.WriteString(line);
        EXPECT_EQ(content, Text(Path(L"a")));
    }
}

} // namespace
