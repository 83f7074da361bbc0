// Each call into the system fails once: nothing may crash, hang, be lost or be left behind.
#include "Faults.h"
#include "support/AllDialogs.h"

#include <ctime>
#include <map>

using namespace testkit;

namespace {

constexpr LPCTSTR MODULES[] = {L"FieldkitFx.dll", L"Fieldkit.dll", L"Tesuvo.dll"};

struct Faults : testing::TestWithParam<fault::Scenario> {
    static void SetUpTestSuite() {
        for (const LPCTSTR pszModule : MODULES)
            fault::Install(::GetModuleHandle(pszModule), fx::Table());
        s_pDrive = std::make_unique<Drive>();
        fx::FillDrive(*s_pDrive);
        fx::g_app.SetRegistryKey(L"Fieldkit tests");
    }
    static void TearDownTestSuite() { s_pDrive.reset(); }

private:
    static inline std::unique_ptr<Drive> s_pDrive;
};

TEST_P(Faults, LeaveNothingBehind) {
    const bool bAll = std::getenv("FIELDKIT_FAULTS_ALL") != nullptr;
    const auto nDay = static_cast<int>(std::time(nullptr) / (24 * 60 * 60)); // other calls each day
    std::printf("%d calls\n", fault::FailEachCall(GetParam(), bAll ? 0 : 40, nDay));
}

INSTANTIATE_TEST_SUITE_P(All, Faults, testing::ValuesIn(fx::Scenarios()),
                         [](const auto& test) { return test.param.name; });

TEST(FaultTable, KnowsEveryFunctionThatTheLibraryCalls) {
    std::map<std::string, std::string> used;
    for (const LPCTSTR pszModule : MODULES)
        for (const fault::Import& import : fault::ImportsOf(::GetModuleHandle(pszModule)))
            if (!import.dll.starts_with("Fieldkit") && !import.dll.starts_with("Tesuvo"))
                used[import.name] = import.dll;
    for (const fault::Point& point : fx::Table())
        EXPECT_EQ(1U, used.erase(point.pszName)) << point.pszName << " is not called any more";
    for (const auto& [name, dll] : used) // of the C runtime only what allocates can fail, which is no news
        EXPECT_TRUE(dll == "msvcrt.dll" || fx::Infallible().contains(name))
            << name << ": add it to a list in FaultTable.cpp";
}

} // namespace
