#include "Peers.h"

#include <cmath>
#include <numbers>

int peers::LimitAngleByRemainder(const double* in, double* out) {
    out[0] = std::remainder(in[0], 2 * std::numbers::pi);
    return 0;
}
