/// @file
/// The plane line in survey coordinates.
#pragma once

#include "survey/Coordinate.h"

/// An unbounded line a E + b N = c. Heights do not matter.
///
/// A coefficient within 1e-05 of zero is negligible. The status of a line is
/// 0 oblique, 1 north-south (constant E), 2 east-west (constant N), 3 undefined.
/// Directions are survey angles: radians from the N axis towards the E axis.
class FIELDKIT_API C2DLine {
public:
    /// An undefined line: all coefficients 0.
    C2DLine() = default;
    /// Each makes the line as its Setup does; an undefined one where that rejects its input.
    C2DLine(double a, double b, double c);
    /// @copydoc C2DLine(double,double,double)
    ///@{
    C2DLine(const CCoordinate& p1, const CCoordinate& p2);
    C2DLine(const CCoordinate& p, double angle);
    ///@}
    /// Copies the coefficients.
    ///@{
    C2DLine(const C2DLine& line) = default;
    const C2DLine& operator=(const C2DLine& line);
    ///@}
    virtual ~C2DLine() = default;

    /// Stores the coefficients unchecked.
    void Setup(double a, double b, double c);
    /// The line through two points.
    /// @return the status; 3, with nothing stored, when a point has no northing and easting or
    ///         both are the same. Points closer than 1e-05 in both coordinates give 1 here,
    ///         though GetStatus says 3 of them.
    int Setup(const CCoordinate& p1, const CCoordinate& p2);
    /// The line through a point in a direction. North, east, south and west (0 to 3/2 pi,
    /// within 1e-05) give lines parallel to an axis, every other angle status 0.
    /// @return the status.
    int Setup(const CCoordinate& p, double angle);

    /// dN/dE; 1e+32 for a north-south line.
    double GetSlope() const;
    /// N where E is 0; 1e+32 for a north-south line.
    double GetInterceptN() const;
    /// E where N is 0; 1e+32 for an east-west line.
    double GetInterceptE() const;
    /// 0 oblique, 1 north-south, 2 east-west, 3 undefined.
    int GetStatus() const;
    /// Writes all three coefficients as they are stored.
    void GetParameter(double& a, double& b, double& c) const;

private:
    double m_dA = 0; ///< coefficient of E
    double m_dB = 0; ///< coefficient of N
    double m_dC = 0;
};
