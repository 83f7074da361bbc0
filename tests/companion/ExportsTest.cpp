#include <gtest/gtest.h>

#include <windows.h>

namespace {

TEST(Exports, AreTheEightFunctionsAndNothingElse) {
    const HMODULE module = ::LoadLibraryW(L"Tesuvo.dll");
    ASSERT_NE(nullptr, module);
    for (const char* const name : {"TVCheckFileExist", "TVCloseSIP", "TVGetCommonIcon", "TVGetCommonRegInt",
                                   "TVIncrementName", "TVResolveFilePath", "TVShowSIP", "TVString2Double"})
        EXPECT_NE(nullptr, ::GetProcAddress(module, name)) << name;
    EXPECT_NE(nullptr, ::GetProcAddress(module, MAKEINTRESOURCEA(8))) << "numbered from 1";
    EXPECT_EQ(nullptr, ::GetProcAddress(module, MAKEINTRESOURCEA(9))) << "more than these";
    ::FreeLibrary(module);
}

} // namespace
