#include "dialogs/ResultDlg.h"

#include "support/Leftovers.h"
#include "support/ModalScript.h"

namespace {

using fx::WhileOpen;

constexpr int LINES = 1077;
constexpr int MESSAGE = 1078;

TEST(ResultDlg, ShowsItsLinesInTheOrderGiven) {
    const std::vector<CString> lines = {L"Z 最後", L"A 最初", L"", L"A 最初"};
    CResultDlg dlg(L"交点が見つかりました", L"計算", nullptr);
    for (const CString& line : lines)
        dlg.AddString(line);
    for (int nRun = 0; nRun < 2; ++nRun) // the same object may be shown again
        WhileOpen(dlg, [&] {
            auto* pList = static_cast<CListBox*>(dlg.GetDlgItem(LINES));
            ASSERT_EQ(pList->GetCount(), static_cast<int>(lines.size()));
            for (int i = 0; i < pList->GetCount(); ++i) {
                CString strLine;
                pList->GetText(i, strLine);
                EXPECT_EQ(strLine, lines[static_cast<size_t>(i)]);
            }
            CString strText;
            dlg.GetDlgItemText(MESSAGE, strText);
            EXPECT_EQ(strText, L"交点が見つかりました");
            EXPECT_EQ(fx::TextOf(dlg), L"計算");
        });
}

TEST(ResultDlg, TextsMakeAPopupAndIdsAFullScreenDialog) {
    CResultDlg popup(L"a", L"b", nullptr);
    EXPECT_FALSE(popup.m_bFullScreen);
    CResultDlg full(1512, 1503, nullptr);
    EXPECT_TRUE(full.m_bFullScreen);
    WhileOpen(full, [&] {
        EXPECT_EQ(fx::TextOf(full), L"インフォメーション");
        CString strText;
        full.GetDlgItemText(MESSAGE, strText);
        EXPECT_EQ(strText, L"サイズ");
    });
}

TEST(ResultDlg, TwoHundredOpensLeaveNothing) {
    fx::ExpectNothingLeft([] {
        CResultDlg dlg(L"a", L"b", nullptr);
        for (int i = 0; i < 10; ++i)
            dlg.AddString(L"X=-35367.123 Y=13245.678");
        WhileOpen(dlg, [] {});
    });
}

} // namespace
