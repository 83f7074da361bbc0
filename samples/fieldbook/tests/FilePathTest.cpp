#include "points/FilePath.h"

#include "support/Rows.h"

#include <gtest/gtest.h>

namespace {

TEST(FilePath, FoldersAreNamedFromTheRootAsTheFileDialogsDo) {
    wchar_t szCurrent[MAX_PATH] = {};
    ::GetCurrentDirectory(MAX_PATH, szCurrent);
    const CString strDrive = CString(szCurrent).Left(2);
    const CString strOther = strDrive.CompareNoCase(L"Q:") == 0 ? L"R:" : L"Q:";

    EXPECT_TRUE(FolderOf(strDrive + L"\\job 7\\points.csv") == L"\\job 7");
    EXPECT_TRUE(FolderOf(strDrive + L"\\points.csv") == L"\\");
    EXPECT_TRUE(FolderOf(L"\\job/day.1/points.csv") == L"\\job\\day.1");
    EXPECT_TRUE(FolderOf(L"points.csv") == CString(szCurrent).Mid(2));
    EXPECT_TRUE(FolderOf(strOther + L"\\job\\points.csv") == strOther + L"\\job");
}

TEST(FilePath, OneFileIsKnownByEachOfItsPaths) {
    wchar_t szCurrent[MAX_PATH] = {};
    ::GetCurrentDirectory(MAX_PATH, szCurrent);
    const CString strFull = PathIn(szCurrent, L"Points.csv");
    EXPECT_TRUE(IsSamePath(strFull, L"points.csv"));
    EXPECT_TRUE(IsSamePath(strFull.Mid(2), L".\\day\\..\\points.csv"));
    EXPECT_TRUE(!IsSamePath(strFull, L"points1.csv") && PathIn(L"\\", L"points.csv") == L"\\points.csv");
}

TEST(FilePath, NamesComeWithAndWithoutTheirExtension) {
    const Rows<const wchar_t*, const wchar_t*, const wchar_t*> cases = {
        {L"\\job\\points.csv", L"points.csv", L"points"},
        {L"C:\\job.7\\points", L"points", L"points"},
        {L"現場.1.csv", L"現場.1.csv", L"現場.1"},
    };
    for (const auto& [pszPath, pszName, pszTitle] : cases) {
        EXPECT_TRUE(FileNameOf(pszPath) == pszName && TitleOf(pszPath) == pszTitle);
    }
}

} // namespace
