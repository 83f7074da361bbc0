// The program as it is, in a process of its own, used from outside.
#include "Resource.h"

#include <testkit/GTest.h>
#include <testkit/Panel.h>
#include <testkit/Program.h>
#include <testkit/TitleBar.h>

using namespace testkit;

namespace {

/// The program is built into the folder above that of its test.
struct FirstProgram : testing::Test {
    const Program m_program{OwnFolder() + L"..\\first.exe", L"距離"};
};

TEST_F(FirstProgram, ShowsTheDistanceOfWhatWasEntered) {
    m_program.ExpectText(IDC_DISTANCE, L"");
    m_program.Fill(IDC_EAST, L"-30");
    m_program.Fill(IDC_NORTH, L"40.5");
    m_program.Tap(IDC_COMPUTE);
    m_program.ExpectText(IDC_DISTANCE, L"距離 50.401");
}

TEST_F(FirstProgram, HasTheInputPanelWhileAFieldHasTheFocus) {
    const auto isPanelVisible = [this] { return ::IsWindowVisible(panel::OfThread(m_program.Thread())); };
    FocusByTap(m_program.Item(IDC_NORTH));
    EXPECT_TRUE(Until(isPanelVisible));
    m_program.Tap(IDC_COMPUTE);
    EXPECT_TRUE(Until([&] { return !isPanelVisible(); }));
}

TEST_F(FirstProgram, EndsByTheOkButtonOfItsTitleBar) {
    TapOk(m_program.Main());
    EXPECT_EQ(0U, m_program.End());
}

} // namespace
