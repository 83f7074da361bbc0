#include "dialogs/InputDlg.h"

#include "support/Leftovers.h"
#include "support/ModalScript.h"

namespace {

constexpr int MESSAGE = 1065;
constexpr int VALUE = 1066;
constexpr int IDS_ERROR_CAPTION = 1500; // any text of the library serves as message or caption
constexpr int IDS_SIZE_HEADING = 1512;

CString Text(CWnd& dlg, int nID) {
    CString str;
    dlg.GetDlgItemText(nID, str);
    return str;
}

TEST(InputDlg, TextsComeAsStringsOrFromResources) {
    CInputDlg bothIds(IDS_ERROR_CAPTION, IDS_SIZE_HEADING, nullptr);
    CInputDlg messageId(IDS_ERROR_CAPTION, L"題", nullptr);
    CInputDlg captionId(L"文", IDS_SIZE_HEADING, nullptr);
    CInputDlg noId(L"文", L"題", nullptr);
    struct Row {
        CInputDlg& dlg;
        const wchar_t* message;
        const wchar_t* caption;
    };
    const Row rows[] = {
        {bothIds, L"エラー", L"サイズ"},
        {messageId, L"エラー", L"題"},
        {captionId, L"文", L"サイズ"},
        {noId, L"文", L"題"},
    };
    for (const Row& row : rows) {
        fx::WhileOpen(row.dlg, [&] {
            EXPECT_EQ(fx::TextOf(row.dlg), row.caption);
            EXPECT_EQ(Text(row.dlg, MESSAGE), row.message);
        });
    }
}

TEST(InputDlg, OpensWithTheCaretBehindTheTextAndNothingSelected) {
    for (const CString& strValue : {CString(), CString(L"abc"), CString(L'x', 200)}) {
        CInputDlg dlg(L"文", L"題", nullptr);
        dlg.SetString(strValue);
        fx::WhileOpen(dlg, [&] {
            EXPECT_EQ(CWnd::GetFocus(), dlg.GetDlgItem(VALUE));
            int nStart = -1;
            int nEnd = -1;
            static_cast<CEdit*>(dlg.GetDlgItem(VALUE))->GetSel(nStart, nEnd);
            EXPECT_EQ(nStart, strValue.GetLength());
            EXPECT_EQ(nEnd, strValue.GetLength());
            EXPECT_EQ(Text(dlg, VALUE), strValue);
        });
    }
}

TEST(InputDlg, GivesBackWhatWasTypedAfterOkOnly) {
    struct Row {
        int button;
        const wchar_t* result;
    };
    for (const Row& row : {Row{IDOK, L"abcP9"}, Row{IDCANCEL, L"abc"}}) {
        CInputDlg dlg(L"文", L"題", nullptr);
        dlg.SetString(L"abc");
        fx::ModalScript script;
        script.Then([&] { static_cast<CEdit*>(dlg.GetDlgItem(VALUE))->ReplaceSel(L"P9"); });
        script.Then([&] { pen::Tap(*dlg.GetDlgItem(row.button)); });
        EXPECT_EQ(script.Run([&] { return dlg.DoModal(); }), row.button);
        EXPECT_EQ(dlg.GetString(), row.result);
    }
}

TEST(InputDlg, CentresOnItsOwnerInsideTheScreen) {
    fx::Frame owner(CSize(100, 200));
    CInputDlg dlg(L"文", L"題", &owner);
    fx::WhileOpen(dlg, [&] {
        const CRect rect = fx::RectOf(dlg);
        EXPECT_NEAR(rect.CenterPoint().y, fx::RectOf(owner).CenterPoint().y, 1);
        EXPECT_GE(rect.left, 0);
        EXPECT_LE(rect.right, 240);
        EXPECT_FALSE(owner.IsWindowEnabled());
    });
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST(InputDlg, TwoHundredOpensLeaveNothing) {
    fx::ExpectNothingLeft([] {
        CInputDlg dlg(IDS_ERROR_CAPTION, L"題", nullptr);
        dlg.SetString(L"P1");
        fx::ModalScript script;
        script.Then([&] { dlg.PostMessage(WM_COMMAND, IDOK); });
        script.Run([&] { return dlg.DoModal(); });
    });
}

} // namespace
