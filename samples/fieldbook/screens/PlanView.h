/// @file
/// CPlanView: the control that shows a plan.
#pragma once

#include "plan/PlanPainter.h"

/// Sent to the parent: the index of the point that was tapped.
constexpr UINT WM_POINT_TAPPED = WM_APP + 1;

/// Shows a drawing to scale, north up, with a scale bar. The pen drags the plan.
///
/// It takes over a static control with the style SS_NOTIFY.
class CPlanView : public CWnd {
public:
    /// Takes over a control of a dialog and shows the whole drawing.
    /// @param drawing must outlive the view
    /// @return FALSE if there is no such control
    BOOL Attach(UINT nID, CWnd* pParent, const CDrawing& drawing);

    /// @param dTimes more than 1 for a larger plan; its middle stays
    void Zoom(double dTimes);
    void ShowAll();
    /// The plan goes so far that a point lies in its middle.
    void Centre(const CCoordinate& point);

protected:
    afx_msg void OnPaint();
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);

    DECLARE_MESSAGE_MAP()

private:
    void Tap(CPoint point);
    CSize GetSize() const;
    void SetScale(const CPlanScale& scale);
    void Paint(CDC& dc);
    void PaintEmpty(CDC& dc);

    const CDrawing* m_pDrawing = nullptr;
    CPlanScale m_scale;
    CPlanFonts m_fonts;
    CPoint m_ptPen;          ///< Where the pen was last while it drags.
    bool m_bDragged = false; ///< Since the pen is down.
};
