// The application: its loop, its message boxes, its settings.
#include "support/ModalScript.h"

namespace {

TEST(Application, RunsUntilItsMainWindowIsDestroyed) {
    fx::Frame frame;
    fx::g_app.m_pMainWnd = &frame;
    EXPECT_EQ(AfxGetMainWnd(), &frame);
    fx::ModalScript script;
    script.Then([&] { frame.PostMessage(WM_CLOSE); });
    EXPECT_EQ(script.Run([] { return fx::g_app.Run(); }), 0);
    EXPECT_EQ(frame.m_hWnd, nullptr);
    EXPECT_EQ(AfxGetMainWnd(), nullptr);
    EXPECT_EQ(fx::g_app.Run(), 0) << "at once without one";
}

TEST(Application, MessageBoxAnswersAndDisablesTheMainWindowMeanwhile) {
    fx::Frame frame;
    fx::g_app.m_pMainWnd = &frame;
    const struct {
        UINT nType;
        WORD nKey;
        int nAnswer;
    } cases[] = {
        {MB_OK, VK_RETURN, IDOK},
        {MB_YESNO | MB_DEFBUTTON2, VK_RETURN, IDNO},
        {MB_OKCANCEL, VK_ESCAPE, IDCANCEL},
    };
    for (const auto& c : cases) {
        fx::ModalScript script;
        script.Then([&] {
            EXPECT_FALSE(frame.IsWindowEnabled());
            EXPECT_NE(::FindWindow(nullptr, L"test"), nullptr) << "the application's name is its caption";
            pen::TypeKeys({c.nKey});
        });
        EXPECT_EQ(script.Run([&] { return AfxMessageBox(L"本文", c.nType); }), c.nAnswer);
        EXPECT_TRUE(frame.IsWindowEnabled());
    }
    fx::g_app.m_pMainWnd = nullptr;
}

TEST(Application, KeepsSettingsUnderItsKey) {
    fx::g_app.SetRegistryKey(L"FieldkitTest");
    EXPECT_EQ(fx::g_app.GetProfileInt(L"部", L"number", 7), 7U);
    EXPECT_TRUE(fx::g_app.WriteProfileInt(L"部", L"number", -12));
    EXPECT_EQ(static_cast<int>(fx::g_app.GetProfileInt(L"部", L"number", 7)), -12);
    const CString strLong(L'長', 500);
    EXPECT_TRUE(fx::g_app.WriteProfileString(L"部", L"text", strLong));
    EXPECT_EQ(fx::g_app.GetProfileString(L"部", L"text", L"default"), strLong);
    EXPECT_EQ(fx::g_app.GetProfileString(L"部", L"none", L"default"), L"default");
    EXPECT_TRUE(fx::g_app.WriteProfileString(L"部", L"text", nullptr));
    EXPECT_EQ(fx::g_app.GetProfileString(L"部", L"text", L"gone"), L"gone");
    EXPECT_TRUE(fx::g_app.WriteProfileString(L"部", nullptr, nullptr));
    EXPECT_EQ(fx::g_app.GetProfileInt(L"部", L"number", 7), 7U);
    ::RegDeleteTree(HKEY_CURRENT_USER, L"Software\\FieldkitTest");
}

} // namespace
