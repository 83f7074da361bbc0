#include <gtest/gtest.h>

#include "Tesuvo.h"

#include <string>

namespace {

constexpr wchar_t kKey[] = L"Software\\Tesuvo\\Common";
constexpr wchar_t kDecimals[] = L"1280";

/// Keeps the user's own setting and puts it back afterwards.
class Settings : public testing::Test {
protected:
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
    struct Row {
        DWORD stored;
        int value;
    };
    const Row rows[] = {{0, 0}, {1, 1}, {3, 3}, {4, 4}, {5, 2}, {0x80000000, 2}, {0xFFFFFFFF, 2}};
    for (const Row& row : rows) {
        Store(kDecimals, row.stored);
        EXPECT_EQ(TVGetCommonRegInt(1280), row.value) << row.stored;
    }
}

TEST_F(Settings, DecimalsFallBackWithoutAUsableValue) {
    EXPECT_EQ(TVGetCommonRegInt(1280), 2);
    const wchar_t text[] = L"4";
    ::RegSetValueExW(m_key, kDecimals, 0, REG_SZ, reinterpret_cast<const BYTE*>(text), sizeof text);
    EXPECT_EQ(TVGetCommonRegInt(1280), 2);
    const ULONGLONG wide = 4;
    ::RegSetValueExW(m_key, kDecimals, 0, REG_QWORD, reinterpret_cast<const BYTE*>(&wide), sizeof wide);
    EXPECT_EQ(TVGetCommonRegInt(1280), 2);
}

TEST_F(Settings, UnknownOnesAreZeroWhateverIsStored) {
    Store(L"1281", 3);
    EXPECT_EQ(TVGetCommonRegInt(1281), 0);
    ::RegDeleteValueW(m_key, L"1281");
    EXPECT_EQ(TVGetCommonRegInt(0), 0);
    EXPECT_EQ(TVGetCommonRegInt(-1280), 0);
}

} // namespace
