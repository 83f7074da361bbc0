// Runs a scenario again and again, each time with another call failing.
#pragma once

#include "Scenarios.h"

namespace fx {

/// Runs a scenario with a call failing, with another one, and so on, until it comes to its end
/// without a failure. Each time everything must be released, and a run without a failure must work
/// afterwards. A crash or a hang ends the program and tells which call had failed.
/// @param bAll every call, or some of them, which change each day
void RunLoop(const Scenario& scenario, bool bAll);

} // namespace fx
