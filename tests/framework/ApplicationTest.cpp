// The application: its loop, its message boxes, its settings.
#include "support/TestApp.h"
#include "testkit/Script.h"
#include "testkit/Pen.h"

using namespace testkit;

namespace {

TEST(Application, RunsUntilItsMainWindowIsDestroyed) {
    Frame frame;
    fx::g_app.m_pMainWnd = &frame;
    EXPECT_EQ(0, Play([] { return fx::g_app.Run(); }, {[&] { frame.PostMessage(WM_CLOSE); }}));
    EXPECT_EQ(nullptr, frame.m_hWnd);
    EXPECT_EQ(nullptr, AfxGetMainWnd());
    EXPECT_EQ(0, fx::g_app.Run()) << "at once without one";
}

TEST(Application, MessageBoxAnswersAndDisablesTheMainWindowMeanwhile) {
    Frame frame;
    fx::g_app.OnAppExit(); // nothing to close
    fx::g_app.m_pMainWnd = &frame;
    CWnd popup;
    const Rows<UINT, WORD, int> rows = {
        {MB_OK, VK_RETURN, IDOK},
        {MB_YESNO | MB_DEFBUTTON2, VK_RETURN, IDNO},
        {MB_OKCANCEL, VK_ESCAPE, IDCANCEL},
    };
    for (const auto& [nType, nKey, nAnswer] : rows) {
        const auto answer = [&, nPressed = nKey] {
            EXPECT_FALSE(frame.IsWindowEnabled());
            EXPECT_NE(nullptr, ::FindWindow(nullptr, L"test")) << "the application's name is its caption";
            TypeKeys({nPressed});
        };
        EXPECT_EQ(nAnswer, Play([nAsked = nType] { return AfxMessageBox(L"本文", nAsked); }, {answer}));
        EXPECT_TRUE(frame.IsWindowEnabled());
        EXPECT_EQ(nAnswer,
                  Play([&, nAsked = nType] { return frame.MessageBox(L"本文", nullptr, nAsked); }, {answer}));
        if (popup.m_hWnd == nullptr) // above which the next box comes
            popup.CreateEx(0, WC_STATIC, L"", WS_POPUP | WS_VISIBLE, CRect(0, 0, 9, 9), &frame, 0);
    }
    fx::g_app.m_pMainWnd = nullptr;
}

TEST(Application, ExceptionsAndNumbersOfTextsAreTold) {
    struct Silent : CException {
        BOOL GetErrorMessage(LPTSTR, UINT, UINT*) const override { return FALSE; }
    } silent;
    struct Talking : CException {
        BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, UINT*) const override {
            return ::lstrcpyn(lpszError, L"own", static_cast<int>(nMaxError)) != nullptr;
        }
    } talking;
    CString strText, strNone;
    ASSERT_TRUE(strText.LoadString(40001));
    ASSERT_TRUE(strNone.LoadString(AFX_IDP_NO_ERROR_AVAILABLE));
    MessageRecorder told(IDRETRY);
    EXPECT_EQ(IDRETRY, talking.ReportError(MB_OK, 40001));
    silent.ReportError(MB_OK, 40001);
    silent.ReportError();
    silent.ReportError(MB_OK, 39999);
    AfxMessageBox(40001);
    EXPECT_EQ((std::vector<CString>{L"own", strText, strNone, strNone, strText}), told.m_prompts);
}

TEST(Application, WaitCursorIsShownAsOftenAsItIsBegun) {
    CWinApp& app = fx::g_app;
    const HCURSOR hBefore = ::SetCursor(::LoadCursor(nullptr, IDC_CROSS));
    const auto shown = [] { return ::GetCursor() == ::LoadCursor(nullptr, IDC_WAIT); };
    app.RestoreWaitCursor();
    EXPECT_FALSE(shown());
    app.DoWaitCursor(1);
    EXPECT_TRUE(shown());
    ::SetCursor(nullptr);
    app.DoWaitCursor(0);
    EXPECT_TRUE(shown());
    app.DoWaitCursor(-1);
    EXPECT_EQ(::LoadCursor(nullptr, IDC_CROSS), ::GetCursor());
    ::SetCursor(hBefore);
}

TEST(Application, TakesResourcesFromWhereItIsTold) {
    const HINSTANCE hBefore = AfxGetResourceHandle(), hOther = ::GetModuleHandle(L"FieldkitFx.dll");
    AfxSetResourceHandle(hOther);
    EXPECT_EQ(hOther, AfxGetResourceHandle());
    CString strText;
    EXPECT_FALSE(strText.LoadString(40000));
    AfxSetResourceHandle(hBefore);
    EXPECT_TRUE(strText.LoadString(40000));
    WNDCLASS wc = {};
    wc.lpfnWndProc = ::DefWindowProc;
    wc.hInstance = AfxGetInstanceHandle();
    wc.lpszClassName = L"twice";
    EXPECT_TRUE(AfxRegisterClass(&wc));
    EXPECT_TRUE(AfxRegisterClass(&wc));
}

/// Settings of every kind, wherever they are kept.
void ExpectSettingsAreKept(CWinApp& app) {
    EXPECT_EQ(7U, app.GetProfileInt(L"部", L"number", 7));
    EXPECT_TRUE(app.WriteProfileInt(L"部", L"number", -12));
    EXPECT_EQ(-12, static_cast<int>(app.GetProfileInt(L"部", L"number", 7)));
    const CString strLong(L'長', 500);
    for (const CString& strText : {strLong, CString(L""), CString(L"  blanks "), CString(L"'\"quotes\"")}) {
        EXPECT_TRUE(app.WriteProfileString(L"部", L"text", strText));
        EXPECT_EQ(strText, app.GetProfileString(L"部", L"text", L"default"));
    }
    EXPECT_TRUE(app.WriteProfileString(L"部", L"text", nullptr));
    EXPECT_EQ(L"gone", app.GetProfileString(L"部", L"text", L"gone"));
    std::vector<BYTE> bytes = {0, 1, 0xFE, 0x70};
    EXPECT_TRUE(app.WriteProfileBinary(L"部", L"bytes", bytes.data(), 4));
    BYTE* pData = nullptr;
    UINT nBytes = 0;
    ASSERT_TRUE(app.GetProfileBinary(L"部", L"bytes", &pData, &nBytes));
    EXPECT_EQ(bytes, std::vector<BYTE>(pData, pData + nBytes));
    delete[] pData;
    for (const LPCTSTR psz : {L"ABC", L"AZ", L"@A"}) { // what is no bytes
        EXPECT_TRUE(app.WriteProfileString(L"部", L"bytes", psz));
        EXPECT_FALSE(app.GetProfileBinary(L"部", L"bytes", &pData, &nBytes)) << psz;
        EXPECT_EQ(nullptr, pData);
    }
    EXPECT_FALSE(app.GetProfileBinary(L"部", L"missing", &pData, &nBytes));
    EXPECT_TRUE(app.WriteProfileString(L"部", nullptr, nullptr));
    EXPECT_EQ(7U, app.GetProfileInt(L"部", L"number", 7));
}

TEST(Application, KeepsSettingsUnderItsKey) {
    CString strText;
    ASSERT_TRUE(strText.LoadString(40000));
    fx::g_app.SetRegistryKey(40000);
    EXPECT_EQ(strText, fx::g_app.m_pszRegistryKey);
    fx::g_app.SetRegistryKey(L"FieldkitTest");
    ExpectSettingsAreKept(fx::g_app);
    const HKEY hAll = fx::g_app.GetAppRegistryKey();
    EXPECT_EQ(ERROR_SUCCESS, ::RegCloseKey(hAll));
    const HKEY hKey = fx::g_app.GetSectionKey(L"部");
    ::RegSetValueEx(hKey, L"text", 0, REG_SZ, reinterpret_cast<const BYTE*>(L"abcd"), 6);
    EXPECT_EQ(L"abc", fx::g_app.GetProfileString(L"部", L"text")) << "written by others, without an end";
    ::RegCloseKey(hKey);
    ::RegDeleteTree(HKEY_CURRENT_USER, L"Software\\FieldkitTest");
}

TEST(Application, KeepsSettingsInAFileWithoutAKey) {
    CWinApp& app = fx::g_app;
    for (LPCTSTR* ppsz : {&app.m_pszRegistryKey, &app.m_pszProfileName})
        std::free(const_cast<LPTSTR>(*ppsz));
    app.m_pszRegistryKey = nullptr;
    app.m_pszProfileName = ::_tcsdup(L"FieldkitTest.INI");
    ExpectSettingsAreKept(app);
    EXPECT_EQ(nullptr, app.GetSectionKey(L"部"));
    EXPECT_EQ(nullptr, app.GetAppRegistryKey());
    EXPECT_FALSE(app.WriteProfileString(L"部", L"text", L"two\nlines")) << "which no such file can keep";
    WCHAR szFolder[MAX_PATH];
    ::GetEnvironmentVariable(L"APPDATA", szFolder, MAX_PATH);
    EXPECT_TRUE(::DeleteFile(CString(szFolder) + L"\\FieldkitTest.INI"));
}

} // namespace
