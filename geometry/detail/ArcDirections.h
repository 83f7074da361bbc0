/// @file
/// Which points of a circle an arc holds, told from directions instead of intersections.
#pragma once

#include "geometry/detail/Limits.h"

#include <cmath>

namespace fieldkit::geometry {

/// An arc counter-clockwise from s to e about c, with the radius r of its end: three cross products
/// tell which points it holds, where nothing is near a limit. docs/exactness.md proves that the
/// intersections by which that is defined say the same there.
class CArcDirections {
public:
    CArcDirections(double sx, double sy, double ex, double ey, double cx, double cy, double r)
        : m_dCx(cx), m_dCy(cy), m_dR(r), m_Start{sx - cx, sy - cy}, m_End{ex - cx, ey - cy} {
        const Spoke chord = {m_End.x - m_Start.x, m_End.y - m_Start.y};
        const double square = chord.x * chord.x + chord.y * chord.y;
        const double scale = r / std::sqrt(square);
        m_Middle = {chord.y * scale, -chord.x * scale};
        const double turn = Cross(m_Start, m_End);
        const bool bOneChord = IsOblique(chord, kObliqueChord);
        const bool bTwoChords = IsOblique({m_Middle.x - m_Start.x, m_Middle.y - m_Start.y}, kObliqueChord) &
                                IsOblique({m_End.x - m_Middle.x, m_End.y - m_Middle.y}, kObliqueChord);
        m_bPlain = (turn > 0 ? bOneChord : bTwoChords) & IsOnCircle(m_Start) &
                   (std::fabs(turn) > r * r * kApart) & (square > r * r * kShortest) &
                   (std::fabs(cx) < r * kNear) & (std::fabs(cy) < r * kNear) & (r > kSurelyAlive);
    }

    /// Whether the arc holds the point; only where CanTell says so. Each half of an arc is less
    /// than half a turn, so the signs of two cross products enclose it.
    bool Holds(double x, double y) const {
        const Spoke p = {x - m_dCx, y - m_dCy};
        const bool bAfterMiddle = Cross(m_Middle, p) > 0;
        return (!bAfterMiddle & (Cross(m_Start, p) > 0)) | (bAfterMiddle & (Cross(m_End, p) < 0));
    }

    /// Whether that is what the intersection itself says, at the tolerance t.
    bool CanTell(double x, double y, double t) const {
        const Spoke p = {x - m_dCx, y - m_dCy};
        return m_bPlain & (t < kSmall) & (t < m_dR * kSmall) & IsOnCircle(p) & IsOblique(p, kObliqueSpoke) &
               IsApart(m_Start, p) & IsApart(m_Middle, p) & IsApart(m_End, p);
    }

private:
    struct Spoke {
        double x;
        double y;
    };

    static double Cross(Spoke a, Spoke b) { return a.x * b.y - a.y * b.x; }
    bool IsApart(Spoke a, Spoke b) const { return std::fabs(Cross(a, b)) > m_dR * m_dR * kApart; }
    bool IsOblique(Spoke a, double least) const {
        return (std::fabs(a.x) > m_dR * least) & (std::fabs(a.y) > m_dR * least);
    }
    bool IsOnCircle(Spoke a) const {
        return std::fabs(a.x * a.x + a.y * a.y - m_dR * m_dR) < m_dR * m_dR * kOnCircle;
    }

    double m_dCx;
    double m_dCy;
    double m_dR;
    Spoke m_Start;
    Spoke m_Middle;
    Spoke m_End;
    bool m_bPlain;
};

} // namespace fieldkit::geometry
