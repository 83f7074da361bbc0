/// @file
/// The numbers of the geometry kernel. They are part of its results: angles near
/// the end of a range come out as these ten digits make them, so the exact values
/// of the mathematics library must not be put in their place.
#pragma once

namespace fieldkit::geometry {

inline constexpr double kPi = 3.141592654;     ///< Half a turn, radians.
inline constexpr double kTwoPi = 6.283185308;  ///< A full turn, radians.
inline constexpr double kHalfPi = 1.570796327; ///< A quarter turn, radians.

/// Bounds of CVector::LimitAngleRange, radians. Slightly above half a turn, so that
/// a direction just past it is not thrown to the other side.
inline constexpr double kLimitPi = 3.141592664;

/// Sweeps below this are null, radians.
inline constexpr double kNullSweep = 1e-8;

/// A vector below this in both coordinates has no direction of its own, coordinate units.
inline constexpr double kAngleDeadBand = 0.017;

/// Start value of the kernel's tolerance, coordinate units.
inline constexpr double kDefaultTolerance = 1e-08;

/// Cosine and sine of kHalfPi, to the last bit. Named instead of computed, so that a
/// quarter turn costs no trigonometry and is the same on every platform.
///@{
inline constexpr double kCosHalfPi = -2.0510342851533115e-10;
inline constexpr double kSinHalfPi = 1.0;
///@}

} // namespace fieldkit::geometry
