#include "survey/2DLine.h"

#include "survey/detail/Pi.h"

#include <cmath>

using fieldkit::survey::kPi;

namespace {

constexpr double kNegligible = 1e-05; ///< of a coefficient, and of an angle in radians
constexpr double kNotFinite = 1e+32;

constexpr double kHalfPi = kPi / 2;
constexpr double kThreeHalfPi = 3 * kPi / 2;

enum Status { Oblique = 0, NorthSouth = 1, EastWest = 2, Undefined = 3 };

bool IsNegligible(double v) {
    return std::fabs(v) <= kNegligible;
}

} // namespace

C2DLine::C2DLine(double a, double b, double c) {
    Setup(a, b, c);
}
C2DLine::C2DLine(const CCoordinate& p1, const CCoordinate& p2) {
    Setup(p1, p2);
}
C2DLine::C2DLine(const CCoordinate& p, double angle) {
    Setup(p, angle);
}

const C2DLine& C2DLine::operator=(const C2DLine& line) {
    Setup(line.m_dA, line.m_dB, line.m_dC);
    return *this;
}

void C2DLine::Setup(double a, double b, double c) {
    m_dA = a;
    m_dB = b;
    m_dC = c;
}

int C2DLine::Setup(const CCoordinate& p1, const CCoordinate& p2) {
    if (!p1.IsExistNE() || !p2.IsExistNE())
        return Undefined;
    const double n1 = p1.GetN();
    const double e1 = p1.GetE();
    const double n2 = p2.GetN();
    const double e2 = p2.GetE();
    if (n1 == n2 && e1 == e2)
        return Undefined;

    Setup(n1 - n2, e2 - e1, e2 * n1 - e1 * n2);
    // Strict, unlike IsNegligible.
    if (std::fabs(m_dB) < kNegligible)
        return NorthSouth;
    return std::fabs(m_dA) < kNegligible ? EastWest : Oblique;
}

int C2DLine::Setup(const CCoordinate& p, double angle) {
    if (IsNegligible(angle) || IsNegligible(angle - kPi)) {
        Setup(1, 0, p.GetE());
        return NorthSouth;
    }
    if (IsNegligible(angle - kHalfPi) || IsNegligible(angle - kThreeHalfPi)) {
        Setup(0, 1, p.GetN());
        return EastWest;
    }
    const double slope = std::tan(kHalfPi - angle);
    Setup(slope, -1, -p.GetN() + p.GetE() * slope);
    return Oblique;
}

double C2DLine::GetSlope() const {
    return IsNegligible(m_dB) ? kNotFinite : -m_dA / m_dB;
}

double C2DLine::GetInterceptN() const {
    return IsNegligible(m_dB) ? kNotFinite : m_dC / m_dB;
}

double C2DLine::GetInterceptE() const {
    return IsNegligible(m_dA) ? kNotFinite : m_dC / m_dA;
}

int C2DLine::GetStatus() const {
    if (IsNegligible(m_dA))
        return IsNegligible(m_dB) ? Undefined : EastWest;
    return IsNegligible(m_dB) ? NorthSouth : Oblique;
}

void C2DLine::GetParameter(double& a, double& b, double& c) const {
    a = m_dA;
    b = m_dB;
    c = m_dC;
}
