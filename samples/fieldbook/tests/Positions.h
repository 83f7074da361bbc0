/// @file
/// Points for tests of what is computed and drawn.
#pragma once

#include "compute/Compute.h"

inline CCoordinate At(double dN, double dE) {
    return CCoordinate(dE, dN, 0, 1);
}
