/// @file
/// Range tests without a branch. Whether a point lies in a segment cannot be predicted, and a
/// branch misprediction costs more than all the comparisons: hence "&", not "&&".
#pragma once

#include <algorithm>

namespace fieldkit::geometry {

inline bool IsWithin(double v, double a, double b) {
    return (std::min(a, b) <= v) & (v <= std::max(a, b));
}
inline bool IsInBox(double x, double y, double x1, double y1, double x2, double y2) {
    return IsWithin(x, x1, x2) & IsWithin(y, y1, y2);
}

/// What the extents from a0 to a1 and from b0 to b1 have in common; nothing if lo is above hi.
struct Extent {
    double lo;
    double hi;
};
inline Extent Common(double a0, double a1, double b0, double b1) {
    return {std::max(std::min(a0, a1), std::min(b0, b1)), std::min(std::max(a0, a1), std::max(b0, b1))};
}
inline bool IsStrictlyInBoth(double v, double a0, double a1, double b0, double b1) {
    const Extent common = Common(a0, a1, b0, b1);
    return (common.lo < v) & (v < common.hi);
}

} // namespace fieldkit::geometry
