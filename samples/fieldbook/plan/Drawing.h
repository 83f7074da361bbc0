/// @file
/// CDrawing: what the plan shows.
#pragma once

#include "survey/2DCircle.h"

#include <vector>

/// What a thing is in its computation.
enum class Role { Given, Result };

struct CDrawnPoint {
    CString strName;
    CCoordinate point;
    Role role;
};

struct CDrawnLine {
    CCoordinate start;
    CCoordinate end;
    bool bUnbounded; ///< It goes on beyond both of its points.
    Role role;
};

struct CDrawnArc {
    C2DCircle circle;
    double dStart; ///< Radians, counter-clockwise from east.
    double dSweep; ///< Radians to the left, more than 0; a full turn for a circle.
    Role role;
};

/// Points with names, lines and arcs in survey coordinates. What has no northing and easting, or
/// numbers too large to compute with, cannot be drawn and is left out.
class CDrawing {
public:
    void AddPoint(const CString& strName, const CCoordinate& point, Role role);
    /// @param bUnbounded the line has no ends. Two equal points make no line.
    void AddLine(const CCoordinate& start, const CCoordinate& end, bool bUnbounded, Role role);
    /// @param dRadius more than 0
    void AddCircle(const CCoordinate& centre, double dRadius, Role role);
    /// An arc that turns left from start to end. Its radius is the end's distance from the centre.
    void AddArc(const CCoordinate& start, const CCoordinate& centre, const CCoordinate& end, Role role);
    void Clear();

    bool IsEmpty() const;
    /// The box around everything. Of a line without ends its two points count.
    /// @return false, with nothing written, for an empty drawing
    bool GetExtent(CCoordinate& lo, CCoordinate& hi) const;

    const std::vector<CDrawnPoint>& GetPoints() const { return m_points; }
    const std::vector<CDrawnLine>& GetLines() const { return m_lines; }
    const std::vector<CDrawnArc>& GetArcs() const { return m_arcs; }

private:
    std::vector<CDrawnPoint> m_points;
    std::vector<CDrawnLine> m_lines;
    std::vector<CDrawnArc> m_arcs;
};
