// Dialogs with another resolution while they are open, as on a second screen.
#include "FileSelectStage.h"

#include "dialogs/BrowseFolderDlg.h"
#include "dialogs/ButtonMenuDlg.h"
#include "dialogs/SelMemberDlg.h"

#include "Tesuvo.h"

using namespace testkit;
using namespace file_select;

namespace {

void DoubleResolution(CWnd& dlg) {
    constexpr WORD DPI = 2 * USER_DEFAULT_SCREEN_DPI;
    dlg.SendMessage(WM_DPICHANGED, MAKEWPARAM(DPI, DPI));
}

TEST(Resolution, IconsAndFontsFollowIt) {
    Drive drive;
    CUIntArray ids;
    ids.Add(1513);
    CButtonMenuDlg menu(1503, &ids, nullptr);
    CSelMemberDlg members(L"項目", nullptr);
    Dialog files;
    const Rows<CnDialog&, int, int> rows = {{menu, 5100, TVICON_MENU_ENTRY},
                                            {members, 1008, TVICON_UP},
                                            {members, 1009, TVICON_DOWN},
                                            {files, FOLDER_BUTTON, TVICON_FOLDER_BUTTON}};
    for (const auto& [dlg, nID, nIcon] : rows)
        WhileOpen(dlg, [&] {
            auto& button = *static_cast<CIconButton*>(dlg.GetDlgItem(nID));
            EXPECT_EQ(TVGetCommonIcon(nIcon), button.SetIcon(nullptr)) << nID;
            DoubleResolution(dlg);
            EXPECT_EQ(TVGetCommonIcon(nIcon), button.SetIcon(nullptr)) << nID;
        });
    WhileOpen(files, [&] {
        DoubleResolution(files);
        EXPECT_EQ(files.GetFont(), files.List().GetFont()) << "now there is room for it";
    });
    CBrowseFolderDlg folders(L"\\", nullptr);
    WhileOpen(folders, [&] {
        DoubleResolution(folders);
        const auto& tree = *static_cast<CTreeCtrl*>(folders.GetDlgItem(1100));
        int cx = 0, cy = 0;
        ::ImageList_GetIconSize(*tree.GetImageList(TVSIL_NORMAL), &cx, &cy);
        EXPECT_EQ(32, cx);
    });
}

} // namespace
