// Runs a scenario again and again, each time with another call failing.
#pragma once

#include "Scenarios.h"

namespace fx {

/// Where a process of the loop begins, and how it tells the parent that it had to end.
struct LoopRange {
    int nFirst;  ///< The number of the first call to fail.
    int nStride; ///< From one to the next; 0 for one that ends within RUNS_IN_SUITE runs.
};

/// A process that crashes or hangs at call n ends with ENDED + n.
constexpr DWORD ENDED = 0x20000000;
constexpr int RUNS_IN_SUITE = 40;

/// Runs a scenario with call nFirst failing, with the next one, and so on, until it comes to its
/// end without a failure. Each time everything must be released, and a run without a failure must
/// work afterwards. Failures are GoogleTest's; a crash or hang ends the process.
void RunLoop(const Scenario& scenario, LoopRange range);

} // namespace fx
