/// @file
/// The plane circle in survey coordinates.
#pragma once

#include "survey/Coordinate.h"

/// A circle: its centre, of which only northing and easting matter, and its radius in the
/// coordinates' unit.
class FIELDKIT_API C2DCircle {
public:
    /// No centre, radius 0.
    C2DCircle() = default;
    /// As Setup does; no centre and radius 0 where that rejects its input.
    C2DCircle(const CCoordinate& centre, double radius);
    /// Copies centre and radius.
    ///@{
    C2DCircle(const C2DCircle& circle) = default;
    const C2DCircle& operator=(const C2DCircle& circle);
    ///@}
    virtual ~C2DCircle() = default;

    /// @param radius more than 1e-05 in magnitude; a negative one is kept negative.
    /// @return 0; 1, with nothing changed, when the centre has no northing and easting or the
    ///         radius is too small.
    int Setup(const CCoordinate& centre, double radius);

    /// Copies the centre to `out`.
    void GetCenter(CCoordinate& out) const { out = m_Center; }
    /// The centre itself, to be changed in place; it lives as long as the circle.
    CCoordinate* GetCenter() { return &m_Center; }
    /// The radius as Setup was given it, in the coordinates' unit; 0 before.
    double GetRadius() const { return m_dRadius; }

private:
    CCoordinate m_Center;
    double m_dRadius = 0;
};
