// The counters behind "leaves nothing": each kind of leftover must show in them.
#include "support/Leftovers.h"

#include <array>
#include <memory>

namespace {

TEST(Leftovers, CountWhatIsHeld) {
    const fx::Frame first; // the first window of a thread brings one of the input method along
    const fx::Leftovers before = fx::Leftovers::Now();
    {
        const fx::Frame frame;
        const CBrush brush(RGB(1, 2, 3));
        const HANDLE hEvent = ::CreateEvent(nullptr, FALSE, FALSE, nullptr);
        const auto block = std::make_unique<std::array<char, 10000>>();
        block->fill(1);
        const fx::Leftovers held = fx::Leftovers::Now();
        EXPECT_EQ(held.nWindows, before.nWindows + 1);
        EXPECT_GE(held.nGdiObjects, before.nGdiObjects + 1);
        EXPECT_GE(held.nHandles, before.nHandles + 1);
        EXPECT_GE(held.nHeapBytes, before.nHeapBytes + 10000);
        ::CloseHandle(hEvent);
    }
    EXPECT_EQ(fx::Leftovers::Now().nWindows, before.nWindows);
}

} // namespace
