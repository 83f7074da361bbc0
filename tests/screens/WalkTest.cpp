// Every dialog of the library on the screen that the program has been started on.
#include "support/AllDialogs.h"
#include "support/TestData.h"

#include "testkit/Languages.h"
#include "testkit/Layout.h"
#include "testkit/Looks.h"
#include "testkit/Panel.h"
#include "testkit/Picture.h"
#include "testkit/Script.h"
#include "testkit/Steps.h"

using namespace testkit;

namespace {

Looks g_looks(testdata::WidePath("look/screens-" + std::to_string(Screen().Width()) + ".txt"));

/// A dialog in a language.
struct EveryScreen : testing::TestWithParam<std::tuple<fx::AnyDialog, LANGID>> {
    void SetUp() override { AfxSetResourceLanguage(std::get<LANGID>(GetParam())); }
    void TearDown() override { AfxSetResourceLanguage(0); }
};

/// Of each page of a sheet, or of any other window.
std::string FaultsOfPages(HWND hWnd, const std::string& name) {
    auto* const pSheet = dynamic_cast<CPropertySheet*>(CWnd::FromHandlePermanent(hWnd));
    std::string faults;
    for (int nPage = 0; nPage < (pSheet != nullptr ? pSheet->GetPageCount() : 1); ++nPage) {
        if (pSheet != nullptr)
            pSheet->SetActivePage(nPage);
        faults += LayoutFaults(hWnd);
        KeepScreen(name);
        EXPECT_EQ("", g_looks.Faults(name + '-' + std::to_string(nPage), hWnd));
        faults += PanelFaults(hWnd);
    }
    return faults;
}

TEST_P(EveryScreen, ShowsAllItHas) {
    const auto& [dialog, language] = GetParam();
    Drive drive;
    fx::FillDrive(drive);
    std::string faults = "not open";
    const auto look = [&] { // in one step: another would come while this one waits
        const HWND hWnd = ::GetActiveWindow();
        faults = FaultsOfPages(hWnd, dialog.pszName + (language == kEnglish ? std::string("-en") : ""));
        fx::Cancel(hWnd);
    };
    Play([&open = dialog.open] { return open(nullptr); }, {look});
    EXPECT_EQ("", faults);
}

/// The sizes of texts are decided on the device's screen, upright and turned, where a walk is short: larger
/// ones only have more room.
const auto LANGUAGES =
    testing::ValuesIn(Screen().Width() <= 320 ? std::vector{kJapanese, kEnglish} : std::vector{kJapanese});
INSTANTIATE_TEST_SUITE_P(Dialogs, EveryScreen, testing::Combine(testing::ValuesIn(fx::DIALOGS), LANGUAGES));
INSTANTIATE_TEST_SUITE_P(Modes, EveryScreen, testing::Combine(testing::ValuesIn(fx::FILE_MODES), LANGUAGES));

TEST(Controls, LookAsTheyDid) {
    for (const fx::AnyDialog& dialog : fx::CONTROLS) {
        const auto look = [&] {
            EXPECT_EQ("", g_looks.Faults(dialog.pszName, ::GetActiveWindow()));
            fx::Cancel(::GetActiveWindow());
        };
        Play([&] { return dialog.open(nullptr); }, {look});
    }
}

/// Below its field a full-screen dialog opens others while the panel stays.
struct Behind : CnDialog {
    Behind() : CnDialog(210, nullptr) {}
    BOOL OnInitDialog() override {
        CnDialog::OnInitDialog();
        GotoDlgCtrl(GetDlgItem(105));
        TVShowSIP(0);
        return FALSE;
    }
};

/// Whether a control stands clear of the panel.
Step UntilClear(int nID) {
    return [nID] {
        const HWND hControl = ::GetDlgItem(::GetActiveWindow(), nID);
        return hControl != nullptr && panel::IsVisible() && RectOf(hControl).bottom <= panel::Place().top;
    };
}

TEST(Panel, ButtonsOfPopupsAndQuestionsStayClearOfIt) {
    Behind behind;
    CInputDlg input(L"点名", L"登録", &behind);
    INT_PTR nAnswer = 0;
    const auto ask = [&] {
        TVShowSIP(0); // it may have gone with the field of the dialog
        nAnswer = fx::AskQuestion(nullptr);
    };
    const auto look = [] { EXPECT_EQ("", g_looks.Faults("panel", panel::OfThread())); };
    PlayAndEnd(behind, {UntilClear(105), look, [&] { input.DoModal(); }, UntilClear(IDCANCEL),
                        TapIn(IDCANCEL), ask, UntilClear(IDNO), TapIn(IDNO)});
    EXPECT_EQ(IDNO, nAnswer);
    panel::Close();
}

} // namespace
