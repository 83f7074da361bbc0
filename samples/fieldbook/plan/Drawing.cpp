#include "plan/Drawing.h"

#include "compute/LocalPlane.h"
#include "compute/Turn.h"

#include <cmath>

namespace {

constexpr double kQuarter = kTwoPi / 4;
/// Squares of larger numbers come near to what a double can hold.
constexpr double kLargest = 1e100;

bool CanDraw(const CCoordinate& point) {
    return point.IsExistNE() && std::fabs(point.GetN()) < kLargest && std::fabs(point.GetE()) < kLargest;
}

/// Survey coordinates without the height, which has no place in a plan.
CCoordinate Flat(const CCoordinate& point) {
    return CLocalPlane(point).ToCoordinate(CVector(0, 0));
}

/// The ends of an arc, and where it runs farthest to the east, north, west and south.
std::vector<CCoordinate> CornersOf(const CDrawnArc& arc) {
    std::vector<double> angles = {arc.dStart, arc.dStart + arc.dSweep};
    const double dEnd = arc.dStart + arc.dSweep;
    for (int nQuarter = static_cast<int>(std::ceil(arc.dStart / kQuarter)); nQuarter * kQuarter < dEnd;
         ++nQuarter)
        angles.push_back(nQuarter * kQuarter);
    CCoordinate centre;
    arc.circle.GetCenter(centre);
    const double dRadius = arc.circle.GetRadius();
    std::vector<CCoordinate> corners;
    for (const double dAngle : angles)
        corners.push_back(CLocalPlane(centre).ToCoordinate(
            CVector(dRadius * std::cos(dAngle), dRadius * std::sin(dAngle))));
    return corners;
}

} // namespace

void CDrawing::AddPoint(const CString& strName, const CCoordinate& point, Role role) {
    if (CanDraw(point))
        m_points.push_back({strName, Flat(point), role});
}

void CDrawing::AddLine(const CCoordinate& start, const CCoordinate& end, bool bUnbounded, Role role) {
    if (!CanDraw(start) || !CanDraw(end) || Flat(start) == Flat(end))
        return;
    m_lines.push_back({Flat(start), Flat(end), bUnbounded, role});
}

void CDrawing::AddCircle(const CCoordinate& centre, double dRadius, Role role) {
    C2DCircle circle;
    if (CanDraw(centre) && dRadius > 0 && dRadius < kLargest && circle.Setup(Flat(centre), dRadius) == 0)
        m_arcs.push_back({circle, 0, kTwoPi, role});
}

void CDrawing::AddArc(const CCoordinate& start, const CCoordinate& centre, const CCoordinate& end,
                      Role role) {
    if (!CanDraw(start) || !CanDraw(centre) || !CanDraw(end))
        return;
    constexpr int kLeft = 1;
    const CLocalPlane plane(centre);
    const double dStart = plane.ToVector(start).Angle();
    const double dSweep = CVector::AbsAngle(kLeft, plane.ToVector(end).Angle() - dStart);
    C2DCircle circle;
    if (dSweep > 0 && circle.Setup(Flat(centre), plane.ToVector(end).UNorm()) == 0)
        m_arcs.push_back({circle, dStart, dSweep, role});
}

void CDrawing::Clear() {
    *this = CDrawing();
}

bool CDrawing::IsEmpty() const {
    return m_points.empty() && m_lines.empty() && m_arcs.empty();
}

bool CDrawing::GetExtent(CCoordinate& lo, CCoordinate& hi) const {
    std::vector<CCoordinate> all;
    for (const CDrawnPoint& point : m_points)
        all.push_back(point.point);
    for (const CDrawnLine& line : m_lines)
        all.insert(all.end(), {line.start, line.end});
    for (const CDrawnArc& arc : m_arcs) {
        const std::vector<CCoordinate> corners = CornersOf(arc);
        all.insert(all.end(), corners.begin(), corners.end());
    }
    if (all.empty())
        return false;
    lo = hi = all.front();
    for (CCoordinate& corner : all)
        corner.AddExtent(lo, hi);
    return true;
}
