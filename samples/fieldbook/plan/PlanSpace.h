/// @file
/// CPlanSpace: finds room in the plan for names, scale and arrow.
#pragma once

#include <atltypes.h>

#include <initializer_list>
#include <vector>

/// What stands in a pixel of the view; a higher one is the worse place for a name.
enum class Space : unsigned char { Free, Line, Mark, Taken };

enum class Corner { TopLeft, TopRight, BottomLeft, BottomRight };

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

    /// Takes a place in the first corner that no mark lies in; if there is none, in the first that is
    /// not taken.
    /// @param nEdge from the place to the borders of the view
    CRect TakeCorner(CSize size, int nEdge, std::initializer_list<Corner> corners);

private:
    Space WorstIn(const CRect& rect) const;
    Space& At(int x, int y);

    CRect m_view;
    std::vector<Space> m_pixels; ///< Row by row.
};
