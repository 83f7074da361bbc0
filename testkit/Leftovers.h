/// @file
/// Counts what a program holds, to prove that opening and closing leaves nothing behind. Needs
/// nothing of the framework.
#pragma once

#include "testkit/Failure.h"

#include <windows.h>

#include <functional>
#include <string>

namespace testkit {

/// What the program holds at a moment.
struct Leftovers {
    int nWindows = 0;      ///< Of the calling thread, with their children.
    int nGdiObjects = 0;   ///< Of the process, also under Wine.
    int nHandles = 0;      ///< Of the process, also under Wine.
    size_t nHeapBytes = 0; ///< In use in all heaps of the process.

    /// Counts now.
    static Leftovers Now();

    /// What is more than there was before, for a message; empty if nothing is.
    /// @param nHeapSlack bytes that the heaps may have grown by
    std::string MoreThan(const Leftovers& before, size_t nHeapSlack = 0) const;
};

/// The bytes in use, of all heaps of the process.
size_t HeapBytes();

/// Runs something that opens and closes a dialog 200 times, and fails unless everything is then as
/// it was after the first 100, which fill what the system keeps for the next time.
void ExpectNothingLeft(const std::function<void()>& openAndClose, const Place& place = {});

} // namespace testkit
