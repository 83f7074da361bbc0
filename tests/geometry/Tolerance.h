#pragma once

#include "geometry/Vector.h"

/// Another tolerance for the time of a test; it is one for the whole process.
class CToleranceScope {
public:
    explicit CToleranceScope(double t) { CVector::SetTolerance(t); }
    ~CToleranceScope() { CVector::SetTolerance(fieldkit::geometry::kDefaultTolerance); }
    CToleranceScope(const CToleranceScope&) = delete;
    CToleranceScope& operator=(const CToleranceScope&) = delete;
};

/// What a test writes into outputs to see whether they are left alone.
inline constexpr double kUntouched = -777.25;
