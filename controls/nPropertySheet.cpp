#include "controls/nPropertySheet.h"

#include "controls/detail/CommandBar.h"

using namespace fieldkit::detail;

namespace {

/// A visible child, and in the low word the device's flags for a bar with a line below it.
constexpr DWORD kCommandBarStyle = WS_CHILD | WS_VISIBLE | 0x2800;

} // namespace

IMPLEMENT_DYNAMIC(CnPropertySheet, CPropertySheet)

// clang-format off
BEGIN_MESSAGE_MAP(CnPropertySheet, CPropertySheet)
    ON_WM_LBUTTONDOWN()
    ON_WM_WININICHANGE()
    ON_COMMAND(IDCANCEL, &CnPropertySheet::OnCancel)
END_MESSAGE_MAP()
// clang-format on

CnPropertySheet::CnPropertySheet(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage)
    : CPropertySheet(nIDCaption, pParentWnd, iSelectPage) {
    m_bFullScreen = TRUE;
}

CnPropertySheet::CnPropertySheet(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage)
    : CPropertySheet(pszCaption, pParentWnd, iSelectPage) {
    m_bFullScreen = TRUE;
}

void CnPropertySheet::SetOption(DWORD dwOption) {
    m_dwOption = dwOption;
}

/// The base class comes last: it lays out its pages in the window as it stands then, full
/// screen and with its command bar.
BOOL CnPropertySheet::OnInitDialog() {
    ModifyStyle(0, WS_MAXIMIZEBOX, SWP_NOSIZE);
    if (Has(OptionCommandBar) && m_wndCommandBar.Create(this, kCommandBarStyle, AFX_IDW_TOOLBAR))
        SetUpCommandBar(m_wndCommandBar);
    if (!Has(OptionOkButton))
        SHDoneButton(m_hWnd, SHDB_HIDE);
    ShowWindow(Has(OptionHidden) ? SW_HIDE : SW_SHOWMAXIMIZED);
    return CPropertySheet::OnInitDialog() != 0;
}

BOOL CnPropertySheet::PreTranslateMessage(MSG* pMsg) {
    const bool bEndingKey = pMsg->wParam == VK_RETURN || pMsg->wParam == VK_ESCAPE;
    if (pMsg->message == WM_KEYDOWN && bEndingKey)
        return TRUE;
    return CPropertySheet::PreTranslateMessage(pMsg);
}

void CnPropertySheet::OnCancel() {}

void CnPropertySheet::OnLButtonDown(UINT nFlags, CPoint point) {
    if (Has(OptionForwardPress))
        CWnd::OnLButtonDown(nFlags, point);
    else
        Default();
}

void CnPropertySheet::OnWinIniChange(LPCTSTR lpszSection) {
    CPropertySheet::OnWinIniChange(lpszSection);
}
