#include "screens/PlanView.h"

#include "plan/PlanPick.h"
#include "screens/Resource.h"
#include "screens/Text.h"

#include <cmath>
#include <cstdlib>

// clang-format off
BEGIN_MESSAGE_MAP(CPlanView, CWnd)
    ON_WM_PAINT()
    ON_WM_SIZE()
    ON_WM_ERASEBKGND()
    ON_WM_LBUTTONDOWN()
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONUP()
END_MESSAGE_MAP()
// clang-format on

BOOL CPlanView::Attach(UINT nID, CWnd* pParent, const CDrawing& drawing) {
    if (!SubclassDlgItem(nID, pParent))
        return FALSE;
    m_pDrawing = &drawing;
    if (CFont* pFont = pParent->GetFont())
        m_fonts.Create(*pFont, AfxGetDpi(m_hWnd));
    ShowAll();
    return TRUE;
}

void CPlanView::ShowAll() {
    CCoordinate lo;
    CCoordinate hi;
    if (m_pDrawing->GetExtent(lo, hi))
        SetScale(CPlanScale(lo, hi, GetSize(), AfxGetDpi(m_hWnd)));
}

void CPlanView::Zoom(double dTimes) {
    SetScale(m_scale.Zoomed(dTimes));
}

void CPlanView::Centre(const CCoordinate& point) {
    const CVector pixel = m_scale.ToPixel(point);
    const CSize size = GetSize();
    SetScale(m_scale.Panned({static_cast<int>(std::lround(size.cx / 2.0 - pixel.GetX())),
                             static_cast<int>(std::lround(size.cy / 2.0 - pixel.GetY()))}));
}

void CPlanView::SetScale(const CPlanScale& scale) {
    m_scale = scale;
    Invalidate(FALSE);
}

/// Turning the device keeps what is in the middle.
void CPlanView::OnSize(UINT nType, int cx, int cy) {
    CWnd::OnSize(nType, cx, cy);
    SetScale(m_scale.Resized({cx, cy}));
}

CSize CPlanView::GetSize() const {
    CRect client;
    GetClientRect(client);
    return client.Size();
}

BOOL CPlanView::OnEraseBkgnd(CDC*) {
    return TRUE; // everything is painted at once in OnPaint, so that nothing flickers
}

void CPlanView::OnPaint() {
    CPaintDC dc(this);
    const CSize size = GetSize();
    CBitmap bitmap; // made before its context and so deleted after it
    CDC memory;
    if (!memory.CreateCompatibleDC(&dc) || !bitmap.CreateCompatibleBitmap(&dc, size.cx, size.cy)) {
        Paint(dc);
        return;
    }
    memory.SelectObject(&bitmap);
    Paint(memory);
    dc.BitBlt(0, 0, size.cx, size.cy, &memory, 0, 0, SRCCOPY);
}

void CPlanView::Paint(CDC& dc) {
    const AfxSavedDC saved(dc);
    if (m_pDrawing->IsEmpty())
        PaintEmpty(dc);
    else
        CPlanPainter(dc, GetSize(), m_scale, m_fonts).Paint(*m_pDrawing);
}

void CPlanView::PaintEmpty(CDC& dc) {
    CRect client;
    GetClientRect(client);
    dc.FillSolidRect(client, RGB(255, 255, 255));
    dc.SelectObject(&m_fonts.given);
    dc.DrawText(Text(IDS_NO_DRAWING), client, DT_SINGLELINE | DT_CENTER | DT_VCENTER);
}

void CPlanView::OnLButtonDown(UINT, CPoint point) {
    m_ptPen = point;
    m_bDragged = false;
    SetCapture();
}

void CPlanView::OnMouseMove(UINT, CPoint point) {
    constexpr int kTremble = 4; // pixels at AFX_DESIGN_DPI that a pen on its spot may move
    const int nTremble = AfxScale(m_hWnd, kTremble);
    const CSize way = point - m_ptPen;
    if (GetCapture() != this || way == CSize() ||
        (!m_bDragged && std::abs(way.cx) <= nTremble && std::abs(way.cy) <= nTremble))
        return;
    m_bDragged = true;
    SetScale(m_scale.Panned(point - m_ptPen));
    m_ptPen = point;
}

void CPlanView::OnLButtonUp(UINT, CPoint point) {
    if (GetCapture() != this)
        return;
    ::ReleaseCapture();
    if (!m_bDragged)
        Tap(point);
}

void CPlanView::Tap(CPoint point) {
    constexpr int kReach = 24; // of a finger, in pixels at AFX_DESIGN_DPI
    const std::optional<size_t> found = NearestPoint(*m_pDrawing, m_scale, point, AfxScale(m_hWnd, kReach));
    if (found)
        GetParent()->SendMessage(WM_POINT_TAPPED, *found);
}
