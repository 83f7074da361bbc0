#include "survey/2DCircle.h"

#include <cmath>

namespace {

constexpr double kLeastRadius = 1e-05; ///< excluded, coordinate units

} // namespace

C2DCircle::C2DCircle(const CCoordinate& centre, double radius) {
    Setup(centre, radius);
}

const C2DCircle& C2DCircle::operator=(const C2DCircle& circle) {
    m_Center = circle.m_Center;
    m_dRadius = circle.m_dRadius;
    return *this;
}

int C2DCircle::Setup(const CCoordinate& centre, double radius) {
    if (!centre.IsExistNE() || std::fabs(radius) <= kLeastRadius)
        return 1;
    m_Center = centre;
    m_dRadius = radius;
    return 0;
}
