/// @file
/// Ends a program that hangs, so that the test that hung is named. Needs nothing of the framework.
#pragma once

#include <windows.h>

#include <functional>
#include <memory>

namespace testkit {

/// While it exists, the program is ended by force when the time is over, with exit code 99; for
/// what no timer of the window system can end. Before, it prints what it was told to, the stack of
/// the thread that made it, and saves a picture of the screen. A program in a debugger is left
/// alone.
class Watchdog {
public:
    /// @param nSeconds how long it waits, from 1
    /// @param report   called before the end, on a thread of its own; it must not need the heap
    ///                 or whatever else the thread that hangs may hold
    explicit Watchdog(DWORD nSeconds, std::function<void()> report = nullptr);
    ~Watchdog();
    Watchdog(const Watchdog&) = delete;
    Watchdog& operator=(const Watchdog&) = delete;

    /// The time begins anew.
    void Feed();

private:
    struct State;
    std::unique_ptr<State> m_pState;
};

} // namespace testkit
