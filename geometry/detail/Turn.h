/// @file
/// Which side of half a turn an arc's sweep lies on, without the two arc tangents that the
/// sweep itself takes.
#pragma once

#include "geometry/detail/Limits.h"

#include <cmath>

namespace fieldkit::geometry {

enum class Turn { Unclear, Minor, Major };

/// Compares the turn from the direction u to the direction w, counter-clockwise, with kPi as
/// the difference of their angles in 0..kTwoPi does; Unclear leaves it to the angles.
///
/// A cross product of more than the limit, or less than its negative, proves by its sign which side
/// of half a turn the angles will say: turn and sweep in geometry/proofs. Products that overflow
/// make the limit infinite, and no cross product is beyond that.
inline Turn TurnBetween(double ux, double uy, double wx, double wy) {
    const double u = std::fabs(ux) + std::fabs(uy);
    const double w = std::fabs(wx) + std::fabs(wy);
    const double cross = ux * wy - uy * wx;
    if (!((u > kSurelyAlive) & (w > kSurelyAlive) & (std::fabs(cross) > kBand * (u * w))))
        return Turn::Unclear;
    return cross > 0 ? Turn::Minor : Turn::Major;
}

} // namespace fieldkit::geometry
