// Each call into the system fails once: nothing may crash, hang, be lost or be left behind.
#include "FaultLoop.h"
#include "FaultTable.h"
#include "testkit/Drive.h"
#include "testkit/Program.h"

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <map>
#include <memory>

using namespace testkit;

namespace {

using fx::Scenario;

constexpr wchar_t RANGE[] = L"FIELDKIT_FAULT_RANGE"; ///< For the process that runs the loop.
constexpr wchar_t ALL[] = L"FIELDKIT_FAULTS_ALL";    ///< Set by those who have the time.

CString Variable(LPCTSTR pszName) {
    WCHAR szValue[64] = {};
    ::GetEnvironmentVariable(pszName, szValue, 64);
    return szValue;
}

std::string NameOf(const testing::TestParamInfo<Scenario>& info) {
    return info.param.pszName;
}

/// What runs in the process of its own; it does not run by itself.
class DISABLED_FaultLoop : public testing::TestWithParam<Scenario> {};

TEST_P(DISABLED_FaultLoop, Run) {
    fx::LoopRange range = {};
    ASSERT_EQ(std::swscanf(Variable(RANGE), L"%d %d", &range.nFirst, &range.nStride), 2);
    fx::g_app.SetRegistryKey(L"Fieldkit tests");
    fx::RunLoop(GetParam(), range);
}

INSTANTIATE_TEST_SUITE_P(All, DISABLED_FaultLoop, testing::ValuesIn(fx::Scenarios()), NameOf);

struct Faults : testing::TestWithParam<Scenario> {
    static void SetUpTestSuite() {
        s_pDrive = std::make_unique<Drive>();
        s_pDrive->MakeFolder(L"\\faults");
        s_pDrive->MakeMany(Drive::Files, L"\\faults", "P%02g.csv", 20);
        s_pDrive->MakeMany(Drive::Folders, L"\\faults", "D%02g", 5);
    }
    static void TearDownTestSuite() { s_pDrive.reset(); }

    /// @return how the process ended
    static DWORD RunProcess(const char* pszScenario, int nFirst, int nStride) {
        CString strRange;
        strRange.Format(L"%d %d", nFirst, nStride);
        ::SetEnvironmentVariable(RANGE, strRange);
        return Program(L"test_faults", nullptr,
                       L"--gtest_also_run_disabled_tests --gtest_brief=1 "
                       L"--gtest_filter=All/DISABLED_FaultLoop.Run/" +
                           std::wstring(CString(pszScenario)))
            .End(INFINITE);
    }

private:
    static inline std::unique_ptr<Drive> s_pDrive;
};

TEST_P(Faults, LeaveNothingBehind) {
    const bool bAll = !Variable(ALL).IsEmpty();
    // Another call each day, so that all have their turn.
    const int nDay = static_cast<int>(std::time(nullptr) / (24 * 60 * 60));
    int nFirst = bAll ? 1 : 1 + nDay % 16;
    for (;;) {
        const DWORD dwExit = RunProcess(GetParam().pszName, nFirst, bAll ? 1 : 0);
        EXPECT_EQ(dwExit, 0U) << "see above";
        if (dwExit <= fx::ENDED || dwExit >= 2 * fx::ENDED)
            break; // done, or not even begun
        nFirst = static_cast<int>(dwExit - fx::ENDED) + 1;
    }
}

INSTANTIATE_TEST_SUITE_P(All, Faults, testing::ValuesIn(fx::Scenarios()), NameOf);

TEST(FaultTable, KnowsEveryFunctionThatTheLibraryCalls) {
    std::map<std::string, std::string> used;
    for (const wchar_t* const pszModule : {L"FieldkitFx.dll", L"Fieldkit.dll", L"Tesuvo.dll"})
        for (const fault::Import& import : fault::ImportsOf(::GetModuleHandle(pszModule)))
            if (!import.dll.starts_with("Fieldkit") && !import.dll.starts_with("Tesuvo"))
                used[import.name] = import.dll;
    for (const fault::Point& point : fx::Table())
        EXPECT_EQ(used.erase(point.pszName), 1U) << point.pszName << " is not called any more";
    for (const auto& [name, dll] : used) // of the C runtime only what allocates can fail, which is no news
        EXPECT_TRUE(dll == "msvcrt.dll" || fx::Infallible().contains(name))
            << name << ": add it to a list in FaultTable.cpp";
}

} // namespace
