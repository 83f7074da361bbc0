// Which of the system's functions can fail in the library's DLLs, and how.
#pragma once

#include "testkit/Faults.h"

#include <set>

namespace fx {

/// All functions that can fail.
const std::vector<testkit::fault::Point>& Table();

/// Functions that the DLLs use as well, and that do what they are asked for when they are given
/// valid arguments, or whose failure shows nowhere but on the screen.
const std::set<std::string>& Infallible();

} // namespace fx
