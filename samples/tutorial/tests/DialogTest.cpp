// The dialog in the test's own process: quicker, and what it holds can be looked at.
#include "First.cpp" // in a larger program the dialog has a header

#include <testkit/GTest.h>
#include <testkit/Leftovers.h>
#include <testkit/Shake.h>
#include <testkit/Steps.h>
#include <testkit/TitleBar.h>

using namespace testkit;

namespace {

struct FirstDialog : testing::Test {
    static void SetUpTestSuite() { // what the entry point of the program does
        AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), SW_SHOWNORMAL);
    }
    std::wstring Distance() const { return TextOf(::GetDlgItem(m_dlg, IDC_DISTANCE)); }

    CFirstDlg m_dlg;
};

TEST_F(FirstDialog, ComputesWithWhatPenAndKeysEnter) {
    const INT_PTR nResult =
        Play(m_dlg, {Type(L"-30"), // the first field has the focus
                     Tap(m_dlg, IDC_NORTH), Type(L"40.5"), Tap(m_dlg, IDC_COMPUTE),
                     [&] { EXPECT_EQ(L"距離 50.401", Distance()); }, [&] { TapOk(m_dlg); }});
    EXPECT_EQ(IDOK, nResult);
}

TEST_F(FirstDialog, ToldThatATextIsNoNumberTheUserIsBackInTheField) {
    const auto isBack = [&] { return HasFocus(::GetDlgItem(m_dlg, IDC_EAST)); };
    Play(m_dlg, {Type(L"x"), Tap(m_dlg, IDC_COMPUTE), Answer(IDOK), isBack, Close(m_dlg)});
}

TEST_F(FirstDialog, LeavesNothingBehind) {
    ExpectNothingLeft([&] { WhileOpen(m_dlg, [] {}); });
}

TEST_F(FirstDialog, StandsRandomInput) {
    Shake(m_dlg, 1, 300);
}

} // namespace
