// Files as such: their paths, the forms of their texts, and how a new one takes an old one's place.
#include "points/CodePage.h"
#include "points/FilePath.h"
#include "points/FileReplacement.h"
#include "points/FileText.h"

#include "TestFile.h"
#include "testkit/Rows.h"

#include <gtest/gtest.h>

using namespace std::string_literals;

using testkit::Rows;

namespace {

CString CurrentFolder() {
    wchar_t szCurrent[MAX_PATH] = {};
    ::GetCurrentDirectory(MAX_PATH, szCurrent);
    return szCurrent;
}

TEST(FilePath, FoldersAreNamedFromTheRootAsTheFileDialogsDo) {
    const CString strDrive = CurrentFolder().Left(2);
    const CString strOther = strDrive.CompareNoCase(L"Q:") == 0 ? L"R:" : L"Q:";
    EXPECT_STREQ(L"\\job 7", FolderOf(strDrive + L"\\job 7\\points.csv"));
    EXPECT_STREQ(L"\\", FolderOf(strDrive + L"\\points.csv"));
    EXPECT_STREQ(L"\\job\\day.1", FolderOf(L"\\job/day.1/points.csv"));
    EXPECT_TRUE(FolderOf(L"points.csv") == CurrentFolder().Mid(2));
    EXPECT_STREQ(strOther + L"\\job", FolderOf(strOther + L"\\job\\points.csv"));
}

TEST(FilePath, OneFileIsKnownByEachOfItsPaths) {
    const CString strFull = PathIn(CurrentFolder(), L"Points.csv");
    EXPECT_TRUE(IsSamePath(strFull, L"points.csv"));
    EXPECT_TRUE(IsSamePath(strFull.Mid(2), L".\\day\\..\\points.csv"));
    EXPECT_FALSE(IsSamePath(strFull, L"points1.csv"));
    EXPECT_STREQ(L"\\points.csv", PathIn(L"\\", L"points.csv"));
    EXPECT_STREQ(L"現場.1.csv", FileNameOf(L"\\job.7\\現場.1.csv"));
    EXPECT_STREQ(L"points", FileNameOf(L"C:\\job.7\\points"));
}

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

constexpr char OLD[] = "all that was measured\r\n";

void WriteNew(CFile& file) {
    file.Write("new\r\n", 5);
}

struct FileReplacement : testing::Test {
    /// @return the cause of the exception; none if there was none
    int CauseOf(const CString& strPath, const std::function<void(CFile&)>& write) const {
        int nCause = CFileException::none;
        try {
            RewriteFile(strPath, write);
        } catch (CFileException* pError) {
            nCause = pError->m_cause;
            EXPECT_STREQ(strPath, pError->m_strFileName) << "the user knows the file by this name only";
            pError->Delete();
        }
        return nCause;
    }
    bool IsNewThere() const { return CTestFile::Exists(m_file.GetPath() + L".new"); }

    const CTestFile m_file{L"fieldbook-replaced.txt", OLD};
};

TEST_F(FileReplacement, FileThatCannotBeReplacedIsLeftAlone) {
    ASSERT_TRUE(::SetFileAttributes(m_file.GetPath(), FILE_ATTRIBUTE_READONLY));
    EXPECT_EQ(CFileException::accessDenied, CauseOf(m_file.GetPath(), WriteNew));
    EXPECT_EQ(OLD, m_file.Read());
    ::SetFileAttributes(m_file.GetPath(), FILE_ATTRIBUTE_NORMAL);
    {
        const CFile other(m_file.GetPath(), CFile::modeRead | CFile::shareDenyWrite);
        EXPECT_NE(CFileException::none, CauseOf(m_file.GetPath(), WriteNew));
    }
    EXPECT_EQ(OLD, m_file.Read());
    EXPECT_FALSE(IsNewThere());
    ASSERT_TRUE(::CreateDirectory(m_file.GetPath() + L".new", nullptr));
    EXPECT_NE(CFileException::none, CauseOf(m_file.GetPath(), WriteNew));
    EXPECT_EQ(OLD, m_file.Read());
    EXPECT_TRUE(IsNewThere()) << "what others have made stays";
    EXPECT_EQ(CFileException::badPath, CauseOf(L"no such folder\\points.csv", WriteNew));
    EXPECT_FALSE(KeepBackup(L"no such file.csv"));
    EXPECT_FALSE(CTestFile::Exists(L"no such file.csv.bak"));
}

TEST_F(FileReplacement, RestOfACrashIsWrittenOver) {
    const CTestFile rest(m_file.GetPath() + L".new", "a long half of a file that never became whole");
    RewriteFile(m_file.GetPath(), WriteNew);
    EXPECT_EQ("new\r\n", m_file.Read());
}

} // namespace
