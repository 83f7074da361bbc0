// Everything that opens a window, under random input. A crash or a hang ends the program and names
// seed and event; what is left open afterwards fails the test.
//
// SHAKE_EVENTS, SHAKE_SEED: see tools/shake.sh.
#include "support/AllDialogs.h"
#include "support/TestApp.h"

#include "testkit/Shake.h"

using namespace testkit;

namespace {

using SystemSheet = fx::ThreePages<CPropertySheet, CPropertyPage>;

INT_PTR RunWizard(CWnd* pOwner) {
    SystemSheet sheet(pOwner);
    sheet.SetWizardMode();
    return sheet.DoModal();
}

constexpr fx::AnyDialog SHEETS[] = {
    {"SystemSheet", [](CWnd* p) { return SystemSheet(p).DoModal(); }},
    {"Wizard", RunWizard},
};

class Shake : public testing::TestWithParam<fx::AnyDialog> {};

TEST_P(Shake, Of) {
    Drive drive; // nothing else can be reached from it
    fx::FillDrive(drive);
    ShakeOptions options;
    options.pszName = GetParam().pszName;
    testkit::Shake([](CWnd* pOwner) { GetParam().open(pOwner); }, options);
}

std::string NameOf(const testing::TestParamInfo<fx::AnyDialog>& info) {
    return info.param.pszName;
}

INSTANTIATE_TEST_SUITE_P(Dialogs, Shake, testing::ValuesIn(fx::DIALOGS), NameOf);
INSTANTIATE_TEST_SUITE_P(FileModes, Shake, testing::ValuesIn(fx::FILE_MODES), NameOf);
INSTANTIATE_TEST_SUITE_P(Controls, Shake, testing::ValuesIn(fx::CONTROLS), NameOf);
INSTANTIATE_TEST_SUITE_P(Sheets, Shake, testing::ValuesIn(SHEETS), NameOf);

} // namespace
