/// @file
/// CPlanPainter: paints a drawing on a device context.
#pragma once

#include "plan/Drawing.h"
#include "plan/PlanClip.h"
#include "plan/PlanScale.h"
#include "plan/PlanSpace.h"

#include <afxwin.h>

/// The fonts of a plan.
struct CPlanFonts {
    CFont given;
    CFont result;
    int nDpi = AFX_DESIGN_DPI; ///< The resolution for which they are made.

    /// @param like their face
    void Create(const CFont& like, int nResolution = AFX_DESIGN_DPI);
};

/// Paints one picture: lines and arcs, points with their names, scale bar and north arrow. A name
/// for which there is no room is left out until the plan is zoomed; names of results come first. Bar
/// and arrow go to corners without marks, and over the marks if there are none.
class CPlanPainter {
public:
    /// All must outlive the painter.
    /// @param dc   its clipping, fonts and colours are changed
    /// @param view size of the picture in pixels
    CPlanPainter(CDC& dc, CSize view, const CPlanScale& scale, CPlanFonts& fonts);

    void Paint(const CDrawing& drawing);

private:
    /// A length that is stated for AFX_DESIGN_DPI.
    int Px(int nPixels) const { return ::MulDiv(nPixels, m_fonts.nDpi, AFX_DESIGN_DPI); }
    void PaintLines(const CDrawing& drawing, Role role);
    void PaintPieces(const std::vector<CSegment>& pieces, Role role);
    /// @param seen points in the view
    void PaintPoints(std::vector<const CDrawnPoint*> seen);
    std::vector<const CDrawnPoint*> FindSeen(const std::vector<CDrawnPoint>& points);
    CRect TakeBarPlace(const CScaleBar& bar);
    void PaintScaleBar(const CScaleBar& bar, const CRect& place);
    CRect TakeArrowPlace();
    void PaintNorthArrow(const CRect& place);
    /// @return false if there is no room for it
    bool PaintName(const CDrawnPoint& point);
    /// @param points all in the view and of that role
    void PaintMarks(const std::vector<const CDrawnPoint*>& points, Role role);
    /// @return false if the point is not in the view
    bool FindMark(const CDrawnPoint& point, CRect& mark) const;

    CDC& m_dc;
    CRect m_view;
    const CPlanScale& m_scale;
    CPlanFonts& m_fonts;
    CPlanSpace m_space;
};
