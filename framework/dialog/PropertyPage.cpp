#include "window/DialogKeys.h"
#include "DialogTemplate.h"
#include "window/Resources.h"
#include "window/WndProc.h"
#include "afxdlgs.h"

using namespace fieldkit::detail;

IMPLEMENT_DYNAMIC(CPropertyPage, CDialog)

// clang-format off
BEGIN_MESSAGE_MAP(CPropertyPage, CDialog)
    ON_MESSAGE(WM_INITDIALOG, &CPropertyPage::OnInitPage)
    ON_WM_WINDOWPOSCHANGING()
    ON_WM_WINDOWPOSCHANGED()
END_MESSAGE_MAP()
// clang-format on

struct AfxPageAccess {
    /// Everything goes through the message map.
    static INT_PTR CALLBACK DlgProc(HWND, UINT, WPARAM, LPARAM) { return FALSE; }

    /// The next window that is created is the page's.
    static UINT CALLBACK OnCallback(HWND, UINT uMsg, LPPROPSHEETPAGE ppsp) {
        if (uMsg != PSPCB_CREATE)
            return TRUE;
        auto* pPage = reinterpret_cast<CPropertyPage*>(ppsp->lParam);
        pPage->m_pHook.reset();
        AfxCallGuarded({}, [pPage] {
            pPage->m_pHook = std::make_unique<CCreateHook>(pPage);
            return 0;
        });
        return pPage->m_pHook != nullptr;
    }
};

// --- Construction ---------------------------------------------------------------------------

CPropertyPage::CPropertyPage() {
    m_bFullScreen = FALSE;
    m_psp.dwSize = sizeof m_psp;
}

CPropertyPage::CPropertyPage(LPCTSTR lpszTemplateName, UINT nIDCaption) : CPropertyPage() {
    Construct(lpszTemplateName, nIDCaption);
}

CPropertyPage::CPropertyPage(UINT nIDTemplate, UINT nIDCaption)
    : CPropertyPage(MAKEINTRESOURCE(nIDTemplate), nIDCaption) {}

void CPropertyPage::Construct(UINT nIDTemplate, UINT nIDCaption) {
    Construct(MAKEINTRESOURCE(nIDTemplate), nIDCaption);
}

void CPropertyPage::Construct(LPCTSTR lpszTemplateName, UINT nIDCaption) {
    m_lpszTemplateName = lpszTemplateName;
    if (IS_INTRESOURCE(lpszTemplateName))
        m_nIDHelp = LOWORD(reinterpret_cast<DWORD_PTR>(lpszTemplateName));
    if (nIDCaption != 0 && m_strCaption.LoadString(nIDCaption)) {
        m_psp.dwFlags |= PSP_USETITLE;
        m_psp.pszTitle = m_strCaption;
    }
}

CPropertyPage::~CPropertyPage() = default;

BOOL CPropertyPage::Prepare() {
    const std::span<const BYTE> resource = AfxFindResource(m_lpszTemplateName, RT_DIALOG);
    if (resource.empty())
        return FALSE;
    m_pTemplate = std::make_unique<CDialogTemplateCopy>(reinterpret_cast<LPCDLGTEMPLATE>(resource.data()));
    if (!m_pTemplate->IsValid())
        return FALSE;
    m_psp.dwFlags |= PSP_DLGINDIRECT | PSP_USECALLBACK;
    m_psp.hInstance = AfxGetInstanceHandle();
    m_psp.pResource = m_pTemplate->Get();
    m_psp.pfnDlgProc = AfxPageAccess::DlgProc;
    m_psp.pfnCallback = AfxPageAccess::OnCallback;
    m_psp.lParam = reinterpret_cast<LPARAM>(this);
    return TRUE;
}

LRESULT CPropertyPage::OnInitPage(WPARAM, LPARAM) {
    m_pHook.reset();
    m_bFirstSetActive = TRUE;
    ExecuteDlgInit(m_lpszTemplateName);
    return OnInitDialog();
}

void CPropertyPage::PostNcDestroy() {
    m_pHook.reset(); // no WM_INITDIALOG comes if one of the controls cannot be created
    CDialog::PostNcDestroy();
}

/// A page that is only half made must not be applied: the whole sheet goes.
void CPropertyPage::OnInitFailed() {
    CPropertySheet* pSheet = Sheet();
    if (pSheet == nullptr)
        return;
    pSheet->OnInitFailed();
    if (AfxWndAccess::Flags(pSheet) & WF_MODALLOOP)
        pSheet->EndDialog(-1);
    else
        pSheet->PostMessage(WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED));
}

CPropertySheet* CPropertyPage::Sheet() const {
    return dynamic_cast<CPropertySheet*>(FromHandlePermanent(::GetParent(m_hWnd)));
}

/// The system gives pages the place that it has chosen for them; on the device's screen there
/// is less of it.
void CPropertyPage::OnWindowPosChanging(WINDOWPOS* pPos) {
    const CPropertySheet* pSheet = Sheet();
    const bool bPlace = (pPos->flags & (SWP_NOMOVE | SWP_NOSIZE)) != (SWP_NOMOVE | SWP_NOSIZE);
    if (bPlace && pSheet != nullptr && pSheet->IsFullScreen()) {
        const CRect rect = pSheet->PageRect();
        pPos->x = rect.left;
        pPos->y = rect.top;
        pPos->cx = rect.Width();
        pPos->cy = rect.Height();
        pPos->flags &= ~static_cast<UINT>(SWP_NOMOVE | SWP_NOSIZE);
    }
    Default();
}

/// The system leaves the focus where it is when it hides a page. It goes to the tabs: an entry field
/// of the next page would raise the soft input panel unasked.
void CPropertyPage::OnWindowPosChanged(WINDOWPOS* lpwndpos) {
    const HWND hSheet = ::GetParent(m_hWnd);
    const bool bHidden = (lpwndpos->flags & SWP_HIDEWINDOW) != 0;
    Default();
    if (!bHidden || !::IsChild(m_hWnd, ::GetFocus()))
        return;
    const HWND hTab = ::GetDlgItem(hSheet, static_cast<int>(AFX_IDC_TAB_CONTROL));
    if (hTab != nullptr && CDialogKeys::IsReachable(hTab))
        ::SetFocus(hTab);
    else
        CDialogKeys::FocusReachable(hSheet);
}

// --- Operations -----------------------------------------------------------------------------

void CPropertyPage::SetModified(BOOL bChanged) {
    if (m_hWnd != nullptr)
        ::SendMessage(::GetParent(m_hWnd), bChanged ? PSM_CHANGED : PSM_UNCHANGED,
                      reinterpret_cast<WPARAM>(m_hWnd), 0);
}

void CPropertyPage::CancelToClose() {
    if (m_hWnd != nullptr)
        ::SendMessage(::GetParent(m_hWnd), PSM_CANCELTOCLOSE, 0, 0);
}

LRESULT CPropertyPage::QuerySiblings(WPARAM wParam, LPARAM lParam) {
    return m_hWnd != nullptr ? ::SendMessage(::GetParent(m_hWnd), PSM_QUERYSIBLINGS, wParam, lParam) : 0;
}

void CPropertyPage::EndDialog(int nEndID) {
    if (CPropertySheet* pSheet = Sheet())
        pSheet->EndDialog(nEndID);
}

// --- Events ---------------------------------------------------------------------------------

BOOL CPropertyPage::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    const auto* pNMHDR = reinterpret_cast<const NMHDR*>(lParam);
    if (pNMHDR->hwndFrom != ::GetParent(m_hWnd)) // a control's; its codes are not the sheet's
        return CDialog::OnNotify(wParam, lParam, pResult);
    switch (pNMHDR->code) {
    case PSN_SETACTIVE:
        *pResult = OnSetActive() ? 0 : -1;
        break;
    case PSN_KILLACTIVE:
        *pResult = !OnKillActive();
        break;
    case PSN_APPLY:
        *pResult = OnApply() ? PSNRET_NOERROR : PSNRET_INVALID_NOCHANGEPAGE;
        break;
    case PSN_RESET:
        OnReset();
        *pResult = 0;
        break;
    case PSN_QUERYCANCEL:
        *pResult = !OnQueryCancel();
        break;
    case PSN_WIZBACK:
        *pResult = OnWizardBack();
        break;
    case PSN_WIZNEXT:
        *pResult = OnWizardNext();
        break;
    case PSN_WIZFINISH:
        *pResult = !OnWizardFinish();
        break;
    default:
        return CDialog::OnNotify(wParam, lParam, pResult);
    }
    return TRUE;
}

BOOL CPropertyPage::OnSetActive() {
    if (!m_bFirstSetActive)
        return UpdateData(FALSE);
    m_bFirstSetActive = FALSE;
    return TRUE;
}

BOOL CPropertyPage::OnKillActive() {
    return UpdateData(TRUE);
}
BOOL CPropertyPage::OnApply() {
    OnOK();
    return TRUE;
}
void CPropertyPage::OnReset() {
    OnCancel();
}
void CPropertyPage::OnOK() {}
void CPropertyPage::OnCancel() {}
BOOL CPropertyPage::OnQueryCancel() {
    return TRUE;
}
LRESULT CPropertyPage::OnWizardBack() {
    return 0;
}
LRESULT CPropertyPage::OnWizardNext() {
    return 0;
}
BOOL CPropertyPage::OnWizardFinish() {
    return TRUE;
}

/// Keys are the sheet's business: it knows which button Enter presses.
BOOL CPropertyPage::PreTranslateMessage(MSG* pMsg) {
    return CWnd::PreTranslateMessage(pMsg); // NOLINT(bugprone-parent-virtual-call): not as in a dialog
}
