// The application: its loop, its message boxes, its settings.
#include "support/TestApp.h"
#include "testkit/Script.h"
#include "testkit/Pen.h"

using namespace testkit;

namespace {

TEST(Application, RunsUntilItsMainWindowIsDestroyed) {
    Frame frame;
    fx::g_app.m_pMainWnd = &frame;
    EXPECT_EQ(AfxGetMainWnd(), &frame);
    Script script;
    script.Then([&] { frame.PostMessage(WM_CLOSE); });
    EXPECT_EQ(script.Run([] { return fx::g_app.Run(); }), 0);
    EXPECT_TRUE(frame.m_hWnd == nullptr && AfxGetMainWnd() == nullptr);
    EXPECT_EQ(fx::g_app.Run(), 0) << "at once without one";
}

TEST(Application, MessageBoxAnswersAndDisablesTheMainWindowMeanwhile) {
    Frame frame;
    fx::g_app.m_pMainWnd = &frame;
    const Rows<UINT, WORD, int> cases = {
        {MB_OK, VK_RETURN, IDOK},
        {MB_YESNO | MB_DEFBUTTON2, VK_RETURN, IDNO},
        {MB_OKCANCEL, VK_ESCAPE, IDCANCEL},
    };
    for (const auto& [nType, nKey, nAnswer] : cases) {
        Script script;
        script.Then([&] {
            EXPECT_FALSE(frame.IsWindowEnabled());
            EXPECT_NE(::FindWindow(nullptr, L"test"), nullptr) << "the application's name is its caption";
            TypeKeys({nKey});
        });
        EXPECT_EQ(script.Run([&] { return AfxMessageBox(L"本文", nType); }), nAnswer);
        EXPECT_TRUE(frame.IsWindowEnabled());
    }
    fx::g_app.m_pMainWnd = nullptr;
}

/// Settings of every kind, wherever they are kept.
void ExpectSettingsAreKept(CWinApp& app) {
    EXPECT_EQ(app.GetProfileInt(L"部", L"number", 7), 7U);
    EXPECT_TRUE(app.WriteProfileInt(L"部", L"number", -12));
    EXPECT_EQ(static_cast<int>(app.GetProfileInt(L"部", L"number", 7)), -12);
    const CString strLong(L'長', 500);
    for (const CString& strText : {strLong, CString(L""), CString(L"  blanks "), CString(L"'\"quotes\"")}) {
        EXPECT_TRUE(app.WriteProfileString(L"部", L"text", strText));
        EXPECT_EQ(app.GetProfileString(L"部", L"text", L"default"), strText);
    }
    EXPECT_EQ(app.GetProfileString(L"部", L"none", L"default"), L"default");
    EXPECT_TRUE(app.WriteProfileString(L"部", L"text", nullptr));
    EXPECT_EQ(app.GetProfileString(L"部", L"text", L"gone"), L"gone");
    BYTE bytes[] = {0, 1, 0xFE, 0x70};
    EXPECT_TRUE(app.WriteProfileBinary(L"部", L"bytes", bytes, sizeof bytes));
    BYTE* pData = nullptr;
    UINT nBytes = 0;
    ASSERT_TRUE(app.GetProfileBinary(L"部", L"bytes", &pData, &nBytes));
    EXPECT_EQ(std::vector<BYTE>(pData, pData + nBytes), std::vector<BYTE>(bytes, bytes + sizeof bytes));
    delete[] pData;
    EXPECT_TRUE(app.WriteProfileString(L"部", nullptr, nullptr));
    EXPECT_EQ(app.GetProfileInt(L"部", L"number", 7), 7U);
}

TEST(Application, KeepsSettingsUnderItsKey) {
    fx::g_app.SetRegistryKey(L"FieldkitTest");
    ExpectSettingsAreKept(fx::g_app);
    ::RegDeleteTree(HKEY_CURRENT_USER, L"Software\\FieldkitTest");
}

TEST(Application, KeepsSettingsInAFileWithoutAKey) {
    CWinApp& app = fx::g_app;
    for (LPCTSTR* ppsz : {&app.m_pszRegistryKey, &app.m_pszProfileName})
        std::free(const_cast<LPTSTR>(*ppsz));
    app.m_pszRegistryKey = nullptr;
    app.m_pszProfileName = ::_tcsdup(L"FieldkitTest.INI");
    ExpectSettingsAreKept(app);
    EXPECT_FALSE(app.WriteProfileString(L"部", L"text", L"two\nlines")) << "which no such file can keep";
    WCHAR szFolder[MAX_PATH];
    ::GetEnvironmentVariable(L"APPDATA", szFolder, MAX_PATH);
    EXPECT_TRUE(::DeleteFile(CString(szFolder) + L"\\FieldkitTest.INI"));
}

} // namespace
