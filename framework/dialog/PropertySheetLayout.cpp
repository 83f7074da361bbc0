// A property sheet on the device's screen: the system makes it as large as the desktop
// likes, so it is laid out again.
#include "shell/DeviceCaption.h"
#include "afxdlgs.h"

#include <utility>

using namespace fieldkit::detail;

namespace {

// Pixels at AFX_DESIGN_DPI.
constexpr int kWizardButtonHeight = 22;
constexpr int kWizardButtonGap = 2;

void Place(HWND hWnd, const CRect& rect) {
    ::SetWindowPos(hWnd, nullptr, rect.left, rect.top, rect.Width(), rect.Height(),
                   SWP_NOZORDER | SWP_NOACTIVATE);
}

} // namespace

LRESULT CPropertySheet::HandleInitDialog(WPARAM, LPARAM) {
    return OnInitDialog();
}

BOOL CPropertySheet::OnInitDialog() {
    Default();
    if (!m_bStacked && GetTabControl() != nullptr)
        GetTabControl()->ModifyStyle(TCS_MULTILINE, 0);
    if (GetStyle() & WS_CHILD)
        return TRUE;
    if (m_bFullScreen) {
        EnterFullScreen();
        return TRUE;
    }
    if (!(m_nFlags & WF_MODALLOOP))
        CutOffButtons();
    CenterWindow();
    return TRUE;
}

/// A modeless sheet ends below its tabs.
void CPropertySheet::CutOffButtons() {
    HideButtons();
    CRect tab;
    GetTabControl()->GetWindowRect(tab);
    CRect window;
    GetWindowRect(window);
    CRect client;
    GetClientRect(client);
    ClientToScreen(client);
    const int nMargin = tab.left - client.left;
    const int nExcess = client.bottom - tab.bottom - nMargin;
    SetWindowPos(nullptr, 0, 0, window.Width(), window.Height() - nExcess,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void CPropertySheet::EnterFullScreen() {
    const bool bOkButton = (m_nFlags & WF_OKBUTTON) != 0;
    CDeviceCaption::EnterFullScreen(this);
    if (!bOkButton)
        CDeviceCaption::ShowOkButton(this, FALSE);
    if (::GetDlgItem(m_hWnd, static_cast<int>(AFX_IDW_TOOLBAR)) == nullptr) {
        auto pBar = std::make_unique<CCeCommandBar>();
        pBar->Create(this);
        m_pEmptyBar = std::move(pBar);
        m_pWndEmptyCB = m_pEmptyBar.get();
    }
    if (!(m_psh.dwFlags & PSH_WIZARD))
        HideButtons();
    LayOut();
}

void CPropertySheet::HideButtons() {
    for (const int nID : {IDOK, IDCANCEL, static_cast<int>(ID_APPLY_NOW), IDHELP})
        if (const HWND hButton = ::GetDlgItem(m_hWnd, nID))
            ::ShowWindow(hButton, SW_HIDE);
}

void CPropertySheet::OnSize(UINT nType, int cx, int cy) {
    CWnd::OnSize(nType, cx, cy);
    LayOut();
}

/// Tabs and pages get what the title bar and the command bar leave of a full screen.
void CPropertySheet::LayOut() {
    const HWND hTab = ::GetDlgItem(m_hWnd, static_cast<int>(AFX_IDC_TAB_CONTROL));
    if (!IsFullScreen() || hTab == nullptr)
        return;
    CRect area;
    GetClientRect(area);
    if (::GetDlgItem(m_hWnd, static_cast<int>(AFX_IDW_TOOLBAR)) != nullptr)
        area.bottom -= AfxScale(m_hWnd, AFX_DEVICE_BAR_HEIGHT);
    if (m_psh.dwFlags & PSH_WIZARD)
        area = LayOutWizardButtons(area);
    Place(hTab, area);
    for (const CPropertyPage* pPage : m_pages)
        if (pPage->m_hWnd != nullptr)
            Place(pPage->m_hWnd, PageRect());
}

/// Puts the buttons side by side at the bottom. @return what they leave
CRect CPropertySheet::LayOutWizardButtons(CRect area) {
    const int nHeight = AfxScale(m_hWnd, kWizardButtonHeight);
    const int nGap = AfxScale(m_hWnd, kWizardButtonGap);
    const int nTop = area.bottom - nHeight;
    // Finish takes the place of Next.
    const struct {
        UINT nID;
        int nColumn;
    } buttons[] = {{ID_WIZBACK, 0}, {ID_WIZNEXT, 1}, {ID_WIZFINISH, 1}, {IDCANCEL, 2}};
    const int nWidth = area.Width() / 3;
    for (const auto& button : buttons)
        if (const HWND hButton = ::GetDlgItem(m_hWnd, static_cast<int>(button.nID)))
            Place(hButton,
                  CRect(CPoint(area.left + button.nColumn * nWidth, nTop), CSize(nWidth - nGap, nHeight)));
    area.bottom = nTop - nGap;
    return area;
}

/// Where the pages stand, in client coordinates.
CRect CPropertySheet::PageRect() const {
    CRect rect;
    const HWND hTab = ::GetDlgItem(m_hWnd, static_cast<int>(AFX_IDC_TAB_CONTROL));
    ::GetWindowRect(hTab, rect);
    ScreenToClient(rect);
    if (!(m_psh.dwFlags & PSH_WIZARD)) // a wizard's tabs are not shown
        ::SendMessage(hTab, TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(static_cast<LPRECT>(rect)));
    return rect;
}
