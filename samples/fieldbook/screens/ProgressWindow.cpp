#include "screens/ProgressWindow.h"

#include "screens/Resource.h"
#include "screens/Text.h"

namespace {

constexpr ULONGLONG kPatience = 500;    // milliseconds without a window
constexpr ULONGLONG kBetweenLooks = 50; // milliseconds
constexpr int kFull = 1000;

/// @param hWnd     null for any window of the thread
/// @param nMessage 0 for any message
bool Take(MSG& msg, HWND hWnd, UINT nMessage) {
    if (!::PeekMessage(&msg, hWnd, nMessage, nMessage, PM_REMOVE))
        return false;
    if (msg.message != WM_QUIT) // that comes whatever is asked for; it is for the outer loops
        return true;
    ::PostQuitMessage(static_cast<int>(msg.wParam));
    return false;
}

/// Presses only: whoever has seen a press waits for the end of it.
void DropPresses() {
    MSG msg;
    for (const UINT nMessage :
         {WM_LBUTTONDOWN, WM_LBUTTONDBLCLK, WM_NCLBUTTONDOWN, WM_NCLBUTTONDBLCLK, WM_KEYDOWN, WM_CHAR})
        while (Take(msg, nullptr, nMessage))
            continue;
}

} // namespace

// clang-format off
BEGIN_MESSAGE_MAP(CProgressDlg, CnDialog)
    ON_WM_DESTROY()
END_MESSAGE_MAP()
// clang-format on

CProgressDlg::CProgressDlg(UINT nTextId) : CnDialog(IDD_PROGRESS, nullptr), m_nTextId(nTextId) {
    SetOption(OptionPopup);
}

void CProgressDlg::DoDataExchange(CDataExchange* pDX) {
    CnDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_PROGRESS, m_bar);
}

BOOL CProgressDlg::OnInitDialog() {
    CnDialog::OnInitDialog();
    SetWindowText(Text(m_nTextId));
    m_bar.SetRange32(0, kFull);
    CenterWindow();
    ShowWindow(SW_SHOW);
    return TRUE;
}

void CProgressDlg::OnDestroy() {
    m_bStopped = true;
    CnDialog::OnDestroy();
}

void CProgressDlg::ShowProgress(size_t nDone, size_t nAll) {
    m_bar.SetPos(static_cast<int>(static_cast<double>(nDone) / static_cast<double>(nAll) * kFull));
}

void CProgressDlg::HandleInput() {
    MSG msg;
    while (m_hWnd != nullptr && Take(msg, m_hWnd, 0)) {
        if (!PreTranslateMessage(&msg)) {
            ::TranslateMessage(&msg);
            ::DispatchMessage(&msg);
        }
    }
    constexpr int kMost = 16; // a window that is never done with its drawing must not hold the work up
    for (const UINT nMessage : {WM_PAINT, WM_TIMER})
        for (int i = 0; i < kMost && Take(msg, nullptr, nMessage); ++i)
            ::DispatchMessage(&msg);
}

ULONGLONG CProgressWindow::FirstLook() {
    return ::GetTickCount64() + kPatience;
}

Progress CProgressWindow::Get() {
    return [this](size_t nDone, size_t nAll) { Step(nDone, nAll); };
}

void CProgressWindow::Step(size_t nDone, size_t nAll) {
    const ULONGLONG nNow = ::GetTickCount64();
    if (nNow >= m_nNextLook) {
        m_nNextLook = nNow + kBetweenLooks;
        if (m_pDialog == nullptr)
            Open();
        if (m_pDialog->m_hWnd != nullptr) {
            m_pDialog->ShowProgress(nDone, nAll);
            m_pDialog->HandleInput();
        }
        m_bStopped = m_bStopped || m_pDialog->IsStopped();
    }
    if (m_bStopped)
        AfxThrowUserException();
}

/// Work that cannot have its window, for want of memory, is done without.
void CProgressWindow::Open() {
    CWnd* const pActive = CWnd::GetActiveWindow();
    m_pDialog = std::make_unique<CProgressDlg>(m_nTextId);
    if (!m_pDialog->Create(IDD_PROGRESS, pActive != nullptr ? pActive : AfxGetMainWnd()))
        m_pDialog = std::make_unique<CProgressDlg>(m_nTextId);
}

void CProgressWindow::Close() {
    if (m_pDialog == nullptr)
        return;
    if (m_pDialog->m_hWnd != nullptr)
        m_pDialog->DestroyWindow();
    m_pDialog.reset();
    m_nNextLook = FirstLook();
    DropPresses();
}

bool CProgressWindow::StopCurrent() {
    for (CProgressWindow* pWindow = s_pCurrent; pWindow != nullptr; pWindow = pWindow->m_pOuter)
        pWindow->m_bStopped = true;
    return s_pCurrent != nullptr;
}
