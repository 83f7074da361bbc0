#include "testkit/GTest.h"
#include "testkit/Program.h"

using namespace testkit;

TEST(ProgramsTest, EveryWayToEndKeepsTheSettingsAndEnds) {
    constexpr wchar_t kKey[] = L"Software\\Fieldkit tests\\Ending";
    ::RegDeleteTreeW(HKEY_CURRENT_USER, kKey);
    for (const wchar_t* const pszWay : {L"end", L"quit", L"destroy", L"owner", L"unload", L"thread",
                                        L"window-thread", L"exit", L"exit-process"}) {
        SCOPED_TRACE(testing::PrintToString(pszWay));
        EXPECT_EQ(3U, Program(L"Ending", nullptr, pszWay).End());
        wchar_t szValue[8] = {};
        DWORD nSize = sizeof szValue;
        ::RegGetValueW(HKEY_CURRENT_USER, (std::wstring(kKey) + L"\\Ways").c_str(), pszWay, RRF_RT_REG_SZ,
                       nullptr, szValue, &nSize);
        EXPECT_STREQ(L"done", szValue);
    }
}
