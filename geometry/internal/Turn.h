/// @file
/// Which side of half a turn an arc's sweep lies on, without the two arc tangents that the
/// sweep itself takes.
#pragma once

#include "geometry/Constants.h"

#include <cmath>

namespace fieldkit::geometry {

enum class Turn { Unclear, Minor, Major };

/// Compares the turn from the direction u to the direction w, counter-clockwise, with kPi as
/// the difference of their angles in 0..kTwoPi does; Unclear leaves it to the angles.
///
/// cross(u, w) is |u||w| times the sine of the turn, and a sine above 1e-8 keeps the turn at
/// least 1e-8 away from null, half a turn and a full one. The angles err by far less: their
/// difference by twice 8.2e-10, which kTwoPi exceeds a full turn by, and a few last digits of
/// at most a full turn, below 1e-14; kPi exceeds half a turn by 4.1e-10. The product of the
/// sums of coordinates is no less than |u||w|, and no rounding of the cross product reaches
/// 1e-15 of it. The dead band of CVector::Angle is left to the angles, and so are coordinates
/// whose products overflow: they make the comparisons false.
inline Turn TurnBetween(double ux, double uy, double wx, double wy) {
    constexpr double kBand = 1e-8;
    constexpr double kSurelyAlive = 2 * kAngleDeadBand; // then one coordinate is beyond the band
    const double u = std::fabs(ux) + std::fabs(uy);
    const double w = std::fabs(wx) + std::fabs(wy);
    const double cross = ux * wy - uy * wx;
    if (!((u > kSurelyAlive) & (w > kSurelyAlive) & (std::fabs(cross) > kBand * u * w)))
        return Turn::Unclear;
    return cross > 0 ? Turn::Minor : Turn::Major;
}

} // namespace fieldkit::geometry
