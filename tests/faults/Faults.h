// The scenarios in which each call of the DLLs into the system fails, and the calls that can.
#pragma once

#include "support/TestApp.h"
#include "testkit/FaultLoop.h"
#include "testkit/Faults.h"

#include <set>

namespace fx {

/// What the library is used for, all of it.
std::vector<testkit::fault::Scenario> Scenarios();

/// All functions of the system that can fail, and how.
const std::vector<fault::Point>& Table();

/// Functions that the DLLs use as well, and that do what they are asked for when they are given
/// valid arguments, or whose failure shows nowhere but on the screen.
const std::set<std::string>& Infallible();

} // namespace fx
