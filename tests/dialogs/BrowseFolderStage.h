// What the tests of the folder dialog have in common.
#pragma once

#include "dialogs/BrowseFolderDlg.h"

#include "TestDrive.h"
#include "support/ModalScript.h"
#include "support/TitleBar.h"

#include <algorithm>

namespace browse_folder {

constexpr int TREE = 1100;

using fx::WhileOpen;
using Paths = std::vector<CString>;

inline CTreeCtrl& Tree(CDialog& dlg) {
    return *static_cast<CTreeCtrl*>(dlg.GetDlgItem(TREE));
}

inline const CString& PathOf(const CTreeCtrl& tree, HTREEITEM hItem) {
    return *reinterpret_cast<const CString*>(tree.GetItemData(hItem));
}

/// All items from top to bottom. Each must stand below its folder and have its name.
inline void CollectPaths(const CTreeCtrl& tree, HTREEITEM hFirst, const CString& strParent, Paths& paths) {
    for (HTREEITEM hItem = hFirst; hItem != nullptr; hItem = tree.GetNextSiblingItem(hItem)) {
        const CString& strPath = PathOf(tree, hItem);
        EXPECT_EQ(strPath, strParent + L"\\" + tree.GetItemText(hItem));
        paths.push_back(strPath);
        CollectPaths(tree, tree.GetChildItem(hItem), strPath, paths);
    }
}

inline Paths AllPaths(const CTreeCtrl& tree) {
    Paths paths;
    CollectPaths(tree, tree.GetChildItem(tree.GetRootItem()), L"", paths);
    return paths;
}

inline Paths SortedPaths(const CTreeCtrl& tree) {
    Paths paths = AllPaths(tree);
    std::sort(paths.begin(), paths.end());
    return paths;
}

inline void TapItem(const CTreeCtrl& tree, HTREEITEM hItem) {
    CRect rect;
    ASSERT_TRUE(tree.GetItemRect(hItem, rect, TRUE));
    tree.ClientToScreen(rect);
    pen::Tap(rect.CenterPoint());
}

} // namespace browse_folder
