// Seeded random input into whatever windows the thread has open.
#pragma once

#include "testkit/Watchdog.h"
#include "testkit/detail/StackTrace.h"
#include "testkit/detail/TopLevels.h"

#include "Tesuvo.h"
#include "afxext.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <functional>
#include <initializer_list>
#include <iterator>
#include <random>
#include <string>

namespace testkit::detail {

/// Pen, keys, focus, activation, settings and destruction, a burst at each timer tick, in whatever
/// message loop is the innermost. Events are posted as the system posts them: the same seed gives
/// the same ones, and there are many more a second than by real input.
struct Shaker {
    Shaker(std::string name, unsigned nSeed) : m_name(std::move(name)), m_nSeed(nSeed), m_random(nSeed) {
        s_pThis = this;
        m_pfnFilter = ::SetUnhandledExceptionFilter(OnCrash);
        m_nTimer = ::SetTimer(nullptr, 0, USER_TIMER_MINIMUM, OnTimer);
    }
    ~Shaker() {
        ::KillTimer(nullptr, m_nTimer);
        ::SetUnhandledExceptionFilter(m_pfnFilter);
        BYTE keys[256] = {};
        ::SetKeyboardState(keys);
        s_pThis = nullptr;
    }

    int Events() const { return m_nEvents; }

    /// Opens something modal and shakes it until it is over, by force after a number of events.
    void Round(int nEvents, const std::function<void()>& open) {
        m_nRoundEnd = m_nEvents + nEvents;
        m_nForced = 0;
        m_bOn = true;
        open();
        m_bOn = false;
    }

private:
    struct CEvent {
        const char* pszKind = "";
        HWND hWnd = nullptr;
        int nFirst = 0, nSecond = 0;
    };
    static constexpr int kBurst = 16, kKept = 20, kMostForce = 200;
    static constexpr DWORD kHangSeconds = 20;

    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD) {
        Shaker* const pThis = s_pThis;
        if (pThis == nullptr || !pThis->m_bOn)
            return;
        if (pThis->m_nForced < kMostForce) // what no force ends is a hang
            pThis->m_watchdog.Feed();
        if (pThis->m_nEvents >= pThis->m_nRoundEnd) {
            pThis->Force();
            return;
        }
        for (int i = 0; i < kBurst && pThis->m_bOn; ++i)
            pThis->Next();
    }

    static LONG WINAPI OnCrash(EXCEPTION_POINTERS* pInfo) {
        const auto* pAddress = static_cast<const char*>(pInfo->ExceptionRecord->ExceptionAddress);
        HMODULE hModule = nullptr;
        ::GetModuleHandleEx(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                                GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                            reinterpret_cast<LPCTSTR>(pAddress), &hModule);
        char szModule[MAX_PATH] = {};
        ::GetModuleFileNameA(hModule, szModule, MAX_PATH);
        std::printf("crashed: %08lx at %s+%llx\n", pInfo->ExceptionRecord->ExceptionCode, szModule,
                    static_cast<unsigned long long>(pAddress - reinterpret_cast<const char*>(hModule)));
        if (s_pThis != nullptr)
            s_pThis->Print();
        PrintStack(*pInfo->ContextRecord);
        std::fflush(stdout);
        ::TerminateProcess(::GetCurrentProcess(), 98);
        return EXCEPTION_EXECUTE_HANDLER;
    }

    void Print() const {
        std::printf("%s, seed %u, event %d; the last ones:\n", m_name.c_str(), m_nSeed, m_nEvents);
        for (int i = std::max(0, m_nEvents - kKept); i < m_nEvents; ++i) {
            const CEvent& event = m_events[static_cast<size_t>(i % kKept)];
            char szClass[40] = {};
            ::GetClassNameA(event.hWnd, szClass, 40);
            std::printf("  %d %s %p %s %d %d\n", i, event.pszKind, static_cast<void*>(event.hWnd), szClass,
                        event.nFirst, event.nSecond);
        }
    }

    void Keep(const char* pszKind, HWND hWnd, int nFirst = 0, int nSecond = 0) {
        m_events[static_cast<size_t>(m_nEvents % kKept)] = {pszKind, hWnd, nFirst, nSecond};
        ++m_nEvents;
    }

    int Pick(int n) { return static_cast<int>(m_random() % static_cast<unsigned>(n)); }

    // --- Which window ------------------------------------------------------------------------

    using Windows = std::vector<HWND>;

    static BOOL CALLBACK Add(HWND hWnd, LPARAM lWindows) {
        return reinterpret_cast<Windows*>(lWindows)->push_back(hWnd), TRUE;
    }
    HWND Any(const Windows& windows) {
        return windows.empty() ? nullptr
                               : windows[static_cast<size_t>(Pick(static_cast<int>(windows.size())))];
    }
    HWND AnyTopLevel() { return Any(TopLevels()); }
    HWND AnyWindow() {
        Windows windows = TopLevels();
        for (size_t i = windows.size(); i-- > 0;)
            ::EnumChildWindows(windows[i], Add, reinterpret_cast<LPARAM>(&windows));
        return Any(windows);
    }

    // --- Events ------------------------------------------------------------------------------

    void Next() {
        const int nKind = Pick(100);
        if (nKind < 45)
            Pen();
        else if (nKind < 85)
            Key();
        else
            Other();
    }

    void Pen() {
        // Mostly where something is; the pen moves on from there.
        if (const HWND hWnd = Pick(3) != 0 ? AnyWindow() : nullptr; hWnd != nullptr) {
            CRect rect;
            ::GetWindowRect(hWnd, rect);
            m_pen = CPoint(rect.left + Pick(std::max<int>(1, rect.Width())),
                           rect.top + Pick(std::max<int>(1, rect.Height())));
        } else {
            m_pen.Offset(Pick(41) - 20, Pick(41) - 20);
        }
        ::SetCursorPos(m_pen.x, m_pen.y);
        // A press without a lift, a lift without a press, a move, a double tap, and mostly a tap.
        static constexpr std::initializer_list<UINT> kTap = {WM_LBUTTONDOWN, WM_LBUTTONUP};
        static constexpr std::initializer_list<UINT> kKinds[] = {
            {WM_LBUTTONDOWN},
            {WM_LBUTTONUP},
            {WM_MOUSEMOVE},
            {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_LBUTTONUP}};
        const size_t nKind = static_cast<size_t>(Pick(8));
        for (const UINT message : nKind < std::size(kKinds) ? kKinds[nKind] : kTap)
            Mouse(message);
    }

    /// To the window under the pen, as the system does it.
    void Mouse(UINT message) {
        const HWND hCapture = ::GetCapture();
        const HWND hWnd = hCapture != nullptr ? hCapture : ::WindowFromPoint(m_pen);
        Keep("pen", hWnd, m_pen.x, m_pen.y);
        if (hWnd == nullptr || ::GetWindowThreadProcessId(hWnd, nullptr) != ::GetCurrentThreadId())
            return;
        const LPARAM lScreen = MAKELPARAM(m_pen.x, m_pen.y);
        LRESULT lHit = HTCLIENT;
        if (hCapture == nullptr)
            lHit = ::SendMessage(hWnd, WM_NCHITTEST, 0, lScreen);
        if (message == WM_LBUTTONDOWN)
            Activate(hWnd, lHit);
        CPoint point = m_pen;
        ::ScreenToClient(hWnd, &point);
        const LPARAM lClient = MAKELPARAM(point.x, point.y);
        if (lHit == HTCLIENT) {
            ::PostMessage(hWnd, message, message == WM_LBUTTONUP ? 0 : MK_LBUTTON, lClient);
            return;
        }
        ::PostMessage(hWnd, message - WM_MOUSEMOVE + WM_NCMOUSEMOVE, static_cast<WPARAM>(lHit), lScreen);
        // The system follows the pen on a button of its title bar in a loop that takes mouse messages
        // of the client area only: the lift has to be there, no timer can send it any more.
        if (message == WM_LBUTTONDOWN || message == WM_LBUTTONDBLCLK)
            ::PostMessage(hWnd, WM_LBUTTONUP, 0, lClient);
    }

    static void Activate(HWND hWnd, LRESULT lHit) {
        const HWND hRoot = ::GetAncestor(hWnd, GA_ROOT);
        if (hRoot == ::GetActiveWindow() || !::IsWindowEnabled(hRoot))
            return;
        const LRESULT lAnswer = ::SendMessage(hWnd, WM_MOUSEACTIVATE, reinterpret_cast<WPARAM>(hRoot),
                                              MAKELPARAM(lHit, WM_LBUTTONDOWN));
        if (lAnswer != MA_NOACTIVATE && lAnswer != MA_NOACTIVATEANDEAT)
            ::SetActiveWindow(hRoot);
    }

    void Key() {
        static constexpr WORD kKeys[] = {VK_TAB,  VK_TAB,    VK_TAB,        VK_LEFT,     VK_RIGHT, VK_UP,
                                         VK_DOWN, VK_RETURN, VK_SPACE,      VK_ESCAPE,   VK_BACK,  VK_DELETE,
                                         VK_HOME, VK_END,    VK_PRIOR,      VK_NEXT,     VK_F1,    VK_F4,
                                         VK_F10,  VK_MENU,   VK_OEM_PERIOD, VK_OEM_MINUS};
        const int nChoice = Pick(3);
        const WORD wKey = nChoice == 0   ? static_cast<WORD>('0' + Pick(10))
                          : nChoice == 1 ? static_cast<WORD>('A' + Pick(26))
                                         : kKeys[Pick(static_cast<int>(std::size(kKeys)))];
        const int nModifier = Pick(8); // 0 Shift, 1 Ctrl, 2 Alt, else none
        BYTE keys[256] = {};
        keys[VK_SHIFT] = nModifier == 0 ? 0x80 : 0;
        keys[VK_CONTROL] = nModifier == 1 ? 0x80 : 0;
        keys[VK_MENU] = nModifier == 2 ? 0x80 : 0;
        ::SetKeyboardState(keys);
        const HWND hFocus = ::GetFocus() != nullptr ? ::GetFocus() : ::GetActiveWindow();
        static constexpr const char* kModifiers[] = {"shift", "ctrl", "alt", "key"};
        Keep(kModifiers[std::min(nModifier, 3)], hFocus, wKey);
        if (hFocus == nullptr)
            return;
        const bool bAlt = nModifier == 2 || wKey == VK_F10 || wKey == VK_MENU;
        const LPARAM lDown = static_cast<LPARAM>(1U | ::MapVirtualKey(wKey, MAPVK_VK_TO_VSC) << 16 |
                                                 (nModifier == 2 ? 0x20000000U : 0U));
        ::PostMessage(hFocus, bAlt ? WM_SYSKEYDOWN : WM_KEYDOWN, wKey, lDown);
        ::PostMessage(hFocus, bAlt ? WM_SYSKEYUP : WM_KEYUP, wKey, lDown | static_cast<LPARAM>(0xC0000000U));
    }

    void Other() {
        const int nKind = Pick(40);
        const HWND hTop = AnyTopLevel();
        if (hTop == nullptr)
            return;
        if (nKind < 12) {
            const HWND hWnd = AnyWindow();
            Keep("focus", hWnd);
            if (::IsWindowEnabled(::GetAncestor(hWnd, GA_ROOT)))
                ::SetFocus(hWnd);
        } else if (nKind < 20) {
            Keep("activate", hTop);
            if (::IsWindowEnabled(hTop))
                ::SetActiveWindow(hTop);
        } else if (nKind < 26) {
            Keep("setting", hTop, nKind);
            ::PostMessage(hTop, WM_SETTINGCHANGE, nKind % 2 != 0 ? SPI_SETWORKAREA : SPI_SETSIPINFO, 0);
        } else if (nKind < 30) {
            Keep("panel", hTop, nKind);
            constexpr int kModes = 3;
            if (nKind - 26 < kModes)
                TVShowSIP(nKind - 26);
            else
                TVCloseSIP();
        } else if (nKind < 34) {
            const HWND hWnd = AnyWindow();
            Keep("timer", hWnd);
            ::PostMessage(hWnd, WM_TIMER, static_cast<WPARAM>(Pick(4)), 0);
        } else if (nKind < 36) {
            Keep("close", hTop);
            if (::IsWindowEnabled(hTop))
                ::PostMessage(hTop, WM_CLOSE, 0, 0);
        } else if (nKind == 36 && Pick(4) == 0) {
            Keep("destroy", hTop);
            ::DestroyWindow(hTop);
        } else {
            Keep("paint", hTop);
            ::RedrawWindow(hTop, nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_UPDATENOW);
        }
    }

    /// Ends what is open: as a user would, and in the end by destroying it.
    void Force() {
        ++m_nForced;
        EndInput();
        for (const HWND hWnd : TopLevels()) {
            if (!::IsWindow(hWnd))
                continue;
            if (m_nForced > 20)
                ::DestroyWindow(hWnd);
            else if (::IsWindowEnabled(hWnd))
                ::PostMessage(hWnd, WM_COMMAND, m_nForced % 2 != 0 ? IDCANCEL : IDOK, 0);
        }
    }

    static inline Shaker* s_pThis = nullptr;

    const std::string m_name;
    LPTOP_LEVEL_EXCEPTION_FILTER m_pfnFilter = nullptr; ///< That of the program.
    unsigned m_nSeed;
    std::mt19937 m_random;
    UINT_PTR m_nTimer = 0;
    bool m_bOn = false;
    int m_nEvents = 0, m_nRoundEnd = 0;
    int m_nForced = 0; ///< Ticks since the round is to end.
    CPoint m_pen{100, 100};
    std::array<CEvent, kKept> m_events;
    Watchdog m_watchdog{kHangSeconds, [this] { Print(); }};
};

} // namespace testkit::detail
