// Each call into the system fails once: nothing may crash, hang, be lost or be left behind.
#include "Faults.h"
#include "support/AllDialogs.h"
#include "support/TestData.h"
#include "testkit/SystemFaults.h"

#include <ctime>
#include <iterator>
#include <map>
#include <set>
#include <sstream>

using namespace testkit;

namespace {

constexpr LPCTSTR MODULES[] = {L"FieldkitFx.dll", L"Fieldkit.dll", L"Tesuvo.dll"};

struct Faults : testing::TestWithParam<fault::Scenario> {
    static void SetUpTestSuite() {
        for (const LPCTSTR pszModule : MODULES)
            fault::Install(::GetModuleHandle(pszModule), fault::SystemPoints());
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

/// Functions that the DLLs use as well, and that do what they are asked for when they are given
/// valid arguments, or whose failure shows nowhere but on the screen.
std::set<std::string> Infallible() {
    std::ifstream file = testdata::Open("faults/infallible.txt");
    std::set<std::string> names;
    for (std::string line; std::getline(file, line);)
        if (std::istringstream words(line); !line.starts_with('#'))
            names.insert(std::istream_iterator<std::string>(words), {});
    return names;
}

TEST(SystemPoints, KnowEveryFunctionThatTheLibraryCalls) {
    std::map<std::string, std::string> used;
    for (const LPCTSTR pszModule : MODULES)
        for (const fault::Import& import : fault::ImportsOf(::GetModuleHandle(pszModule)))
            if (!import.dll.starts_with("Fieldkit") && !import.dll.starts_with("Tesuvo"))
                used[import.name] = import.dll;
    for (const fault::Point& point : fault::SystemPoints())
        used.erase(point.pszName);
    const std::set<std::string> infallible = Infallible();
    for (const auto& [name, dll] : used) // of the C runtime only what allocates can fail, which is no news
        EXPECT_TRUE(dll == "msvcrt.dll" || infallible.contains(name))
            << name << ": add it to testkit/SystemFaults.cpp or infallible.txt";
}

} // namespace
