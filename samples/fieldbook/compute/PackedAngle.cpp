#include "compute/PackedAngle.h"

#include "Tesuvo.h"
#include "compute/Turn.h"

#include <cmath>

namespace {

constexpr double kMaxDegrees = 360;

// d.mmss is worked on as a whole number, in units of 0.0001 seconds: as a fraction, 0.29
// times 100 would give 28 minutes.
constexpr long long kUnitsPerSecond = 10'000;
constexpr long long kUnitsPerMinute = 100 * kUnitsPerSecond;
constexpr long long kUnitsPerDegree = 100 * kUnitsPerMinute;

} // namespace

AngleFault ParsePackedAngle(const CString& strText, double& dRadians) {
    double dPacked = 0;
    if (!TVString2Double(&strText, &dPacked))
        return AngleFault::NoNumber;
    if (!(std::fabs(dPacked) <= kMaxDegrees))
        return AngleFault::TooLarge;
    const long long nPacked = std::llround(std::fabs(dPacked) * kUnitsPerDegree);
    const auto dDegrees = static_cast<double>(nPacked / kUnitsPerDegree);
    const auto dMinutes = static_cast<double>(nPacked % kUnitsPerDegree / kUnitsPerMinute);
    const double dSeconds = static_cast<double>(nPacked % kUnitsPerMinute) / kUnitsPerSecond;
    if (dMinutes >= 60 || dSeconds >= 60)
        return AngleFault::BadSixties;
    dRadians = std::copysign((dDegrees + dMinutes / 60 + dSeconds / 3600) * kPi / 180, dPacked);
    return AngleFault::None;
}
