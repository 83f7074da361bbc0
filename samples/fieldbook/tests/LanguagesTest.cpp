// The texts of the program in both of its languages.
#include "testkit/Languages.h"

#include "screens/Resource.h"
#include "testkit/Rows.h"
#include "testkit/GTest.h"
#include "testkit/Layout.h"

#include "afxwin.h"

using namespace testkit;

namespace {

TEST(Languages, HaveTheSameNumbersControlsAndPlaceholdersAndFit) {
    EXPECT_LE(200, CompareLanguages(::GetModuleHandle(nullptr), kJapanese, kEnglish));
}

/// Fills a text with what is as long as it gets in the field.
CString Filled(CString str) {
    str.Replace(L"%%", L"%");
    str.Replace(L"%d", L"100000");
    str.Replace(L"%g", L"0.1");
    str.Replace(L"%s", L"KBM-1204.5");
    return str;
}

CSize SizeOf(HWND hControl, const CString& str, int nWidth) {
    CClientDC dc(CWnd::FromHandle(hControl));
    dc.SelectObject(CWnd::FromHandle(hControl)->GetFont());
    CRect needed(0, 0, nWidth, 0);
    dc.DrawText(str, needed, DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX);
    return needed.Size();
}

class TextsOfTheTable : public testing::TestWithParam<LANGID> {};

TEST_P(TextsOfTheTable, FitWhereTheProgramPutsThem) {
    const std::map<UINT, CString> texts = StringsOf(::GetModuleHandle(nullptr), GetParam());
    // nControl: 0 for the title bar.
    const Rows<UINT, UINT, WORD, int> rows = {
        {IDS_LINES, IDS_AREA, IDD_REPORT, 0},
        {IDS_POLAR, IDS_POLAR, IDD_REPORT, 0},
        {IDS_VERDICT_FIRST, IDS_VERDICT_LAST, IDD_REPORT, IDC_MESSAGE},
        {IDS_FOUND, IDS_NOT_FOUND, IDD_REPORT, IDC_MESSAGE},
        {IDS_CHOOSE_SOLUTION, IDS_CHOOSE_SOLUTION, IDD_REPORT, IDC_LEGEND},
        {IDS_ADDED, IDS_ADDED, IDD_REPORT, IDC_LEGEND},
        {IDS_USED_POINTS, IDS_USED_POINTS, IDD_POINT_LIST, IDC_LEGEND},
        {IDS_REMOVED, IDS_CHANGED, IDD_POINT_LIST, IDC_LEGEND},
        {IDS_ENTER_POINT, IDS_ENTER_POINT, IDD_POINT_ENTRY, IDC_MESSAGE},
        {IDS_ADDED, IDS_ADDED, IDD_POINT_ENTRY, IDC_MESSAGE},
        {IDS_EDIT_POINT, IDS_EDIT_POINT, IDD_POINT_ENTRY, 0},
        {IDS_CHANGE_POINT, IDS_CHANGE_POINT, IDD_POINT_ENTRY, IDC_ADD},
        {IDS_LINE_FIRST, IDS_CIRCLE_FIRST + 5, IDD_NAME, IDC_MESSAGE},
        {IDS_ARC_START, IDS_VERTEX, IDD_NAME, IDC_MESSAGE},
        {IDS_INVERSE_FROM, IDS_INVERSE_TO, IDD_NAME, IDC_MESSAGE},
        {IDS_NEW_NAME, IDS_NEW_NAME, IDD_NAME, IDC_MESSAGE},
        {IDS_KEEP_POINT, IDS_KEEP_POINT, IDD_NAME, 0},
        {IDS_BAD_LINES_TITLE, IDS_BAD_LINES_TITLE, IDD_NAME, 0},
        {IDS_FILE_MENU, IDS_FILE_MENU, IDD_NAME, 0},
        {IDS_ASK_CAPTION, IDS_ASK_CAPTION, IDD_MESSAGE, 0},
        {IDS_READING, IDS_SORTING, IDD_PROGRESS, 0},
    };
    for (const auto& [nFirst, nLast, nDialog, nControl] : rows) {
        const TemplateWindow dialog(::GetModuleHandle(nullptr), nDialog, GetParam());
        for (auto it = texts.lower_bound(nFirst); it != texts.upper_bound(nLast); ++it) {
            const HWND hText = nControl != 0 ? ::GetDlgItem(dialog, nControl) : HWND(dialog);
            ::SetWindowText(hText, Filled(it->second));
            EXPECT_TRUE(nControl != 0 ? TextFits(hText) : dialog.TitleFits())
                << "text " << it->first << ": " << Utf8(Filled(it->second));
        }
    }
}

/// No word is broken there, and no line is below what the field shows without being scrolled.
TEST_P(TextsOfTheTable, FitIntoAMessage) {
    const TemplateWindow dialog(::GetModuleHandle(nullptr), IDD_MESSAGE, GetParam());
    const HWND hField = ::GetDlgItem(dialog, IDC_MESSAGE);
    CRect room;
    ::GetClientRect(hField, room);
    for (const auto& [nId, str] : StringsOf(::GetModuleHandle(nullptr), GetParam())) {
        const CSize size = SizeOf(hField, Filled(str), room.Width());
        EXPECT_LE(size.cx, room.Width()) << "text " << nId << ": " << Utf8(str);
        EXPECT_LE(size.cy, 8 * SizeOf(hField, L"X", room.Width()).cy) << "text " << nId << ": " << Utf8(str);
    }
}

INSTANTIATE_TEST_SUITE_P(In, TextsOfTheTable, testing::Values(kJapanese, kEnglish));

} // namespace
