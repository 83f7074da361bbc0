#include "controls/InfoStatic.h"

#include "Tesuvo.h"

namespace {

// Pixels at AFX_DESIGN_DPI.
constexpr int kIndent = 2;
constexpr int kIconSize = 16;

} // namespace

// clang-format off
BEGIN_MESSAGE_MAP(CInfoStatic, CStatic)
    ON_WM_PAINT()
    ON_WM_ENABLE()
    ON_MESSAGE(WM_SETTEXT, &CInfoStatic::OnSetText)
    ON_WM_LBUTTONDOWN()
END_MESSAGE_MAP()
// clang-format on

void CInfoStatic::SetOption(DWORD dwOption) {
    m_dwOption = dwOption;
}

void CInfoStatic::SetBkColor(DWORD crColor) {
    m_crBk = crColor;
}

void CInfoStatic::OnPaint() {
    CPaintDC dc(this);
    CRect rect;
    GetClientRect(rect);
    dc.FillSolidRect(rect, m_crBk);
    int nIndent = kIndent;
    if (m_dwOption & OptionIcon) {
        const int nSize = AfxScale(m_hWnd, kIconSize);
        ::DrawIconEx(dc, 0, 0, TVGetCommonIcon(TVICON_INFORMATION), nSize, nSize, 0, nullptr, DI_NORMAL);
        nIndent = kIconSize;
    }
    CString str;
    GetWindowText(str);
    dc.SetBkMode(OPAQUE);
    dc.SetBkColor(m_crBk);
    rect.left += AfxScale(m_hWnd, nIndent);
    // The dialog's font. A static without one has the system's, as the device context has.
    const AfxSavedDC saved(dc);
    if (CFont* const pFont = GetFont())
        dc.SelectObject(pFont);
    dc.DrawText(str, rect, DT_SINGLELINE | DT_VCENTER);
}

/// The system's static draws itself at once when its text or state changes, in its own look.
LRESULT CInfoStatic::OnSetText(WPARAM wParam, LPARAM lParam) {
    const LRESULT lResult = ::DefWindowProc(m_hWnd, WM_SETTEXT, wParam, lParam);
    Invalidate(FALSE);
    return lResult;
}

/// It looks the same; the system's would draw itself.
void CInfoStatic::OnEnable(BOOL) {}

void CInfoStatic::OnLButtonDown(UINT, CPoint) {
    Default();
}
