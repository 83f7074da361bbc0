// The counters behind "leaves nothing": each kind of leftover must show in them.
#include "support/TestApp.h"
#include "testkit/Leftovers.h"

#include <array>
#include <memory>

using namespace testkit;

namespace {

TEST(Leftovers, CountWhatIsHeld) {
    const Frame first; // the first window of a thread brings one of the input method along
    const Leftovers before = Leftovers::Now();
    {
        const Frame frame;
        const CBrush brush(RGB(1, 2, 3));
        const HANDLE hEvent = ::CreateEvent(nullptr, FALSE, FALSE, nullptr);
        const auto block = std::make_unique<std::array<char, 10000>>();
        block->fill(1);
        const Leftovers held = Leftovers::Now();
        EXPECT_EQ(held.nWindows, before.nWindows + 1);
        EXPECT_GE(held.nGdiObjects, before.nGdiObjects + 1);
        EXPECT_GE(held.nHandles, before.nHandles + 1);
        EXPECT_GE(held.nHeapBytes, before.nHeapBytes + 10000);
        ::CloseHandle(hEvent);
    }
    EXPECT_EQ(Leftovers::Now().nWindows, before.nWindows);
}

} // namespace
