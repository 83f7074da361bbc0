// Every screen of the application on the screen that the program has been started on.
#include "tests/AllScreens.h"
#include "testkit/Application.h"
#include "testkit/Drive.h"
#include "testkit/GTest.h"
#include "testkit/Languages.h"
#include "testkit/Layout.h"
#include "testkit/Script.h"
#include "tests/WindowCloser.h"

#include <optional>
#include <tuple>

using namespace testkit;

namespace {

Application g_app(L"test");

/// A screen in a language.
struct FieldbookScreen : testing::TestWithParam<std::tuple<AppScreen, LANGID>> {
    void SetUp() override { AfxSetResourceLanguage(std::get<LANGID>(GetParam())); }
    void TearDown() override { AfxSetResourceLanguage(0); }
};

/// The faults of each page of a sheet, or of any other window.
std::string FaultsOfPages(HWND hWnd) {
    std::string faults;
    const int nPages = dynamic_cast<CSettingsSheet*>(CWnd::FromHandlePermanent(hWnd)) != nullptr ? 3 : 1;
    for (int nPage = 0; nPage < nPages; ++nPage) {
        if (nPages > 1)
            ::SendMessage(hWnd, PSM_SETCURSEL, static_cast<WPARAM>(nPage), 0);
        Pump();
        faults += LayoutFaults(hWnd);
        KeepScreen(testing::UnitTest::GetInstance()->current_test_info()->name());
        faults += PanelFaults(hWnd);
    }
    return faults;
}

TEST_P(FieldbookScreen, ShowsAllItHas) {
    const Drive drive;
    drive.MakeFile(L"\\points.csv");
    CTestJob job;
    Frame owner;
    std::string faults = "not open";
    std::optional<CWindowCloser> closer;
    const auto look = [&] {
        const HWND hWnd = ::GetActiveWindow();
        faults = FaultsOfPages(hWnd);
        closer.emplace();
        if (auto* const pSheet = dynamic_cast<CPropertySheet*>(CWnd::FromHandlePermanent(hWnd)))
            pSheet->EndDialog(IDCANCEL); // its title bar only has OK
    };
    Play([&] { return std::get<AppScreen>(GetParam()).open(job, &owner), 0; }, {look});
    EXPECT_EQ("", faults);
}

/// English only where there is least room for a text.
const auto LANGUAGES =
    testing::ValuesIn(Screen().Width() <= 320 ? std::vector{kJapanese, kEnglish} : std::vector{kJapanese});
INSTANTIATE_TEST_SUITE_P(All, FieldbookScreen, testing::Combine(testing::ValuesIn(SCREENS), LANGUAGES),
                         [](const auto& test) {
                             const bool bEnglish =
                                 PRIMARYLANGID(std::get<LANGID>(test.param)) == LANG_ENGLISH;
                             return std::get<AppScreen>(test.param).pszName +
                                    std::string(bEnglish ? "En" : "");
                         });

} // namespace
