#include "support/Rows.h"

#include <gtest/gtest.h>

#include "Tesuvo.h"

#include <cstdlib>

namespace {

TEST(Settings, DecimalsComeFromTheEnvironmentWithinTheirRange) {
    const Rows<const char*, int> rows = {
        {"0", 0}, {"3", 3},   {"4", 4},  {"5", 2},  {"-1", 2}, {"4294967296", 2}, {"99999999999999999999", 2},
        {"", 2},  {"abc", 2}, {"3x", 2}, {" 3", 2}, {"3.0", 2}};
    for (const auto& [stored, value] : rows) {
        ::setenv("TESUVO_SETTING_1280", stored, 1);
        EXPECT_EQ(TVGetCommonRegInt(1280), value) << stored;
    }
    ::unsetenv("TESUVO_SETTING_1280");
    EXPECT_EQ(2, TVGetCommonRegInt(1280));
}

TEST(Settings, UnknownOnesAreZeroWhateverIsStored) {
    ::setenv("TESUVO_SETTING_1281", "3", 1);
    EXPECT_EQ(0, TVGetCommonRegInt(1281));
    ::unsetenv("TESUVO_SETTING_1281");
}

} // namespace
