// The texts of the library in both of its languages.
#include "support/TestApp.h"
#include "testkit/Languages.h"

using namespace testkit;

namespace {

TEST(Languages, HaveTheSameNumbersControlsAndPlaceholdersAndFit) {
    const struct {
        LPCTSTR pszModule;
        int nAtLeast; ///< So that an empty module does not pass.
    } ROWS[] = {{L"FieldkitFx.dll", 60}, {L"Fieldkit.dll", 21}, {L"Tesuvo.dll", 8}};
    for (const auto& row : ROWS) {
        SCOPED_TRACE(Utf8(row.pszModule));
        EXPECT_LE(row.nAtLeast, CompareLanguages(::GetModuleHandle(row.pszModule), kJapanese, kEnglish));
    }
}

} // namespace
