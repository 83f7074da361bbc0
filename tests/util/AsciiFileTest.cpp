#include "util/AsciiFile.h"

#include "support/TempFolder.h"

namespace {

struct AsciiFile : TempFolder {};

TEST_F(AsciiFile, WritesLinesInTheOemCodePageAndReadsThemWithoutBlanks) {
    const Rows<CString, std::string, CString> rows = {
        {L"A B\tC", "A B\tC\r\n", L"ABC"},
#ifdef _WIN32
        {L"境界1,能ｱ", "\x8B\xAB\x8A\x45\x31\x2C\x94\x5C\xB1\r\n", L"境界1,能ｱ"},
        {CString(L'あ', 256), "\r\n", L""},
#else // a code page has one byte a character
        {L"\xFF\x100", "\xFF?\r\n", L"\xFF?"},
#endif
        {CString(L'z', 511), std::string(511, 'z') + "\r\n", CString(L'z', 511)},
        {CString(L'z', 512), "\r\n", L""}, // no room for the terminator: an empty line
    };
    for (const auto& [line, content, wanted] : rows) {
        CAsciiFile file;
        ASSERT_TRUE(file.Open(Path(L"a"), kCreate | CFile::shareDenyNone));
        file.WriteString(line);
        EXPECT_EQ(content, Text(Path(L"a")));
        file.SeekToBegin();
        CString read;
        EXPECT_EQ(1, file.ReadString(read));
        EXPECT_EQ(wanted, read);
    }
}

} // namespace
