#include "screens/Computations.h"

#include "compute/ValueText.h"
#include "screens/Resource.h"
#include "screens/Text.h"
#include "survey/2DLine.h"

#include <cmath>

namespace {

constexpr bool kUnbounded = true;
constexpr bool kBounded = false;

using Unit = CReportLine::Unit;

/// What is said of a curve besides its corners.
std::vector<CReportLine> CurveNotes(const CCurve& curve, double dStartRadius) {
    std::vector<CReportLine> notes{{IDS_RADIUS_START, Unit::Length, dStartRadius},
                                   {IDS_RADIUS_END, Unit::Length, curve.dRadius},
                                   {IDS_SWEEP, Unit::Direction, curve.dSweep},
                                   {IDS_ARC_LENGTH, Unit::Length, curve.dLength},
                                   {IDS_BULGE, Unit::Number, curve.dBulge}};
    constexpr double kRadiusLimit = 0.010; // metres
    if (std::fabs(dStartRadius - curve.dRadius) > kRadiusLimit)
        notes.push_back({IDS_RADII_DIFFER});
    return notes;
}

/// How far a line goes north for each metre to the east.
CReportLine SlopeNote(const C2DLine& line) {
    constexpr int kNorthSouth = 1;
    if (line.GetStatus() == kNorthSouth)
        return {IDS_NORTH_SOUTH_LINE};
    return {IDS_SLOPE, Unit::Number, line.GetSlope()};
}

std::vector<CReportLine> InverseNotes(const CInverse& inverse, const C2DLine& line) {
    std::vector<CReportLine> notes = {{IDS_DISTANCE_LINE, Unit::Length, inverse.dDistance},
                                      {IDS_DIRECTION_LINE, Unit::Direction, inverse.dDirection},
                                      {IDS_DELTA_N, Unit::Length, inverse.dN},
                                      {IDS_DELTA_E, Unit::Length, inverse.dE}};
    if (inverse.dZ) {
        const double dGradient = *inverse.dZ / inverse.dDistance;
        notes.push_back({IDS_DELTA_Z, Unit::Length, *inverse.dZ});
        notes.push_back({IDS_SLOPE_DISTANCE, Unit::Length, std::hypot(inverse.dDistance, *inverse.dZ)});
        notes.push_back({IDS_GRADIENT, Unit::Percent, dGradient});
        if (*inverse.dZ != 0)
            notes.push_back({IDS_GRADIENT, Unit::OneIn, dGradient});
    }
    notes.push_back(SlopeNote(line));
    return notes;
}

void DrawTangents(CDrawing& drawing, CCoordinate from, const std::vector<CCoordinate>& corners,
                  const CCoordinate& end) {
    for (const CCoordinate& corner : corners) {
        drawing.AddLine(from, corner, kBounded, Role::Result);
        from = corner;
    }
    drawing.AddLine(from, end, kBounded, Role::Result);
}

CCoordinate WithoutHeight(const CCoordinate& point) {
    CCoordinate flat;
    flat.SetN(point.GetN());
    flat.SetE(point.GetE());
    return flat;
}

void DrawBox(CDrawing& drawing, const CCoordinate& lo, const CCoordinate& hi) {
    CCoordinate northWest = hi;
    northWest.SetE(lo.GetE());
    CCoordinate southEast = lo;
    southEast.SetE(hi.GetE());
    const CCoordinate corners[] = {lo, southEast, hi, northWest, lo};
    for (size_t i = 1; i < std::size(corners); ++i)
        drawing.AddLine(corners[i - 1], corners[i], kBounded, Role::Result);
}

} // namespace

CReport CComputations::Finish(CReport report) {
    for (const CNamedPoint& point : m_questions.GetPoints()) {
        m_job.book.MarkUsed(point.strName);
        report.drawing.AddPoint(point.strName, point.point, Role::Given);
    }
    return report;
}

std::optional<CReport> CComputations::Lines() {
    m_questions.Begin(IDS_LINES);
    CCoordinate a1, a2, b1, b2;
    if (!m_questions.AskPoint(IDS_LINE1_START, a1) || !m_questions.AskPoint(IDS_LINE1_END, a2) ||
        !m_questions.AskPoint(IDS_LINE2_START, b1) || !m_questions.AskPoint(IDS_LINE2_END, b2))
        return std::nullopt;
    CReport report = MakeReport(IDS_LINES, IDS_INTERSECTION, IntersectLines(a1, a2, b1, b2));
    report.drawing.AddLine(a1, a2, kUnbounded, Role::Given);
    report.drawing.AddLine(b1, b2, kUnbounded, Role::Given);
    return Finish(report);
}

std::optional<CReport> CComputations::LineCircle() {
    m_questions.Begin(IDS_LINE_CIRCLE);
    CCoordinate p1, p2, centre;
    double dRadius = 0;
    if (!m_questions.AskPoint(IDS_LINE_START, p1) || !m_questions.AskPoint(IDS_LINE_END, p2) ||
        !m_questions.AskPoint(IDS_CIRCLE_CENTRE, centre) ||
        !m_questions.AskRadius(IDS_CIRCLE_RADIUS, dRadius))
        return std::nullopt;
    CReport report =
        MakeReport(IDS_LINE_CIRCLE, IDS_INTERSECTION, IntersectLineCircle(p1, p2, centre, dRadius));
    report.drawing.AddLine(p1, p2, kUnbounded, Role::Given);
    report.drawing.AddCircle(centre, dRadius, Role::Given);
    return Finish(report);
}

std::optional<CReport> CComputations::Circles() {
    m_questions.Begin(IDS_CIRCLES);
    CCoordinate c1, c2;
    double dRadius1 = 0;
    double dRadius2 = 0;
    if (!m_questions.AskPoint(IDS_CIRCLE1_CENTRE, c1) ||
        !m_questions.AskRadius(IDS_CIRCLE1_RADIUS, dRadius1) ||
        !m_questions.AskPoint(IDS_CIRCLE2_CENTRE, c2) || !m_questions.AskRadius(IDS_CIRCLE2_RADIUS, dRadius2))
        return std::nullopt;
    CReport report = MakeReport(IDS_CIRCLES, IDS_INTERSECTION, IntersectCircles(c1, dRadius1, c2, dRadius2));
    report.drawing.AddCircle(c1, dRadius1, Role::Given);
    report.drawing.AddCircle(c2, dRadius2, Role::Given);
    return Finish(report);
}

std::optional<CReport> CComputations::Bearings() {
    m_questions.Begin(IDS_BEARINGS);
    CCoordinate a, b;
    double dDirectionA = 0;
    double dDirectionB = 0;
    if (!m_questions.AskPoint(IDS_BEARING_FROM_A, a) || !m_questions.AskAngle(IDS_BEARING_A, dDirectionA) ||
        !m_questions.AskPoint(IDS_BEARING_FROM_B, b) || !m_questions.AskAngle(IDS_BEARING_B, dDirectionB))
        return std::nullopt;
    CReport report =
        MakeReport(IDS_BEARINGS, IDS_INTERSECTION, IntersectBearings(a, dDirectionA, b, dDirectionB));
    if (!report.points.empty())
        for (size_t i = 0; i < 2; ++i)
            if (IsBehind(report.points.front().point, i == 0 ? a : b, i == 0 ? dDirectionA : dDirectionB))
                report.notes.push_back({IDS_BEHIND, Unit::Name, 0, m_questions.GetPoints()[i].strName});
    constexpr double kAnyDistance = 1.0; // metres: the lines have no ends
    report.drawing.AddLine(a, FindPolarPoint(a, dDirectionA, kAnyDistance), kUnbounded, Role::Given);
    report.drawing.AddLine(b, FindPolarPoint(b, dDirectionB, kAnyDistance), kUnbounded, Role::Given);
    return Finish(report);
}

std::optional<CReport> CComputations::ArcCentre() {
    m_questions.Begin(IDS_ARC_CENTRE);
    CCoordinate start, end;
    double dAngle = 0;
    if (!m_questions.AskPoint(IDS_ARC_START, start) || !m_questions.AskPoint(IDS_ARC_END, end) ||
        !m_questions.AskAngle(IDS_ARC_ANGLE, dAngle))
        return std::nullopt;
    CReport report = MakeReport(IDS_ARC_CENTRE, IDS_CENTRE, FindArcCentre(start, end, dAngle));
    if (!report.points.empty()) {
        const CCoordinate& centre = report.points.front().point;
        report.notes.push_back({IDS_RADIUS_LINE, Unit::Length, Distance(centre, start)});
        // One that turns right is the same arc as that to the left from its end to its start.
        report.drawing.AddArc(dAngle > 0 ? start : end, centre, dAngle > 0 ? end : start, Role::Result);
    }
    return Finish(report);
}

std::optional<CReport> CComputations::Curve() {
    m_questions.Begin(IDS_CURVE);
    CCoordinate start, centre, end;
    if (!m_questions.AskPoint(IDS_CURVE_START, start) || !m_questions.AskPoint(IDS_CURVE_CENTRE, centre) ||
        !m_questions.AskPoint(IDS_CURVE_END, end))
        return std::nullopt;
    CCurve curve;
    const Verdict verdict = FindCurve(start, centre, end, curve);
    CReport report = MakeReport(IDS_CURVE, IDS_CORNER, {verdict, curve.corners});
    if (verdict == Verdict::Found) {
        report.notes = CurveNotes(curve, Distance(centre, start));
        report.drawing.AddArc(start, centre, end, Role::Given);
        DrawTangents(report.drawing, start, curve.corners, end);
    }
    return Finish(report);
}

std::optional<CReport> CComputations::Inverse() {
    m_questions.Begin(IDS_INVERSE);
    CCoordinate from, to;
    if (!m_questions.AskPoint(IDS_INVERSE_FROM, from) || !m_questions.AskPoint(IDS_INVERSE_TO, to))
        return std::nullopt;
    m_questions.Propose(IDS_INVERSE_FROM, m_questions.GetPoints().back().strName); // crews go on from there
    CInverse inverse = {};
    if (!FindInverse(from, to, inverse))
        return Finish(MakeReport(IDS_INVERSE, IDS_INVERSE, {Verdict::SamePoint, {}}));
    CReport report = MakeReport(IDS_INVERSE, InverseNotes(inverse, C2DLine(from, to)));
    report.drawing.AddLine(from, to, kBounded, Role::Result);
    return Finish(report);
}

std::optional<CReport> CComputations::Extent() {
    m_questions.Begin(IDS_EXTENT);
    CCoordinate lo, hi;
    if (!FindExtent(m_job.book.GetPoints(), lo, hi))
        return MakeReport(IDS_EXTENT, IDS_CORNER, {Verdict::NoPosition, {}});
    CReport report = MakeReport(IDS_EXTENT, {{IDS_NORTH_SOUTH, Unit::Length, hi.GetN() - lo.GetN()},
                                             {IDS_EAST_WEST, Unit::Length, hi.GetE() - lo.GetE()}});
    if (lo.IsExistZ()) {
        report.notes.push_back({IDS_LOWEST, Unit::Length, lo.GetZ()});
        report.notes.push_back({IDS_HIGHEST, Unit::Length, hi.GetZ()});
    }
    // The heights are those of other points: a corner has none.
    report.points = {{Text(IDS_SOUTH_WEST), WithoutHeight(lo)}, {Text(IDS_NORTH_EAST), WithoutHeight(hi)}};
    for (const CNamedPoint& point : m_job.book.GetPoints())
        if (HasPosition(point.point))
            report.drawing.AddPoint(point.strName, point.point, Role::Given);
    DrawBox(report.drawing, lo, hi);
    return report;
}
