#include "support/Rows.h"

#include <gtest/gtest.h>

#include "Tesuvo.h"

#include <vector>

namespace {

constexpr wchar_t kKey[] = L"Software\\Tesuvo\\Common";
constexpr wchar_t kDecimals[] = L"1280";

/// Keeps the user's own setting and puts it back afterwards.
struct Settings : testing::Test {
    void SetUp() override {
        ASSERT_EQ(::RegCreateKeyExW(HKEY_CURRENT_USER, kKey, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &m_key,
                                    nullptr),
                  ERROR_SUCCESS);
        DWORD size = sizeof m_previous;
        m_present = ::RegGetValueW(m_key, nullptr, kDecimals, RRF_RT_REG_DWORD, nullptr, &m_previous,
                                   &size) == ERROR_SUCCESS;
        ::RegDeleteValueW(m_key, kDecimals);
    }

    void TearDown() override {
        ::RegDeleteValueW(m_key, kDecimals);
        if (m_present)
            Store(kDecimals, m_previous);
        ::RegCloseKey(m_key);
    }

    void Store(const wchar_t* name, DWORD value) {
        EXPECT_EQ(
            ::RegSetValueExW(m_key, name, 0, REG_DWORD, reinterpret_cast<const BYTE*>(&value), sizeof value),
            ERROR_SUCCESS);
    }

    HKEY m_key = nullptr;

private:
    DWORD m_previous = 0;
    bool m_present = false;
};

TEST_F(Settings, DecimalsComeFromTheStoreWithinTheirRange) {
    const Rows<DWORD, int> rows = {{0, 0}, {1, 1}, {3, 3}, {4, 4}, {5, 2}, {0x80000000, 2}, {0xFFFFFFFF, 2}};
    for (const auto& [stored, value] : rows) {
        Store(kDecimals, stored);
        EXPECT_EQ(TVGetCommonRegInt(1280), value) << stored;
    }
}

TEST_F(Settings, DecimalsFallBackWithoutAUsableValue) {
    EXPECT_EQ(TVGetCommonRegInt(1280), 2);
    const Rows<DWORD, std::vector<BYTE>> rows = {
        {REG_SZ, {'4', 0, 0, 0}},
        {REG_EXPAND_SZ, {'4', 0, 0, 0}},
        {REG_MULTI_SZ, {'4', 0, 0, 0, 0, 0}},
        {REG_BINARY, {4, 0, 0, 0}},
        {REG_NONE, {4, 0, 0, 0}},
        {REG_DWORD_BIG_ENDIAN, {4, 0, 0, 0}},
        {REG_QWORD, {4, 0, 0, 0, 0, 0, 0, 0}},
        {REG_DWORD, {}}, // damaged: of another size than a number has
        {REG_DWORD, {4}},
        {REG_DWORD, {4, 0, 0}},
        {REG_DWORD, {4, 0, 0, 0, 0, 0, 0, 0}},
        {REG_BINARY, std::vector<BYTE>(100000, 4)},
    };
    for (const auto& [type, stored] : rows) {
        ASSERT_EQ(
            ::RegSetValueExW(m_key, kDecimals, 0, type, stored.data(), static_cast<DWORD>(stored.size())),
            ERROR_SUCCESS);
        EXPECT_EQ(TVGetCommonRegInt(1280), 2) << type << ' ' << stored.size();
    }
}

TEST_F(Settings, UnknownOnesAreZeroWhateverIsStored) {
    Store(L"1281", 3);
    EXPECT_EQ(TVGetCommonRegInt(1281), 0);
    ::RegDeleteValueW(m_key, L"1281");
    EXPECT_EQ(TVGetCommonRegInt(0), 0);
    EXPECT_EQ(TVGetCommonRegInt(-1280), 0);
}

} // namespace
