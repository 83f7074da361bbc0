#include "plan/PlanClip.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

/// The range of a line's parameter that is still seen: 0 at its start, 1 at its end.
struct CRange {
    double dFrom;
    double dTo;

    /// Keeps what is not below a border.
    /// @param dPlace how far the start is above the border
    /// @param dStep  how much farther the end is
    void Cut(double dPlace, double dStep) {
        if (dStep > 0)
            dFrom = std::max(dFrom, -dPlace / dStep);
        else if (dStep < 0)
            dTo = std::min(dTo, -dPlace / dStep);
        else if (dPlace < 0)
            dTo = -std::numeric_limits<double>::infinity();
    }
};

/// Walks an arc by halves and leaves out those that cannot be seen.
class CArcWalk {
public:
    CArcWalk(const CVector& centre, double dRadius, const CRect& view)
        : m_centre(centre), m_dRadius(dRadius), m_view(view) {}

    void Walk(double dStart, double dSweep, int nHalvings) {
        const CVector start = PointAt(dStart);
        const CVector end = PointAt(dStart + dSweep);
        // The arc's greatest distance from its chord. 1 - cos would lose the digits of short arcs.
        const double dRise = 2 * m_dRadius * std::sin(dSweep / 4) * std::sin(dSweep / 4);
        if (IsOutside(start, end, dRise))
            return;
        // The number of halvings is limited because a turn has no finer steps than a double.
        if (nHalvings == 0 || (dSweep < kCoarsest && dRise < kFlatness)) {
            CSegment chord{start, end};
            if (ClipSegment(chord, m_view, false))
                m_chords.push_back(chord);
            return;
        }
        Walk(dStart, dSweep / 2, nHalvings - 1);
        Walk(dStart + dSweep / 2, dSweep / 2, nHalvings - 1);
    }

    const std::vector<CSegment>& GetChords() const { return m_chords; }

private:
    static constexpr double kCoarsest = 0.8;  // radians: the rise tells all only for less than half a turn
    static constexpr double kFlatness = 0.25; // pixels

    CVector PointAt(double dAngle) const {
        return CVector(m_centre.GetX() + m_dRadius * std::cos(dAngle),
                       m_centre.GetY() - m_dRadius * std::sin(dAngle));
    }

    /// Between its ends an arc of up to half a turn goes no farther than its rise; a longer one
    /// stays within the radius.
    bool IsOutside(const CVector& a, const CVector& b, double dRise) const {
        const double dReach = dRise < m_dRadius ? dRise : 2 * m_dRadius;
        return std::max(a.GetX(), b.GetX()) + dReach < m_view.left ||
               std::min(a.GetX(), b.GetX()) - dReach > m_view.right ||
               std::max(a.GetY(), b.GetY()) + dReach < m_view.top ||
               std::min(a.GetY(), b.GetY()) - dReach > m_view.bottom;
    }

    CVector m_centre;
    double m_dRadius;
    CRect m_view;
    std::vector<CSegment> m_chords;
};

} // namespace

bool ClipSegment(CSegment& segment, const CRect& view, bool bUnbounded) {
    constexpr double kFarAway = std::numeric_limits<double>::infinity();
    const CVector step = segment.end - segment.start;
    CRange range = bUnbounded ? CRange{-kFarAway, kFarAway} : CRange{0, 1};
    range.Cut(segment.start.GetX() - view.left, step.GetX());
    range.Cut(view.right - segment.start.GetX(), -step.GetX());
    range.Cut(segment.start.GetY() - view.top, step.GetY());
    range.Cut(view.bottom - segment.start.GetY(), -step.GetY());
    if (!(range.dFrom <= range.dTo) || std::isinf(range.dFrom) || std::isinf(range.dTo))
        return false;
    CVector along = step;
    segment = {segment.start + along.R_Scalar(range.dFrom), segment.start + along.R_Scalar(range.dTo)};
    return true;
}

std::vector<CSegment> ClipArc(const CVector& centre, double dRadius, double dStart, double dSweep,
                              const CRect& view) {
    constexpr int kMostHalvings = 48;
    CArcWalk walk(centre, dRadius, view);
    walk.Walk(dStart, dSweep, kMostHalvings);
    return walk.GetChords();
}
