#include "testkit/GTest.h"
#include "testkit/Pen.h"
#include "testkit/Program.h"
#include "../../samples/classic/stationsetup/resource.h"

#include <commctrl.h>

using namespace testkit;

namespace {

// The pages are dialogs in the sheet; the one that is shown comes first.
HWND PageItem(const Program& program, int nID) {
    HWND hPage = nullptr;
    EXPECT_TRUE(Until([&] {
        hPage = ::FindWindowExW(program.Main(), nullptr, L"#32770", nullptr);
        return ::GetDlgItem(hPage, nID) != nullptr;
    }));
    return ::GetDlgItem(hPage, nID);
}

bool IsTipShown() {
    HWND hTip = nullptr;
    while ((hTip = ::FindWindowExW(nullptr, hTip, TOOLTIPS_CLASSW, nullptr)) != nullptr)
        if (::IsWindowVisible(hTip))
            return true;
    return false;
}

} // namespace

TEST(ProgramsTest, StationSetupFillsItsListsAndKeepsItsSettings) {
    ::RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\Levelling Tools");
    for (const wchar_t* const pszExpected :
         {L"-17", L"-30"}) { // what the second run finds is the first one's
        const Program program(L"StationSetup", L"Station setup");
        const HWND hPrism = PageItem(program, IDC_PRISM);
        EXPECT_EQ(4, ::SendMessage(hPrism, CB_GETCOUNT, 0, 0));
        EXPECT_EQ(4, ::SendMessage(PageItem(program, IDC_MODEL), CB_GETCOUNT, 0, 0));
        FocusByTap(hPrism);
        TypeKeys({VK_RETURN}); // closes the list
        TypeKeys({VK_DOWN});
        EXPECT_TRUE(
            Until([&] { return TextOf(PageItem(program, IDC_CONSTANT)).rfind(pszExpected, 0) == 0; }));
        const POINT ok = MiddleOf(program.Item(IDOK));
        const auto restOnOk = [&] {
            for (const LONG x : {210, 215}) // on the screen, and on the button
                pen::Move({x, ok.y});
            return Until(IsTipShown, 3000); // two moves may arrive as one, which is none for a tip
        };
        EXPECT_TRUE(Until(restOnOk));
        ::PostMessage(program.Main(), WM_COMMAND, IDOK, 0);
        const HWND hSummary = program.Window(L"StationSetup");
        EXPECT_TRUE(::PostMessage(hSummary, WM_COMMAND, IDOK, 0));
        EXPECT_EQ(0U, program.End());
    }
}
