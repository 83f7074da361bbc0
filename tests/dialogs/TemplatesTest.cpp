// The library's dialog templates, window by window, as tests/data/dialogs/templates.txt has them.
#include "support/Languages.h"
#include "support/TestData.h"

namespace {

TEST(Templates, AreAsTheyWereDesigned) {
    constexpr WORD IDS[] = {134, 140, 141, 1070, 1120, 1150};
    std::string found;
    for (const WORD nID : IDS) {
        const languages::Dialog dialog(::GetModuleHandle(L"Fieldkit.dll"), nID, languages::JAPANESE);
        found += std::to_string(nID) + '\n' + languages::Describe(dialog, true);
    }
    std::ostringstream wanted;
    wanted << testdata::Open("dialogs/templates.txt").rdbuf();
    EXPECT_EQ(wanted.str(), found);
}

} // namespace
