/// @file
/// The parts of lines and arcs that lie in the view.
///
/// The system draws with whole numbers of limited range. What lies far outside of the view would
/// overflow them, so that only what is seen is handed on.
#pragma once

#include "geometry/Vector.h"

#include <atltypes.h>

#include <vector>

/// A piece of a line, in pixels.
struct CSegment {
    CVector start;
    CVector end;
};

/// Cuts a line off at the borders of a view.
/// @param bUnbounded the line goes on beyond both ends
/// @return false, with nothing changed, if no part of it is seen
bool ClipSegment(CSegment& segment, const CRect& view, bool bUnbounded);

/// The seen part of an arc as chords that keep to it within a quarter of a pixel.
/// @param centre  pixels, counted down
/// @param dRadius pixels, more than 0
/// @param dStart  radians, counter-clockwise from east on the screen
/// @param dSweep  radians to the left
std::vector<CSegment> ClipArc(const CVector& centre, double dRadius, double dStart, double dSweep,
                              const CRect& view);
