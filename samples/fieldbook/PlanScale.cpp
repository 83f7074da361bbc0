#include "PlanScale.h"

#include <algorithm>
#include <cmath>

namespace {

// Pixels: the room for names at the sides, for the north arrow above and the scale bar below.
constexpr int MARGIN_X = 24;
constexpr int MARGIN_Y = 32;

// Pixels for one metre.
constexpr double LARGEST_FACTOR = 20000; // a millimetre can be seen
constexpr double SINGLE_FACTOR = 10;     // for a single point

/// Metres: smaller boxes are points.
constexpr double SMALLEST_BOX = 1e-6;
/// How much smaller than the whole plan is of use.
constexpr double SHRINK = 4;

CCoordinate MiddleOf(const CCoordinate& lo, const CCoordinate& hi) {
    CVector diagonal = CLocalPlane(lo).ToVector(hi);
    return CLocalPlane(lo).ToCoordinate(diagonal.R_Scalar(0.5));
}

double FactorFor(CVector box, CSize view) {
    if (std::max(box.GetX(), box.GetY()) < SMALLEST_BOX)
        return SINGLE_FACTOR;
    const double dX = std::max<int>(view.cx - 2 * MARGIN_X, 1) / std::max(box.GetX(), SMALLEST_BOX);
    const double dY = std::max<int>(view.cy - 2 * MARGIN_Y, 1) / std::max(box.GetY(), SMALLEST_BOX);
    return std::min({dX, dY, LARGEST_FACTOR});
}

} // namespace

CPlanScale::CPlanScale(const CCoordinate& lo, const CCoordinate& hi, CSize view)
    : m_plane(MiddleOf(lo, hi)), m_view(view), m_dFactor(FactorFor(CLocalPlane(lo).ToVector(hi), view)),
      m_dSmallest(m_dFactor / SHRINK) {}

CVector CPlanScale::ToPixel(const CCoordinate& point) const {
    CVector v = m_plane.ToVector(point);
    return CVector(m_view.cx / 2.0 + v.GetX() * m_dFactor, m_view.cy / 2.0 - v.GetY() * m_dFactor);
}

CPlanScale CPlanScale::Zoomed(double dTimes) const {
    CPlanScale zoomed = *this;
    zoomed.m_dFactor = std::clamp(m_dFactor * dTimes, m_dSmallest, LARGEST_FACTOR);
    return zoomed;
}

CPlanScale CPlanScale::Panned(CSize pixels) const {
    CPlanScale panned = *this;
    panned.m_plane =
        CLocalPlane(m_plane.ToCoordinate(CVector(-pixels.cx / m_dFactor, pixels.cy / m_dFactor)));
    return panned;
}

CScaleBar FindScaleBar(double dFactor, int nMaxPixels) {
    const double dMax = nMaxPixels / dFactor;
    const double dPower = std::pow(10.0, std::floor(std::log10(dMax)));
    // The logarithm may be a digit off, either way: 10 for one that is too small, 0.5 for one too large.
    double dLength = 0.5 * dPower;
    for (const double dStep : {1.0, 2.0, 5.0, 10.0})
        if (dStep * dPower <= dMax)
            dLength = dStep * dPower;
    return {dLength, static_cast<int>(std::lround(dLength * dFactor))};
}

CString ScaleBarText(double dLength) {
    constexpr double KILOMETRE = 1000;
    CString strText;
    if (dLength < KILOMETRE)
        strText.Format(L"%g m", dLength);
    else
        strText.Format(L"%g km", dLength / KILOMETRE);
    return strText;
}
