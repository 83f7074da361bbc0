#include "screens/Computations.h"

#include "compute/ValueText.h"
#include "screens/Resource.h"
#include "screens/Text.h"
#include "dialogs/ButtonMenuDlg.h"
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

/// The box of a drawing has both points of a line, that of a sight 10 km away left out.
CCoordinate EndToDraw(const CCoordinate& from, const CCoordinate& to,
                      const std::optional<double>& direction) {
    constexpr double kAnyDistance = 1.0; // metres: the line has no ends
    return direction ? FindPolarPoint(from, *direction, kAnyDistance) : to;
}

} // namespace

CReport CComputations::Finish(CReport report) {
    report.inputs = m_questions.GetInputs();
    for (const CNamedPoint& point : m_questions.GetPoints()) {
        m_job.book.MarkUsed(point.strName);
        report.drawing.AddPoint(point.strName, point.point, Role::Given);
    }
    return report;
}

// Three sets of questions of a kind stand before those of the next.
static_assert(IDS_LINE_FIRST + 3 * 2 <= IDS_SIGHT_FIRST && IDS_SIGHT_FIRST + 3 * 2 <= IDS_PARALLEL_FIRST &&
              IDS_PARALLEL_FIRST + 3 * 3 <= IDS_CIRCLE_FIRST && IDS_CIRCLE_FIRST + 3 * 2 <= IDS_FIGURE_FIRST);

bool CComputations::AskFigure(Figure kind, UINT nWhich, CAskedFigure& asked) {
    CCoordinate first, second;
    double dNumber = 0;
    switch (kind) {
    case Figure::Line: {
        const UINT nFirst = IDS_LINE_FIRST + 2 * nWhich;
        if (!m_questions.AskPoint(nFirst, first) || !m_questions.AskPoint(nFirst + 1, second))
            return false;
        asked.figure = LineThrough(first, second);
        return true;
    }
    case Figure::Sight: {
        const UINT nFirst = IDS_SIGHT_FIRST + 2 * nWhich;
        if (!m_questions.AskPoint(nFirst, first) || !m_questions.AskAngle(nFirst + 1, dNumber))
            return false;
        asked.figure = LineTowards(first, dNumber);
        asked.strFrom = m_questions.GetPoints().back().strName;
        asked.dDirection = dNumber;
        return true;
    }
    case Figure::Parallel: {
        const UINT nFirst = IDS_PARALLEL_FIRST + 3 * nWhich;
        if (!m_questions.AskPoint(nFirst, first) || !m_questions.AskPoint(nFirst + 1, second) ||
            !m_questions.AskNumber(nFirst + 2, dNumber))
            return false;
        asked.figure = LineBeside(first, second, dNumber);
        return true;
    }
    case Figure::Circle: {
        const UINT nFirst = IDS_CIRCLE_FIRST + 2 * nWhich;
        if (!m_questions.AskPoint(nFirst, first) || !m_questions.AskRadius(nFirst + 1, dNumber))
            return false;
        asked.figure = CircleAround(first, dNumber);
        return true;
    }
    }
    return false;
}

std::optional<CReport> CComputations::Intersection(UINT nTitleId, Figure first, Figure second) {
    m_questions.Begin(nTitleId);
    const bool bTwice = first == second;
    CAskedFigure figures[2];
    if (!AskFigure(first, bTwice ? 1 : 0, figures[0]) || !AskFigure(second, bTwice ? 2 : 0, figures[1]))
        return std::nullopt;
    CReport report = MakeReport(nTitleId, IDS_INTERSECTION, Meet(figures[0].figure, figures[1].figure));
    for (const CAskedFigure& asked : figures) {
        const CFigure& figure = asked.figure;
        for (const CNamedPoint& point : report.points)
            if (asked.dDirection && IsBehind(point.point, figure.first, *asked.dDirection))
                report.notes.push_back({IDS_BEHIND, Unit::Name, 0, asked.strFrom});
        if (figure.IsCircle())
            report.drawing.AddCircle(figure.first, figure.dRadius, Role::Given);
        else
            report.drawing.AddLine(figure.first, EndToDraw(figure.first, figure.second, asked.dDirection),
                                   kUnbounded, Role::Given);
    }
    return Finish(report);
}

std::optional<CReport> CComputations::Lines() {
    return Intersection(IDS_LINES, Figure::Line, Figure::Line);
}

std::optional<CReport> CComputations::LineCircle() {
    return Intersection(IDS_LINE_CIRCLE, Figure::Line, Figure::Circle);
}

std::optional<CReport> CComputations::Circles() {
    return Intersection(IDS_CIRCLES, Figure::Circle, Figure::Circle);
}

std::optional<CReport> CComputations::Bearings() {
    return Intersection(IDS_BEARINGS, Figure::Sight, Figure::Sight);
}

std::optional<CReport> CComputations::Combined() {
    const std::optional<Figure> first = ChooseFigure(IDS_FIRST_FIGURE);
    if (!first)
        return std::nullopt;
    const std::optional<Figure> second = ChooseFigure(IDS_SECOND_FIGURE);
    return second ? Intersection(IDS_COMBINED, *first, *second) : std::nullopt;
}

std::optional<CComputations::Figure> CComputations::ChooseFigure(UINT nTitleId) {
    static_assert(IDS_FIGURE_LAST - IDS_FIGURE_FIRST + 1 == kFigureCount);
    CUIntArray entries;
    for (UINT nKind = 0; nKind < kFigureCount; ++nKind)
        entries.Add(IDS_FIGURE_FIRST + nKind);
    CButtonMenuDlg menu(static_cast<int>(nTitleId), &entries, &m_parent);
    menu.DoModal();
    return menu.GetMenuIndex() < 0 ? std::nullopt : std::optional(static_cast<Figure>(menu.GetMenuIndex()));
}

std::optional<CReport> CComputations::Foot() {
    m_questions.Begin(IDS_FOOT);
    CCoordinate first, second, point;
    if (!m_questions.AskPoint(IDS_LINE_FIRST, first) || !m_questions.AskPoint(IDS_LINE_FIRST + 1, second) ||
        !m_questions.AskPoint(IDS_FOOT_POINT, point))
        return std::nullopt;
    COffset offset{};
    const Verdict verdict = FindOffset(first, second, point, offset);
    CReport report = MakeReport(IDS_FOOT, IDS_FOOT_NAME, {verdict, {offset.foot}});
    if (verdict == Verdict::Found) {
        const bool bRight = offset.dToTheRight >= 0;
        report.notes.push_back({IDS_ALONG, Unit::Length, offset.dAlong});
        report.notes.push_back({static_cast<UINT>(bRight ? IDS_OFFSET_RIGHT : IDS_OFFSET_LEFT), Unit::Length,
                                std::fabs(offset.dToTheRight)});
        report.drawing.AddLine(point, offset.foot, kBounded, Role::Result);
    }
    report.drawing.AddLine(first, second, kUnbounded, Role::Given);
    return Finish(report);
}

std::optional<CReport> CComputations::Area() {
    m_questions.Begin(IDS_AREA);
    std::vector<CCoordinate> corners;
    if (!m_questions.AskCorners(IDS_VERTEX, corners))
        return std::nullopt;
    CPolygon polygon{};
    const Verdict verdict = MeasurePolygon(corners, polygon);
    if (verdict != Verdict::Found)
        return Finish(MakeReport(IDS_AREA, IDS_AREA, {verdict, {}}));
    CReport report = MakeReport(IDS_AREA, {{IDS_PERIMETER, Unit::Length, polygon.dPerimeter}});
    if (polygon.bCrosses)
        report.notes.push_back({IDS_SIDES_CROSS});
    else
        report.notes.insert(report.notes.begin(), {IDS_AREA_LINE, Unit::Length, polygon.dArea});
    for (size_t i = 0; i < corners.size(); ++i)
        report.drawing.AddLine(corners[i], corners[(i + 1) % corners.size()], kBounded, Role::Result);
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
