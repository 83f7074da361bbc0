// In which language and in which module a resource is found. FrameworkTest.rc has some in Japanese,
// some in British English, and some in both.
#include "afxres.h"
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
    // What is chosen, and what the user speaks.
    const Rows<LANGID, LANGID, UINT, LPCTSTR> rows = {
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
    for (const auto& [wChosen, wUser, nID, pszText] : rows) {
        SCOPED_TRACE(testing::Message() << std::hex << wChosen << ' ' << wUser << ' ' << nID);
        UserSpeaks(wUser);
        AfxSetResourceLanguage(wChosen);
        EXPECT_EQ(wChosen != 0 ? wChosen : JAPANESE, AfxGetResourceLanguage());
        EXPECT_EQ(pszText, Text(nID));
        TCHAR szText[100];
        EXPECT_EQ(lstrlen(pszText), AfxLoadString(nID, szText, 100));
        EXPECT_STREQ(pszText, szText);
    }
}

TEST_F(Language, DialogsMenusErrorsAndMessageBoxesFollow) {
    const Rows<LANGID, LPCTSTR, LPCTSTR, LPCTSTR, LPCTSTR> rows = {
        {AMERICAN, L"Whole screen", L"Edit", L"There is no file a.", L"Yes"},
        {0, L"全画面", L"編集", L"a がありません。", L"はい"}};
    for (const auto& [wChosen, pszCaption, pszMenu, pszError, pszYes] : rows) {
        AfxSetResourceLanguage(wChosen);
        CDialog dialog;
        ASSERT_TRUE(dialog.Create(300));
        AfxSetResourceLanguage(0); // what exists keeps its texts
        EXPECT_EQ(pszCaption, fx::TextOf(dialog));
        AfxSetResourceLanguage(wChosen);

        CMenu menu;
        ASSERT_TRUE(menu.LoadMenu(310));
        CString strText;
        menu.GetMenuString(0, strText, MF_BYPOSITION);
        EXPECT_EQ(pszMenu, strText);

        TCHAR szError[100] = L"";
        CFileException(CFileException::fileNotFound, 2, L"a").GetErrorMessage(szError, 100);
        EXPECT_STREQ(pszError, szError);

        const auto answer = [&] {
            CWnd* pBox = CWnd::GetActiveWindow();
            pBox->GetDlgItemText(IDYES, strText);
            pBox->PostMessage(WM_COMMAND, IDNO);
        };
        EXPECT_EQ(IDNO, testkit::Play([] { return AfxMessageBox(L"?", MB_YESNO); }, {answer}));
        strText.Remove(L'&');
        EXPECT_EQ(pszYes, strText.SpanExcluding(L"(")) << "of the system";
    }
}

// --- In which module it is found --------------------------------------------------------------

HMODULE FrameworkModule() {
    HMODULE hModule = nullptr;
    ::GetModuleHandleEx(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                        reinterpret_cast<LPCTSTR>(&AfxGetInstanceHandle), &hModule);
    return hModule;
}

TEST(ResourceChain, ApplicationComesFirstThenTheFramework) {
    const Rows<UINT, HMODULE, LPCTSTR> rows = {
        {40000, AfxGetInstanceHandle(), L"応用の文字列"},
        {AFX_IDP_PARSE_DATETIME, AfxGetInstanceHandle(), L"応用が置き換えた文字列"},
        // though its block of sixteen is the application's
        {AFX_IDP_PARSE_INT, FrameworkModule(), L"整数を入力してください。"},
        {41000, nullptr, L""},
    };
    for (const auto& [nID, hModule, pszText] : rows) {
        EXPECT_EQ(hModule, AfxFindStringResourceHandle(nID));
        CString strText = L"before";
        EXPECT_EQ(*pszText != 0, strText.LoadString(nID) != FALSE);
        EXPECT_EQ(pszText, strText);
    }
    EXPECT_EQ(AfxGetInstanceHandle(), AfxFindResourceHandle(MAKEINTRESOURCE(300), RT_DIALOG));
    EXPECT_EQ(AfxGetResourceHandle(), AfxFindResourceHandle(MAKEINTRESOURCE(301), RT_DIALOG)) << "to miss";
}

TEST(ResourceChain, ExtensionModuleIsSearchedWhileItsLinkRecordExists) {
    const HMODULE hExtension = ::LoadLibrary(L"comctl32.dll");
    ASSERT_NE(nullptr, hExtension);
    TCHAR szText[100] = {};
    UINT nID = 1;
    while (nID < 0xFFFF &&
           (::LoadString(hExtension, nID, szText, 100) == 0 || AfxFindStringResourceHandle(nID)))
        ++nID;
    ASSERT_LT(nID, 0xFFFFU) << "no string to test with";

    AFX_EXTENSION_MODULE module;
    ASSERT_TRUE(AfxInitExtensionModule(module, hExtension));
    new CDynLinkLibrary(module);
    EXPECT_EQ(hExtension, AfxFindStringResourceHandle(nID));
    EXPECT_EQ(szText, Text(nID));
    EXPECT_EQ(L"応用の文字列", Text(40000));
    AfxTermExtensionModule(module);
    EXPECT_EQ(nullptr, AfxFindStringResourceHandle(nID));
    EXPECT_FALSE(module.bInitialized);
    ::FreeLibrary(hExtension);
}

TEST(ResourceChain, TextIsCutToTheBuffer) {
    TCHAR szText[4] = {L'x', L'x', L'x', L'x'};
    EXPECT_EQ(0, AfxLoadString(40000, szText, 0));
    EXPECT_EQ(L'x', szText[0]);
    EXPECT_EQ(3, AfxLoadString(40000, szText, 4));
    EXPECT_STREQ(L"応用の", szText);
    EXPECT_EQ(0, AfxLoadString(41000, szText, 4));
    EXPECT_EQ(0, szText[0]);
}

} // namespace
