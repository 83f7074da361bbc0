/// @file
/// The longer of CVector's inline members; Vector.h includes it. The class says "inline" as
/// well: told only here, the compiler would already have taken them for imports of the DLL.
#pragma once

#include "geometry/Vector.h"

inline int CVector::Double2Int(double value) {
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
    return Turned(kCosHalfPi, d == Left ? kSinHalfPi : -kSinHalfPi);
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

// The angle ranges decide here whether there is anything to do; the steps are in AngleRange.cpp.

inline double CVector::LimitAngleRange(double a) {
    using fieldkit::geometry::kLimitPi;
    return a <= kLimitPi && a >= -kLimitPi ? a : StepToLimit(a);
}

inline double CVector::Range0To360(double a) {
    return a >= 0 && a <= fieldkit::geometry::kTwoPi ? a : StepTo360(a);
}

inline double CVector::RangePM90(double a) {
    using fieldkit::geometry::kHalfPi;
    return a <= kHalfPi && a >= -kHalfPi ? a : StepToPM90(a);
}

inline double CVector::AbsAngle(int turn, double a) {
    using fieldkit::geometry::kNullSweep;
    using fieldkit::geometry::kTwoPi;
    if (std::fabs(a) < kNullSweep)
        return 0;
    if (turn == 1)
        return a < 0 ? a + kTwoPi : a;
    if (turn == -1)
        return a > 0 ? a - kTwoPi : a;
    return 0;
}

inline double CVector::CalcAngleDist(double a, double b) {
    using namespace fieldkit::geometry;
    const double gap = std::fabs(Range0To360(b) - Range0To360(a));
    return gap > kPi ? kTwoPi - gap : gap;
}
