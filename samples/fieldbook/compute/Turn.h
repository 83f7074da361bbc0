/// @file
/// A full turn and its half, in radians.
#pragma once

inline constexpr double kPi = 3.14159265358979323846;
inline constexpr double kTwoPi = 2 * kPi;
