/// @file
/// CPlanDlg: a drawing to scale.
#pragma once

#include "controls/IconButton.h"
#include "controls/nDialog.h"

#include "screens/PlanView.h"

/// Shows a drawing on the whole screen. The pen drags it, buttons change the scale.
class CPlanDlg : public CnDialog {
public:
    /// @param drawing must outlive the dialog
    CPlanDlg(const CDrawing& drawing, CWnd* pParent);

protected:
    BOOL OnInitDialog() override;

    afx_msg void OnZoomIn();
    afx_msg void OnZoomOut();
    afx_msg void OnZoomAll();

    DECLARE_MESSAGE_MAP()

private:
    const CDrawing& m_drawing;
    CPlanView m_view;
    CIconButton m_zoomIn;
    CIconButton m_zoomOut;
    CIconButton m_zoomAll;
};
