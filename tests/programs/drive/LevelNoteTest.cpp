#include "About.h"
#include "../levelnote/resource.h"

using namespace testkit;

TEST(ProgramsTest, LevelNoteAddsSightsAndShowsItsAboutBox) {
    const Program program(L"LevelNote", L"LevelNote");
    program.Fill(IDC_BACKSIGHT, L"1.5");
    program.Fill(IDC_FORESIGHT, L"1.2");
    program.Tap(IDC_ADD);
    program.ExpectText(IDC_RESULT, L"100.300 m");
    EXPECT_EQ(::SendMessage(program.Item(IDC_STATIONS), LB_GETCOUNT, 0, 0), 1);
    program.Tap(IDC_USE_KNOWN);
    program.ExpectText(IDC_RESULT, L"misclosure 0.300 m");
    ShowAbout(program, L"About LevelNote");
    program.Tap(IDCANCEL);
    EXPECT_EQ(program.End(), 0U);
}
