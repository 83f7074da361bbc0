/// @file
/// Where survey coordinates become plane vectors and back.
#pragma once

#include "geometry/Vector.h"
#include "survey/Coordinate.h"

/// A plane with x to the east and y to the north, its origin at a given point.
///
/// Near the origin numbers are small, and differences of a job's large coordinates lose no
/// digits in the formulas.
class CLocalPlane {
public:
    explicit CLocalPlane(const CCoordinate& origin) : m_dN(origin.GetN()), m_dE(origin.GetE()) {}

    CVector ToVector(const CCoordinate& point) const {
        return CVector(point.GetE() - m_dE, point.GetN() - m_dN);
    }

    /// @return a point without height
    CCoordinate ToCoordinate(CVector v) const {
        CCoordinate point;
        point.SetN(v.GetY() + m_dN);
        point.SetE(v.GetX() + m_dE);
        return point;
    }

private:
    double m_dN;
    double m_dE;
};
