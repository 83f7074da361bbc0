#include "testkit/Shake.h"

#include "testkit/Application.h"
#include "testkit/Leftovers.h"
#include "testkit/detail/Shaker.h"

#include <cstdlib>
#include <memory>

namespace testkit {

namespace {

constexpr int kRound = 250; ///< Events until what is open is ended by force.
constexpr int kMostHalves = 4;

unsigned Setting(const char* pszName, unsigned nDefault) {
    const char* pszValue = std::getenv(pszName);
    return pszValue != nullptr ? static_cast<unsigned>(std::strtoul(pszValue, nullptr, 10)) : nDefault;
}

/// What the system makes at its first use and keeps, so that it does not count as left behind.
void FillSystemCaches() {
    constexpr int kCachedDcs = 64; // Wine keeps as many, each with a region and a bitmap
    constexpr int kFirstCursor = 32512, kLastCursor = 32651, kFirstIcon = 32512, kLastIcon = 32518;
    HDC dcs[kCachedDcs];
    for (HDC& hDC : dcs)
        hDC = ::GetDC(nullptr);
    for (const HDC hDC : dcs)
        ::ReleaseDC(nullptr, hDC);
    for (int i = kFirstCursor; i <= kLastCursor; ++i)
        ::LoadCursor(nullptr, MAKEINTRESOURCE(i));
    for (int i = kFirstIcon; i <= kLastIcon; ++i)
        ::LoadIcon(nullptr, MAKEINTRESOURCE(i));
    for (int i = 0; i <= COLOR_MENUBAR; ++i)
        ::GetSysColorBrush(i);
}

/// One round, and what was posted to windows that are gone.
void ShakeRound(detail::Shaker& shaker, const std::function<void(CWnd*)>& open) {
    auto pOwner = std::make_unique<Frame>();
    shaker.Round(kRound, [&] { open(pOwner.get()); });
    pOwner.reset();
    TVCloseSIP();
    MSG msg;
    while (::PeekMessage(&msg, nullptr, 0, 0, PM_REMOVE))
        if (msg.message != WM_QUIT)
            ::DispatchMessage(&msg);
    CWnd::DeleteTempMap(); // as an idle loop does; this one is not the framework's
}

} // namespace

ShakeOptions::ShakeOptions()
    : nSeed(Setting("SHAKE_SEED", 1)), nEvents(static_cast<int>(Setting("SHAKE_EVENTS", 2000))) {}

// In two halves. The first one has all at work that is kept for the next time: the second one must
// add nothing. A rare state may come first in the second half; then there are two more, and only
// what is lost in each of them fails.
void Shake(const std::function<void(CWnd*)>& open, const ShakeOptions& options, const Place& place) {
    const int nHalf = std::max(1, options.nEvents / 2);
    // Wine loses the character classes of typed digits now and then, 35 bytes in a thousand events
    // at most; an object lost in each round is more.
    const size_t nHeapSlack = 1024 + static_cast<size_t>(nHalf) / 20;
    detail::Shaker shaker(options.pszName, options.nSeed);
    FillSystemCaches();
    const auto shakeHalf = [&] {
        for (const int nLast = shaker.Events() + nHalf; shaker.Events() < nLast;)
            ShakeRound(shaker, open);
        return Leftovers::Now();
    };
    Leftovers before = shakeHalf();
    std::string all;
    for (int i = 1; i < kMostHalves; ++i) {
        const Leftovers now = shakeHalf();
        const std::string more = now.MoreThan(before, nHeapSlack);
        if (more.empty())
            return;
        all += more + "; ";
        before = now;
    }
    Fail("seed " + std::to_string(options.nSeed) + " leaves with each " + std::to_string(nHalf) +
             " events: " + all,
         place);
}

} // namespace testkit
