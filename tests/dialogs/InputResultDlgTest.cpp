// The dialogs that ask for a line and that show some.
#include "dialogs/InputDlg.h"
#include "dialogs/ResultDlg.h"

#include "support/TestApp.h"
#include "testkit/Script.h"
#include "testkit/Pen.h"

using namespace testkit;

namespace {

constexpr int INPUT_MESSAGE = 1065, VALUE = 1066, LINES = 1077, RESULT_MESSAGE = 1078;
constexpr int IDS_ERROR_CAPTION = 1500; // any text of the library serves as message or caption
constexpr int IDS_SIZE_HEADING = 1512;

TEST(InputDlg, TextsComeAsStringsOrFromResources) {
    const auto expectTexts = [](CInputDlg&& dlg, const CString& strMessage, const CString& strCaption) {
        WhileOpen(dlg, [&] {
            EXPECT_EQ(strCaption, TextOf(dlg));
            EXPECT_EQ(strMessage, TextOf(*dlg.GetDlgItem(INPUT_MESSAGE)));
        });
    };
    expectTexts(CInputDlg(IDS_ERROR_CAPTION, IDS_SIZE_HEADING, nullptr), L"エラー", L"サイズ");
    expectTexts(CInputDlg(IDS_ERROR_CAPTION, L"題", nullptr), L"エラー", L"題");
    expectTexts(CInputDlg(L"文", IDS_SIZE_HEADING, nullptr), L"文", L"サイズ");
    expectTexts(CInputDlg(L"文", L"題", nullptr), L"文", L"題");
}

TEST(InputDlg, AsksInTheMiddleOfItsOwnerAndGivesWhatWasTypedAfterOkOnly) {
    Frame owner(CSize(100, 200));
    const Rows<int, CString, CString> rows = {{IDOK, L"abc", L"abc79"},
                                              {IDCANCEL, L"abc", L"abc"},
                                              {IDOK, CString(L'x', 200), CString(L'x', 200) + L"79"}};
    for (const auto& [button, before, after] : rows) {
        CInputDlg dlg(L"文", L"題", &owner);
        dlg.SetString(before);
        const auto look = [&] {
            EXPECT_EQ(before, TextOf(*dlg.GetDlgItem(VALUE)));
            EXPECT_EQ(dlg.GetDlgItem(VALUE), CWnd::GetFocus());
            EXPECT_NEAR(RectOf(owner).CenterPoint().y, RectOf(dlg).CenterPoint().y, 1);
            EXPECT_GE(RectOf(dlg).left, 0) << "not beyond the screen";
        };
        const auto type = [] { TypeKeys({'7', '9'}); }; // behind the text, nothing is selected
        const auto tap = [&] { pen::Tap(*dlg.GetDlgItem(button)); };
        EXPECT_EQ(button, Play(dlg, {look, type, tap}));
        EXPECT_EQ(after, dlg.GetString());
    }
}

TEST(ResultDlg, ShowsItsTextsAndItsLinesInTheOrderGiven) {
    const std::vector<CString> lines = {L"Z 最後", L"A 最初", L"", L"A 最初"};
    CResultDlg popup(L"交点が見つかりました", L"計算", nullptr);
    CResultDlg full(IDS_SIZE_HEADING, IDS_ERROR_CAPTION, nullptr); // ids make a full-screen dialog
    const Rows<CResultDlg&, BOOL, const wchar_t*, const wchar_t*> rows = {
        {popup, FALSE, L"交点が見つかりました", L"計算"}, {full, TRUE, L"サイズ", L"エラー"}};
    for (const auto& [dlg, bFullScreen, message, caption] : rows) {
        EXPECT_EQ(bFullScreen, dlg.m_bFullScreen);
        for (const CString& line : lines)
            dlg.AddString(line);
        for (int nRun = 0; nRun < 2; ++nRun) // the same object may be shown again
            WhileOpen(dlg, [&] {
                auto* pList = static_cast<CListBox*>(dlg.GetDlgItem(LINES));
                std::vector<CString> shown(static_cast<size_t>(pList->GetCount()));
                for (size_t i = 0; i < shown.size(); ++i)
                    pList->GetText(static_cast<int>(i), shown[i]);
                EXPECT_EQ(lines, shown);
                EXPECT_EQ(message, TextOf(*dlg.GetDlgItem(RESULT_MESSAGE)));
                EXPECT_EQ(caption, TextOf(dlg));
                EXPECT_NEAR((bFullScreen ? Screen() : WorkArea()).CenterPoint().y,
                            RectOf(dlg).CenterPoint().y, 1);
            });
    }
}

} // namespace
