#include "plan/PlanPainter.h"

#include <algorithm>
#include <utility>

namespace {

// Full black and a strong red on white: the screen is read in the sun.
constexpr COLORREF kGroundColor = RGB(255, 255, 255);
constexpr COLORREF kGivenColor = RGB(0, 0, 0);
constexpr COLORREF kResultColor = RGB(208, 0, 0);

// Pixels at AFX_DESIGN_DPI.
constexpr int kFontHeight = 15;
constexpr int kLongestName = 110; // wide; longer names end in dots
constexpr int kLongestBar = 90;
constexpr int kNamesInVain = 200; // one after the other: then the plan is full
constexpr int kEdge = 4;          // from scale bar and north arrow to the border
constexpr int kTick = 4;          // of the scale bar
constexpr int kArrowHalfWidth = 6;
constexpr int kArrowLength = 14;
const CString kNorth = L"N";

COLORREF ColorOf(Role role) {
    return role == Role::Result ? kResultColor : kGivenColor;
}

/// From the middle of a mark to its sides.
int MarkReach(Role role) {
    return role == Role::Result ? 5 : 3;
}

/// Of marks that lie on each other one is drawn: of 100,000 points no more than there are places.
class CThinning {
public:
    explicit CThinning(CSize view) : m_nAcross(view.cx / kPlace + 1), m_taken(PlacesIn(view)) {}

    /// @return false if there is a mark already
    bool Keeps(CPoint mark) {
        const auto nRow = static_cast<size_t>(mark.y / kPlace);
        const auto nColumn = static_cast<size_t>(mark.x / kPlace);
        return !std::exchange(m_taken[nRow * static_cast<size_t>(m_nAcross) + nColumn], 1);
    }

private:
    static constexpr int kPlace = 3; // pixels
    size_t PlacesIn(CSize view) const {
        return static_cast<size_t>(m_nAcross) * static_cast<size_t>(view.cy / kPlace + 1);
    }

    int m_nAcross;
    std::vector<char> m_taken;
};

CPoint ToPoint(CVector v) {
    return CPoint(v.GetIntX(), v.GetIntY());
}

} // namespace

void CPlanFonts::Create(const CFont& like, int nResolution) {
    nDpi = nResolution;
    LOGFONT font = {};
    like.GetLogFont(&font);
    font.lfHeight = -::MulDiv(kFontHeight, nDpi, AFX_DESIGN_DPI);
    font.lfWidth = 0;
    font.lfWeight = FW_NORMAL;
    given.CreateFontIndirect(&font);
    font.lfWeight = FW_BOLD;
    result.CreateFontIndirect(&font);
}

CPlanPainter::CPlanPainter(CDC& dc, CSize view, const CPlanScale& scale, CPlanFonts& fonts)
    : m_dc(dc), m_view(0, 0, view.cx, view.cy), m_scale(scale), m_fonts(fonts), m_space(view) {}

void CPlanPainter::Paint(const CDrawing& drawing) {
    m_dc.FillSolidRect(m_view, kGroundColor);
    m_dc.SetBkMode(TRANSPARENT);
    m_dc.IntersectClipRect(m_view);
    PaintLines(drawing, Role::Given);
    PaintLines(drawing, Role::Result);
    const std::vector<const CDrawnPoint*> seen = FindSeen(drawing.GetPoints());
    const CScaleBar bar = FindScaleBar(m_scale.GetFactor(), Px(kLongestBar));
    const CRect barPlace = TakeBarPlace(bar);
    const CRect arrowPlace = TakeArrowPlace();
    PaintPoints(seen);
    PaintScaleBar(bar, barPlace);
    PaintNorthArrow(arrowPlace);
}

void CPlanPainter::PaintLines(const CDrawing& drawing, Role role) {
    CPen pen(PS_SOLID, Px(role == Role::Result ? 2 : 1), ColorOf(role));
    const AfxSavedDC state(m_dc);
    m_dc.SelectObject(&pen);
    for (const CDrawnLine& line : drawing.GetLines()) {
        CSegment seen{m_scale.ToPixel(line.start), m_scale.ToPixel(line.end)};
        if (line.role == role && ClipSegment(seen, m_view, line.bUnbounded))
            PaintPieces({seen}, role);
    }
    for (const CDrawnArc& arc : drawing.GetArcs()) {
        CCoordinate centre;
        arc.circle.GetCenter(centre);
        if (arc.role == role)
            PaintPieces(ClipArc(m_scale.ToPixel(centre), arc.circle.GetRadius() * m_scale.GetFactor(),
                                arc.dStart, arc.dSweep, m_view),
                        role);
    }
}

void CPlanPainter::PaintPieces(const std::vector<CSegment>& pieces, Role role) {
    // A given point's name may lie on a given line, but not on a result.
    const Space space = role == Role::Result ? Space::Mark : Space::Line;
    for (const CSegment& piece : pieces) {
        const CPoint start = ToPoint(piece.start);
        const CPoint end = ToPoint(piece.end);
        m_dc.MoveTo(start);
        m_dc.LineTo(end);
        m_dc.SetPixel(end, m_dc.GetPixel(start)); // a line leaves its last pixel out
        m_space.PutLine(start, end, space);
    }
}

CRect CPlanPainter::TakeBarPlace(const CScaleBar& bar) {
    const AfxSavedDC state(m_dc);
    m_dc.SelectObject(&m_fonts.given);
    const CSize text = m_dc.GetTextExtent(ScaleBarText(bar.dLength));
    const CSize size(std::max<int>(bar.nPixels, text.cx) + Px(5), Px(kTick) + text.cy + 1 + Px(2));
    return m_space.TakeCorner(size, Px(kEdge),
                              {Corner::BottomLeft, Corner::BottomRight, Corner::TopLeft, Corner::TopRight});
}

void CPlanPainter::PaintScaleBar(const CScaleBar& bar, const CRect& place) {
    const int nTick = Px(kTick);
    CPen pen(PS_SOLID, Px(2), kGivenColor);
    const AfxSavedDC state(m_dc);
    m_dc.SelectObject(&m_fonts.given);
    m_dc.SelectObject(&pen);
    m_dc.FillSolidRect(place, kGroundColor);
    m_dc.SetTextColor(kGivenColor);
    const CPoint corner(place.left + Px(2), place.bottom - Px(2));
    m_dc.TextOut(corner.x + Px(3), place.top + 2, ScaleBarText(bar.dLength));
    const POINT line[] = {{corner.x, corner.y - nTick},
                          {corner.x, corner.y},
                          {corner.x + bar.nPixels, corner.y},
                          {corner.x + bar.nPixels, corner.y - nTick}};
    m_dc.Polyline(line, 4);
}

CRect CPlanPainter::TakeArrowPlace() {
    const AfxSavedDC state(m_dc);
    m_dc.SelectObject(&m_fonts.given);
    const CSize text = m_dc.GetTextExtent(kNorth);
    const int nReach = std::max<int>(Px(kArrowHalfWidth), text.cx / 2) + Px(2);
    return m_space.TakeCorner(CSize(2 * nReach, Px(kArrowLength) + text.cy + 2), Px(kEdge),
                              {Corner::TopRight, Corner::TopLeft, Corner::BottomRight, Corner::BottomLeft});
}

void CPlanPainter::PaintNorthArrow(const CRect& place) {
    const int nHalfWidth = Px(kArrowHalfWidth);
    const int nLength = Px(kArrowLength);
    CBrush brush(kGivenColor);
    const AfxSavedDC state(m_dc);
    m_dc.SelectObject(&m_fonts.given);
    m_dc.SelectObject(&brush);
    m_dc.FillSolidRect(place, kGroundColor);
    const CPoint tip(place.CenterPoint().x, place.top + 2);
    const POINT arrow[] = {tip,
                           {tip.x + nHalfWidth, tip.y + nLength},
                           {tip.x, tip.y + nLength - Px(4)},
                           {tip.x - nHalfWidth, tip.y + nLength}};
    m_dc.Polygon(arrow, 4);
    m_dc.SetTextColor(kGivenColor);
    m_dc.TextOut(tip.x - m_dc.GetTextExtent(kNorth).cx / 2, tip.y + nLength - 1, kNorth);
}

std::vector<const CDrawnPoint*> CPlanPainter::FindSeen(const std::vector<CDrawnPoint>& points) {
    CRect mark;
    std::vector<const CDrawnPoint*> seen;
    CThinning thinning(m_view.Size());
    for (const CDrawnPoint& point : points)
        if (FindMark(point, mark) && (point.role == Role::Result || thinning.Keeps(mark.CenterPoint()))) {
            seen.push_back(&point);
            m_space.Put(mark, Space::Mark);
        }
    return seen;
}

void CPlanPainter::PaintPoints(std::vector<const CDrawnPoint*> seen) {
    const auto firstGiven = std::stable_partition(
        seen.begin(), seen.end(), [](const CDrawnPoint* p) { return p->role == Role::Result; });
    const AfxSavedDC state(m_dc);
    m_dc.SetBkMode(TRANSPARENT);
    // The name of a result may lie on the marks of given points and then covers them.
    PaintMarks({firstGiven, seen.end()}, Role::Given);
    int nInVain = 0;
    for (const CDrawnPoint* pPoint : seen)
        if (nInVain < kNamesInVain)
            nInVain = PaintName(*pPoint) ? 0 : nInVain + 1;
    PaintMarks({seen.begin(), firstGiven}, Role::Result);
}

bool CPlanPainter::PaintName(const CDrawnPoint& point) {
    const bool bResult = point.role == Role::Result;
    m_dc.SelectObject(bResult ? &m_fonts.result : &m_fonts.given);
    CSize name = m_dc.GetTextExtent(point.strName);
    name.cx = std::min<int>(name.cx, Px(kLongestName));
    CRect mark;
    CRect place;
    if (!FindMark(point, mark) || !m_space.PlaceName(mark, name, bResult ? Space::Mark : Space::Line, place))
        return false;
    m_dc.FillSolidRect(place, kGroundColor); // a line through a name makes it hard to read
    m_dc.SetTextColor(ColorOf(point.role));
    m_dc.DrawText(point.strName, place, DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
    return true;
}

void CPlanPainter::PaintMarks(const std::vector<const CDrawnPoint*>& points, Role role) {
    CPen pen(PS_SOLID, 1, ColorOf(role));
    CBrush brush(ColorOf(role));
    CBrush ground(kGroundColor);
    const AfxSavedDC state(m_dc);
    m_dc.SelectObject(&pen);
    CRect mark;
    for (const CDrawnPoint* pPoint : points) {
        FindMark(*pPoint, mark);
        m_dc.SelectObject(&brush);
        m_dc.Ellipse(mark);
        if (role == Role::Given)
            continue;
        // A ring about a dot, larger than the mark of a given point and with another shape.
        m_dc.SelectObject(&ground);
        mark.DeflateRect(Px(2), Px(2));
        m_dc.Ellipse(mark);
        const int nDot = Px(1);
        m_dc.FillSolidRect(CRect(mark.CenterPoint() - CSize(nDot, nDot), CSize(2 * nDot + 1, 2 * nDot + 1)),
                           ColorOf(role));
    }
}

bool CPlanPainter::FindMark(const CDrawnPoint& point, CRect& mark) const {
    CVector pixel = m_scale.ToPixel(point.point);
    CSegment spot{pixel, pixel};
    if (!ClipSegment(spot, m_view, false))
        return false;
    const int nReach = Px(MarkReach(point.role));
    mark = CRect(ToPoint(pixel) - CSize(nReach, nReach), CSize(2 * nReach + 1, 2 * nReach + 1));
    return true;
}
