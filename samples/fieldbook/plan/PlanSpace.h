/// @file
/// CPlanSpace: finds room for names in the plan.
#pragma once

#include <atltypes.h>

#include <vector>

/// What stands in a pixel of the view; a higher one is the worse place for a name.
enum class Space : unsigned char { Free, Line, Mark, Taken };

/// Remembers what stands where in a view, pixel by pixel.
class CPlanSpace {
public:
    explicit CPlanSpace(CSize view);

    /// Notes what stands in a rectangle; the part outside of the view does not count.
    void Put(const CRect& rect, Space space);
    /// Notes a straight line. Both ends must lie in or on the borders of the view.
    void PutLine(CPoint start, CPoint end, Space space);

    /// Finds a place beside a mark where a name lies on nothing, or at least on nothing worse
    /// than allowed, and takes it.
    /// @param mark the square of the point's mark
    /// @param name size of the name
    /// @return false, with nothing written, if there is none within the view
    bool PlaceName(const CRect& mark, CSize name, Space worst, CRect& place);

private:
    Space WorstIn(const CRect& rect) const;
    Space& At(int x, int y);

    CRect m_view;
    std::vector<Space> m_pixels; ///< Row by row.
};
