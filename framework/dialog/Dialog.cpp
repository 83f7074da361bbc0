#include "CommandRoute.h"
#include "shell/DeviceCaption.h"
#include "DialogTemplate.h"
#include "ModalOwner.h"
#include "window/Resources.h"
#include "window/WndProc.h"

#include <memory>
#include <utility>

using namespace fieldkit::detail;

IMPLEMENT_DYNAMIC(CDialog, CWnd)

// clang-format off
BEGIN_MESSAGE_MAP(CDialog, CWnd)
    ON_MESSAGE(WM_INITDIALOG, &CDialog::HandleInitDialog)
    ON_MESSAGE(WM_SETFONT, &CDialog::HandleSetFont)
    ON_MESSAGE(WM_KICKIDLE, &CDialog::HandleIdle)
    ON_MESSAGE(WM_IDLEUPDATECMDUI, &CDialog::HandleIdle)
    ON_COMMAND(IDOK, &CDialog::OnOK)
    ON_COMMAND(IDCANCEL, &CDialog::OnCancel)
END_MESSAGE_MAP()
// clang-format on

struct AfxDialogAccess {
    static INT_PTR CALLBACK DlgProc(HWND hWnd, UINT message, WPARAM, LPARAM);
};

/// The system's dialog procedure: all messages but one go through the message map.
INT_PTR CALLBACK AfxDialogAccess::DlgProc(HWND hWnd, UINT message, WPARAM, LPARAM) {
    if (message != WM_INITDIALOG)
        return FALSE;
    auto* pDialog = dynamic_cast<CDialog*>(CWnd::FromHandlePermanent(hWnd));
    if (pDialog == nullptr)
        return TRUE;
    // An exception must not travel through the system's frames.
    bool bDone = false;
    const MSG msg = *CWnd::GetCurrentMessage();
    const LRESULT lResult = AfxCallGuarded(msg, [&] {
        const BOOL bFocus = pDialog->OnInitDialog();
        bDone = true;
        return bFocus;
    });
    if (!bDone && CWnd::FromHandlePermanent(hWnd) == pDialog)
        pDialog->OnInitFailed();
    return lResult;
}

namespace {

BOOL g_bFullScreen = FALSE;

} // namespace

void AFXAPI AfxSetFullScreenDialogs(BOOL bFullScreen) {
    g_bFullScreen = bFullScreen;
}

BOOL AFXAPI AfxGetFullScreenDialogs() {
    return g_bFullScreen;
}

// --- Construction -----------------------------------------------------------------------------

CDialog::CDialog() = default;

CDialog::CDialog(LPCTSTR lpszTemplateName, CWnd* pParentWnd)
    : m_lpszTemplateName(lpszTemplateName), m_pParentWnd(pParentWnd) {
    if (IS_INTRESOURCE(lpszTemplateName))
        m_nIDHelp = LOWORD(reinterpret_cast<DWORD_PTR>(lpszTemplateName));
}

CDialog::CDialog(UINT nIDTemplate, CWnd* pParentWnd) : CDialog(MAKEINTRESOURCE(nIDTemplate), pParentWnd) {
    m_nIDHelp = nIDTemplate;
}

CDialog::~CDialog() {
    if (m_hWnd != nullptr)
        DestroyWindow();
}

// --- Modeless -----------------------------------------------------------------------------------

BOOL CDialog::Create(LPCTSTR lpszTemplateName, CWnd* pParentWnd) {
    m_lpszTemplateName = lpszTemplateName;
    m_lpDialogTemplate = nullptr;
    return CreateFromResource(pParentWnd);
}

BOOL CDialog::Create(UINT nIDTemplate, CWnd* pParentWnd) {
    m_nIDHelp = nIDTemplate;
    return Create(MAKEINTRESOURCE(nIDTemplate), pParentWnd);
}

BOOL CDialog::CreateIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd, void* lpDialogInit) {
    m_lpDialogTemplate = lpDialogTemplate;
    m_lpDialogInit = lpDialogInit;
    return CreateDlgIndirect(lpDialogTemplate, pParentWnd != nullptr ? pParentWnd : AfxGetMainWnd());
}

BOOL CDialog::CreateIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd) {
    const auto* const pTemplate = static_cast<LPCDLGTEMPLATE>(::GlobalLock(hDialogTemplate));
    const BOOL bCreated = CreateIndirect(pTemplate, pParentWnd);
    ::GlobalUnlock(hDialogTemplate);
    return bCreated;
}

BOOL CDialog::InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd, void* lpDialogInit) {
    m_lpDialogTemplate = lpDialogTemplate;
    m_lpDialogInit = lpDialogInit;
    if (m_pParentWnd == nullptr)
        m_pParentWnd = pParentWnd;
    return TRUE;
}

BOOL CDialog::InitModalIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd) {
    m_hDialogTemplate = hDialogTemplate;
    return InitModalIndirect(static_cast<LPCDLGTEMPLATE>(nullptr), pParentWnd);
}

/// Creates the window from the template in memory, else from the named resource.
BOOL CDialog::CreateFromResource(CWnd* pParentWnd) {
    if (m_hDialogTemplate != nullptr)
        return CreateIndirect(m_hDialogTemplate, pParentWnd);
    if (m_lpDialogTemplate != nullptr)
        return CreateDlgIndirect(m_lpDialogTemplate, pParentWnd);
    const std::span<const BYTE> resource = AfxFindResource(m_lpszTemplateName, RT_DIALOG);
    if (resource.empty())
        return FALSE;
    return CreateDlgIndirect(reinterpret_cast<LPCDLGTEMPLATE>(resource.data()), pParentWnd);
}

BOOL CDialog::CreateDlgIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd) {
    if (m_hWnd != nullptr)
        return FALSE;
    // The framework shows the dialog itself, so that one that hides in OnInitDialog stays hidden.
    CDialogTemplateCopy copy(lpDialogTemplate);
    if (!copy.IsValid())
        return FALSE;
    if (copy.HasCaptionOkButton())
        m_nFlags |= WF_OKBUTTON;
    m_nFlags &= ~static_cast<UINT>(WF_SHOWSET | WF_INITFAILED);
    CCreateHook hook(this);
    const HWND hWnd = ::CreateDialogIndirectParam(AfxGetInstanceHandle(), copy.Get(), HandleOf(pParentWnd),
                                                  AfxDialogAccess::DlgProc, 0);
    if (!hook.Unhook()) {
        if (hWnd != nullptr)
            ::DestroyWindow(hWnd); // the hook could not be set
        PostNcDestroy();
        return FALSE;
    }
    if (hWnd == nullptr || FromHandlePermanent(hWnd) != this) // OnInitDialog may have destroyed it
        return FALSE;
    if (m_nFlags & WF_INITFAILED) {
        DestroyWindow();
        return FALSE;
    }
    const bool bEnding = m_nFlags & WF_MODALLOOP && !(m_nFlags & WF_CONTINUEMODAL);
    if (copy.WasVisible() && !(m_nFlags & WF_SHOWSET) && !bEnding)
        ShowWindow(SW_SHOWNORMAL);
    return TRUE;
}

// --- Modal ----------------------------------------------------------------------------------------

INT_PTR CDialog::DoModal() {
    if (m_hWnd != nullptr || (m_nFlags & WF_MODALLOOP)) // it runs already, with or without its window
        return -1;
    CModalWindow modal(this, m_pParentWnd);
    if (CreateFromResource(CWnd::FromHandle(modal.Owner())) && modal.GoesOn())
        RunModalLoop(MLF_SHOWONIDLE);
    return modal.Close();
}

void CDialog::EndDialog(int nResult) {
    if (m_nFlags & WF_MODALLOOP)
        EndModalLoop(nResult);
    else
        ::EndDialog(m_hWnd, nResult);
}

// --- Initialisation ---------------------------------------------------------------------------------

LRESULT CDialog::HandleInitDialog(WPARAM, LPARAM) {
    if (m_lpDialogTemplate == nullptr)
        ExecuteDlgInit(m_lpszTemplateName);
    else if (m_lpDialogInit != nullptr)
        ExecuteDlgInit(m_lpDialogInit, SIZE_MAX);
    return Default(); // calls OnInitDialog through the system's dialog procedure
}

BOOL CDialog::OnInitDialog() {
    if (m_bFullScreen && !(GetStyle() & WS_CHILD))
        EnterFullScreen();
    if (!UpdateData(FALSE)) {
        EndDialog(-1);
        return FALSE;
    }
    return TRUE;
}

void CDialog::EnterFullScreen() {
    CDeviceCaption::EnterFullScreen(this);
    auto pBar = std::make_unique<CCeCommandBar>();
    pBar->Create(this);
    m_pEmptyBar = std::move(pBar);
    m_pWndEmptyCB = m_pEmptyBar.get();
}

void CDialog::OnSetFont(CFont*) {}

LRESULT CDialog::HandleIdle(WPARAM, LPARAM lCount) {
    if (lCount == 0)
        UpdateDialogControls(this, FALSE);
    return 0;
}

LRESULT CDialog::HandleSetFont(WPARAM wParam, LPARAM) {
    OnSetFont(CFont::FromHandle(reinterpret_cast<HFONT>(wParam)));
    return Default();
}

void CDialog::PostNcDestroy() {
    m_pWndEmptyCB = nullptr;
    m_pEmptyBar.reset();
    CWnd::PostNcDestroy();
}

// --- Keys, commands, controls -------------------------------------------------------------------------

void CDialog::OnOK() {
    if (UpdateData(TRUE))
        EndDialog(IDOK);
}

void CDialog::OnCancel() {
    EndDialog(IDCANCEL);
}

BOOL CDialog::PreTranslateMessage(MSG* pMsg) {
    return CWnd::PreTranslateMessage(pMsg) || PreTranslateInput(pMsg);
}

BOOL CDialog::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pInfo) {
    return CWnd::OnCmdMsg(nID, nCode, pExtra, pInfo) || RouteCommand(*this, nID, nCode, pExtra, pInfo);
}

void CDialog::MapDialogRect(LPRECT lpRect) const {
    ::MapDialogRect(m_hWnd, lpRect);
}
void CDialog::NextDlgCtrl() const {
    ::SendMessage(m_hWnd, WM_NEXTDLGCTL, 0, 0);
}
void CDialog::PrevDlgCtrl() const {
    ::SendMessage(m_hWnd, WM_NEXTDLGCTL, 1, 0);
}
void CDialog::GotoDlgCtrl(CWnd* pWndCtrl) {
    if (pWndCtrl == nullptr) // a control that is looked up after the dialog was destroyed
        return;
    ::SendMessage(m_hWnd, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(pWndCtrl->m_hWnd), TRUE);
}
void CDialog::SetDefID(UINT nID) {
    ::SendMessage(m_hWnd, DM_SETDEFID, nID, 0);
}
DWORD CDialog::GetDefID() const {
    return static_cast<DWORD>(::SendMessage(m_hWnd, DM_GETDEFID, 0, 0));
}
