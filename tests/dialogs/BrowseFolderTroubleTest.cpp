// The folder dialog on trees and cards that make trouble.
#include "BrowseFolderStage.h"

#include "FillWatch.h"
#include "LockedFolder.h"

namespace {

using namespace browse_folder;

TEST(BrowseFolderTrouble, FoldersComeInOneGo) {
    constexpr int FOLDERS = 1000;
    const TestDrive drive;
    drive.MakeMany(TestDrive::Folders, L"", "%03.0f", FOLDERS);
    CBrowseFolderDlg dlg(L"\\500");
    FillWatch watch(WC_TREEVIEW);
    WhileOpen(dlg, [&] {
        EXPECT_EQ(watch.nInserted, FOLDERS + 1);
        EXPECT_EQ(watch.nInsertedWithRedraw, 0);
        EXPECT_LE(watch.nDrawings, 2);
    });
}

TEST(BrowseFolderTrouble, OneOfFiveThousandFoldersCanBePicked) {
    constexpr int OUTER = 2;
    constexpr int INNER = 2499;
    constexpr int FOLDERS = OUTER * (INNER + 1);
    const TestDrive drive;
    drive.MakeMany(TestDrive::Folders, L"", "%.0f", OUTER);
    CString strLast;
    for (int i = 0; i < OUTER; ++i) {
        strLast.Format(L"\\%d", i);
        drive.MakeMany(TestDrive::Folders, strLast, "%04.0f", INNER);
    }
    strLast += L"\\2498";
    CBrowseFolderDlg dlg(strLast);
    fx::ModalScript script;
    script.Then([&] {
        EXPECT_EQ(AllPaths(Tree(dlg)).size(), static_cast<size_t>(FOLDERS));
        const HTREEITEM hSelected = Tree(dlg).GetSelectedItem();
        ASSERT_NE(hSelected, nullptr);
        TapItem(Tree(dlg), Tree(dlg).GetPrevSiblingItem(hSelected));
    });
    script.Then([&] {
        strLast = PathOf(Tree(dlg), Tree(dlg).GetSelectedItem());
        fx::TapOk(dlg);
    });
    EXPECT_EQ(script.Run([&] { return dlg.DoModal(); }), IDOK);
    EXPECT_EQ(dlg.GetSelectedFolder(), strLast);
}

TEST(BrowseFolderTrouble, LinkIsShownButNotEntered) {
    const TestDrive drive;
    drive.MakeFolder(L"\\data");
    drive.MakeFolder(L"\\other");
    drive.MakeFolder(L"\\other\\inside");
    if (!drive.MakeLink(L"\\data\\loop", L"\\data") || !drive.MakeLink(L"\\data\\away", L"\\other"))
        GTEST_SKIP() << "this user may not make links";
    const Paths wanted = {L"\\data", L"\\data\\away", L"\\data\\loop", L"\\other", L"\\other\\inside"};
    CBrowseFolderDlg dlg(L"\\data\\away");
    fx::ModalScript script;
    script.Then([&] {
        EXPECT_EQ(SortedPaths(Tree(dlg)), wanted);
        fx::TapOk(dlg);
    });
    EXPECT_EQ(script.Run([&] { return dlg.DoModal(); }), IDOK);
    EXPECT_EQ(dlg.GetSelectedFolder(), L"\\data\\away");
}

TEST(BrowseFolderTrouble, PathsMayBeLongerThanTheSystemsUsualLimit) {
    const TestDrive drive;
    CString strPath;
    Paths wanted;
    for (int i = 0; i < 30; ++i) {
        strPath += L"\\" + CString(static_cast<wchar_t>(L'a' + i % 26), 60);
        drive.MakeFolder(strPath);
        wanted.push_back(strPath);
    }
    CBrowseFolderDlg dlg(strPath);
    fx::ModalScript script;
    script.Then([&] {
        EXPECT_EQ(AllPaths(Tree(dlg)), wanted);
        ASSERT_NE(Tree(dlg).GetSelectedItem(), nullptr);
        EXPECT_EQ(PathOf(Tree(dlg), Tree(dlg).GetSelectedItem()), strPath);
        fx::TapOk(dlg);
    });
    EXPECT_EQ(script.Run([&] { return dlg.DoModal(); }), IDOK);
    EXPECT_EQ(dlg.GetSelectedFolder(), strPath);
}

TEST(BrowseFolderTrouble, FolderThatMayNotBeReadHasNoChildrenAndTheOthersHave) {
    const TestDrive drive;
    for (const wchar_t* pszPath : {L"\\a", L"\\a\\in", L"\\locked", L"\\locked\\in", L"\\z", L"\\z\\in"})
        drive.MakeFolder(pszPath);
    const LockedFolder locked(L"\\locked");
    CBrowseFolderDlg dlg;
    WhileOpen(dlg, [&] {
        EXPECT_EQ(SortedPaths(Tree(dlg)), (Paths{L"\\a", L"\\a\\in", L"\\locked", L"\\z", L"\\z\\in"}));
    });
}

TEST(BrowseFolderTrouble, CardMayBeTakenOutWhileItsFoldersAreShown) {
    const TestDrive drive;
    drive.MakeFolder(L"\\card");
    drive.MakeFolder(L"\\card\\site");
    CBrowseFolderDlg dlg(L"\\card\\site");
    fx::ModalScript script;
    script.Then([&] {
        drive.Remove();
        TapItem(Tree(dlg), Tree(dlg).GetChildItem(Tree(dlg).GetRootItem()));
    });
    script.Then([&] { fx::TapOk(dlg); });
    EXPECT_EQ(script.Run([&] { return dlg.DoModal(); }), IDOK);
    EXPECT_EQ(dlg.GetSelectedFolder(), L"\\card");
    CBrowseFolderDlg again(L"\\card");
    WhileOpen(again, [&] {
        EXPECT_EQ(Tree(again).GetCount(), 1U) << "the root alone";
        EXPECT_EQ(Tree(again).GetSelectedItem(), nullptr);
    });
    EXPECT_EQ(again.GetSelectedFolder(), L"\\card");
}

/// As when a derived dialog does something of its own in OnOK.
TEST(BrowseFolderTrouble, OkAfterTheMemoryHasBeenFreedKeepsTheFolder) {
    class Derived : public CBrowseFolderDlg {
    public:
        using CBrowseFolderDlg::CBrowseFolderDlg;
        using CBrowseFolderDlg::ResetMemory;
    };
    const TestDrive drive;
    drive.MakeFolder(L"\\a");
    drive.MakeFolder(L"\\b");
    Derived dlg(L"\\a");
    fx::ModalScript script;
    script.Then([&] {
        const HTREEITEM hSelected = Tree(dlg).GetSelectedItem();
        ASSERT_NE(hSelected, nullptr);
        dlg.ResetMemory();
        EXPECT_EQ(Tree(dlg).GetItemData(hSelected), 0U);
        EXPECT_EQ(Tree(dlg).GetImageList(TVSIL_NORMAL), nullptr) << "images that exist no more";
        fx::TapOk(dlg);
    });
    EXPECT_EQ(script.Run([&] { return dlg.DoModal(); }), IDOK);
    EXPECT_EQ(dlg.GetSelectedFolder(), L"\\a");
}

} // namespace
