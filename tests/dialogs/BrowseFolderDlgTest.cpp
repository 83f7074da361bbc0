#include "dialogs/BrowseFolderDlg.h"

#include "LockedFolder.h"
#include "support/TestApp.h"
#include "testkit/Script.h"
#include "testkit/Drive.h"
#include "testkit/TitleBar.h"

using namespace testkit;

namespace {

constexpr int TREE = 1100;
using Paths = std::vector<CString>;

struct Dialog : CBrowseFolderDlg {
    using CBrowseFolderDlg::CBrowseFolderDlg;
    using CBrowseFolderDlg::MakeTreeSegment;
    using CBrowseFolderDlg::RemoveTreeItems;
    using CBrowseFolderDlg::ResetMemory;

    CTreeCtrl& Tree() { return *static_cast<CTreeCtrl*>(GetDlgItem(TREE)); }
    const CString& PathOf(HTREEITEM hItem) {
        return *reinterpret_cast<const CString*>(Tree().GetItemData(hItem));
    }
    /// All items from top to bottom. Each must stand below its folder and have its name.
    Paths PathsBelow(HTREEITEM hParent, const CString& strParent = L"") {
        Paths paths;
        for (HTREEITEM hItem = Tree().GetChildItem(hParent); hItem != nullptr;
             hItem = Tree().GetNextSiblingItem(hItem)) {
            const CString strPath = PathOf(hItem);
            EXPECT_EQ(strParent + L"\\" + Tree().GetItemText(hItem), strPath);
            paths.push_back(strPath);
            for (const CString& strBelow : PathsBelow(hItem, strPath))
                paths.push_back(strBelow);
        }
        return paths;
    }
    Paths AllPaths() { return PathsBelow(Tree().GetRootItem()); }
};

TEST(BrowseFolderDlg, ShowsEveryFolderWithItsPathAndImage) {
    Drive drive;
    // Letters of two units and combining marks; names with dots, which only the system's own form of a path
    // can reach.
    Paths wanted = {L"\\c",        L"\\a",
                    L"\\a\\A & B", L"\\a\\points.csv",
                    L"\\境界　点", L"\\境界　点\\ｶﾞ",
                    L"\\𠮷野",     L"\\𠮷野\\か\x3099",
                    L"\\dot.",     L"\\dot.\\inside",
                    L"\\...",      L"\\...\\inside",
                    L"\\locked",   L"\\card"};
    CString strDeep; // longer than the system's usual limit
    for (int i = 0; i < 30; ++i)
        wanted.push_back(strDeep += L"\\" + CString(static_cast<wchar_t>(L'a' + i % 26), 60));
    for (const CString& strPath : wanted)
        drive.MakeFolder(strPath);
    drive.MakeFile(L"\\file");
    drive.MakeFolder(L"\\locked\\inside");
    if (drive.MakeLink(L"\\a\\loop", L"\\a"))
        wanted.push_back(L"\\a\\loop"); // what is behind it is not
    ::SetFileAttributes(drive.Long(L"\\card"), FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_TEMPORARY);
    const LockedFolder locked(L"\\locked");
    std::sort(wanted.begin(), wanted.end());
    Dialog dlg(strDeep);
    WhileOpen(dlg, [&] {
        const CTreeCtrl& tree = dlg.Tree();
        const HTREEITEM hRoot = tree.GetRootItem();
        EXPECT_EQ(L"ﾙｰﾄ", tree.GetItemText(hRoot));
        EXPECT_EQ(L"\\", dlg.PathOf(hRoot));
        EXPECT_EQ(nullptr, tree.GetNextSiblingItem(hRoot));
        EXPECT_TRUE(tree.GetItemState(hRoot, TVIS_EXPANDED) & TVIS_EXPANDED);
        Paths paths = dlg.AllPaths();
        std::sort(paths.begin(), paths.end());
        EXPECT_EQ(wanted, paths);
        EXPECT_EQ(strDeep, dlg.PathOf(tree.GetSelectedItem()));
        CImageList* const pImages = tree.GetImageList(TVSIL_NORMAL);
        ASSERT_NE(nullptr, pImages);
        EXPECT_EQ(3, pImages->GetImageCount());
        CSize size;
        ::ImageList_GetIconSize(*pImages, reinterpret_cast<int*>(&size.cx), reinterpret_cast<int*>(&size.cy));
        EXPECT_EQ(CSize(16, 16), size);
        EXPECT_EQ(RGB(255, 255, 255), pImages->GetBkColor());
        const auto expectImage = [&](int nWanted, HTREEITEM hItem) {
            int nImage = -1, nSelected = -1;
            EXPECT_TRUE(tree.GetItemImage(hItem, nImage, nSelected));
            EXPECT_EQ(nWanted, nImage);
            EXPECT_EQ(nWanted, nSelected);
        };
        expectImage(2, hRoot);
        for (HTREEITEM h = tree.GetChildItem(hRoot); h != nullptr; h = tree.GetNextSiblingItem(h)) {
            const DWORD dw = ::GetFileAttributes(drive.Long(dlg.PathOf(h))); // not every system keeps it
            expectImage((dw & FILE_ATTRIBUTE_TEMPORARY) != 0 ? 1 : 0, h);
        }
    });
}

TEST(BrowseFolderDlg, SelectsTheFolderThatIsWrittenExactlyAsItsOwn) {
    Drive drive;
    for (const wchar_t* pszPath : {L"\\a", L"\\data", L"\\data\\Site 1"})
        drive.MakeFolder(pszPath);
    drive.MakeMany(Drive::Folders, L"\\data\\Site 1", "%02.0f", 40); // more than the window shows
    const Rows<const wchar_t*, bool> rows = {{L"\\data", true},
                                             {L"\\data\\Site 1\\39", true},
                                             {L"\\data\\Site 1\\", false},
                                             {L"\\DATA", false},
                                             {L"data", false},
                                             {L"\\", false},
                                             {nullptr, false}};
    for (const auto& [folder, found] : rows) {
        Dialog dlg(folder);
        const auto look = [&] {
            const CTreeCtrl& tree = dlg.Tree();
            EXPECT_EQ(&tree, CWnd::GetFocus());
            const HTREEITEM hSelected = tree.GetSelectedItem();
            ASSERT_EQ(found, hSelected != nullptr) << Utf8(folder);
            if (!found)
                return;
            EXPECT_EQ(folder, dlg.PathOf(hSelected));
            CRect item, client;
            tree.GetClientRect(client);
            ASSERT_TRUE(tree.GetItemRect(hSelected, item, FALSE)) << "its parents are closed";
            EXPECT_GE(item.top, 0) << Utf8(folder);
            EXPECT_LE(item.bottom, client.bottom) << Utf8(folder);
        };
        EXPECT_EQ(IDOK, Play(dlg, {look, [&] { TapOk(dlg); }}));
        EXPECT_EQ(CString(folder), dlg.GetSelectedFolder()) << "taken over as it was";
    }
}

TEST(BrowseFolderDlg, DerivedDialogsBuildSegmentsAndFreeThemEarly) {
    Drive drive;
    drive.MakeFolder(L"\\a");
    drive.MakeFolder(L"\\a\\b");
    Dialog dlg(L"\\a");
    const auto use = [&] {
        CTreeCtrl& tree = dlg.Tree();
        for (const wchar_t* pszRoot : {L"\\", L""}) {
            const HTREEITEM hItem = tree.InsertItem(L"again");
            dlg.MakeTreeSegment(hItem, pszRoot);
            EXPECT_EQ((Paths{L"\\a", L"\\a\\b"}), dlg.PathsBelow(hItem));
            dlg.RemoveTreeItems(tree.GetChildItem(hItem));
            tree.DeleteItem(hItem);
        }
        const HTREEITEM hItem = tree.InsertItem(L"unreadable");
        for (const wchar_t* pszPath : {L"\\nowhere", L"\\a<|>b", L"\\\\nobody\\nothing", L"?:"})
            dlg.MakeTreeSegment(hItem, pszPath);
        EXPECT_EQ(nullptr, tree.GetChildItem(hItem));
        tree.DeleteItem(hItem);
        dlg.ResetMemory();
        EXPECT_EQ(0U, tree.GetItemData(tree.GetRootItem()));
        EXPECT_EQ(nullptr, tree.GetImageList(TVSIL_NORMAL)) << "images that exist no more";
        TapOk(dlg);
    };
    EXPECT_EQ(IDOK, Play(dlg, {use}));
    EXPECT_EQ(L"\\a", dlg.GetSelectedFolder()) << "OK without the paths";
}

} // namespace
