#include "controls/nDialog.h"

#include "controls/detail/CommandBar.h"

#include <afxext.h>

#include <utility>

using namespace fieldkit::detail;

namespace {

constexpr SIZE kFrameThickness = {1, 1};
/// The device's screen between its bars, in pixels at AFX_DESIGN_DPI: fixed, so that a dialog moves
/// alike wherever the program runs.
constexpr RECT kDeviceDragArea = {0, 26, 240, 294};

/// Draws the drag frame on the screen by inverting it; the frame before, if there is one, is
/// inverted back in the same call.
void DrawFrame(const CRect& frame, const CRect* pPrevious) {
    CWindowDC screen(nullptr);
    screen.DrawDragRect(frame, kFrameThickness, pPrevious != nullptr ? LPCRECT(*pPrevious) : nullptr,
                        kFrameThickness);
}

} // namespace

// clang-format off
BEGIN_MESSAGE_MAP(CnDialog, CDialog)
    ON_WM_CLOSE()
    ON_WM_LBUTTONDOWN()
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONUP()
    ON_WM_CAPTURECHANGED()
    ON_WM_ENABLE()
    ON_WM_WININICHANGE()
    ON_WM_CTLCOLOR()
END_MESSAGE_MAP()
// clang-format on

CnDialog::CnDialog(UINT nIDTemplate, CWnd* pParentWnd) : CDialog(nIDTemplate, pParentWnd) {
    m_bFullScreen = TRUE;
}

void CnDialog::SetOption(DWORD dwOption) {
    m_dwOption |= dwOption;
    if (Has(OptionPopup))
        m_bFullScreen = FALSE;
}

void CnDialog::SetBKColor(DWORD crColor) {
    m_crBk = crColor;
    m_dwOption |= OptionBackgroundColor;
}

void CnDialog::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
}

BOOL CnDialog::OnInitDialog() {
    CDialog::OnInitDialog();
    SetIcon(m_hIcon, TRUE);
    SetIcon(m_hIcon, FALSE);
    if (Has(OptionBackgroundColor)) {
        m_brBk.DeleteObject(); // a second run of the same dialog object
        m_brBk.CreateSolidBrush(m_crBk);
    }
    if (!Has(OptionPopup))
        InitFullScreen();
    else if (Has(OptionOkButton))
        ModifyStyleEx(0, WS_EX_CAPTIONOKBTN, 0);
    if (Has(OptionNoCommandBar) && m_pWndEmptyCB != nullptr)
        m_pWndEmptyCB->DestroyWindow();
    if (Has(OptionHidden))
        ShowWindow(SW_HIDE);
    return TRUE;
}

void CnDialog::InitFullScreen() {
    ModifyStyle(0, WS_MAXIMIZEBOX, SWP_NOSIZE);
    if (auto* pBar = dynamic_cast<CCeCommandBar*>(m_pWndEmptyCB); pBar != nullptr && Has(OptionBarButtonSize))
        SetUpCommandBar(*pBar);
    if (!Has(OptionOkButton))
        SHDoneButton(m_hWnd, SHDB_HIDE);
    ShowWindow(SW_SHOWMAXIMIZED);
    // Showing the dialog has focused its first control. A derived class may attach that only
    // now: the focus comes again, and is noticed, when the initialisation is over.
    if (::IsChild(m_hWnd, ::GetFocus()))
        ::SetFocus(nullptr);
}

BOOL CnDialog::Anchor(UINT nID, int nLeft, int nTop, int nRight, int nBottom) {
    return AfxAnchorControl(::GetDlgItem(m_hWnd, static_cast<int>(nID)), {nLeft, nTop, nRight, nBottom});
}

// --- Ending ----------------------------------------------------------------------------------

void CnDialog::OnOK() {
    CDialog::OnOK();
}
void CnDialog::OnCancel() {
    CDialog::OnCancel();
}
void CnDialog::OnClose() {
    OnCancel();
}

BOOL CnDialog::PreTranslateMessage(MSG* pMsg) {
    const bool bEndingKey = pMsg->wParam == VK_RETURN || pMsg->wParam == VK_ESCAPE;
    if (pMsg->message == WM_KEYDOWN && Has(OptionSwallowKeys) && bEndingKey)
        return TRUE;
    // The device's screen knows no hovering: a move without contact, which desktop mice and
    // touch screens report before each press, is not for the dialog's surface.
    const bool bHover = pMsg->message == WM_MOUSEMOVE && !(pMsg->wParam & (MK_LBUTTON | MK_RBUTTON));
    if (bHover && pMsg->hwnd == m_hWnd)
        return TRUE;
    return CDialog::PreTranslateMessage(pMsg);
}

// --- Colours ---------------------------------------------------------------------------------

HBRUSH CnDialog::OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor) {
    const HBRUSH hDefault = CDialog::OnCtlColor(pDC, pWnd, nCtlColor);
    if (!Has(OptionBackgroundColor))
        return hDefault;
    if (pWnd == this)
        return m_brBk;
    if (nCtlColor != CTLCOLOR_STATIC)
        return hDefault;
    pDC->SetBkMode(TRANSPARENT);
    return m_brBk;
}

// --- Dragging --------------------------------------------------------------------------------

void CnDialog::OnLButtonDown(UINT nFlags, CPoint point) {
    if (Has(OptionDrag)) {
        HideFrame();
        GetWindowRect(m_rcDrag);
        ShowFrame(m_rcDrag);
        m_ptPress = point;
        SetCapture();
    }
    if (Has(OptionForwardPress))
        CWnd::OnLButtonDown(nFlags, point);
    else
        Default();
}

/// Draws the frame at its new place and, in the same call, erases it at the old one.
void CnDialog::ShowFrame(const CRect& frame) {
    DrawFrame(frame, m_bFrameShown ? &m_rcDrag : nullptr);
    m_rcDrag = frame;
    m_bFrameShown = true;
}

void CnDialog::HideFrame() {
    if (std::exchange(m_bFrameShown, false))
        DrawFrame(m_rcDrag, nullptr);
}

/// Something has come in between, as a dialog that opens: what the pen does before its next
/// press here belongs to that.
void CnDialog::AbandonDrag() {
    HideFrame();
    m_rcDrag.SetRectEmpty();
    m_ptPress.reset();
}

CRect CnDialog::GetDragArea() const {
    const RECT& area = kDeviceDragArea;
    return {AfxScale(m_hWnd, area.left), AfxScale(m_hWnd, area.top), AfxScale(m_hWnd, area.right),
            AfxScale(m_hWnd, area.bottom)};
}

/// Where the frame goes for a pen at `point` (client coordinates), kept in reach.
CRect CnDialog::DragCandidate(CPoint point) const {
    const CRect area = GetDragArea();
    CRect frame;
    GetWindowRect(frame);
    frame.OffsetRect(point - *m_ptPress);
    if (frame.top < area.top)
        frame.OffsetRect(0, area.top - frame.top);
    else if (frame.bottom > area.bottom)
        frame.OffsetRect(0, area.bottom - frame.bottom);
    // At the right the frame may hang out until its left edge has left the screen too; then
    // it comes back whole, in one jump.
    if (frame.left < area.left)
        frame.OffsetRect(area.left - frame.left, 0);
    else if (frame.left > area.right)
        frame.OffsetRect(area.right - frame.right, 0);
    return frame;
}

void CnDialog::OnMouseMove(UINT, CPoint point) {
    if (Has(OptionDrag) && m_ptPress) {
        const CRect candidate = DragCandidate(point);
        if (!candidate.EqualRect(m_rcDrag))
            ShowFrame(candidate);
    }
    Default();
}

void CnDialog::OnLButtonUp(UINT nFlags, CPoint point) {
    // An empty frame is none: the pen came down elsewhere, on a dialog that has closed.
    if (Has(OptionDrag) && !m_rcDrag.IsRectEmpty()) {
        HideFrame();
        CRect place = m_rcDrag;
        // A child stands in its parent's coordinates. For a popup GetParent gives the owner,
        // whose coordinates are not the popup's.
        if (GetStyle() & WS_CHILD)
            GetParent()->ScreenToClient(place);
        ReleaseCapture();
        MoveWindow(place.left, place.top, place.Width(), place.Height(), TRUE);
        RedrawWindow(nullptr, nullptr, 0);
    }
    CDialog::OnLButtonUp(nFlags, point);
}

void CnDialog::OnCaptureChanged(CWnd* pWnd) {
    if (m_bFrameShown && pWnd != this)
        AbandonDrag();
    CDialog::OnCaptureChanged(pWnd);
}

void CnDialog::OnEnable(BOOL bEnable) {
    if (!bEnable)
        AbandonDrag();
    CDialog::OnEnable(bEnable);
}

void CnDialog::OnWinIniChange(LPCTSTR lpszSection) {
    CDialog::OnWinIniChange(lpszSection);
}
