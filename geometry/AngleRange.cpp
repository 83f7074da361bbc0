#include "geometry/Vector.h"

#include <bit>
#include <cstdint>

using namespace fieldkit::geometry;

namespace {

/// The power of two at or below a positive number; infinity for itself.
double PowerAtOrBelow(double a) {
    constexpr std::uint64_t kExponent = 0x7FF0000000000000;
    return std::bit_cast<double>(std::bit_cast<std::uint64_t>(a) & kExponent);
}

/// An angle above `upper` less as many steps as bring it to `upper` or below, to the last bit as
/// if they were taken one by one; a remainder would round otherwise. Between two powers of two
/// each step takes the same off, its own rounding included, so these are taken at once. An angle
/// that a step does not change stays.
double StepDown(double a, double upper, double step) {
    constexpr double kFew = 16; // steps from the end, and above the end of any range
    const double next = a - step;
    if (next == a)
        return a;
    a = next;
    for (double low = PowerAtOrBelow(a); a >= kFew; low /= 2) {
        // A step half way between two last places goes to the even one. So numbers are even from
        // the first step within these powers on, and what is taken off stays the same.
        const double even = 1.5 * low;
        const double drop = even - (even - step);
        a -= step;
        // May be one too few. Product and difference are exact, being whole last places.
        const auto alike = static_cast<std::int64_t>((a - low) * (1 / drop)) - 1;
        if (alike > 0)
            a -= static_cast<double>(alike) * drop;
        while (a >= low)
            a -= step;
    }
    while (a > upper)
        a -= step;
    return a;
}

/// Both ways; downwards to `upper`, upwards to `lower`.
double Step(double a, double lower, double upper, double step) {
    // Not the negated result: null stays positive.
    return a > 0 ? StepDown(a, upper, step) : 0 - StepDown(-a, -lower, step);
}

} // namespace

double CVector::StepToLimit(double a) {
    return Step(a, -kLimitPi, kLimitPi, kTwoPi);
}

double CVector::StepTo360(double a) {
    return Step(a, 0, kTwoPi, kTwoPi);
}

double CVector::StepToPM90(double a) {
    return Step(a, -kHalfPi, kHalfPi, kPi);
}
