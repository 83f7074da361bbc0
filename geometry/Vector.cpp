#include "geometry/Vector.h"

#include <cstddef>
#include <cstdio>

double CVector::m_dTolerance = fieldkit::geometry::kDefaultTolerance;

namespace {

// Two of the largest doubles (310 characters each) with some 190 decimals.
constexpr std::size_t kShowSize = 1024;

constexpr const char* kPadded = "(% 7.*f,% 7.*f)";
constexpr const char* kPlain = "(%f,%f)";

} // namespace

void CVector::SetTolerance(double tolerance) {
    m_dTolerance = tolerance;
}

char* CVector::Show(int prec) {
    static char text[kShowSize];
    if (prec >= 0)
        std::snprintf(text, sizeof text, kPadded, prec, m_dX, prec, m_dY);
    else
        std::snprintf(text, sizeof text, kPlain, m_dX, m_dY);
    return text;
}

char* CVector::Show(char* dst, int prec) {
    if (prec >= 0)
        std::sprintf(dst, kPadded, prec, m_dX, prec, m_dY);
    else
        std::sprintf(dst, kPlain, m_dX, m_dY);
    return dst;
}
