/// @file
/// CPlanScale: from survey coordinates to pixels.
#pragma once

#include "compute/LocalPlane.h"

#include <afxwin.h>

/// North is up, and the scale is the same both ways. Pixels count to the right and down from the
/// view's left upper corner, with fractions.
class CPlanScale {
public:
    CPlanScale() = default;
    /// The largest scale that shows a box with some margin around it. A box without any size is
    /// shown in the middle.
    /// @param lo,hi south-west and north-east corner
    /// @param view  pixels
    /// @param nDpi  of the screen
    CPlanScale(const CCoordinate& lo, const CCoordinate& hi, CSize view, int nDpi = AFX_DESIGN_DPI);

    CVector ToPixel(const CCoordinate& point) const;
    /// Pixels for one metre.
    double GetFactor() const { return m_dFactor; }

    /// Larger (dTimes > 1) or smaller about the middle of the view, as far as it is of use.
    CPlanScale Zoomed(double dTimes) const;
    /// @param pixels how far the plan goes to the right and down
    CPlanScale Panned(CSize pixels) const;

    /// The same about the middle of a view of another size.
    CPlanScale Resized(CSize view) const;

private:
    CLocalPlane m_plane{CCoordinate()}; ///< Its origin is in the middle of the view.
    CSize m_view;
    double m_dFactor = 1;
    double m_dSmallest = 1; ///< The plan gets no smaller.
};

/// A scale bar: a length of 1, 2 or 5 times a power of ten metres.
struct CScaleBar {
    double dLength; ///< Metres.
    int nPixels;
};

/// The longest bar that fits.
/// @param dFactor    pixels for one metre
/// @param nMaxPixels 1 or more
CScaleBar FindScaleBar(double dFactor, int nMaxPixels);
/// The length as it stands at a bar, in m or km.
CString ScaleBarText(double dLength);
