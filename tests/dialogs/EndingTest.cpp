// Dialogs that end in neither of their own ways, as with their application.
#include "dialogs/BrowseFolderDlg.h"
#include "dialogs/ButtonMenuDlg.h"

#include "support/TestApp.h"
#include "testkit/Drive.h"
#include "testkit/Leftovers.h"
#include "testkit/Script.h"

using namespace testkit;

namespace {

void BrowseFolders() {
    WhileOpen(CBrowseFolderDlg(L""), [] {});
}

void OpenMenuTwice() {
    CUIntArray ids;
    ids.SetSize(3);
    CButtonMenuDlg menu(1503, &ids, nullptr);
    for (int nRun = 0; nRun < 2; ++nRun)
        WhileOpen(menu, [] {});
}

TEST(Ending, FromOutsideLeavesNoMemoryBehind) {
    Drive drive;
    drive.MakeMany(Drive::Folders, L"", "%02.0f", 50);
    for (const auto open : {BrowseFolders, OpenMenuTwice}) {
        const auto openSome = [open] {
            for (int i = 0; i < 6; ++i)
                open();
            return HeapBytes();
        };
        openSome(); // the system keeps things for the next time
        const size_t nBefore = openSome(), nAfter = openSome();
        EXPECT_LE(nAfter, nBefore + 500);
    }
}

} // namespace
