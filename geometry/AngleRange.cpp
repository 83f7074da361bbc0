#include "geometry/Vector.h"

#include <cassert>

using namespace fieldkit::geometry;

namespace {

// A remainder would be quicker for large angles but rounds otherwise than the steps do.
// An angle that a step no longer changes ends the loop.

double StepDown(double a, double upper, double step) {
    while (a > upper && a - step < a)
        a -= step;
    return a;
}

double StepUp(double a, double lower, double step) {
    while (a < lower && a + step > a)
        a += step;
    return a;
}

} // namespace

double CVector::StepToLimit(double a) {
    assert(std::isfinite(a));
    return a > 0 ? StepDown(a, kLimitPi, kTwoPi) : StepUp(a, -kLimitPi, kTwoPi);
}

double CVector::StepTo360(double a) {
    assert(std::isfinite(a));
    return a > 0 ? StepDown(a, kTwoPi, kTwoPi) : StepUp(a, 0, kTwoPi);
}

double CVector::StepToPM90(double a) {
    assert(std::isfinite(a));
    return a > 0 ? StepDown(a, kHalfPi, kPi) : StepUp(a, -kHalfPi, kPi);
}
