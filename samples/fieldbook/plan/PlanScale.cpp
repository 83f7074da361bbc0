#include "plan/PlanScale.h"

#include <algorithm>
#include <cmath>

namespace {

// Pixels at AFX_DESIGN_DPI: the room for names at the sides, for the north arrow above and the scale bar
// below.
constexpr int kMarginX = 24;
constexpr int kMarginY = 32;

// Pixels for one metre.
constexpr double kLargestFactor = 20000; // a millimetre can be seen
constexpr double kSingleFactor = 10;     // for a single point

/// Metres: smaller boxes are points.
constexpr double kSmallestBox = 1e-6;
/// How much smaller than the whole plan is of use.
constexpr double kShrink = 4;

CCoordinate MiddleOf(const CCoordinate& lo, const CCoordinate& hi) {
    CVector diagonal = CLocalPlane(lo).ToVector(hi);
    return CLocalPlane(lo).ToCoordinate(diagonal.R_Scalar(0.5));
}

double FactorFor(CVector box, CSize view, int nDpi) {
    if (std::max(box.GetX(), box.GetY()) < kSmallestBox)
        return kSingleFactor;
    const auto roomIn = [nDpi](int nPixels, int nMargin) {
        return std::max(nPixels - 2 * nMargin * nDpi / AFX_DESIGN_DPI, 1);
    };
    const double dX = roomIn(view.cx, kMarginX) / std::max(box.GetX(), kSmallestBox);
    const double dY = roomIn(view.cy, kMarginY) / std::max(box.GetY(), kSmallestBox);
    return std::min({dX, dY, kLargestFactor});
}

} // namespace

CPlanScale::CPlanScale(const CCoordinate& lo, const CCoordinate& hi, CSize view, int nDpi)
    : m_plane(MiddleOf(lo, hi)), m_view(view), m_dFactor(FactorFor(CLocalPlane(lo).ToVector(hi), view, nDpi)),
      m_dSmallest(m_dFactor / kShrink) {}

CVector CPlanScale::ToPixel(const CCoordinate& point) const {
    CVector v = m_plane.ToVector(point);
    return CVector(m_view.cx / 2.0 + v.GetX() * m_dFactor, m_view.cy / 2.0 - v.GetY() * m_dFactor);
}

CPlanScale CPlanScale::Zoomed(double dTimes) const {
    CPlanScale zoomed = *this;
    zoomed.m_dFactor = std::clamp(m_dFactor * dTimes, m_dSmallest, kLargestFactor);
    return zoomed;
}

CPlanScale CPlanScale::Panned(CSize pixels) const {
    CPlanScale panned = *this;
    panned.m_plane =
        CLocalPlane(m_plane.ToCoordinate(CVector(-pixels.cx / m_dFactor, pixels.cy / m_dFactor)));
    return panned;
}

CPlanScale CPlanScale::Resized(CSize view) const {
    CPlanScale resized = *this;
    resized.m_view = view;
    return resized;
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
    constexpr double kKilometre = 1000;
    CString strText;
    if (dLength < kKilometre)
        strText.Format(L"%g m", dLength);
    else
        strText.Format(L"%g km", dLength / kKilometre);
    return strText;
}
