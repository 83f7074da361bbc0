#include "screens/Settings.h"

#include "testkit/Application.h"
#include "testkit/GTest.h"

using namespace testkit;

namespace {

constexpr wchar_t COMPANY[] = L"FieldbookTest";
constexpr wchar_t PRIVATE_KEY[] = L"Software\\FieldbookTest";
constexpr wchar_t SHARED_KEY[] = L"Software\\Tesuvo\\Common";

testkit::Application g_app(L"test");

struct Settings : testing::Test {
    void SetUp() override {
        g_app.SetRegistryKey(COMPANY);
        m_saved = LoadSettings(g_app);
    }
    void TearDown() override {
        SaveSettings(g_app, m_saved); // the decimals belong to all applications
        ::RegDeleteTree(HKEY_CURRENT_USER, PRIVATE_KEY);
        ::RegDeleteKey(HKEY_CURRENT_USER, PRIVATE_KEY);
    }

private:
    CSettings m_saved;
};

TEST_F(Settings, ComeBackAsTheyWereSaved) {
    CSettings settings;
    settings.nDecimals = 5;
    settings.bTenths = 1;
    settings.nTolerance = 2;
    settings.strFolder = L"\\測量\\現場 1";
    settings.strFile = L"\\測量\\今日.csv";
    settings.strPrevious = L"\\測量\\昨日.csv";
    settings.columns = {Column::Blank, Column::E, Column::Blank, Column::Name};
    settings.order = {Column::Name, Column::E, Column::N};
    ASSERT_TRUE(SaveSettings(g_app, settings));
    const CSettings loaded = LoadSettings(g_app);
    EXPECT_EQ(5, loaded.nDecimals);
    EXPECT_EQ(1, loaded.bTenths);
    EXPECT_EQ(2, loaded.nTolerance);
    EXPECT_TRUE(loaded.strFolder == settings.strFolder);
    EXPECT_STREQ(settings.strFile, loaded.strFile);
    EXPECT_STREQ(settings.strPrevious, loaded.strPrevious);
    EXPECT_EQ(settings.columns, loaded.columns);
    EXPECT_EQ(settings.order, loaded.order);

    DWORD dwValue = 0, dwSize = sizeof dwValue;
    ASSERT_EQ(ERROR_SUCCESS, ::RegGetValue(HKEY_CURRENT_USER, SHARED_KEY, L"1280", RRF_RT_REG_DWORD, nullptr,
                                           &dwValue, &dwSize));
    EXPECT_EQ(4U, dwValue) << "the shared setting is the number of decimals minus one";
}

TEST_F(Settings, ValuesThatNoOneCanHaveSetCountAsTheDefault) {
    for (const int nValue : {-1, 3, 1000}) {
        g_app.WriteProfileInt(L"Settings", L"Tenths", nValue);
        g_app.WriteProfileInt(L"Settings", L"Tolerance", nValue);
        const CSettings loaded = LoadSettings(g_app);
        EXPECT_EQ(0, loaded.bTenths) << nValue;
        EXPECT_EQ(0, loaded.nTolerance) << nValue;
    }
    g_app.WriteProfileString(L"Settings", L"Columns", L"?!");
    EXPECT_EQ(CSettings().columns, LoadSettings(g_app).columns) << "a file without columns has no sense";
}

} // namespace
