/// @file
/// CPlanDlg: a drawing to scale.
#pragma once

#include "controls/IconButton.h"
#include "controls/nDialog.h"

#include "points/PointBook.h"
#include "screens/PlanView.h"

/// The points that have a position, as given ones.
CDrawing DrawingOf(const std::vector<CNamedPoint>& points);

/// Shows a drawing on the whole screen. The pen drags it, buttons change the scale.
class CPlanDlg : public CnDialog {
public:
    /// @param drawing must outlive the dialog
    CPlanDlg(const CDrawing& drawing, const CString& strTitle, CWnd* pParent);

    /// The tap on a point chooses it and closes with IDOK. Call before DoModal.
    void SetPick() { m_bPick = true; }
    /// After IDOK the name of the point that was chosen.
    CString GetPicked() const { return m_strPicked; }

protected:
    BOOL OnInitDialog() override;

    afx_msg void OnZoomIn();
    afx_msg void OnZoomOut();
    afx_msg void OnZoomAll();
    /// The name of the point that was tapped stands in the title.
    afx_msg LRESULT OnPointTapped(WPARAM wParam, LPARAM lParam);

    DECLARE_MESSAGE_MAP()

private:
    const CDrawing& m_drawing;
    CString m_strTitle;
    CString m_strPicked;
    const CCoordinate* m_pCentre = nullptr; ///< Of the next larger plan: the point tapped last.
    bool m_bPick = false;
    CPlanView m_view;
    CIconButton m_zoomIn;
    CIconButton m_zoomOut;
    CIconButton m_zoomAll;
};
