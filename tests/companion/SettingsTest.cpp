#include "support/Rows.h"

#include <gtest/gtest.h>

#include "Tesuvo.h"

#include <vector>

namespace {

constexpr wchar_t kOwn[] = L"Software\\Fieldkit tests\\User";
constexpr wchar_t kDecimals[] = L"1280";

std::vector<BYTE> BytesOf(DWORD value) {
    const auto* const first = reinterpret_cast<const BYTE*>(&value);
    return {first, first + sizeof value};
}

/// The user's own settings are elsewhere meanwhile.
struct Settings : testing::Test {
    void SetUp() override {
        HKEY user = nullptr;
        ASSERT_EQ(ERROR_SUCCESS, ::RegCreateKeyW(HKEY_CURRENT_USER, kOwn, &user));
        ASSERT_EQ(ERROR_SUCCESS, ::RegOverridePredefKey(HKEY_CURRENT_USER, user));
        ASSERT_EQ(ERROR_SUCCESS, ::RegCreateKeyW(user, L"Software\\Tesuvo\\Common", &m_key));
        ::RegCloseKey(user);
    }
    void TearDown() override {
        ::RegCloseKey(m_key);
        ::RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
        ::RegDeleteTreeW(HKEY_CURRENT_USER, kOwn);
    }

    void Store(const wchar_t* name, DWORD type, const std::vector<BYTE>& bytes) {
        const auto size = static_cast<DWORD>(bytes.size());
        EXPECT_EQ(ERROR_SUCCESS, ::RegSetValueExW(m_key, name, 0, type, bytes.data(), size));
    }

    HKEY m_key = nullptr;
};

TEST_F(Settings, DecimalsComeFromTheStoreWithinTheirRange) {
    const Rows<DWORD, int> rows = {{0, 0}, {1, 1}, {3, 3}, {4, 4}, {5, 2}, {0x80000000, 2}, {0xFFFFFFFF, 2}};
    for (const auto& [stored, value] : rows) {
        Store(kDecimals, REG_DWORD, BytesOf(stored));
        EXPECT_EQ(TVGetCommonRegInt(1280), value) << stored;
    }
}

TEST_F(Settings, DecimalsFallBackWithoutAUsableValue) {
    EXPECT_EQ(2, TVGetCommonRegInt(1280));
    const Rows<DWORD, std::vector<BYTE>> rows = {
        {REG_SZ, {'4', 0, 0, 0}},
        {REG_BINARY, {4, 0, 0, 0}},
        {REG_DWORD, {}}, // damaged: of another size than a number has
        {REG_DWORD, {4, 0, 0}},
        {REG_DWORD, {4, 0, 0, 0, 0, 0, 0, 0}},
        {REG_BINARY, std::vector<BYTE>(100000, 4)},
    };
    for (const auto& [type, stored] : rows) {
        Store(kDecimals, type, stored);
        EXPECT_EQ(2, TVGetCommonRegInt(1280)) << type << ' ' << stored.size();
    }
}

TEST_F(Settings, UnknownOnesAreZeroWhateverIsStored) {
    Store(L"1281", REG_DWORD, BytesOf(3));
    EXPECT_EQ(0, TVGetCommonRegInt(1281));
    EXPECT_EQ(0, TVGetCommonRegInt(0));
    EXPECT_EQ(0, TVGetCommonRegInt(-1280));
}

} // namespace
