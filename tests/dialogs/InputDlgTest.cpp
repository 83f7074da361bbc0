#include "dialogs/InputDlg.h"

#include "TemplateRects.h"
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
        fx::ModalScript script;
        script.Then([&] {
            CString strCaption;
            row.dlg.GetWindowText(strCaption);
            EXPECT_EQ(strCaption, row.caption);
            EXPECT_EQ(Text(row.dlg, MESSAGE), row.message);
            row.dlg.EndDialog(IDCANCEL);
        });
        script.Run([&] { return row.dlg.DoModal(); });
    }
}

TEST(InputDlg, TemplateHasItsPlacesAndTexts) {
    CInputDlg dlg(L"文", L"題", nullptr);
    fx::ModalScript script;
    script.Then([&] {
        ExpectControls(dlg, {131, 57},
                       {{MESSAGE, WC_STATIC, {3, 3, 126, 20}},
                        {VALUE, WC_EDIT, {9, 23, 113, 11}},
                        {IDOK, WC_BUTTON, {9, 39, 50, 14}},
                        {IDCANCEL, WC_BUTTON, {72, 39, 50, 14}}});
        EXPECT_EQ(Text(dlg, IDCANCEL), L"キャンセル");
        EXPECT_EQ(dlg.GetDefID(), MAKELONG(IDOK, DC_HASDEFID));
        EXPECT_TRUE(dlg.GetDlgItem(VALUE)->GetStyle() & ES_AUTOHSCROLL);
        dlg.EndDialog(IDCANCEL);
    });
    script.Run([&] { return dlg.DoModal(); });
}

TEST(InputDlg, OpensWithTheCaretBehindTheTextAndNothingSelected) {
    for (const CString& strValue : {CString(), CString(L"abc"), CString(L'x', 200)}) {
        CInputDlg dlg(L"文", L"題", nullptr);
        dlg.SetString(strValue);
        fx::ModalScript script;
        script.Then([&] {
            EXPECT_EQ(CWnd::GetFocus(), dlg.GetDlgItem(VALUE));
            int nStart = -1;
            int nEnd = -1;
            static_cast<CEdit*>(dlg.GetDlgItem(VALUE))->GetSel(nStart, nEnd);
            EXPECT_EQ(nStart, strValue.GetLength());
            EXPECT_EQ(nEnd, strValue.GetLength());
            EXPECT_EQ(Text(dlg, VALUE), strValue);
            dlg.EndDialog(IDCANCEL);
        });
        script.Run([&] { return dlg.DoModal(); });
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
    fx::ModalScript script;
    script.Then([&] {
        CRect ownerRect;
        CRect rect;
        owner.GetWindowRect(ownerRect);
        dlg.GetWindowRect(rect);
        EXPECT_NEAR(rect.CenterPoint().y, ownerRect.CenterPoint().y, 1);
        EXPECT_GE(rect.left, 0);
        EXPECT_LE(rect.right, 240);
        EXPECT_FALSE(owner.IsWindowEnabled());
        dlg.EndDialog(IDCANCEL);
    });
    script.Run([&] { return dlg.DoModal(); });
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
