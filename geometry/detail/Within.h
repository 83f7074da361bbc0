/// @file
/// Range tests without a branch. Whether a point lies in a segment cannot be predicted, and a
/// branch misprediction costs more than all the comparisons: hence "&", not "&&".
#pragma once

#include <algorithm>

namespace fieldkit::geometry {

inline bool IsWithin(double v, double a, double b) {
    return (std::min(a, b) <= v) & (v <= std::max(a, b));
}
inline bool IsStrictlyWithin(double v, double a, double b) {
    return (std::min(a, b) < v) & (v < std::max(a, b));
}
inline bool IsInBox(double x, double y, double x1, double y1, double x2, double y2) {
    return IsWithin(x, x1, x2) & IsWithin(y, y1, y2);
}
inline bool IsStrictlyInBox(double x, double y, double x1, double y1, double x2, double y2) {
    return IsStrictlyWithin(x, x1, x2) & IsStrictlyWithin(y, y1, y2);
}

} // namespace fieldkit::geometry
