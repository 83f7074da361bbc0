/// @file
/// The longer of CVector's inline members; Vector.h includes it. The class says "inline" as
/// well: told only here, the compiler would already have taken them for imports of the DLL.
#pragma once

#include "geometry/Vector.h"

#include <algorithm>
#include <cfloat>
#include <limits>

#ifdef __FAST_MATH__
#error "compile without -ffast-math: it changes the order of formulas, which is part of their results"
#endif
static_assert(FLT_EVAL_METHOD == 0,
              "operations on double round to double: -msse2 -mfpmath=sse on 32-bit PCs");

inline int CVector::Double2Int(double value) {
    constexpr double kLeast = std::numeric_limits<int>::min();
    constexpr double kMost = std::numeric_limits<int>::max();
    value = value == value ? std::clamp(value, kLeast, kMost) : 0;
    const double whole = static_cast<int>(value);
    const double fraction = value - whole; // exact
    if (!(std::fabs(fraction) > 0.5))
        return static_cast<int>(whole);
    return static_cast<int>(whole + (fraction > 0 ? 1 : -1));
}

inline int CVector::IsSameDir(CVector v, double tol) {
    CVector own(*this);
    own.Unit();
    v.Unit();
    return own.Equal(v, tol);
}

inline void CVector::Unit() {
    const double norm = UNorm();
    if (norm == 0)
        return;
    m_dX /= norm;
    m_dY /= norm;
}

inline CVector CVector::R_Unit() {
    const double norm = UNorm();
    // Not the twin of Unit for a vector so small that its norm vanishes.
    return norm == 0 ? CVector(0, 0) : CVector(m_dX / norm, m_dY / norm);
}

inline CVector CVector::R_Normal(Direction d) {
    using namespace fieldkit::geometry;
    static constexpr double kSines[] = {-kSinHalfPi, kSinHalfPi};
    return Turned(kCosHalfPi, kSines[d == Left]);
}

inline void CVector::Size(double len) {
    Unit();
    Scalar(len);
}

inline CVector CVector::R_Size(double len) {
    CVector sized(*this);
    sized.Size(len);
    return sized;
}

inline double CVector::Angle() {
    using fieldkit::geometry::kAngleDeadBand;
    if (std::fabs(m_dX) < kAngleDeadBand && std::fabs(m_dY) < kAngleDeadBand)
        return 0;
    return std::atan2(m_dY, m_dX);
}

// The angle ranges take the first two steps here, each of them a step or none. It is looked up,
// because whether it is needed cannot be foreseen, and a branch misprediction costs more
// than the step. Whoever is still outside then goes on in AngleRange.cpp.

namespace fieldkit::geometry {

/// None or one step forwards, none or one backwards, radians.
///@{
inline constexpr double kTurns[] = {0, kTwoPi, 0, -kTwoPi};
inline constexpr double kHalfTurns[] = {0, kPi, 0, -kPi};
///@}

} // namespace fieldkit::geometry

inline double CVector::TwoSteps(double a, double limit, const double (&steps)[4]) {
    // No step leads past the other end of the range: the direction is the same for both.
    const int direction = std::signbit(a) ? 2 : 0;
    a -= steps[(std::fabs(a) > limit) + direction];
    return a - steps[(std::fabs(a) > limit) + direction];
}

inline double CVector::LimitAngleRange(double a) {
    using namespace fieldkit::geometry;
    a = TwoSteps(a, kLimitPi, kTurns);
    return std::fabs(a) <= kLimitPi ? a : StepToLimit(a);
}

inline double CVector::Range0To360(double a) {
    return a >= 0 && a <= fieldkit::geometry::kTwoPi ? a : StepTo360(a);
}

inline double CVector::RangePM90(double a) {
    using namespace fieldkit::geometry;
    a = TwoSteps(a, kHalfPi, kHalfTurns);
    return std::fabs(a) <= kHalfPi ? a : StepToPM90(a);
}

inline double CVector::StepIfAgainst(double a, double step) {
    return a * step < 0 ? step : 0.0; // a variable step: with a constant one it becomes a branch
}

inline double CVector::AbsAngle(int turn, double a) {
    using namespace fieldkit::geometry;
    if (std::fabs(a) < kNullSweep)
        return 0;
    if (turn != 1 && turn != -1)
        return 0;
    return a + StepIfAgainst(a, turn * kTwoPi);
}

inline double CVector::CalcAngleDist(double a, double b) {
    using namespace fieldkit::geometry;
    const double gap = std::fabs(Range0To360(b) - Range0To360(a));
    return gap > kPi ? kTwoPi - gap : gap;
}
