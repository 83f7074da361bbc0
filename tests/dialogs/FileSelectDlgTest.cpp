// What the file dialog lists.
#include "FileSelectStage.h"

#include "LockedFolder.h"

#include "Tesuvo.h"

using namespace testkit;

namespace {

using namespace file_select;

TEST(FileSelectDlg, ListsTheFilesWhoseExtensionIsFoundInTheSubName) {
    Drive drive;
    drive.MakeFolder(L"\\data");
    drive.MakeFolder(L"\\data\\d.csv");
    for (const wchar_t* pszName : {L"a.csv", L"UPPER.CSV", L"b.txt", L"c", L"e.c", L"f.csvx", L"g.v.csv",
                                   L".csv", L"境界　点.csv", L"𠮷か\x3099.csv", L"A & B.csv", L"全角.ＣＳＶ"})
        drive.MakeFile(CString(L"\\data\\") + pszName);
    // Names that only a foreign system makes, and that lead out of the folder.
    drive.MakeForeignFiles(L"\\data", {"..\\\\up.csv", "c:x.csv", "in\\\\x.csv", "h.csv"});
    const Texts csv = {L"A & B.csv", L"UPPER.CSV", L"a.csv",        L"e.c",
                       L"g.v.csv",   L"h.csv",     L"境界　点.csv", L"𠮷か\x3099.csv"};
    Texts both = csv;
    both.insert(both.begin() + 3, L"b.txt");
    const Rows<const wchar_t*, Texts> rows = {{L"csv", csv},
                                              {L"csv txt", both},
                                              {L"txt", {L"b.txt"}},
                                              {L"CSV", {}}, // it has to be in lower case
                                              {L"ｃｓｖ", {L"全角.ＣＳＶ"}},
                                              {L"", {}}};
    for (const auto& [subName, wanted] : rows) {
        Dialog dlg;
        dlg.SetSubName(subName);
        dlg.SetFileFolder(L"\\data");
        WhileOpen(dlg, [&] {
            Texts names = dlg.Names();
            std::sort(names.begin(), names.end());
            EXPECT_EQ(wanted, names) << Utf8(subName);
            EXPECT_EQ(subName, Text(dlg, EXTENSION));
            EXPECT_EQ(L"\\data", Text(dlg, FOLDER));
        });
    }
}

TEST(FileSelectDlg, TimesAndSizesAreTheSystemsOwnAndSoIsTheOrder) {
    Drive drive;
    struct Row {
        const wchar_t* name;
        SYSTEMTIME local; ///< Year, month, day of the week, day, hour, minute.
        DWORD bytes;
        const wchar_t* time;
        const wchar_t* size;
    };
    const Row rows[] = {{L"c.csv", {2024, 2, 0, 29, 4, 5, 59, 999}, 0, L"2024/02/29  4:05", L"0"},
                        {L"10.csv", {1999, 12, 0, 31, 23, 59, 0, 0}, 1, L"1999/12/31 23:59", L"1"},
                        {L"9.csv", {2031, 7, 0, 1, 0, 0, 0, 0}, 1234567, L"2031/07/01  0:00", L"1234567"}};
    for (const Row& row : rows) {
        const CString strPath = CString(L"\\") + row.name;
        drive.MakeFile(strPath, row.bytes);
        FILETIME local, time;
        ::SystemTimeToFileTime(&row.local, &local);
        ::LocalFileTimeToFileTime(&local, &time);
        const HANDLE hFile =
            ::CreateFile(strPath, FILE_WRITE_ATTRIBUTES, 0, nullptr, OPEN_EXISTING, 0, nullptr);
        EXPECT_TRUE(::SetFileTime(hFile, nullptr, nullptr, &time));
        ::CloseHandle(hFile);
    }
    Texts wanted;
    WIN32_FIND_DATA entry;
    const HANDLE hFind = ::FindFirstFile(L"\\*.csv", &entry);
    for (BOOL bMore = TRUE; bMore; bMore = ::FindNextFile(hFind, &entry))
        wanted.push_back(entry.cFileName);
    ::FindClose(hFind);
    Dialog dlg;
    for (int nRun = 0; nRun < 2; ++nRun)
        WhileOpen(dlg, [&] {
            EXPECT_EQ(wanted, dlg.Names());
            for (const Row& row : rows) {
                const auto nItem =
                    static_cast<int>(std::find(wanted.begin(), wanted.end(), row.name) - wanted.begin());
                EXPECT_EQ(row.time, dlg.List().GetItemText(nItem, 1));
                EXPECT_EQ(row.size, dlg.List().GetItemText(nItem, 2));
            }
            constexpr int CELL_MARGINS = 12;
            EXPECT_EQ(119, dlg.List().GetColumnWidth(1));
            const int nWidth = dlg.List().GetStringWidth(L"2026/12/28 23:58") + CELL_MARGINS;
            EXPECT_LE(nWidth, 119) << "any time is to be seen whole";
            EXPECT_GT(nWidth, 110) << "in letters as wide as that allows";
            LOGFONT list = {};
            LOGFONT dialog = {};
            dlg.List().GetFont()->GetLogFont(&list);
            dlg.GetFont()->GetLogFont(&dialog);
            EXPECT_EQ(dialog.lfHeight, list.lfHeight);
        });
}

TEST(FileSelectDlg, FolderPathsReachTheirFilesAndOthersAreEmpty) {
    Drive drive;
    drive.MakeFile(L"\\top.csv");
    drive.MakeFolder(L"\\locked");
    drive.MakeFile(L"\\locked\\top.csv");
    CString strDeep;
    for (int i = 0; i < 8; ++i)
        drive.MakeFolder(strDeep += L"\\" + CString(static_cast<wchar_t>(L'a' + i), 60));
    drive.MakeFile(strDeep + L"\\top.csv");
    const LockedFolder locked(L"\\locked");
    // path: Of the one file; empty for none.
    const Rows<CString, CString> rows = {{L"", L"\\top.csv"},
                                         {L"\\", L"\\top.csv"}, // two backslashes would be a server
                                         {drive.Letter(), drive.Letter() + L"\\top.csv"},
                                         {drive.Root(), drive.Root() + L"\\top.csv"},
                                         {drive.Letter() + strDeep, drive.Letter() + strDeep + L"\\top.csv"},
                                         {L"\\nowhere", L""},
                                         {L"\\top.csv", L""},
                                         {L"\\a<|>b", L""},
                                         {L"\\\\nobody\\nothing", L""},
                                         {L"NUL", L""},
                                         {L"\\locked", L""}};
    for (const auto& [strFolder, path] : rows) {
        Dialog dlg(CFileSelectDlg::ModeOpen, strFolder);
        const auto tap = [&] {
            EXPECT_EQ(path.IsEmpty() ? Texts() : Texts{L"top.csv"}, dlg.Names()) << Utf8(strFolder);
            EXPECT_EQ(strFolder, Text(dlg, FOLDER));
            if (!path.IsEmpty())
                dlg.TapFile(L"top.csv");
        };
        EXPECT_EQ(IDOK, Play(dlg, {tap, [&] { TapOk(dlg); }}));
        EXPECT_EQ(path, dlg.GetFilePath());
    }
}

TEST(FileSelectDlg, OpenDialogFollowsTheSetters) {
    Drive drive;
    drive.MakeFolder(L"\\data");
    for (const wchar_t* pszPath : {L"\\data\\site.csv", L"\\b.csv", L"\\b.txt"})
        drive.MakeFile(pszPath);
    Dialog dlg;
    WhileOpen(dlg, [&] {
        EXPECT_EQ(Texts{L"b.csv"}, dlg.Names());
        dlg.SetCurrentName(L"site");
        EXPECT_EQ(L"", Text(dlg, NAME));
        dlg.SetFileFolder(L"\\data");
        EXPECT_EQ(Texts{L"site.csv"}, dlg.Names());
        EXPECT_EQ(L"\\data", Text(dlg, FOLDER));
        EXPECT_EQ(L"site1.csv", Text(dlg, NAME));
        dlg.SetSubName(L"txt");
        EXPECT_EQ(Texts(), dlg.Names());
        EXPECT_EQ(L"txt", Text(dlg, EXTENSION));
        EXPECT_EQ(L"site.txt", Text(dlg, NAME));
        EXPECT_EQ(L"\\data\\site.txt", dlg.GetFilePath());
    });
    EXPECT_EQ(L"\\data", dlg.GetFileFolder());
    EXPECT_EQ(L"txt", dlg.GetSubName());
}

TEST(FileSelectDlg, FolderButtonChangesTheFolderAndKeepsTheName) {
    Drive drive;
    drive.MakeFolder(L"\\data");
    drive.MakeFile(L"\\data\\in.csv");
    drive.MakeFile(L"\\top.csv");
    const Rows<void (*)(HWND, const Place&), const wchar_t*, Texts> rows = {{TapOk, L"\\data", {L"in.csv"}},
                                                                            {TapClose, L"\\", {L"top.csv"}}};
    for (const auto& [end, folder, names] : rows) {
        Dialog dlg;
        const auto type = [&] { dlg.SetDlgItemText(NAME, L"typed"); };
        const auto pick = [] {
            auto* pTree = static_cast<CTreeCtrl*>(CWnd::GetActiveWindow()->GetDlgItem(1100));
            CRect rect;
            pTree->GetItemRect(pTree->GetChildItem(pTree->GetRootItem()), rect, TRUE);
            pTree->ClientToScreen(rect);
            pen::Tap(rect.CenterPoint());
        };
        const auto look = [&] {
            EXPECT_EQ(&dlg, CWnd::GetActiveWindow());
            EXPECT_EQ(folder, Text(dlg, FOLDER));
            EXPECT_EQ(names, dlg.Names());
            EXPECT_EQ(L"typed", Text(dlg, NAME));
            auto* const pButton = static_cast<CIconButton*>(dlg.GetDlgItem(FOLDER_BUTTON));
            EXPECT_EQ(TVGetCommonIcon(2), pButton->SetIcon(nullptr)) << "a folder";
            EXPECT_FALSE(pButton->GetPush()) << "it does not stay down";
            TapOk(dlg);
        };
        EXPECT_EQ(IDOK, Play(dlg, {type, Tap(dlg, FOLDER_BUTTON), pick, [&] { end(::GetActiveWindow(), {}); },
                                   look}));
        EXPECT_EQ(folder, dlg.GetFileFolder());
    }
}

TEST(FileSelectDlg, CardMayBeTakenOutWhileItsFilesAreShown) {
    Drive drive;
    drive.MakeFile(L"\\a.csv");
    Dialog dlg(CFileSelectDlg::ModeNew);
    const auto pull = [&] {
        drive.Remove();
        dlg.TapFile(L"a.csv");
    };
    const auto look = [&] {
        EXPECT_EQ(L"a.csv", Text(dlg, NAME));
        dlg.SetFileFolder(L"\\");
        EXPECT_EQ(Texts(), dlg.Names());
        TapOk(dlg);
    };
    EXPECT_EQ(IDOK, Play(dlg, {pull, look}));
    EXPECT_EQ(L"\\a.csv", dlg.GetFilePath());
}

} // namespace
