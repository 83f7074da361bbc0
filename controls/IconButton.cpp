#include "controls/IconButton.h"

namespace {

constexpr COLORREF kPushedBackground = RGB(0, 0, 0);
constexpr COLORREF kPushedText = RGB(255, 255, 255);

/// How far the contents of a pressed button sink to the right and down, at AFX_DESIGN_DPI.
constexpr int kSink = 1;

} // namespace

// clang-format off
BEGIN_MESSAGE_MAP(CIconButton, CButton)
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_LBUTTONDBLCLK()
END_MESSAGE_MAP()
// clang-format on

BOOL CIconButton::Attach(UINT nID, CWnd* pParent, HICON hIcon, int nStyle) {
    if (!SubclassDlgItem(nID, pParent))
        return FALSE;
    m_hIcon = hIcon;
    m_nStyle = static_cast<UINT>(nStyle);
    return TRUE;
}

void CIconButton::Redraw() {
    if (m_hWnd != nullptr) // without a window the system would redraw all there are
        Invalidate(FALSE);
}

HICON CIconButton::SetIcon(HICON hIcon) {
    const HICON hOld = m_hIcon;
    if (hIcon != hOld) {
        m_hIcon = hIcon;
        Redraw();
    }
    return hOld;
}

void CIconButton::SetIconSize(SIZE* pSize) {
    if (pSize != nullptr)
        m_sizeIcon = *pSize;
}

void CIconButton::SetButtonStyle(UINT nStyle) {
    if (nStyle == m_nStyle)
        return;
    m_nStyle = nStyle;
    if (!Has(StyleToggle))
        m_bPush = FALSE;
    Redraw();
}

void CIconButton::SetPush(BOOL bPush) {
    const BOOL bNew = bPush ? TRUE : FALSE;
    if (!Has(StyleToggle) || bNew == m_bPush)
        return;
    m_bPush = bNew;
    Redraw();
}

BOOL CIconButton::GetPush() {
    return m_bPush;
}

// --- Drawing ---------------------------------------------------------------------------------

void CIconButton::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) {
    const UINT nAction = lpDrawItemStruct->itemAction;
    const UINT nState = lpDrawItemStruct->itemState;
    CRect rect(lpDrawItemStruct->rcItem);
    CDC& dc = *CDC::FromHandle(lpDrawItemStruct->hDC);
    const AfxSavedDC saved(dc); // the system draws the next button with it, too
    if (nAction & (ODA_DRAWENTIRE | ODA_SELECT))
        DrawFace(dc, rect, (nState & ODS_SELECTED) != 0 || m_bPush);
    if (!Has(StyleFocus) || ((nState & ODS_FOCUS) == 0 && (nAction & ODA_FOCUS) == 0))
        return;
    // Drawn by inverting: when the focus goes, the same drawing takes it away.
    rect.DeflateRect(::GetSystemMetrics(SM_CXBORDER) + 1, ::GetSystemMetrics(SM_CYBORDER) + 1);
    dc.DrawFocusRect(rect);
}

void CIconButton::DrawFace(CDC& dc, const CRect& rect, bool bPushed) const {
    CRect frame = rect;
    dc.DrawFrameControl(frame, DFC_BUTTON, static_cast<UINT>(DFCS_BUTTONPUSH | (bPushed ? DFCS_PUSHED : 0)));
    const CSize size(AfxScale(m_hWnd, m_sizeIcon.cx), AfxScale(m_hWnd, m_sizeIcon.cy));
    const int nSink = AfxScale(m_hWnd, kSink);
    CPoint place;
    place.y = (rect.Height() - size.cy) / 2;
    place.x = Has(StyleText) ? place.y : (rect.Width() - size.cx) / 2;
    if (bPushed) {
        place.Offset(nSink, nSink);
        dc.SetBkColor(kPushedBackground);
        dc.SetTextColor(kPushedText);
    }
    const CSize drawn = size == m_sizeIcon ? CSize() : size; // none: the icon's own
    ::DrawIconEx(dc, place.x, place.y, m_hIcon, drawn.cx, drawn.cy, 0, nullptr, DI_NORMAL);
    if (!Has(StyleText))
        return;
    CRect text = rect;
    text.left = 2 * place.x + size.cx; // the same margin on both sides of the icon
    if (bPushed)
        text.OffsetRect(0, nSink);
    CString str;
    GetWindowText(str);
    dc.DrawText(str, text, DT_SINGLELINE | DT_VCENTER);
}

// --- Stylus ----------------------------------------------------------------------------------

void CIconButton::OnLButtonDown(UINT, CPoint) {
    Default();
}

void CIconButton::OnLButtonUp(UINT, CPoint point) {
    CRect client;
    GetClientRect(client);
    if (Has(StyleToggle) && client.PtInRect(point))
        m_bPush = !m_bPush;
    Default();
}

/// The second of two quick taps is a press like the first, so that none is lost.
void CIconButton::OnLButtonDblClk(UINT, CPoint) {
    GetCurrentMessage()->message = WM_LBUTTONDOWN;
    Default();
}
