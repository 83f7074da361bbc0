#include "CommandRoute.h"
#include "window/DialogKeys.h"
#include "ModalOwner.h"
#include "afxdlgs.h"

#include <algorithm>
#include <utility>

using namespace fieldkit::detail;

IMPLEMENT_DYNAMIC(CPropertySheet, CWnd)

// clang-format off
BEGIN_MESSAGE_MAP(CPropertySheet, CWnd)
    ON_MESSAGE(WM_INITDIALOG, &CPropertySheet::HandleInitDialog)
    ON_MESSAGE(PSM_PRESSBUTTON, &CPropertySheet::OnPressButton)
    ON_WM_CLOSE()
    ON_WM_SIZE()
END_MESSAGE_MAP()
// clang-format on

namespace {

constexpr DWORD kStyleDefault = static_cast<DWORD>(-1);

/// The head of an extended dialog template, and that of a plain one.
struct CExtendedHead {
    WORD wVersion;
    WORD wMark; ///< 0xFFFF
    DWORD dwHelpID;
    DWORD dwExStyle;
    DWORD dwStyle;
};
struct CPlainHead {
    DWORD dwStyle;
    DWORD dwExStyle;
};

/// Gives a sheet's template the wanted styles; the framework shows the window itself.
template <class Head>
void ChangeStyle(Head* pHead, DWORD dwStyle, DWORD dwExStyle) {
    constexpr DWORD kFont = DS_SETFONT | DS_FIXEDSYS; // they tell what else the template holds
    if (dwStyle != kStyleDefault) {
        pHead->dwStyle = (pHead->dwStyle & kFont) | (dwStyle & ~kFont);
        pHead->dwExStyle = dwExStyle & ~WS_EX_CAPTIONOKBTN;
    }
    pHead->dwStyle &= ~static_cast<DWORD>(WS_VISIBLE | DS_CONTEXTHELP);
}

} // namespace

struct AfxSheetAccess {
    static int CALLBACK OnCallback(HWND, UINT uMsg, LPARAM lParam) {
        const auto* pSheet = dynamic_cast<CPropertySheet*>(CThreadState::Get().m_pWndInit);
        if (uMsg != PSCB_PRECREATE || pSheet == nullptr)
            return 0;
        auto* pExtended = reinterpret_cast<CExtendedHead*>(lParam);
        if (pExtended->wMark == 0xFFFF)
            ChangeStyle(pExtended, pSheet->m_dwStyle, pSheet->m_dwExStyle);
        else
            ChangeStyle(reinterpret_cast<CPlainHead*>(lParam), pSheet->m_dwStyle, pSheet->m_dwExStyle);
        return 0;
    }
};

// --- Construction ---------------------------------------------------------------------------

CPropertySheet::CPropertySheet() {
    m_psh.dwSize = sizeof m_psh;
}

CPropertySheet::CPropertySheet(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage) : CPropertySheet() {
    Construct(pszCaption, pParentWnd, iSelectPage);
}

CPropertySheet::CPropertySheet(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage) : CPropertySheet() {
    Construct(nIDCaption, pParentWnd, iSelectPage);
}

void CPropertySheet::Construct(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage) {
    m_pParentWnd = pParentWnd;
    m_strCaption = pszCaption;
    m_psh.nStartPage = iSelectPage;
}

void CPropertySheet::Construct(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage) {
    Construct(_T(""), pParentWnd, iSelectPage);
    m_strCaption.LoadString(nIDCaption);
}

CPropertySheet::~CPropertySheet() {
    if (m_hWnd != nullptr)
        DestroyWindow();
}

/// The system's sheet is always a modeless one; DoModal runs the framework's own loop for it,
/// so that messages are offered to the windows first as in any dialog.
BOOL CPropertySheet::CreateSheet(HWND hWndOwner) {
    std::vector<PROPSHEETPAGE> pages;
    for (CPropertyPage* pPage : m_pages) {
        if (!pPage->Prepare())
            return FALSE;
        pages.push_back(pPage->m_psp);
    }
    if (pages.empty())
        return FALSE;
    PROPSHEETHEADER header = m_psh;
    header.dwFlags |= PSH_MODELESS | PSH_PROPSHEETPAGE | PSH_USECALLBACK;
    header.hwndParent = hWndOwner;
    header.hInstance = AfxGetInstanceHandle();
    header.pszCaption = m_strCaption;
    header.nPages = static_cast<UINT>(pages.size());
    header.nStartPage = std::min(header.nStartPage, header.nPages - 1);
    header.ppsp = pages.data();
    header.pfnCallback = AfxSheetAccess::OnCallback;

    m_nFlags &= ~static_cast<UINT>(WF_SHOWSET | WF_OKBUTTON | WF_INITFAILED);
    const bool bChild = m_dwStyle != kStyleDefault && (m_dwStyle & WS_CHILD);
    if (m_bFullScreen && !bChild && !(header.dwFlags & PSH_WIZARD))
        m_nFlags |= WF_OKBUTTON; // now already, so that it can be hidden before the sheet is full screen
    CCreateHook hook(this);
    const INT_PTR nSheet = ::PropertySheet(&header); // its window, or 0 or -1
    if (!hook.Unhook()) {
        if (nSheet > 0)
            ::DestroyWindow(reinterpret_cast<HWND>(nSheet)); // the hook could not be set
        PostNcDestroy();
    }
    if (m_hWnd != nullptr && (m_nFlags & WF_INITFAILED))
        DestroyWindow();
    return m_hWnd != nullptr;
}

/// A page that cannot be made leaves nothing that still waits for its window.
LRESULT CPropertySheet::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    const HWND hWnd = m_hWnd;
    const LRESULT lResult = CWnd::WindowProc(message, wParam, lParam);
    if (FromHandlePermanent(hWnd) == this)
        for (CPropertyPage* pPage : m_pages)
            pPage->m_pHook.reset();
    return lResult;
}

BOOL CPropertySheet::Create(CWnd* pParentWnd, DWORD dwStyle, DWORD dwExStyle) {
    if (m_hWnd != nullptr)
        return FALSE;
    m_dwStyle = dwStyle;
    m_dwExStyle = dwExStyle;
    if (!CreateSheet(HandleOf(pParentWnd)))
        return FALSE;
    if (!(m_nFlags & WF_SHOWSET) && (dwStyle & WS_VISIBLE))
        ShowWindow(SW_SHOWNORMAL);
    return TRUE;
}

void CPropertySheet::PostNcDestroy() {
    m_pWndEmptyCB = nullptr;
    m_pEmptyBar.reset();
    CWnd::PostNcDestroy();
}

// --- Modal ----------------------------------------------------------------------------------

INT_PTR CPropertySheet::DoModal() {
    if (m_hWnd != nullptr || (m_nFlags & WF_MODALLOOP)) // it runs already, with or without its window
        return -1;
    CModalWindow modal(this, m_pParentWnd);
    m_dwStyle = kStyleDefault;
    if (CreateSheet(modal.Owner()) && modal.GoesOn())
        RunModalLoop(MLF_SHOWONIDLE);
    return modal.Close();
}

/// The system marks a sheet that has ended by having no page any more.
BOOL CPropertySheet::HasCurrentPage() const {
    return ::SendMessage(m_hWnd, PSM_GETCURRENTPAGEHWND, 0, 0) != 0;
}

BOOL CPropertySheet::ContinueModal() {
    return CWnd::ContinueModal() && HasCurrentPage();
}

void CPropertySheet::EndDialog(int nEndID) {
    if (m_nFlags & WF_MODALLOOP)
        EndModalLoop(nEndID);
    else
        DestroyWindow();
}

BOOL CPropertySheet::PreTranslateMessage(MSG* pMsg) {
    if (CWnd::PreTranslateMessage(pMsg))
        return TRUE;
    const bool bKey = pMsg->message >= WM_KEYFIRST && pMsg->message <= WM_KEYLAST;
    const bool bMouse = pMsg->message >= WM_MOUSEFIRST && pMsg->message <= WM_MOUSELAST;
    CDialogKeys::Prepare(pMsg);
    return (bKey || bMouse) && SendMessage(PSM_ISDIALOGMESSAGE, 0, reinterpret_cast<LPARAM>(pMsg));
}

// --- Buttons --------------------------------------------------------------------------------

BOOL CPropertySheet::OnCommand(WPARAM wParam, LPARAM lParam) {
    if (CWnd::OnCommand(wParam, lParam))
        return TRUE;
    // The command of the title bar comes without a control; the system wants its button.
    const int nID = LOWORD(wParam);
    const LPARAM lButton = lParam != 0 ? lParam : reinterpret_cast<LPARAM>(::GetDlgItem(m_hWnd, nID));
    const HWND hWnd = m_hWnd;
    const bool bOpen = HasCurrentPage();
    DefWindowProc(WM_COMMAND, wParam, lButton);
    if (bOpen && FromHandlePermanent(hWnd) == this && !HasCurrentPage())
        EndDialog(nID);
    return TRUE;
}

BOOL CPropertySheet::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pInfo) {
    return CWnd::OnCmdMsg(nID, nCode, pExtra, pInfo) || RouteCommand(*this, nID, nCode, pExtra, pInfo);
}

LRESULT CPropertySheet::OnPressButton(WPARAM wParam, LPARAM) {
    static constexpr struct {
        WPARAM nButton;
        UINT nID;
    } buttons[] = {{PSBTN_BACK, ID_WIZBACK}, {PSBTN_NEXT, ID_WIZNEXT},       {PSBTN_FINISH, ID_WIZFINISH},
                   {PSBTN_OK, IDOK},         {PSBTN_APPLYNOW, ID_APPLY_NOW}, {PSBTN_CANCEL, IDCANCEL},
                   {PSBTN_HELP, IDHELP}};
    for (const auto& button : buttons)
        if (button.nButton == wParam)
            SendMessage(WM_COMMAND, MAKEWPARAM(button.nID, BN_CLICKED));
    return 0;
}

void CPropertySheet::OnClose() {
    SendMessage(WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED));
}

void CPropertySheet::PressButton(int nButton) {
    PostMessage(PSM_PRESSBUTTON, static_cast<WPARAM>(nButton));
}

void CPropertySheet::SetWizardButtons(DWORD dwFlags) {
    PostMessage(PSM_SETWIZBUTTONS, 0, static_cast<LPARAM>(dwFlags));
}

void CPropertySheet::SetFinishText(LPCTSTR lpszText) {
    SendMessage(PSM_SETFINISHTEXT, 0, reinterpret_cast<LPARAM>(lpszText));
}

void CPropertySheet::SetTitle(LPCTSTR lpszText, UINT nStyle) {
    m_psh.dwFlags &= ~static_cast<DWORD>(PSH_PROPTITLE);
    m_psh.dwFlags |= nStyle;
    m_strCaption = lpszText;
    if (m_hWnd != nullptr)
        SendMessage(PSM_SETTITLE, nStyle, reinterpret_cast<LPARAM>(lpszText));
}

// --- Pages ----------------------------------------------------------------------------------

void CPropertySheet::AddPage(CPropertyPage* pPage) {
    m_pages.push_back(pPage);
    if (m_hWnd == nullptr)
        return;
    const HPROPSHEETPAGE hPage = pPage->Prepare() ? ::CreatePropertySheetPage(&pPage->m_psp) : nullptr;
    if (hPage == nullptr || !SendMessage(PSM_ADDPAGE, 0, reinterpret_cast<LPARAM>(hPage))) {
        if (hPage != nullptr)
            ::DestroyPropertySheetPage(hPage);
        m_pages.pop_back();
    }
    LayOut();
}

void CPropertySheet::RemovePage(CPropertyPage* pPage) {
    RemovePage(GetPageIndex(pPage));
}

void CPropertySheet::RemovePage(int nPage) {
    if (GetPage(nPage) == nullptr)
        return;
    if (m_hWnd != nullptr)
        SendMessage(PSM_REMOVEPAGE, static_cast<WPARAM>(nPage));
    m_pages.erase(m_pages.begin() + nPage);
    LayOut();
}

CPropertyPage* CPropertySheet::GetPage(int nPage) const {
    return nPage >= 0 && nPage < GetPageCount() ? m_pages[static_cast<size_t>(nPage)] : nullptr;
}

int CPropertySheet::GetPageIndex(CPropertyPage* pPage) const {
    const auto it = std::find(m_pages.begin(), m_pages.end(), pPage);
    return it == m_pages.end() ? -1 : static_cast<int>(it - m_pages.begin());
}

int CPropertySheet::GetActiveIndex() const {
    if (m_hWnd == nullptr)
        return static_cast<int>(m_psh.nStartPage);
    // The tabs, which wizards have too, still know it when the sheet has been ended.
    return AfxSendInt(GetTabControl()->GetSafeHwnd(), TCM_GETCURSEL);
}

CPropertyPage* CPropertySheet::GetActivePage() const {
    if (m_hWnd == nullptr)
        return GetPage(GetActiveIndex());
    return dynamic_cast<CPropertyPage*>(
        FromHandlePermanent(reinterpret_cast<HWND>(SendMessage(PSM_GETCURRENTPAGEHWND))));
}

BOOL CPropertySheet::SetActivePage(int nPage) {
    if (GetPage(nPage) == nullptr)
        return FALSE;
    if (m_hWnd != nullptr)
        return SendMessage(PSM_SETCURSEL, static_cast<WPARAM>(nPage)) != 0;
    m_psh.nStartPage = static_cast<UINT>(nPage);
    return TRUE;
}

BOOL CPropertySheet::SetActivePage(CPropertyPage* pPage) {
    return SetActivePage(GetPageIndex(pPage));
}
