/// @file
/// Where the kernel's short ways hand over to the formulas themselves. geometry/proofs proves of
/// these very numbers that the answers are the same up to here; none may be twice as bold.
#pragma once

namespace fieldkit::geometry {

// Both short ways.
inline constexpr double kSurelyAlive = 0.034; ///< a vector this long has a direction of its own

// Turn.h.
inline constexpr double kBand = 2e-9; ///< sine of a turn

// ArcDirections.h, in units of the radius.
inline constexpr double kOnCircle = 0x1p-13;    ///< of a square from the radius's
inline constexpr double kApart = 0x1p-6;        ///< sine of the angle between two directions
inline constexpr double kShortest = 0x1p-4;     ///< square of a chord
inline constexpr double kObliqueChord = 0x1p-5; ///< a chord along either axis
inline constexpr double kObliqueSpoke = 0x1p-6; ///< a spoke along either axis
inline constexpr double kNear = 0x1p20;         ///< coordinates of the centre
inline constexpr double kSmall = 0x1p-7;        ///< the tolerance

} // namespace fieldkit::geometry
