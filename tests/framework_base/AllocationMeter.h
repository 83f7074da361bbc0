/// @file
/// How much memory a piece of code asks for at once.
#pragma once

#include <cstddef>

/// The largest single allocation since the last call.
std::size_t TakeLargestAllocation();
