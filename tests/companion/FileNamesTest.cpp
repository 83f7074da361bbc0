#include "support/TestApp.h"

#include "Tesuvo.h"

#include "testkit/Drive.h"

using namespace testkit;

namespace {

TEST(NumberedName, CountsUpTheDigitsAtTheEnd) {
    const Rows<const wchar_t*, const wchar_t*> rows = {
        {L"P009", L"P010"},
        {L"P999", L"P1000"},
        {L"P", L"P1"},
        {L"", L"1"},
        {L"000", L"001"},
        {L"8", L"9"},
        {L"9", L"10"},
        {L"P12a", L"P12a1"},
        {L"P9-9", L"P9-10"},
        {L"P３", L"P３1"},
        {L"測点099", L"測点100"},
        {L"P99999999999999999999999", L"P100000000000000000000000"},
    };
    for (const auto& [before, next] : rows) {
        CString name = before;
        TVIncrementName(name);
        EXPECT_EQ(next, name);
    }
}

TEST(PathSplit, GivesFolderNameAndExtension) {
    const Rows<const wchar_t*, const wchar_t*, const wchar_t*, const wchar_t*> rows = {
        {L"C:\\Data\\site.csv", L"C:\\Data", L"site", L"csv"},
        {L"C:\\site.csv", L"C:\\", L"site", L"csv"},
        {L"\\site.csv", L"\\", L"site", L"csv"},
        {L"C:site.csv", L"C:", L"site", L"csv"},
        {L"\\:site.csv", L"\\", L":site", L"csv"},
        {L"site.csv", L"", L"site", L"csv"},
        {L"C:/Data/a.b\\site", L"C:/Data/a.b", L"site", L""},
        {L"C:\\Data\\\\site.csv", L"C:\\Data", L"site", L"csv"},
        {L"C:\\Data\\", L"C:\\Data", L"", L""},
        {L"C:", L"C:", L"", L""},
        {L"\\\\server\\share\\site.csv", L"\\\\server\\share", L"site", L"csv"},
        {L"\\\\server\\share.d\\d\\site", L"\\\\server\\share.d\\d", L"site", L""},
        {L"\\\\server\\share.d", L"\\\\server\\share.d", L"", L""},
        {L"\\\\server", L"\\\\server", L"", L""},
        {L"//server/share/site.csv", L"//server/share", L"site", L"csv"},
        {L"//s//site.csv", L"//s/", L"site", L"csv"},
        {L"///s/site.csv", L"///s", L"site", L"csv"},
        {L"//", L"//", L"", L""},
        {L"a/b/site.csv", L"a/b", L"site", L"csv"},
        {L"\\\\?\\C:\\site.csv", L"\\\\?\\C:\\", L"site", L"csv"},
        {L"\\\\?\\UNC\\server\\share\\site.csv", L"\\\\?\\UNC\\server\\share", L"site", L"csv"},
        {L"site.2024.csv", L"", L"site.2024", L"csv"},
        {L"site.", L"", L"site", L""},
        {L"site.csv...", L"", L"site", L"csv"},
        {L".profile", L"", L".profile", L""},
        {L"..csv", L"", L"..csv", L""},
        {L"C:\\Data\\..", L"C:\\Data", L"..", L""},
        {L"測点.ＣＳＶ", L"", L"測点", L"ＣＳＶ"},
        {L"", L"", L"", L""},
        {nullptr, L"", L"", L""},
    };
    for (const auto& [given, wantedFolder, wantedName, wantedExtension] : rows) {
        CString folder = L"?", name = L"?", extension = L"?";
        TVResolveFilePath(given, &folder, &name, &extension);
        SCOPED_TRACE(Utf8(given != nullptr ? given : L"(null)"));
        EXPECT_EQ(wantedFolder, folder);
        EXPECT_EQ(wantedName, name);
        EXPECT_EQ(wantedExtension, extension);
    }
}

TEST(PathSplit, NeedsNeitherAllResultsNorAPathOfItsOwn) {
    CString name;
    TVResolveFilePath(L"C:\\Data\\site.csv", nullptr, &name, nullptr);
    EXPECT_EQ(L"site", name);

    CString path = L"C:\\Data\\site.csv", extension;
    TVResolveFilePath(path, &path, &name, &extension);
    EXPECT_EQ(L"C:\\Data", path);
    EXPECT_EQ(L"site", name);
    EXPECT_EQ(L"csv", extension);
}

TEST(FileExists, TellsFilesFromEverythingElse) {
    const Drive drive;
    drive.MakeFile(L"\\測点.csv");
    drive.MakeFolder(L"\\sub.csv");
    CString deep; // beyond the old limit of paths
    for (int level = 0; level < 4; ++level)
        drive.MakeFolder(deep += L"\\" + CString(L'd', 90));
    drive.MakeFile(deep + L"\\site.csv");
    for (const CString& path : {CString(L"\\測点.csv"), drive.Letter() + L"/測点.csv", CString(L"測点.csv"),
                                CString(L".\\測点.csv"), CString(L"\\sub.csv\\..\\測点.csv"),
                                drive.Long(L"\\測点.csv"), drive.Letter() + deep + L"\\site.csv"})
        EXPECT_TRUE(TVCheckFileExist(path)) << Utf8(path);
    for (const CString& path :
         {CString(L"\\sub.csv"), CString(L"\\absent.csv"), CString(L"\\absent\\測点.csv"),
          CString(L"\\*.csv"), CString(L"\\測点?csv"), CString(L"\\<|>\".csv"), drive.Root(), CString(L"\\"),
          CString(L"NUL"), CString(L"\\sub.csv\\NUL"), CString(L"?:\\測点.csv"), CString(L"\\\\.\\"),
          CString(L'a', 40'000), CString(), deep, deep + L"\\other.csv"})
        EXPECT_FALSE(TVCheckFileExist(path)) << Utf8(path.Left(300));
    EXPECT_FALSE(TVCheckFileExist(nullptr));
}

} // namespace
