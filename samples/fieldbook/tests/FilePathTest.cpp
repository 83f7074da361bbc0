#include "points/FilePath.h"

#include "testkit/Rows.h"

#include <gtest/gtest.h>

using testkit::Rows;

namespace {

TEST(FilePath, FoldersAreNamedFromTheRootAsTheFileDialogsDo) {
    wchar_t szCurrent[MAX_PATH] = {};
    ::GetCurrentDirectory(MAX_PATH, szCurrent);
    const CString strDrive = CString(szCurrent).Left(2);
    const CString strOther = strDrive.CompareNoCase(L"Q:") == 0 ? L"R:" : L"Q:";

    EXPECT_STREQ(L"\\job 7", FolderOf(strDrive + L"\\job 7\\points.csv"));
    EXPECT_STREQ(L"\\", FolderOf(strDrive + L"\\points.csv"));
    EXPECT_STREQ(L"\\job\\day.1", FolderOf(L"\\job/day.1/points.csv"));
    EXPECT_TRUE(FolderOf(L"points.csv") == CString(szCurrent).Mid(2));
    EXPECT_STREQ(strOther + L"\\job", FolderOf(strOther + L"\\job\\points.csv"));
}

TEST(FilePath, OneFileIsKnownByEachOfItsPaths) {
    wchar_t szCurrent[MAX_PATH] = {};
    ::GetCurrentDirectory(MAX_PATH, szCurrent);
    const CString strFull = PathIn(szCurrent, L"Points.csv");
    EXPECT_TRUE(IsSamePath(strFull, L"points.csv"));
    EXPECT_TRUE(IsSamePath(strFull.Mid(2), L".\\day\\..\\points.csv"));
    EXPECT_FALSE(IsSamePath(strFull, L"points1.csv"));
    EXPECT_STREQ(L"\\points.csv", PathIn(L"\\", L"points.csv"));
}

TEST(FilePath, NamesComeWithAndWithoutTheirExtension) {
    const Rows<const wchar_t*, const wchar_t*, const wchar_t*> cases = {
        {L"\\job\\points.csv", L"points.csv", L"points"},
        {L"C:\\job.7\\points", L"points", L"points"},
        {L"現場.1.csv", L"現場.1.csv", L"現場.1"},
    };
    for (const auto& [pszPath, pszName, pszTitle] : cases) {
        EXPECT_STREQ(pszName, FileNameOf(pszPath));
        EXPECT_STREQ(pszTitle, TitleOf(pszPath));
    }
}

} // namespace
