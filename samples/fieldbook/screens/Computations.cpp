#include "screens/Computations.h"

#include "compute/AngleText.h"
#include "screens/Resource.h"
#include "screens/Text.h"
#include "survey/2DLine.h"

#include <cmath>

namespace {

constexpr bool kUnbounded = true;
constexpr bool kBounded = false;

/// What is said of a curve besides its corners.
std::vector<CString> CurveNotes(const CCurve& curve, double dStartRadius, const CString& strSweep) {
    std::vector<CString> notes{Text(IDS_RADIUS_START, dStartRadius), Text(IDS_RADIUS_END, curve.dRadius),
                               Text(IDS_SWEEP, strSweep.GetString()), Text(IDS_ARC_LENGTH, curve.dLength),
                               Text(IDS_BULGE, curve.dBulge)};
    constexpr double kRadiusLimit = 0.010; // metres
    if (std::fabs(dStartRadius - curve.dRadius) > kRadiusLimit)
        notes.push_back(Text(IDS_RADII_DIFFER));
    return notes;
}

/// How far a line goes north for each metre to the east.
CString SlopeNote(const C2DLine& line) {
    constexpr int kNorthSouth = 1;
    return line.GetStatus() == kNorthSouth ? Text(IDS_NORTH_SOUTH_LINE) : Text(IDS_SLOPE, line.GetSlope());
}

void DrawTangents(CDrawing& drawing, CCoordinate from, const std::vector<CCoordinate>& corners,
                  const CCoordinate& end) {
    for (const CCoordinate& corner : corners) {
        drawing.AddLine(from, corner, kBounded, Role::Result);
        from = corner;
    }
    drawing.AddLine(from, end, kBounded, Role::Result);
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

CString CComputations::AngleText(double dRadians) const {
    return DirectionText(dRadians, m_job.settings.bTenths != 0);
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
        report.notes.push_back(Text(IDS_RADIUS_LINE, Distance(centre, start)));
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
        report.notes = CurveNotes(curve, Distance(centre, start), AngleText(curve.dSweep));
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
    CInverse inverse = {};
    if (!FindInverse(from, to, inverse))
        return Finish(MakeReport(IDS_INVERSE, IDS_INVERSE, {Verdict::SamePoint, {}}));
    CReport report;
    report.nTitleId = IDS_INVERSE;
    report.strMessage = Text(IDS_COMPUTED);
    report.notes = {Text(IDS_DISTANCE_LINE, inverse.dDistance),
                    Text(IDS_DIRECTION_LINE, AngleText(inverse.dDirection).GetString()),
                    SlopeNote(C2DLine(from, to))};
    report.drawing.AddLine(from, to, kBounded, Role::Result);
    return Finish(report);
}

std::optional<CReport> CComputations::Extent() {
    m_questions.Begin(IDS_EXTENT);
    CCoordinate lo, hi;
    if (!FindExtent(m_job.book.GetPoints(), lo, hi))
        return MakeReport(IDS_EXTENT, IDS_CORNER, {Verdict::NoPosition, {}});
    CReport report;
    report.nTitleId = IDS_EXTENT;
    report.strMessage = Text(IDS_COMPUTED);
    report.points = {{Text(IDS_SOUTH_WEST), lo}, {Text(IDS_NORTH_EAST), hi}};
    report.notes = {Text(IDS_NORTH_SOUTH, hi.GetN() - lo.GetN()), Text(IDS_EAST_WEST, hi.GetE() - lo.GetE())};
    for (const CNamedPoint& point : m_job.book.GetPoints())
        if (HasPosition(point.point))
            report.drawing.AddPoint(point.strName, point.point, Role::Given);
    DrawBox(report.drawing, lo, hi);
    return report;
}
