#include "plan/PlanSpace.h"

#include <algorithm>
#include <cstdlib>

namespace {

constexpr int kGap = 2; // pixels between mark and name

/// The places around a mark, the best first.
std::vector<CRect> PlacesAround(const CRect& mark, CSize name) {
    const CPoint middle = mark.CenterPoint();
    const int nRight = mark.right + kGap;
    const int nLeft = mark.left - kGap - name.cx;
    const int nAbove = mark.top - kGap - name.cy;
    const int nBelow = mark.bottom + kGap;
    const int nMiddleX = middle.x - name.cx / 2;
    const int nMiddleY = middle.y - name.cy / 2;
    // Half beside, half above the mark: nearer to it than a corner.
    const int nHigh = middle.y - name.cy;
    std::vector<CRect> places;
    for (const CPoint corner : {CPoint(nRight, nHigh), CPoint(nRight, middle.y), CPoint(nLeft, nHigh),
                                CPoint(nLeft, middle.y), CPoint(nMiddleX, nAbove), CPoint(nMiddleX, nBelow),
                                CPoint(nRight, nMiddleY), CPoint(nLeft, nMiddleY), CPoint(nRight, nAbove),
                                CPoint(nRight, nBelow), CPoint(nLeft, nAbove), CPoint(nLeft, nBelow)})
        places.emplace_back(corner, name);
    return places;
}

} // namespace

CPlanSpace::CPlanSpace(CSize view)
    : m_view(0, 0, view.cx, view.cy),
      m_pixels(static_cast<size_t>(view.cx) * static_cast<size_t>(view.cy), Space::Free) {}

Space& CPlanSpace::At(int x, int y) {
    return m_pixels[static_cast<size_t>(y) * static_cast<size_t>(m_view.Width()) + static_cast<size_t>(x)];
}

void CPlanSpace::Put(const CRect& rect, Space space) {
    const CRect seen = rect & m_view;
    for (int y = seen.top; y < seen.bottom; ++y)
        for (int x = seen.left; x < seen.right; ++x)
            At(x, y) = std::max(At(x, y), space);
}

void CPlanSpace::PutLine(CPoint start, CPoint end, Space space) {
    const int nSteps = std::max<int>(std::max(std::abs(end.x - start.x), std::abs(end.y - start.y)), 1);
    for (int i = 0; i <= nSteps; ++i) {
        const CPoint pixel(start.x + (end.x - start.x) * i / nSteps,
                           start.y + (end.y - start.y) * i / nSteps);
        Put(CRect(pixel, CSize(1, 1)), space);
    }
}

Space CPlanSpace::WorstIn(const CRect& rect) const {
    Space worst = Space::Free;
    for (int y = rect.top; y < rect.bottom && worst != Space::Taken; ++y) {
        const auto row = m_pixels.begin() + static_cast<ptrdiff_t>(y) * m_view.Width();
        worst = std::max(worst, *std::max_element(row + rect.left, row + rect.right));
    }
    return worst;
}

bool CPlanSpace::PlaceName(const CRect& mark, CSize name, Space worst, CRect& place) {
    if (name.cx <= 0 || name.cy <= 0)
        return false;
    const CRect* pBest = nullptr;
    const std::vector<CRect> places = PlacesAround(mark, name);
    Space best = Space::Taken;
    for (const CRect& candidate : places) {
        if ((candidate & m_view) != candidate)
            continue;
        const Space found = WorstIn(candidate);
        if (found <= worst && found < best) {
            best = found;
            pBest = &candidate;
        }
    }
    if (pBest == nullptr)
        return false;
    place = *pBest;
    Put(place, Space::Taken);
    return true;
}

CRect CPlanSpace::TakeCorner(CSize size, int nEdge, std::initializer_list<Corner> corners) {
    const auto placeIn = [&](Corner corner) {
        const bool bRight = corner == Corner::TopRight || corner == Corner::BottomRight;
        const bool bBottom = corner == Corner::BottomLeft || corner == Corner::BottomRight;
        return CRect(CPoint(bRight ? m_view.right - nEdge - size.cx : m_view.left + nEdge,
                            bBottom ? m_view.bottom - nEdge - size.cy : m_view.top + nEdge),
                     size);
    };
    // A line is no reason to go: it goes on beside the place, and a mark does not.
    const auto worstIn = [&](Corner corner) {
        return std::max(WorstIn(placeIn(corner) & m_view), Space::Line);
    };
    const Corner best = *std::min_element(corners.begin(), corners.end(),
                                          [&](Corner a, Corner b) { return worstIn(a) < worstIn(b); });
    Put(placeIn(best), Space::Taken);
    return placeIn(best);
}
