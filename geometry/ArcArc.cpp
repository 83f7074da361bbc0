#include "geometry/Vector.h"

int CVector::MeetCircles(double x1, double y1, double r1, double x2, double y2, double r2, double* px1,
                         double* py1, double* px2, double* py2) {
    const double t = m_dTolerance;
    CVector between(x2 - x1, y2 - y1);
    if (between.Equal(CVector(0, 0), t))
        return std::fabs(r1 - r2) < t ? -1 : 0;

    const double length = between.UNorm();
    between.Unit();
    const double ux = between.m_dX;
    const double uy = between.m_dY;

    const double sum = r1 + r2;
    if (std::fabs(sum - length) < t) {
        *px1 = x1 + ux * r1;
        *py1 = y1 + uy * r1;
        return 1;
    }
    if (sum < length)
        return 0;

    // From the first centre to the common chord; negative when the chord lies behind it.
    const double a = (r1 * r1 - r2 * r2 + length * length) / (2 * length);
    const double footX = x1 + ux * a;
    const double footY = y1 + uy * a;
    const double halfSquare = r1 * r1 - a * a;
    if (std::fabs(halfSquare) < t) {
        *px1 = footX;
        *py1 = footY;
        return 1;
    }

    // Not a number for a circle inside the other; so are the points then.
    const double half = std::sqrt(halfSquare);
    CVector halfChord(ux * half, uy * half);
    CVector left = halfChord.R_Normal(Left);
    CVector right = halfChord.R_Normal(Right);
    *px1 = footX + left.m_dX;
    *py1 = footY + left.m_dY;
    *px2 = footX + right.m_dX;
    *py2 = footY + right.m_dY;
    return 2;
}

int CVector::IntersectArcArc(double, double, double, double, double, double, double, double, double, double,
                             double, double, double*, double*) {
    return 1;
}
