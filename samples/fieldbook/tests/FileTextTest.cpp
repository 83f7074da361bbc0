#include "points/CodePage.h"
#include "points/FileText.h"

#include "testkit/Rows.h"

#include <gtest/gtest.h>

using namespace std::string_literals;

using testkit::Rows;

namespace {

TEST(FileText, EveryFormIsRecognisedAndWrittenAgain) {
    const Rows<const char*, std::string, Encoding, LineEnd, CString> cases = {
        {"nothing but ASCII", "P1\r\nP2\r\n", Encoding::Oem, LineEnd::CrLf, L"P1"},
        {"code page 932", "\x8b\xab\x8a\x45\x31\r\n", Encoding::Oem, LineEnd::CrLf, L"境界1"},
        {"a trail byte like a backslash", "\x83\x5c\n", Encoding::Oem, LineEnd::Lf, L"ソ"},
        {"half-width katakana like UTF-8", "\xc4\xb1\xc3\xbd\r", Encoding::Oem, LineEnd::Cr, L"ﾄｱﾃｽ"},
        {"UTF-8", "\xe6\xb6\x88\xe7\x81\xab\xe6\xa0\x93,1\n", Encoding::Utf8, LineEnd::Lf, L"消火栓,1"},
        {"UTF-8 with mark", "\xef\xbb\xbfP\r\nQ\r\n", Encoding::Utf8Bom, LineEnd::CrLf, L"P"},
        {"beyond the code page", "\xf0\xa0\xae\xb7\r\n", Encoding::Utf8, LineEnd::CrLf, L"\U00020BB7"},
        {"UTF-16", "\xff\xfeP\0\x4e\x57\r\0\n\0"s, Encoding::Utf16Le, LineEnd::CrLf, L"P\x574e"},
        {"UTF-16 from the other end", "\xfe\xff\xd8\x42\xdf\xb7\0\n"s, Encoding::Utf16Be, LineEnd::Lf,
         L"\U00020BB7"},
        {"empty", "", Encoding::Oem, LineEnd::CrLf, L""}};
    for (const auto& [pszCase, bytes, encoding, lineEnd, strFirst] : cases) {
        SCOPED_TRACE(pszCase);
        const CFileText text = DecodeText(bytes);
        EXPECT_TRUE(text.unreadable.empty());
        EXPECT_EQ(encoding, text.form.encoding);
        EXPECT_EQ(lineEnd, text.form.lineEnd);
        EXPECT_STREQ(strFirst, (text.lines.empty() ? CString() : text.lines.front()));
        CTextEncoder encoder(text.form);
        for (const CString& strLine : text.lines)
            EXPECT_TRUE(encoder.Add(strLine));
        EXPECT_EQ(bytes, encoder.GetBytes());
    }
}

TEST(FileText, BytesThatAreNoTextAreToldByTheirLines) {
    const Rows<const char*, std::string, std::vector<int>> cases = {
        {"half a character of either", "P\r\n\x83\r\nQ\r\n\xe6\r\n", {2, 4}},
        {"a picture", "\x89PNG\r\n\x1a\n\0\0\0\rIHDR"s, {3}},
        {"UTF-8 with mark and a wrong byte", "\xef\xbb\xbfP\n\xc0\xaf\n", {2}},
        {"half a unit of UTF-16", "\xff\xfeP", {1}},
        {"half a pair of UTF-16", "\xff\xfe\x42\xd8\r\0\n\0"s, {1}}};
    for (const auto& [pszCase, bytes, lines] : cases) {
        const CFileText text = DecodeText(bytes);
        EXPECT_EQ(lines, text.unreadable) << pszCase;
        EXPECT_TRUE(text.lines.empty()) << pszCase;
    }
}

TEST(FileText, WhatACodePageCannotHoldIsRefusedOrSpelled) {
    const Rows<CString, bool, CString> cases = {
        {L"境界1", true, L"境界1"},
        {L"Ä1", false, L"<U+00C4>1"}, // would come back as A1, or as a question mark
        {L"\U00020BB7野", false, L"<U+20BB7>野"}};
    for (const auto& [strText, bFits, strSpelled] : cases) {
        EXPECT_EQ(bFits, CanEncode(strText, Encoding::Oem));
        EXPECT_TRUE(CanEncode(strText, Encoding::Utf16Le));
        EXPECT_STREQ(strSpelled, SpellForOem(strText));
    }
}

} // namespace
