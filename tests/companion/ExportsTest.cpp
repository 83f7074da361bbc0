#include <gtest/gtest.h>

#include <windows.h>

namespace {

TEST(Exports, AreTheEightFunctionsAndNothingElse) {
    const HMODULE module = ::LoadLibraryW(L"Tesuvo.dll");
    ASSERT_NE(module, nullptr);
    for (const char* const name : {"TVCheckFileExist", "TVCloseSIP", "TVGetCommonIcon", "TVGetCommonRegInt",
                                   "TVIncrementName", "TVResolveFilePath", "TVShowSIP", "TVString2Double"})
        EXPECT_NE(::GetProcAddress(module, name), nullptr) << name;
    EXPECT_NE(::GetProcAddress(module, MAKEINTRESOURCEA(8)), nullptr) << "numbered from 1";
    EXPECT_EQ(::GetProcAddress(module, MAKEINTRESOURCEA(9)), nullptr) << "more than these";
    ::FreeLibrary(module);
}

} // namespace
