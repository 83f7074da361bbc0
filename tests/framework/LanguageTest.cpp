// In which language a resource is found. FrameworkTest.rc has some in Japanese, some in British
// English, and some in both.
#include "support/TestApp.h"
#include "testkit/Script.h"

namespace {

constexpr LANGID JAPANESE = MAKELANGID(LANG_JAPANESE, SUBLANG_DEFAULT);
constexpr LANGID AMERICAN = MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US); // as the library has it
constexpr LANGID BRITISH = MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_UK);  // as the application has it

struct Language : testing::Test {
    ~Language() override {
        AfxSetResourceLanguage(0);
        UserSpeaks(m_nUsers);
    }
    static void UserSpeaks(LCID nLocale) {
        ::SetThreadLocale(nLocale);
        ::SetThreadUILanguage(LANGIDFROMLCID(nLocale));
    }
    const LCID m_nUsers = ::GetThreadLocale();
};

CString Text(UINT nID) {
    CString str;
    str.LoadString(nID);
    return str;
}

TEST_F(Language, OfAStringIsTheChosenOneElseTheLibrarysElseTheUsers) {
    const struct {
        LANGID wChosen;
        LANGID wUser;
        UINT nID;
        LPCTSTR pszText;
    } ROWS[] = {
        {0, JAPANESE, 40000, L"応用の文字列"},
        {0, BRITISH, 40000, L"the application's text"},
        {0, JAPANESE, 40001, L"%1 %2 100%%1 %"},
        {0, JAPANESE, 40002, L"in English alone"},
        {0, AMERICAN, AFX_IDP_PARSE_INT, L"整数を入力してください。"},
        {0, AMERICAN, AFX_IDP_PARSE_DATETIME, L"応用が置き換えた文字列"},
        {JAPANESE, BRITISH, 40000, L"応用の文字列"},
        {JAPANESE, JAPANESE, 40002, L"in English alone"},
        {AMERICAN, JAPANESE, 40000, L"the application's text"},
        {LANG_ENGLISH, JAPANESE, 40000, L"the application's text"},
        {AMERICAN, JAPANESE, 40001, L"%1 %2 100%%1 %"},
        {AMERICAN, JAPANESE, AFX_IDP_PARSE_INT, L"Enter a whole number."},
        {LANG_ENGLISH, JAPANESE, AFX_IDP_PARSE_INT, L"Enter a whole number."},
        {AMERICAN, JAPANESE, AFX_IDP_PARSE_DATETIME, L"応用が置き換えた文字列"},
        {LANG_GERMAN, JAPANESE, 40000, L"応用の文字列"},
        {LANG_GERMAN, AMERICAN, AFX_IDP_PARSE_INT, L"整数を入力してください。"},
        {0xFFFF, JAPANESE, AFX_IDP_PARSE_INT, L"整数を入力してください。"},
    };
    for (const auto& row : ROWS) {
        SCOPED_TRACE(testing::Message() << std::hex << row.wChosen << ' ' << row.wUser << ' ' << row.nID);
        UserSpeaks(row.wUser);
        AfxSetResourceLanguage(row.wChosen);
        EXPECT_EQ(AfxGetResourceLanguage(), row.wChosen != 0 ? row.wChosen : JAPANESE);
        EXPECT_EQ(Text(row.nID), row.pszText);
        TCHAR szText[100];
        EXPECT_EQ(AfxLoadString(row.nID, szText, 100), lstrlen(row.pszText));
        EXPECT_EQ(CString(szText), row.pszText);
    }
}

TEST_F(Language, DialogsMenusErrorsAndMessageBoxesFollow) {
    const struct {
        LANGID wChosen;
        LPCTSTR pszCaption, pszMenu, pszError, pszYes;
    } ROWS[] = {{AMERICAN, L"Whole screen", L"Edit", L"There is no file a.", L"Yes"},
                {0, L"全画面", L"編集", L"a がありません。", L"はい"}};
    for (const auto& row : ROWS) {
        AfxSetResourceLanguage(row.wChosen);
        CDialog dialog;
        ASSERT_TRUE(dialog.Create(300));
        AfxSetResourceLanguage(0); // what exists keeps its texts
        EXPECT_EQ(fx::TextOf(dialog), row.pszCaption);
        AfxSetResourceLanguage(row.wChosen);

        CMenu menu;
        ASSERT_TRUE(menu.LoadMenu(310));
        CString strItem;
        menu.GetMenuString(0, strItem, MF_BYPOSITION);
        EXPECT_EQ(strItem, row.pszMenu);

        TCHAR szError[100] = L"";
        CFileException(CFileException::fileNotFound, 2, L"a").GetErrorMessage(szError, 100);
        EXPECT_EQ(CString(szError), row.pszError);

        CString strButton;
        testkit::Script script;
        script.Then([&] {
            CWnd* pBox = CWnd::GetActiveWindow();
            pBox->GetDlgItemText(IDYES, strButton);
            pBox->PostMessage(WM_COMMAND, IDNO);
        });
        EXPECT_EQ(script.Run([] { return AfxMessageBox(L"?", MB_YESNO); }), IDNO);
        strButton.Remove(L'&');
        EXPECT_EQ(strButton.SpanExcluding(L"("), row.pszYes) << "of the system";
    }
}

} // namespace
