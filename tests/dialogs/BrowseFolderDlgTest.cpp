#include "BrowseFolderStage.h"

#include "support/Leftovers.h"

namespace {

using namespace browse_folder;

TEST(BrowseFolderDlg, ShowsEveryFolderWithItsPath) {
    const TestDrive drive;
    Paths wanted = {
        L"\\data",
        L"\\data\\2024",
        L"\\data\\2024\\A & B",
        L"\\data\\points.csv", // a folder
        L"\\境界　点",
        L"\\境界　点\\ｶﾞ",
        L"\\𠮷野\\か\x3099", // a letter of two units, a combining mark
        L"\\𠮷野",
        L"\\dot.", // names that only the system's own form of a path can reach
        L"\\dot.\\inside",
        L"\\...",
        L"\\...\\inside",
    };
    std::sort(wanted.begin(), wanted.end());
    for (const CString& strPath : wanted)
        drive.MakeFolder(strPath);
    drive.MakeFile(L"\\file");
    drive.MakeFile(L"\\data\\file");
    CBrowseFolderDlg dlg;
    WhileOpen(dlg, [&] {
        const CTreeCtrl& tree = Tree(dlg);
        const HTREEITEM hRoot = tree.GetRootItem();
        EXPECT_EQ(fx::TextOf(dlg), L"フォルダの選択");
        EXPECT_EQ(tree.GetItemText(hRoot), L"ﾙｰﾄ");
        EXPECT_EQ(PathOf(tree, hRoot), L"\\");
        EXPECT_EQ(tree.GetNextSiblingItem(hRoot), nullptr);
        EXPECT_TRUE(tree.GetItemState(hRoot, TVIS_EXPANDED) & TVIS_EXPANDED);
        EXPECT_EQ(SortedPaths(tree), wanted);
    });
}

TEST(BrowseFolderDlg, KeepsTheOrderOfTheFileSystem) {
    const TestDrive drive;
    for (const wchar_t* pszName : {L"\\c", L"\\a", L"\\D", L"\\b"})
        drive.MakeFolder(pszName);
    Paths wanted;
    WIN32_FIND_DATA entry;
    const HANDLE hFind = ::FindFirstFile(drive.Root() + L"*", &entry);
    for (BOOL bMore = TRUE; bMore; bMore = ::FindNextFile(hFind, &entry))
        if (entry.cFileName[0] != L'.')
            wanted.push_back(CString(L"\\") + entry.cFileName);
    ::FindClose(hFind);
    CBrowseFolderDlg dlg;
    WhileOpen(dlg, [&] { EXPECT_EQ(AllPaths(Tree(dlg)), wanted); });
}

TEST(BrowseFolderDlg, ImagesTellRootFolderAndCardApart) {
    const TestDrive drive;
    drive.MakeFolder(L"\\data");
    drive.MakeFolder(L"\\card");
    ::SetFileAttributes(drive.Long(L"\\card"), FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_TEMPORARY);
    CBrowseFolderDlg dlg;
    WhileOpen(dlg, [&] {
        const CTreeCtrl& tree = Tree(dlg);
        CImageList* pImages = tree.GetImageList(TVSIL_NORMAL);
        ASSERT_NE(pImages, nullptr);
        EXPECT_EQ(pImages->GetImageCount(), 3);
        EXPECT_EQ(pImages->GetBkColor(), RGB(255, 255, 255));
        int nImage = -1;
        int nSelected = -1;
        EXPECT_TRUE(tree.GetItemImage(tree.GetRootItem(), nImage, nSelected));
        EXPECT_EQ(nImage, 2);
        EXPECT_EQ(nSelected, 2);
        HTREEITEM hItem = tree.GetChildItem(tree.GetRootItem());
        for (; hItem != nullptr; hItem = tree.GetNextSiblingItem(hItem)) {
            // Not every file system keeps the attribute.
            const DWORD dwAttributes = ::GetFileAttributes(PathOf(tree, hItem));
            const int nWanted = (dwAttributes & FILE_ATTRIBUTE_TEMPORARY) != 0 ? 1 : 0;
            EXPECT_TRUE(tree.GetItemImage(hItem, nImage, nSelected));
            EXPECT_EQ(nImage, nWanted);
            EXPECT_EQ(nSelected, nWanted);
        }
    });
}

TEST(BrowseFolderDlg, SelectsTheFolderThatIsWrittenExactlyAsItsOwn) {
    const TestDrive drive;
    for (const wchar_t* pszPath : {L"\\a", L"\\data", L"\\data\\Site 1", L"\\data\\Site 1\\deep", L"\\z"})
        drive.MakeFolder(pszPath);
    for (int i = 0; i < 40; ++i) { // more than the window shows
        CString strPath;
        strPath.Format(L"\\data\\Site 1\\%02d", i);
        drive.MakeFolder(strPath);
    }
    struct Row {
        const wchar_t* folder;
        bool found;
    };
    const Row rows[] = {
        {L"\\data", true},
        {L"\\data\\Site 1", true},
        {L"\\data\\Site 1\\deep", true},
        {L"\\data\\Site 1\\39", true},
        {L"\\z", true},
        {L"\\data\\Site 1\\", false},
        {L"\\DATA", false},
        {L"data", false},
        {L"\\nowhere", false},
        {L"\\", false},
        {L"", false},
        {nullptr, false},
    };
    for (const Row& row : rows) {
        CBrowseFolderDlg dlg(row.folder);
        fx::ModalScript script;
        script.Then([&] {
            const CTreeCtrl& tree = Tree(dlg);
            EXPECT_EQ(CWnd::GetFocus(), &tree);
            const HTREEITEM hSelected = tree.GetSelectedItem();
            ASSERT_EQ(hSelected != nullptr, row.found) << fx::Utf8(row.folder);
            if (row.found) {
                EXPECT_EQ(PathOf(tree, hSelected), row.folder);
                CRect item;
                CRect client;
                tree.GetClientRect(client);
                ASSERT_TRUE(tree.GetItemRect(hSelected, item, FALSE)) << "its parents are closed";
                EXPECT_TRUE(item.top >= 0 && item.bottom <= client.bottom) << fx::Utf8(row.folder);
            }
        });
        script.Then([&] { fx::TapOk(dlg); });
        EXPECT_EQ(script.Run([&] { return dlg.DoModal(); }), IDOK);
        EXPECT_EQ(dlg.GetSelectedFolder(), CString(row.folder)) << "taken over as it was";
    }
}

TEST(BrowseFolderDlg, PenPicksAFolderAndOkGivesIt) {
    const TestDrive drive;
    drive.MakeFolder(L"\\data");
    drive.MakeFolder(L"\\data\\site");
    struct Row {
        const char* what;
        bool tapRoot;
        void (*end)(const CWnd&);
        INT_PTR result;
        const wchar_t* folder;
    };
    const Row rows[] = {
        {"folder, OK", false, fx::TapOk, IDOK, L"\\data"},
        {"root, OK", true, fx::TapOk, IDOK, L"\\"},
        {"folder, close", false, fx::TapClose, IDCANCEL, L"\\data\\site"},
    };
    for (const Row& row : rows) {
        CBrowseFolderDlg dlg(L"\\data\\site");
        fx::ModalScript script;
        script.Then([&] {
            const HTREEITEM hRoot = Tree(dlg).GetRootItem();
            TapItem(Tree(dlg), row.tapRoot ? hRoot : Tree(dlg).GetChildItem(hRoot));
        });
        script.Then([&] { row.end(dlg); });
        EXPECT_EQ(script.Run([&] { return dlg.DoModal(); }), row.result) << row.what;
        EXPECT_EQ(dlg.GetSelectedFolder(), row.folder) << row.what;
    }
}

TEST(BrowseFolderDlg, SegmentsCanBeBuiltAndRemovedByDerivedDialogs) {
    class Derived : public CBrowseFolderDlg {
    public:
        using CBrowseFolderDlg::MakeTreeSegment;
        using CBrowseFolderDlg::RemoveTreeItems;
    };
    const TestDrive drive;
    drive.MakeFolder(L"\\a");
    drive.MakeFolder(L"\\a\\b");
    Derived dlg;
    WhileOpen(dlg, [&] {
        CTreeCtrl& tree = Tree(dlg);
        for (const wchar_t* pszRoot : {L"\\", L""}) {
            const HTREEITEM hItem = tree.InsertItem(L"again");
            dlg.MakeTreeSegment(hItem, pszRoot);
            Paths paths;
            CollectPaths(tree, tree.GetChildItem(hItem), L"", paths);
            EXPECT_EQ(paths, (Paths{L"\\a", L"\\a\\b"}));
            dlg.RemoveTreeItems(tree.GetChildItem(hItem));
            tree.DeleteItem(hItem);
        }
        const HTREEITEM hItem = tree.InsertItem(L"unreadable");
        for (const wchar_t* pszPath : {L"\\nowhere", L"\\a<|>b", L"\\\\nobody\\nothing", L"?:"})
            dlg.MakeTreeSegment(hItem, pszPath);
        EXPECT_EQ(tree.GetChildItem(hItem), nullptr);
        tree.DeleteItem(hItem);
    });
}

TEST(BrowseFolderDlg, TwoHundredOpensLeaveNothing) {
    const TestDrive drive;
    for (const wchar_t* pszPath : {L"\\a", L"\\a\\b", L"\\a\\b\\c", L"\\d"})
        drive.MakeFolder(pszPath);
    int nRun = 0;
    fx::ExpectNothingLeft([&nRun] {
        CBrowseFolderDlg dlg(L"\\a\\b");
        fx::ModalScript script;
        script.Then([&] {
            switch (nRun++ % 3) {
            case 0:
                return void(dlg.PostMessage(WM_COMMAND, IDOK));
            case 1:
                return void(dlg.PostMessage(WM_CLOSE));
            default: // as an application that ends
                return dlg.EndDialog(IDABORT);
            }
        });
        script.Run([&] { return dlg.DoModal(); });
    });
}

} // namespace
