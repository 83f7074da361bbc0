// The scenarios in which each call of the DLLs into the system fails.
#pragma once

#include "support/TestApp.h"
#include "testkit/FaultLoop.h"

namespace fx {

/// What the library is used for, all of it.
std::vector<testkit::fault::Scenario> Scenarios();

} // namespace fx
