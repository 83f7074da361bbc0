#include "screens/PlanDlg.h"

#include "compute/Compute.h"
#include "screens/Resource.h"

#include <utility>

namespace {

constexpr double kZoomStep = 2;
constexpr int kIconSize = 16; // pixels at AFX_DESIGN_DPI

/// An icon of the application. The system keeps it; it is not to be destroyed.
HICON LoadSmallIcon(UINT nId) {
    return static_cast<HICON>(::LoadImage(AfxGetResourceHandle(), MAKEINTRESOURCE(nId), IMAGE_ICON, kIconSize,
                                          kIconSize, LR_SHARED)); // the button enlarges it
}

} // namespace

// clang-format off
BEGIN_MESSAGE_MAP(CPlanDlg, CnDialog)
    ON_BN_CLICKED(IDC_ZOOM_IN, &CPlanDlg::OnZoomIn)
    ON_BN_CLICKED(IDC_ZOOM_OUT, &CPlanDlg::OnZoomOut)
    ON_BN_CLICKED(IDC_ZOOM_ALL, &CPlanDlg::OnZoomAll)
    ON_MESSAGE(WM_POINT_TAPPED, &CPlanDlg::OnPointTapped)
END_MESSAGE_MAP()
// clang-format on

CDrawing DrawingOf(const std::vector<CNamedPoint>& points) {
    CDrawing drawing;
    for (const CNamedPoint& point : points)
        if (HasPosition(point.point))
            drawing.AddPoint(point.strName, point.point, Role::Given);
    return drawing;
}

CPlanDlg::CPlanDlg(const CDrawing& drawing, const CString& strTitle, CWnd* pParent)
    : CnDialog(IDD_PLAN, pParent), m_drawing(drawing), m_strTitle(strTitle) {
    SetOption(OptionOkButton);
}

BOOL CPlanDlg::OnInitDialog() {
    CnDialog::OnInitDialog();
    Anchor(IDC_PLAN, 0, 0, 100, 100);
    Anchor(IDC_ZOOM_IN, 0, 100, 33, 100);
    Anchor(IDC_ZOOM_OUT, 33, 100, 67, 100);
    Anchor(IDC_ZOOM_ALL, 67, 100, 100, 100);
    SetWindowText(m_strTitle);
    m_view.Attach(IDC_PLAN, this, m_drawing);
    m_zoomIn.Attach(IDC_ZOOM_IN, this, LoadSmallIcon(IDI_ZOOM_IN), CIconButton::StyleText);
    m_zoomOut.Attach(IDC_ZOOM_OUT, this, LoadSmallIcon(IDI_ZOOM_OUT), CIconButton::StyleText);
    m_zoomAll.Attach(IDC_ZOOM_ALL, this, LoadSmallIcon(IDI_ZOOM_ALL), CIconButton::StyleText);
    return TRUE;
}

LRESULT CPlanDlg::OnPointTapped(WPARAM wParam, LPARAM) {
    m_strPicked = m_drawing.GetPoints()[wParam].strName;
    m_pCentre = &m_drawing.GetPoints()[wParam].point;
    SetWindowText(m_strTitle + L"  " + m_strPicked);
    if (m_bPick)
        EndDialog(IDOK);
    return 0;
}

/// Who has tapped a point wants to see what is around it.
void CPlanDlg::OnZoomIn() {
    if (m_pCentre != nullptr)
        m_view.Centre(*std::exchange(m_pCentre, nullptr));
    m_view.Zoom(kZoomStep);
}

void CPlanDlg::OnZoomOut() {
    m_view.Zoom(1 / kZoomStep);
}

void CPlanDlg::OnZoomAll() {
    m_view.ShowAll();
}
