// The library's dialog templates, window by window, as tests/data/dialogs/templates.txt has them.
#include "support/TestApp.h"
#include "support/TestData.h"
#include "testkit/Languages.h"

#include <sstream>

using namespace testkit;

namespace {

TEST(Templates, AreAsTheyWereDesigned) {
    constexpr WORD IDS[] = {134, 140, 141, 1070, 1120, 1150};
    std::string found;
    for (const WORD nID : IDS) {
        const TemplateWindow dialog(::GetModuleHandle(L"Fieldkit.dll"), nID, kJapanese);
        found += std::to_string(nID) + '\n' + dialog.Describe(true);
    }
    std::ostringstream wanted;
    wanted << testdata::Open("dialogs/templates.txt").rdbuf();
    EXPECT_EQ(wanted.str(), found);
}

} // namespace
