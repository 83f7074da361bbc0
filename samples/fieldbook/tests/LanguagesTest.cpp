// The texts of the program in both of its languages.
#include "support/Languages.h"

namespace {

TEST(Languages, HaveTheSameNumbersControlsAndPlaceholdersAndFit) {
    EXPECT_GE(languages::Compare(::GetModuleHandle(nullptr)), 200);
}

} // namespace
