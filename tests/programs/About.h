// What the classic wizards give every program.
#pragma once

#include "testkit/GTest.h"
#include "testkit/Program.h"

/// Its About box, from the system menu; closed by a tap on OK.
inline void ShowAbout(const testkit::Program& program, const wchar_t* pszTitle) {
    ::PostMessage(program.Main(), WM_SYSCOMMAND, 0x10, 0);
    const HWND hAbout = program.Window(pszTitle);
    program.Tap(::GetDlgItem(hAbout, IDOK));
    EXPECT_TRUE(testkit::Until([&] { return !::IsWindow(hAbout); }));
}
