#include <gtest/gtest.h>

#include <windows.h>

#include <set>
#include <string>

namespace {

/// The names in a loaded module's export table.
std::set<std::string> ExportsOf(HMODULE module) {
    const auto* const base = reinterpret_cast<const BYTE*>(module);
    const auto* const dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
    const auto* const headers = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
    const auto& entry = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_EXPORT];
    const auto* const table = reinterpret_cast<const IMAGE_EXPORT_DIRECTORY*>(base + entry.VirtualAddress);
    const auto* const names = reinterpret_cast<const DWORD*>(base + table->AddressOfNames);
    EXPECT_EQ(table->NumberOfFunctions, table->NumberOfNames) << "exports without a name";
    std::set<std::string> found;
    for (DWORD at = 0; at < table->NumberOfNames; ++at)
        found.insert(reinterpret_cast<const char*>(base + names[at]));
    return found;
}

TEST(Exports, AreTheEightFunctionsAndNothingElse) {
    const HMODULE module = ::LoadLibraryW(L"Tesuvo.dll");
    ASSERT_NE(module, nullptr);
    const std::set<std::string> expected = {
        "TVCheckFileExist", "TVCloseSIP",        "TVGetCommonIcon", "TVGetCommonRegInt",
        "TVIncrementName",  "TVResolveFilePath", "TVShowSIP",       "TVString2Double",
    };
    EXPECT_EQ(ExportsOf(module), expected);
    ::FreeLibrary(module);
}

} // namespace
