// Every screen under random input, see docs/testkit.md of the library.
#include "testkit/Application.h"
#include "testkit/GTest.h"
#include "testkit/Shake.h"

#include "tests/AllScreens.h"
#include "testkit/Drive.h"

using namespace testkit;

namespace {

testkit::Application g_app(L"test");

class FieldbookShake : public testing::TestWithParam<AppScreen> {};

TEST_P(FieldbookShake, Of) {
    const Drive drive; // random names are saved, nothing else may be reached
    const auto openJob = [open = GetParam().open](CWnd* pOwner) {
        CTestJob job;
        open(job, pOwner);
    };
    testkit::ShakeOptions options;
    options.pszName = GetParam().pszName;
    testkit::Shake(openJob, options);
}

INSTANTIATE_TEST_SUITE_P(All, FieldbookShake, testing::ValuesIn(SCREENS),
                         [](const auto& test) { return std::string(test.param.pszName); });

} // namespace
