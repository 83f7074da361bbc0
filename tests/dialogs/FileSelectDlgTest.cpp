#include "FileSelectStage.h"

#include "companion/Tesuvo.h"
#include "support/Leftovers.h"

namespace {

using namespace file_select;

TEST(FileSelectDlg, TitleTellsTheMode) {
    const TestDrive drive;
    struct Row {
        int mode;
        const wchar_t* title;
    };
    const Row rows[] = {{0, L"ファイルを開く"},
                        {1, L"ファイル名を付けて保存"},
                        {2, L"新規作成"},
                        {3, L"ファイルの選択"},
                        {-1, L"ファイルの選択"}};
    for (const Row& row : rows) {
        CFileSelectDlg dlg(nullptr);
        dlg.SetMode(row.mode);
        WhileOpen(dlg, [&] { EXPECT_EQ(fx::TextOf(dlg), row.title); });
    }
    CFileSelectDlg dlg(nullptr); // without a mode
    WhileOpen(dlg, [&] { EXPECT_EQ(fx::TextOf(dlg), L"ファイルを開く"); });
}

TEST(FileSelectDlg, ListsTheFilesWhoseExtensionIsFoundInTheSubName) {
    const TestDrive drive;
    drive.MakeFolder(L"\\data");
    drive.MakeFolder(L"\\data\\d.csv");
    for (const wchar_t* pszName : {L"a.csv", L"UPPER.CSV", L"b.txt", L"c", L"e.c", L"f.csvx", L"g.v.csv",
                                   L".csv", L"境界　点.csv", L"𠮷か\x3099.csv", L"A & B.csv", L"全角.ＣＳＶ"})
        drive.MakeFile(CString(L"\\data\\") + pszName);
    struct Row {
        const wchar_t* subName;
        Texts names;
    };
    const Texts csv = {L"A & B.csv", L"UPPER.CSV",    L"a.csv",         L"e.c",
                       L"g.v.csv",   L"境界　点.csv", L"𠮷か\x3099.csv"};
    Texts both = csv;
    both.push_back(L"b.txt");
    const Row rows[] = {
        {L"csv", csv},
        {L"csv txt", both},
        {L"txt", {L"b.txt"}},
        {L"CSV", {}}, // it has to be in lower case
        {L"ｃｓｖ", {L"全角.ＣＳＶ"}},
        {L"dat", {}},
        {L"", {}},
    };
    for (const Row& row : rows) {
        CFileSelectDlg dlg(nullptr);
        dlg.SetSubName(row.subName);
        dlg.SetFileFolder(L"\\data");
        WhileOpen(dlg, [&] {
            EXPECT_EQ(Sorted(Names(dlg)), Sorted(row.names)) << fx::Utf8(row.subName);
            EXPECT_EQ(Text(dlg, EXTENSION), row.subName);
            EXPECT_EQ(Text(dlg, FOLDER), L"\\data");
        });
    }
}

TEST(FileSelectDlg, ListKeepsTheOrderOfTheFileSystem) {
    const TestDrive drive;
    for (const wchar_t* pszName : {L"\\c.csv", L"\\B.csv", L"\\a.csv", L"\\z.csv", L"\\10.csv", L"\\9.csv"})
        drive.MakeFile(pszName);
    Texts wanted;
    WIN32_FIND_DATA entry;
    const HANDLE hFind = ::FindFirstFile(drive.Root() + L"*.csv", &entry);
    for (BOOL bMore = TRUE; bMore; bMore = ::FindNextFile(hFind, &entry))
        wanted.push_back(entry.cFileName);
    ::FindClose(hFind);
    CsvDlg dlg(CFileSelectDlg::ModeOpen, L"");
    WhileOpen(dlg, [&] { EXPECT_EQ(Names(dlg), wanted); });
}

TEST(FileSelectDlg, TimesAndSizesAreTheSystemsOwn) {
    const TestDrive drive;
    struct Row {
        const wchar_t* name;
        SYSTEMTIME local; ///< Year, month, day of the week, day, hour, minute.
        DWORD bytes;
        const wchar_t* time;
        const wchar_t* size;
    };
    const Row rows[] = {
        {L"a.csv", {2024, 2, 0, 29, 4, 5, 59, 999}, 0, L"2024/02/29  4:05", L"0"},
        {L"b.csv", {1999, 12, 0, 31, 23, 59, 0, 0}, 1, L"1999/12/31 23:59", L"1"},
        {L"c.csv", {2031, 7, 0, 1, 0, 0, 0, 0}, 1234567, L"2031/07/01  0:00", L"1234567"},
    };
    for (const Row& row : rows) {
        const CString strPath = CString(L"\\") + row.name;
        drive.MakeFile(strPath, row.bytes);
        FILETIME local;
        FILETIME time;
        ::SystemTimeToFileTime(&row.local, &local);
        ::LocalFileTimeToFileTime(&local, &time);
        const HANDLE hFile =
            ::CreateFile(strPath, FILE_WRITE_ATTRIBUTES, 0, nullptr, OPEN_EXISTING, 0, nullptr);
        EXPECT_TRUE(::SetFileTime(hFile, nullptr, nullptr, &time));
        ::CloseHandle(hFile);
    }
    CsvDlg dlg(CFileSelectDlg::ModeOpen, L"");
    WhileOpen(dlg, [&] {
        for (const Row& row : rows) {
            const Texts names = Names(dlg);
            const int nItem =
                static_cast<int>(std::find(names.begin(), names.end(), row.name) - names.begin());
            EXPECT_EQ(List(dlg).GetItemText(nItem, 1), row.time);
            EXPECT_EQ(List(dlg).GetItemText(nItem, 2), row.size);
        }
    });
}

TEST(FileSelectDlg, FolderThatCannotBeReadIsEmptyAndTheDialogStaysUsable) {
    const TestDrive drive;
    drive.MakeFile(L"\\file.csv");
    for (const wchar_t* pszFolder :
         {L"\\nowhere", L"\\file.csv", L"\\a<|>b", L"?:", L"\\\\nobody\\nothing", L"\\.\\NUL", L"NUL"}) {
        CsvDlg dlg(CFileSelectDlg::ModeSave, pszFolder);
        fx::ModalScript script;
        script.Then([&] {
            EXPECT_EQ(Names(dlg), Texts()) << fx::Utf8(pszFolder);
            dlg.SetDlgItemText(NAME, L"new");
            fx::TapOk(dlg);
        });
        EXPECT_EQ(script.Run([&] { return dlg.DoModal(); }), IDOK) << fx::Utf8(pszFolder);
        EXPECT_EQ(dlg.GetFilePath(), CString(pszFolder) + L"\\new.csv");
    }
}

TEST(FileSelectDlg, FolderPathsReachTheirFiles) {
    const TestDrive drive;
    drive.MakeFile(L"\\top.csv");
    CString strDeep;
    for (int i = 0; i < 8; ++i) {
        strDeep += L"\\" + CString(static_cast<wchar_t>(L'a' + i), 60);
        drive.MakeFolder(strDeep);
    }
    drive.MakeFile(strDeep + L"\\top.csv");
    struct Row {
        CString folder;
        CString path;
    };
    const Row rows[] = {
        {L"", L"\\top.csv"},
        {L"\\", L"\\top.csv"}, // two backslashes would be a server
        {drive.Letter(), drive.Letter() + L"\\top.csv"},
        {drive.Root(), drive.Root() + L"\\top.csv"},
        {strDeep, strDeep + L"\\top.csv"},
        {drive.Letter() + strDeep, drive.Letter() + strDeep + L"\\top.csv"},
    };
    for (const Row& row : rows) {
        CsvDlg dlg(CFileSelectDlg::ModeOpen, row.folder);
        fx::ModalScript script;
        script.Then([&] {
            EXPECT_EQ(Names(dlg), Texts{L"top.csv"}) << fx::Utf8(row.folder);
            EXPECT_EQ(Text(dlg, FOLDER), row.folder);
            TapFile(dlg, L"top.csv");
        });
        script.Then([&] { fx::TapOk(dlg); });
        EXPECT_EQ(script.Run([&] { return dlg.DoModal(); }), IDOK);
        // The one exception to folder, backslash, name.
        const bool bDriveRoot = row.folder == drive.Root();
        EXPECT_EQ(dlg.GetFilePath(), bDriveRoot ? drive.Root() + L"\\top.csv" : row.path);
        EXPECT_TRUE(TVCheckFileExist(dlg.GetFilePath())) << fx::Utf8(dlg.GetFilePath());
    }
}

TEST(FileSelectDlg, OpenDialogFollowsTheSetters) {
    const TestDrive drive;
    drive.MakeFolder(L"\\data");
    drive.MakeFile(L"\\data\\a.csv");
    drive.MakeFile(L"\\data\\site.csv");
    drive.MakeFile(L"\\b.csv");
    drive.MakeFile(L"\\b.txt");
    CsvDlg dlg;
    WhileOpen(dlg, [&] {
        EXPECT_EQ(Names(dlg), Texts{L"b.csv"});
        dlg.SetCurrentName(L"site");
        EXPECT_EQ(Text(dlg, NAME), L"");
        dlg.SetFileFolder(L"\\data");
        EXPECT_EQ(Sorted(Names(dlg)), (Texts{L"a.csv", L"site.csv"}));
        EXPECT_EQ(Text(dlg, FOLDER), L"\\data");
        EXPECT_EQ(Text(dlg, NAME), L"site1.csv");
        dlg.SetSubName(L"txt");
        EXPECT_EQ(Names(dlg), Texts());
        EXPECT_EQ(Text(dlg, EXTENSION), L"txt");
        EXPECT_EQ(Text(dlg, NAME), L"site.txt");
        EXPECT_EQ(dlg.GetFilePath(), L"\\data\\site.txt");
    });
    EXPECT_EQ(dlg.GetFileFolder(), L"\\data");
    EXPECT_EQ(dlg.GetSubName(), L"txt");
}

TEST(FileSelectDlg, TwoHundredOpensLeaveNothing) {
    const TestDrive drive;
    drive.MakeFile(L"\\a.csv");
    fx::ExpectNothingLeft([] {
        CsvDlg dlg(CFileSelectDlg::ModeNew);
        dlg.SetCurrentName(L"a");
        dlg.SetSubName(L"csv"); // proposes a name
        fx::ModalScript script;
        script.Then([&] { dlg.PostMessage(WM_COMMAND, IDOK); });
        script.Run([&] { return dlg.DoModal(); });
    });
}

TEST(FileSelectDlg, AnyTimeFitsItsColumnInTheHeightOfTheDialogsText) {
    const TestDrive drive;
    CsvDlg dlg;
    for (int nRun = 0; nRun < 2; ++nRun)
        WhileOpen(dlg, [&] {
            constexpr int CELL_MARGINS = 12;
            EXPECT_EQ(List(dlg).GetColumnWidth(1), 119);
            EXPECT_LE(List(dlg).GetStringWidth(L"2026/12/28 23:58") + CELL_MARGINS, 119);
            LOGFONT list = {};
            LOGFONT dialog = {};
            List(dlg).GetFont()->GetLogFont(&list);
            dlg.GetFont()->GetLogFont(&dialog);
            EXPECT_EQ(list.lfHeight, dialog.lfHeight);
        });
}

} // namespace
