// Message maps: which handler a message finds, and what it is given.
#include "support/TestApp.h"

#include <string>

using namespace testkit;

namespace {

const UINT g_nRegistered = ::RegisterWindowMessage(L"FieldkitTestMessage");
constexpr UINT WM_BASE_ONLY = WM_APP + 1, WM_BOTH = WM_APP + 2, WM_REWRITE = WM_APP + 3;
constexpr UINT WM_NESTED = WM_APP + 4, WM_LONG = WM_APP + 5, WM_QUIET = WM_APP + 6, WM_EMPTY = WM_APP + 7;
constexpr UINT ID_ON = 0x8001, ID_OFF = 0x8002;

struct BaseWnd : Frame {
    std::string m_log;

    LRESULT Log(const std::string& text, LRESULT lResult = 0) {
        m_log += m_log.empty() ? text : ", " + text;
        return lResult;
    }
    template <class Result = LRESULT>
    Result Log(const char* pszName, long long n, long long m, Result result = 0) {
        Log(pszName + (' ' + std::to_string(n)) + ' ' + std::to_string(m));
        return result;
    }
    std::string TakeLog() { return std::exchange(m_log, {}); }

protected:
    afx_msg LRESULT OnBaseOnly(WPARAM wParam, LPARAM lParam) {
        return Log("base", static_cast<LRESULT>(wParam) + lParam);
    }
    afx_msg LRESULT OnBoth(WPARAM, LPARAM) { return Log("base", 1); }
    afx_msg void OnBaseCommand() { Log("base command"); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(BaseWnd, CWnd)
ON_MESSAGE(WM_BASE_ONLY, &BaseWnd::OnBaseOnly)
ON_MESSAGE(WM_BOTH, &BaseWnd::OnBoth)
ON_COMMAND(100, &BaseWnd::OnBaseCommand)
ON_COMMAND(101, &BaseWnd::OnBaseCommand)
END_MESSAGE_MAP()

class DerivedWnd : public BaseWnd {
protected:
    afx_msg LRESULT OnBoth(WPARAM, LPARAM) { return Log("derived", 2); }
    afx_msg LRESULT OnRegistered(WPARAM, LPARAM) { return Log("registered", 3); }
    afx_msg LRESULT OnRewrite(WPARAM, LPARAM lParam) {
        MSG* pMsg = GetCurrentMessage();
        pMsg->message = WM_SETTEXT;
        pMsg->wParam = 0;
        pMsg->lParam = lParam;
        return Default();
    }
    afx_msg LRESULT OnNested(WPARAM, LPARAM) {
        SendMessage(WM_BASE_ONLY, 1, 2);
        return Log(GetCurrentMessage()->message == WM_NESTED ? "still current" : "lost");
    }
    // As older programs declare them.
    afx_msg void OnTimer(UINT nID) { Log("timer", nID, 0); }
    afx_msg UINT OnNcHitTest(CPoint point) { return Log("hit", point.x, point.y, UINT{HTCAPTION}); }
    afx_msg UINT OnPowerBroadcast(UINT nEvent, UINT nData) { return Log("power", nEvent, nData, 4U); }
    afx_msg void OnActivateApp(BOOL bActive, HTASK) { Log("app", bActive, 0); }
    afx_msg LONG OnLong(UINT wParam, LONG lParam) { return Log("long", wParam, lParam, -5L); }
    afx_msg void OnQuiet(WPARAM wParam, LPARAM lParam) {
        Log("quiet", static_cast<long long>(wParam), lParam);
    }
    afx_msg LRESULT OnEmpty() { return Log("empty", 6); }

    afx_msg void OnCommand100() { Log("derived command"); }
    afx_msg void OnRange(UINT nID) { Log("range " + std::to_string(nID)); }
    afx_msg BOOL OnRangeEx(UINT nID) {
        Log("range ex");
        return nID == ID_ON;
    }
    afx_msg void OnClicked() { Log("clicked"); }
    afx_msg void OnChange() { Log("change"); }
    afx_msg void OnControlRange(UINT nID) { Log("control range " + std::to_string(nID)); }
    afx_msg void OnCode(NMHDR* pNMHDR, LRESULT* pResult) {
        *pResult = Log("notify " + std::to_string(pNMHDR->idFrom), 5);
    }
    afx_msg void OnCodeRange(UINT nID, NMHDR*, LRESULT* pResult) {
        *pResult = Log("notify range " + std::to_string(nID), 6);
    }
    afx_msg void OnUpdateOn(CCmdUI* pCmdUI) {
        pCmdUI->SetText(L"on");
        pCmdUI->SetCheck();
    }
    afx_msg void OnUpdateOff(CCmdUI* pCmdUI) {
        pCmdUI->SetRadio();
        pCmdUI->Enable(FALSE);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(DerivedWnd, BaseWnd)
ON_MESSAGE(WM_BOTH, &DerivedWnd::OnBoth)
ON_MESSAGE(WM_REWRITE, &DerivedWnd::OnRewrite)
ON_MESSAGE(WM_NESTED, &DerivedWnd::OnNested)
ON_REGISTERED_MESSAGE(g_nRegistered, &DerivedWnd::OnRegistered)
ON_WM_TIMER()
ON_WM_NCHITTEST()
ON_WM_POWERBROADCAST()
ON_WM_ACTIVATEAPP()
ON_MESSAGE(WM_LONG, &DerivedWnd::OnLong)
ON_MESSAGE(WM_QUIET, &DerivedWnd::OnQuiet)
ON_MESSAGE(WM_EMPTY, &DerivedWnd::OnEmpty)
ON_COMMAND(100, &DerivedWnd::OnCommand100)
ON_COMMAND_RANGE(200, 210, &DerivedWnd::OnRange)
ON_COMMAND_EX_RANGE(ID_ON, ID_OFF, OnRangeEx)
ON_BN_CLICKED(300, &DerivedWnd::OnClicked)
ON_EN_CHANGE(301, &DerivedWnd::OnChange)
ON_CONTROL_RANGE(EN_CHANGE, 302, 305, &DerivedWnd::OnControlRange)
ON_NOTIFY(-50, 400, &DerivedWnd::OnCode)
ON_NOTIFY_RANGE(-51, 400, 402, &DerivedWnd::OnCodeRange)
ON_UPDATE_COMMAND_UI(ID_ON, OnUpdateOn)
ON_UPDATE_COMMAND_UI(ID_OFF, OnUpdateOff)
END_MESSAGE_MAP()

TEST(MessageMap, MessagesFindTheirHandlerTheDerivedOneFirst) {
    DerivedWnd wnd;
    const Rows<UINT, WPARAM, LPARAM, const char*, LRESULT> rows = {
        {WM_BOTH, 0, 0, "derived", 2},
        {WM_BASE_ONLY, 30, 12, "base", 42},
        {g_nRegistered, 0, 0, "registered", 3},
        {WM_APP + 99, 0, 0, "", 0},
        {WM_NESTED, 0, 0, "base, still current", 0},
        {WM_TIMER, 77, 0, "timer 77 0", 0},
        {WM_NCHITTEST, 0, MAKELPARAM(-5, -7), "hit -5 -7", HTCAPTION},
        {WM_POWERBROADCAST, 8, 9, "power 8 9", 4},
        {WM_ACTIVATEAPP, TRUE, 0, "app 1 0", 0},
        {WM_LONG, 2, -3, "long 2 -3", -5},
        {WM_QUIET, 2, -3, "quiet 2 -3", 0},
        {WM_EMPTY, 2, 3, "empty", 6},
        {WM_REWRITE, 0, reinterpret_cast<LPARAM>(L"rewritten"), "", TRUE},
    };
    for (const auto& [message, wParam, lParam, pszLog, lResult] : rows) {
        EXPECT_EQ(lResult, wnd.SendMessage(message, wParam, lParam)) << pszLog;
        EXPECT_EQ(pszLog, wnd.TakeLog());
    }
    EXPECT_EQ(L"rewritten", TextOf(wnd)) << "by default processing, as the handler has left the message";
}

TEST(MessageMap, OldLongHandlerIsToldWhatItCannotHold) {
    if (sizeof(LPARAM) == sizeof(LONG))
        GTEST_SKIP() << "it holds all there is";
    DerivedWnd wnd;
    const MessageRecorder told;
    wnd.SendMessage(WM_LONG, 2, static_cast<LPARAM>(1LL << 32));
    EXPECT_EQ("", wnd.TakeLog()) << "a pointer that does not fit must not come in part";
    EXPECT_EQ(1U, told.m_prompts.size());
}

TEST(MessageMap, CommandsFindTheirHandlerByIdentifierAndCode) {
    DerivedWnd wnd;
    const Child<CStatic> control(wnd);
    const Rows<WORD, WORD, bool, const char*, LRESULT> rows = {
        {100, 0, false, "derived command", 1},
        {101, 0, false, "base command", 1},
        {199, 0, false, "", 0},
        {200, 0, false, "range 200", 1},
        {210, 0, false, "range 210", 1},
        {211, 0, false, "", 0},
        {ID_ON, 0, false, "range ex", 1},
        {ID_OFF, 0, false, "range ex", 0}, // left to others
        {300, BN_CLICKED, true, "clicked", 1},
        {300, BN_DOUBLECLICKED, true, "", 0},
        {301, EN_CHANGE, true, "change", 1},
        {301, EN_UPDATE, true, "", 0},
        {304, EN_CHANGE, true, "control range 304", 1},
        {100, 1, false, "derived command", 1}, // an accelerator
    };
    for (const auto& [nID, nCode, bControl, pszLog, lResult] : rows) {
        const HWND hControl = bControl ? control.m_hWnd : nullptr;
        EXPECT_EQ(lResult,
                  wnd.SendMessage(WM_COMMAND, MAKEWPARAM(nID, nCode), reinterpret_cast<LPARAM>(hControl)))
            << nID << " code " << nCode;
        EXPECT_EQ(pszLog, wnd.TakeLog()) << nID << " code " << nCode;
    }
}

TEST(MessageMap, NotificationsFindTheirHandlerAndGiveItsResult) {
    DerivedWnd wnd;
    EXPECT_EQ(5, Notify(wnd, nullptr, 400, -50));
    EXPECT_EQ(6, Notify(wnd, nullptr, 402, -51));
    EXPECT_EQ(0, Notify(wnd, nullptr, 403, -51));
    EXPECT_EQ("notify 400, notify range 402", wnd.TakeLog());
}

TEST(MessageMap, ItemsOfAMenuAndControlsAreAskedHowTheyLook) {
    DerivedWnd wnd;
    CMenu bar, own;
    ASSERT_TRUE(bar.CreateMenu());
    ASSERT_TRUE(own.CreatePopupMenu());
    bar.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(own.Detach()), L"popup");
    CMenu& popup = *bar.GetSubMenu(0);
    popup.AppendMenu(MF_STRING, ID_ON, L"x");
    popup.AppendMenu(MF_SEPARATOR);
    popup.AppendMenu(MF_STRING, ID_OFF, L"off");
    wnd.SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(popup.m_hMenu), 0);
    CString strText;
    EXPECT_EQ(2, popup.GetMenuString(ID_ON, strText, MF_BYCOMMAND));
    EXPECT_EQ(L"on", strText);
    EXPECT_EQ(UINT{MF_CHECKED}, popup.GetMenuState(ID_ON, MF_BYCOMMAND));
    EXPECT_EQ(UINT{MF_CHECKED | MF_GRAYED | MFT_RADIOCHECK}, popup.GetMenuState(ID_OFF, MF_BYCOMMAND));
    const Child<CButton> on(wnd, BS_AUTOCHECKBOX, CRect(0, 0, 9, 9), ID_ON);
    const Child<CButton> off(wnd, BS_AUTORADIOBUTTON, CRect(0, 9, 9, 18), ID_OFF);
    const Child<CButton> known(wnd, 0, CRect(0, 18, 9, 27), 100);
    wnd.UpdateDialogControls(&wnd, TRUE);
    EXPECT_TRUE(known.IsWindowEnabled()) << "there is a handler for its command";
    EXPECT_EQ(L"on", TextOf(on));
    EXPECT_EQ(BST_CHECKED, on.GetCheck());
    EXPECT_EQ(BST_CHECKED, off.GetCheck());
}

/// A window with the map that lies at one place in memory, as after a change of DLLs.
struct OfUnloadedModule : Frame {
    LRESULT OnFirst(WPARAM, LPARAM) { return 1; }
    LRESULT OnSecond(WPARAM, LPARAM) { return 2; }
    const AFX_MSGMAP* GetMessageMap() const override { return &m_map; }

    using ThisClass = OfUnloadedModule;
    const AFX_MSGMAP_ENTRY m_first[3] = {ON_MESSAGE(WM_BOTH, &OfUnloadedModule::OnFirst)
                                             ON_MESSAGE(WM_NESTED, &OfUnloadedModule::OnFirst){}};
    const AFX_MSGMAP_ENTRY m_second[3] = {ON_MESSAGE(WM_BOTH, &OfUnloadedModule::OnSecond)
                                              ON_MESSAGE(WM_NESTED, &OfUnloadedModule::OnSecond){}};
    AFX_MSGMAP m_map = {&CWnd::GetThisMessageMap, m_first};
};

TEST(MessageMap, AnswersAreForgottenWhenADllIsUnloaded) {
    OfUnloadedModule wnd;
    for (const UINT message : {WM_BOTH, WM_NESTED})
        EXPECT_EQ(1, wnd.SendMessage(message));
    wnd.m_map.lpEntries = wnd.m_second;
    const HMODULE hModule = ::LoadLibrary(L"avifil32.dll");
    ASSERT_NE(nullptr, hModule);
    ::FreeLibrary(hModule);
    for (const UINT message : {WM_BOTH, WM_NESTED})
        EXPECT_EQ(2, wnd.SendMessage(message));
}

} // namespace
