// The texts of the library in both of its languages.
#include "support/Languages.h"

namespace {

TEST(Languages, HaveTheSameNumbersControlsAndPlaceholdersAndFit) {
    const struct {
        LPCTSTR pszModule;
        int nAtLeast; ///< So that an empty module does not pass.
    } ROWS[] = {{L"FieldkitFx.dll", 60}, {L"Fieldkit.dll", 21}, {L"Tesuvo.dll", 8}};
    for (const auto& row : ROWS) {
        SCOPED_TRACE(fx::Utf8(row.pszModule));
        EXPECT_GE(languages::Compare(::GetModuleHandle(row.pszModule)), row.nAtLeast);
    }
}

} // namespace
