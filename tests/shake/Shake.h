// A window that is opened again and again under random input, and what it leaves behind.
#pragma once

#include "Shaker.h"

#include "support/Leftovers.h"

#include <memory>

namespace shake {

constexpr int ROUND = 250; ///< Events until what is open is ended by force.

inline unsigned Setting(const char* pszName, unsigned nDefault) {
    const char* pszValue = std::getenv(pszName);
    return pszValue != nullptr ? static_cast<unsigned>(std::strtoul(pszValue, nullptr, 10)) : nDefault;
}

/// What the system makes at its first use and keeps, so that it does not count as left behind.
inline void FillSystemCaches() {
    constexpr int CACHED_DCS = 64; // Wine keeps as many, each with a region and a bitmap
    constexpr int FIRST_CURSOR = 32512, LAST_CURSOR = 32651, FIRST_ICON = 32512, LAST_ICON = 32518;
    HDC dcs[CACHED_DCS];
    for (HDC& hDC : dcs)
        hDC = ::GetDC(nullptr);
    for (const HDC hDC : dcs)
        ::ReleaseDC(nullptr, hDC);
    for (int i = FIRST_CURSOR; i <= LAST_CURSOR; ++i)
        ::LoadCursor(nullptr, MAKEINTRESOURCE(i));
    for (int i = FIRST_ICON; i <= LAST_ICON; ++i)
        ::LoadIcon(nullptr, MAKEINTRESOURCE(i));
    for (int i = 0; i <= COLOR_MENUBAR; ++i)
        ::GetSysColorBrush(i);
}

/// What has come in a number of events; empty if nothing has. Wine loses the character classes of typed
/// digits now and then, 35 bytes in a thousand events at most; an object lost in each round is more.
inline std::string Growth(const fx::Leftovers& before, const fx::Leftovers& now, int nEvents) {
    const size_t nHeapSlack = 1024 + static_cast<size_t>(nEvents) / 20;
    const bool bGrown = now.nWindows > before.nWindows || now.nGdiObjects > before.nGdiObjects ||
                        now.nHandles > before.nHandles || now.nHeapBytes > before.nHeapBytes + nHeapSlack;
    if (!bGrown)
        return std::string();
    return std::to_string(now.nWindows - before.nWindows) + " windows, " +
           std::to_string(now.nGdiObjects - before.nGdiObjects) + " GDI objects, " +
           std::to_string(now.nHandles - before.nHandles) + " handles, " +
           std::to_string(static_cast<long long>(now.nHeapBytes - before.nHeapBytes)) + " bytes; ";
}

/// Opens something modal with an owner of its own until SHAKE_EVENTS have come, in two halves. The
/// first one has all at work that is kept for the next time: the second one must add nothing. A rare
/// state may come first in the second half; then there are two more, and only what is lost in each of
/// them fails the test.
/// @param panel shows the soft input panel in a mode, 3 hides it
inline void Shake(const std::function<void(CWnd*)>& open, const std::function<void(int)>& panel) {
    constexpr int MAX_HALVES = 4;
    const int nHalf = std::max(1, static_cast<int>(Setting("SHAKE_EVENTS", 2000)) / 2);
    const char* pszName = testing::UnitTest::GetInstance()->current_test_info()->name();
    Shaker shaker(pszName, Setting("SHAKE_SEED", 1));
    shaker.m_panel = panel;
    FillSystemCaches();
    const auto shakeHalf = [&] {
        for (const int nLast = shaker.Events() + nHalf; shaker.Events() < nLast;) {
            auto pOwner = std::make_unique<fx::Frame>();
            shaker.Round(ROUND, [&] { open(pOwner.get()); });
            pOwner.reset();
            panel(3);
            MSG msg; // what was posted to windows that are gone
            while (::PeekMessage(&msg, nullptr, 0, 0, PM_REMOVE))
                if (msg.message != WM_QUIT)
                    ::DispatchMessage(&msg);
            CWnd::DeleteTempMap(); // as an idle loop does; this one is not the framework's
        }
        return fx::Leftovers::Now();
    };
    fx::Leftovers before = shakeHalf();
    std::string all;
    for (int i = 1; i < MAX_HALVES; ++i) {
        const fx::Leftovers now = shakeHalf();
        const std::string growth = Growth(before, now, nHalf);
        if (growth.empty())
            return;
        all += growth;
        before = now;
    }
    ADD_FAILURE() << "left by each " << nHalf << " events: " << all;
}

} // namespace shake
