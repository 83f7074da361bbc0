// Every dialog of the library on the screen that the program has been started on.
#include "support/ScreenWalk.h"

#include "testkit/Drive.h"
#include "testkit/Pen.h"
#include "testkit/Script.h"

#include "controls/nEdit.h"
#include "controls/nPropertyPage.h"
#include "controls/nPropertySheet.h"
#include "dialogs/BrowseFolderDlg.h"
#include "dialogs/ButtonMenuDlg.h"
#include "dialogs/FileSelectDlg.h"
#include "dialogs/InputDlg.h"
#include "dialogs/ResMsgBox.h"
#include "dialogs/ResultDlg.h"
#include "dialogs/SelMemberDlg.h"

using namespace testkit;

namespace {

/// In a language.
struct EveryScreen : testing::TestWithParam<LANGID> {
    void SetUp() override { AfxSetResourceLanguage(GetParam()); }
    void TearDown() override { AfxSetResourceLanguage(0); }
};

constexpr wchar_t QUESTION[] = L"\\作業\\測点.csvは既に存在します。\n上書きしますか？";

std::string FaultsNow() {
    const HWND hWnd = ::GetActiveWindow();
    std::string faults = fx::ScreenWalk::FaultsOf(hWnd);
    faults += fx::ScreenWalk::FaultsUnderPanel(hWnd);
    return faults;
}

/// In one step: another would come while this one waits.
template <class Dialog>
std::string FaultsOf(Dialog&& dialog) {
    std::string faults = "not open";
    WhileOpen(dialog, [&] { faults = FaultsNow(); });
    return faults;
}

TEST_P(EveryScreen, FileAndFolderDialogsShowAllTheyHave) {
    Drive drive;
    drive.MakeFolder(L"\\作業");
    drive.MakeFile(L"\\作業\\測点.csv", 123456);
    for (const int nMode : {0, 1, 2}) {
        CFileSelectDlg dlg(nullptr);
        dlg.SetMode(nMode);
        dlg.SetSubName(L"csv");
        dlg.SetFileFolder(L"\\作業");
        EXPECT_EQ("", FaultsOf(dlg));
    }
    EXPECT_EQ("", FaultsOf(CBrowseFolderDlg(L"\\作業", nullptr)));
}

TEST_P(EveryScreen, InputAndResultShowAllTheyHave) {
    EXPECT_EQ("", FaultsOf(CInputDlg(L"新しい点の点名を入れてください", L"点の登録", nullptr)));
    CResultDlg popup(L"3件の結果があります", L"結果", nullptr), full(1500, 1501, nullptr);
    for (CResultDlg* const pDialog : {&popup, &full}) {
        pDialog->AddString(L"N  -35300.123");
        EXPECT_EQ("", FaultsOf(*pDialog));
    }
}

TEST_P(EveryScreen, MembersAndMenusShowAllTheyHave) {
    EXPECT_EQ("", FaultsOf(CSelMemberDlg(L"書き出す項目", nullptr)));
    for (const int nEntries : {1, 3, 8}) {
        CUIntArray entries;
        for (int i = 0; i < nEntries; ++i)
            entries.Add(1514);
        EXPECT_EQ("", FaultsOf(CButtonMenuDlg(1513, &entries, nullptr))) << nEntries;
    }
}

TEST_P(EveryScreen, PagesOfASheetShowAllTheyHave) {
    struct Page : CnPropertyPage {
        using CnPropertyPage::CnPropertyPage;
        BOOL OnInitDialog() override { return CnPropertyPage::OnInitDialog(), Anchor(100, 0, 0, 100, 0); }
    } first(201), second(202);
    CnPropertySheet sheet(L"設定", nullptr, 0);
    sheet.SetOption(CnPropertySheet::OptionOkButton | CnPropertySheet::OptionCommandBar);
    sheet.AddPage(&first);
    sheet.AddPage(&second);
    WhileOpen(sheet, [&] {
        for (const int nPage : {0, 1}) {
            sheet.SetActivePage(nPage);
            EXPECT_EQ("", FaultsNow());
        }
    });
}

TEST_P(EveryScreen, AQuestionShowsAllItHas) {
    std::string faults;
    const auto answer = [] { pen::Tap(*CWnd::GetActiveWindow()->GetDlgItem(IDNO)); };
    EXPECT_EQ(IDNO, Play([] { return CResMsgBox().WarningMsgBox(QUESTION); },
                         {[&] { faults = FaultsNow(); }, answer}));
    EXPECT_EQ("", faults);
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

TEST_P(EveryScreen, ButtonsOfPopupsAndQuestionsStayClearOfThePanel) {
    Behind behind;
    CInputDlg input(L"点名", L"登録", &behind);
    const auto tap = [](int nID) { return [nID] { pen::Tap(*CWnd::GetActiveWindow()->GetDlgItem(nID)); }; };
    int nAnswer = 0;
    PlayAndEnd(behind, {UntilClear(105), [&] { input.DoModal(); }, UntilClear(IDCANCEL), tap(IDCANCEL),
                        [&] {
                            TVShowSIP(0); // it may have gone with the field of the dialog
                            nAnswer = CResMsgBox().WarningMsgBox(QUESTION);
                        },
                        UntilClear(IDNO), tap(IDNO)});
    EXPECT_EQ(IDNO, nAnswer);
    panel::Close();
}

INSTANTIATE_TEST_SUITE_P(In, EveryScreen, testing::ValuesIn(fx::WalkLanguages()));

TEST(SharedIcons, AreDrawnForTheScreensResolution) {
    ICONINFO info = {};
    ASSERT_TRUE(::GetIconInfo(TVGetCommonIcon(TVICON_FOLDER), &info));
    BITMAP bitmap = {};
    ::GetObject(info.hbmColor, sizeof bitmap, &bitmap);
    EXPECT_EQ(AfxScale(nullptr, 16), bitmap.bmWidth);
    ::DeleteObject(info.hbmColor);
    ::DeleteObject(info.hbmMask);
}

} // namespace
