// Message maps: which handler a message finds, and what it is given.
#include "support/TestApp.h"

#include <string>

using namespace testkit;

namespace {

const UINT g_nRegistered = ::RegisterWindowMessage(L"FieldkitTestMessage");
constexpr UINT WM_BASE_ONLY = WM_APP + 1, WM_BOTH = WM_APP + 2, WM_REWRITE = WM_APP + 3;
constexpr UINT WM_NESTED = WM_APP + 4;

struct BaseWnd : Frame {
    std::string m_log;

    void Log(const std::string& text) { m_log += m_log.empty() ? text : ", " + text; }
    std::string TakeLog() { return std::exchange(m_log, {}); }

protected:
    afx_msg LRESULT OnBaseOnly(WPARAM wParam, LPARAM lParam) {
        Log("base");
        return static_cast<LRESULT>(wParam) + lParam;
    }
    afx_msg LRESULT OnBoth(WPARAM, LPARAM) {
        Log("base");
        return 1;
    }
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
    afx_msg LRESULT OnBoth(WPARAM, LPARAM) {
        Log("derived");
        return 2;
    }
    afx_msg LRESULT OnRegistered(WPARAM wParam, LPARAM) {
        Log("registered");
        return static_cast<LRESULT>(wParam);
    }
    afx_msg LRESULT OnRewrite(WPARAM, LPARAM lParam) {
        MSG* pMsg = GetCurrentMessage();
        pMsg->message = WM_SETTEXT;
        pMsg->wParam = 0;
        pMsg->lParam = lParam;
        return Default();
    }
    afx_msg LRESULT OnNested(WPARAM, LPARAM) {
        SendMessage(WM_BASE_ONLY, 1, 2);
        Log(GetCurrentMessage()->message == WM_NESTED ? "still current" : "lost");
        return 0;
    }
    afx_msg void OnCommand100() { Log("derived command"); }
    afx_msg void OnRange(UINT nID) { Log("range " + std::to_string(nID)); }
    afx_msg void OnClicked() { Log("clicked"); }
    afx_msg void OnChange() { Log("change"); }
    afx_msg void OnControlRange(UINT nID) { Log("control range " + std::to_string(nID)); }
    afx_msg void OnCode(NMHDR* pNMHDR, LRESULT* pResult) {
        Log("notify " + std::to_string(pNMHDR->idFrom));
        *pResult = 5;
    }
    afx_msg void OnCodeRange(UINT nID, NMHDR*, LRESULT* pResult) {
        Log("notify range " + std::to_string(nID));
        *pResult = 6;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(DerivedWnd, BaseWnd)
ON_MESSAGE(WM_BOTH, &DerivedWnd::OnBoth)
ON_MESSAGE(WM_REWRITE, &DerivedWnd::OnRewrite)
ON_MESSAGE(WM_NESTED, &DerivedWnd::OnNested)
ON_REGISTERED_MESSAGE(g_nRegistered, &DerivedWnd::OnRegistered)
ON_COMMAND(100, &DerivedWnd::OnCommand100)
ON_COMMAND_RANGE(200, 210, &DerivedWnd::OnRange)
ON_BN_CLICKED(300, &DerivedWnd::OnClicked)
ON_EN_CHANGE(301, &DerivedWnd::OnChange)
ON_CONTROL_RANGE(EN_CHANGE, 302, 305, &DerivedWnd::OnControlRange)
ON_NOTIFY(-50, 400, &DerivedWnd::OnCode)
ON_NOTIFY_RANGE(-51, 400, 402, &DerivedWnd::OnCodeRange)
END_MESSAGE_MAP()

TEST(MessageMap, DerivedMapComesFirstAndTheBaseMapTakesTheRest) {
    DerivedWnd wnd;
    EXPECT_EQ(wnd.SendMessage(WM_BOTH), 2);
    EXPECT_EQ(wnd.SendMessage(WM_BASE_ONLY, 30, 12), 42);
    EXPECT_EQ(wnd.SendMessage(g_nRegistered, 9), 9);
    EXPECT_EQ(wnd.TakeLog(), "derived, base, registered");
    EXPECT_EQ(wnd.SendMessage(WM_APP + 99), 0);
    EXPECT_EQ(wnd.TakeLog(), "");
}

TEST(MessageMap, DefaultReplaysTheCurrentMessageAsAHandlerHasRewrittenIt) {
    DerivedWnd wnd;
    wnd.SendMessage(WM_REWRITE, 0, reinterpret_cast<LPARAM>(L"rewritten"));
    EXPECT_EQ(TextOf(wnd), L"rewritten");
}

TEST(MessageMap, OuterMessageIsCurrentAgainAfterANestedOne) {
    DerivedWnd wnd;
    wnd.SendMessage(WM_NESTED);
    EXPECT_EQ(wnd.TakeLog(), "base, still current");
}

TEST(MessageMap, CommandsFindTheirHandlerByIdentifierAndCode) {
    DerivedWnd wnd;
    const HWND hControl =
        ::CreateWindow(WC_STATIC, L"", WS_CHILD, 0, 0, 5, 5, wnd, nullptr, nullptr, nullptr);
    const Rows<WORD, WORD, bool, const char*> cases = {
        {100, 0, false, "derived command"},
        {101, 0, false, "base command"},
        {199, 0, false, ""},
        {200, 0, false, "range 200"},
        {210, 0, false, "range 210"},
        {211, 0, false, ""},
        {300, BN_CLICKED, true, "clicked"},
        {300, BN_DOUBLECLICKED, true, ""},
        {301, EN_CHANGE, true, "change"},
        {301, EN_UPDATE, true, ""},
        {304, EN_CHANGE, true, "control range 304"},
        {100, 1, false, "derived command"}, // an accelerator
    };
    for (const auto& [nID, nCode, bControl, pszLog] : cases) {
        const bool bHandled = wnd.SendMessage(WM_COMMAND, MAKEWPARAM(nID, nCode),
                                              reinterpret_cast<LPARAM>(bControl ? hControl : nullptr)) != 0;
        EXPECT_EQ(wnd.TakeLog(), pszLog) << nID << " code " << nCode;
        EXPECT_EQ(bHandled, *pszLog != 0) << nID << " code " << nCode;
    }
}

TEST(MessageMap, NotificationsFindTheirHandlerAndGiveItsResult) {
    DerivedWnd wnd;
    const auto send = [&](UINT_PTR nID, UINT nCode) {
        NMHDR header = {nullptr, nID, nCode};
        return wnd.SendMessage(WM_NOTIFY, nID, reinterpret_cast<LPARAM>(&header));
    };
    EXPECT_EQ(send(400, static_cast<UINT>(-50)), 5);
    EXPECT_EQ(send(402, static_cast<UINT>(-51)), 6);
    EXPECT_EQ(send(403, static_cast<UINT>(-51)), 0);
    EXPECT_EQ(wnd.TakeLog(), "notify 400, notify range 402");
}

// --- Handlers of more forms than one -----------------------------------------------------------

/// As older programs declare them.
struct OlderForms : Frame {
    std::string m_log;

protected:
    void Log(const char* pszName, long long n, long long m = 0) {
        m_log = pszName + (' ' + std::to_string(n)) + ' ' + std::to_string(m);
    }
    afx_msg void OnTimer(UINT nID) { Log("timer", nID); }
    afx_msg UINT OnNcHitTest(CPoint point) {
        Log("hit", point.x, point.y);
        return HTCAPTION;
    }
    afx_msg UINT OnPowerBroadcast(UINT nEvent, UINT nData) {
        Log("power", nEvent, nData);
        return 4;
    }
    afx_msg void OnActivateApp(BOOL bActive, HTASK) { Log("app", bActive); }
    afx_msg LONG OnLong(UINT wParam, LONG lParam) {
        Log("long", wParam, lParam);
        return -5;
    }
    afx_msg void OnQuiet(WPARAM wParam, LPARAM lParam) {
        Log("quiet", static_cast<long long>(wParam), lParam);
    }
    afx_msg LRESULT OnEmpty() {
        Log("empty", 0);
        return 6;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(OlderForms, CWnd)
ON_WM_TIMER()
ON_WM_NCHITTEST()
ON_WM_POWERBROADCAST()
ON_WM_ACTIVATEAPP()
ON_MESSAGE(WM_BOTH, &OlderForms::OnLong)
ON_MESSAGE(WM_REWRITE, &OlderForms::OnQuiet)
ON_MESSAGE(WM_NESTED, &OlderForms::OnEmpty)
END_MESSAGE_MAP()

TEST(MessageMap, HandlersMayHaveTheFormsOfOlderPrograms) {
    OlderForms wnd;
    const Rows<UINT, WPARAM, LPARAM, const char*, LRESULT> cases = {
        {WM_TIMER, 77, 0, "timer 77 0", 0},
        {WM_NCHITTEST, 0, MAKELPARAM(-5, -7), "hit -5 -7", HTCAPTION},
        {WM_POWERBROADCAST, 8, 9, "power 8 9", 4},
        {WM_ACTIVATEAPP, TRUE, 0, "app 1 0", 0},
        {WM_BOTH, 2, -3, "long 2 -3", -5},
        {WM_REWRITE, 2, -3, "quiet 2 -3", 0},
        {WM_NESTED, 2, 3, "empty 0 0", 6},
    };
    for (const auto& [message, wParam, lParam, pszLog, lResult] : cases) {
        EXPECT_EQ(wnd.SendMessage(message, wParam, lParam), lResult);
        EXPECT_EQ(wnd.m_log, pszLog);
    }
    if constexpr (sizeof(LPARAM) > sizeof(LONG)) {
        const MessageRecorder told;
        wnd.m_log.clear();
        wnd.SendMessage(WM_BOTH, 2, static_cast<LPARAM>(1LL << 32));
        EXPECT_EQ(wnd.m_log, "") << "a pointer that does not fit must not come in part";
        EXPECT_EQ(told.m_prompts.size(), 1U);
    }
}

struct Colored : Frame {
    UINT m_nType = 99;
    CWnd* m_pControl = nullptr;

protected:
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor) {
        m_nType = nCtlColor;
        m_pControl = pWnd;
        pDC->SetTextColor(RGB(1, 2, 3));
        return static_cast<HBRUSH>(::GetStockObject(LTGRAY_BRUSH));
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Colored, CWnd)
ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

TEST(MessageMap, TheSevenColourMessagesReachOneHandler) {
    Colored wnd;
    CStatic control;
    ASSERT_TRUE(control.Create(L"", WS_CHILD, CRect(0, 0, 5, 5), &wnd));
    CClientDC dc(&control);
    for (UINT nType = CTLCOLOR_MSGBOX; nType <= CTLCOLOR_STATIC; ++nType) {
        const LRESULT lResult = wnd.SendMessage(WM_CTLCOLORMSGBOX + nType, reinterpret_cast<WPARAM>(dc.m_hDC),
                                                reinterpret_cast<LPARAM>(control.m_hWnd));
        EXPECT_EQ(wnd.m_nType, nType);
        EXPECT_EQ(wnd.m_pControl, &control);
        EXPECT_EQ(reinterpret_cast<HBRUSH>(lResult), ::GetStockObject(LTGRAY_BRUSH));
    }
    EXPECT_EQ(dc.GetTextColor(), RGB(1, 2, 3)) << "the handler draws on the control's context";
}

/// A window with the map that lies at one place in memory, as after a change of DLLs.
struct OfUnloadedModule : Frame {
    LRESULT OnFirst(WPARAM, LPARAM) { return 1; }
    LRESULT OnSecond(WPARAM, LPARAM) { return 2; }
    const AFX_MSGMAP* GetMessageMap() const override { return &m_map; }

    using ThisClass = OfUnloadedModule;
    const AFX_MSGMAP_ENTRY m_first[2] = {ON_MESSAGE(WM_BOTH, &OfUnloadedModule::OnFirst){}};
    const AFX_MSGMAP_ENTRY m_second[2] = {ON_MESSAGE(WM_BOTH, &OfUnloadedModule::OnSecond){}};
    AFX_MSGMAP m_map = {&CWnd::GetThisMessageMap, m_first};
};

TEST(MessageMap, AnswersAreForgottenWhenADllIsUnloaded) {
    OfUnloadedModule wnd;
    EXPECT_EQ(1, wnd.SendMessage(WM_BOTH));
    wnd.m_map.lpEntries = wnd.m_second;
    const HMODULE hModule = ::LoadLibrary(L"avifil32.dll");
    ASSERT_NE(nullptr, hModule);
    ::FreeLibrary(hModule);
    EXPECT_EQ(2, wnd.SendMessage(WM_BOTH));
}

} // namespace
