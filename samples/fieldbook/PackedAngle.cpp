#include "PackedAngle.h"

#include "Tesuvo.h"

#include <cmath>

namespace {

constexpr double PI = 3.14159265358979323846;
constexpr double MAX_DEGREES = 360;

// d.mmss is worked on as a whole number, in units of 0.0001 seconds: as a fraction, 0.29
// times 100 would give 28 minutes.
constexpr long long UNITS_PER_SECOND = 10'000;
constexpr long long UNITS_PER_MINUTE = 100 * UNITS_PER_SECOND;
constexpr long long UNITS_PER_DEGREE = 100 * UNITS_PER_MINUTE;

} // namespace

bool ParsePackedAngle(const CString& strText, double& dRadians) {
    double dPacked = 0;
    if (!TVString2Double(&strText, &dPacked) || !(std::fabs(dPacked) <= MAX_DEGREES))
        return false;
    const long long nPacked = std::llround(std::fabs(dPacked) * UNITS_PER_DEGREE);
    const auto dDegrees = static_cast<double>(nPacked / UNITS_PER_DEGREE);
    const auto dMinutes = static_cast<double>(nPacked % UNITS_PER_DEGREE / UNITS_PER_MINUTE);
    const double dSeconds = static_cast<double>(nPacked % UNITS_PER_MINUTE) / UNITS_PER_SECOND;
    if (dMinutes >= 60 || dSeconds >= 60)
        return false;
    dRadians = std::copysign((dDegrees + dMinutes / 60 + dSeconds / 3600) * PI / 180, dPacked);
    return true;
}
