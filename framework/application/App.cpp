// The application and its thread.
#include "MessageFilter.h"
#include "window/MessageMap.h"
#include "window/Resources.h"
#include "window/WndProc.h"

#include <cstdlib>
#include <mutex>
#include <set>

using namespace fieldkit::detail;

IMPLEMENT_DYNAMIC(CWinThread, CCmdTarget)
IMPLEMENT_DYNAMIC(CWinApp, CWinThread)

namespace {

CWinApp* g_pApp = nullptr;

} // namespace

// --- Thread ------------------------------------------------------------------------------------

BOOL CWinThread::InitInstance() {
    return FALSE;
}
int CWinThread::ExitInstance() {
    // After a dialog in InitInstance there was no message loop, and so no WM_QUIT.
    return m_msgCur.message == WM_QUIT ? static_cast<int>(m_msgCur.wParam) : 0;
}

int CWinThread::Run() {
    bool bIdle = true;
    LONG lIdle = 0;
    for (;;) {
        MSG msg;
        while (bIdle && !::PeekMessage(&msg, nullptr, 0, 0, PM_NOREMOVE))
            bIdle = OnIdle(lIdle++);
        if (!PumpMessage())
            return ExitInstance();
        if (IsIdleMessage(&m_msgCur)) {
            bIdle = true;
            lIdle = 0;
        }
    }
}

BOOL CWinThread::PumpMessage() {
    if (::GetMessage(&m_msgCur, nullptr, 0, 0) <= 0)
        return FALSE;
    // The handlers may pump messages of their own, into m_msgCur.
    MSG msg = m_msgCur;
    BOOL bTaken = TRUE; // by an exception, too
    AfxCallGuarded(m_msgCur,
                   [&] { return bTaken = msg.message == WM_KICKIDLE || PreTranslateMessage(&msg); });
    if (!bTaken) {
        ::TranslateMessage(&msg);
        ::DispatchMessage(&msg);
    }
    return TRUE;
}

BOOL CWinThread::DispatchThreadMessage(MSG* pMsg) {
    const AFX_MSGMAP_ENTRY* pEntry = FindMapEntry(GetMessageMap(), pMsg->message);
    LRESULT lResult = 0;
    return pEntry != nullptr &&
           pEntry->pfnDispatch(this, pEntry->pfn, {pMsg->wParam, pMsg->lParam, 0, &lResult});
}

BOOL CWinThread::PreTranslateMessage(MSG* pMsg) {
    if (pMsg->hwnd == nullptr)
        return DispatchThreadMessage(pMsg);
    CWnd* pMainWnd = AfxGetMainWnd();
    return CWnd::WalkPreTranslateTree(HandleOf(pMainWnd), pMsg);
}

BOOL CWinThread::OnIdle(LONG lCount) {
    if (lCount == 0 && m_pMainWnd != nullptr && m_pMainWnd->m_hWnd != nullptr)
        m_pMainWnd->SendMessage(WM_IDLEUPDATECMDUI);
    CThreadState::Get().DeleteTemporaries();
    return FALSE;
}

BOOL CWinThread::ProcessMessageFilter(int, LPMSG) {
    return FALSE;
}

BOOL CWinThread::IsIdleMessage(MSG* pMsg) {
    // Neither a pen that rests nor a blinking caret makes anything worth looking at.
    constexpr UINT WM_SYSTIMER = 0x0118;
    if (pMsg->message == WM_MOUSEMOVE || pMsg->message == WM_NCMOUSEMOVE) {
        if (m_ptCursorLast == pMsg->pt && m_nMsgLast == pMsg->message)
            return FALSE;
        m_ptCursorLast = pMsg->pt;
        m_nMsgLast = pMsg->message;
        return TRUE;
    }
    return pMsg->message != WM_PAINT && pMsg->message != WM_SYSTIMER;
}

CWinThread* AFXAPI AfxGetThread() {
    return CThreadState::Get().m_pThread;
}

BOOL AFXAPI AfxPumpMessage() {
    return CThreadState::Get().PumpThread().PumpMessage();
}

void AFXAPI AfxPostQuitMessage(int nExitCode) {
    ::PostQuitMessage(nExitCode);
}

CWnd* AFXAPI AfxGetMainWnd() {
    CWinThread* pThread = AfxGetThread();
    return pThread != nullptr ? pThread->GetMainWnd() : nullptr;
}

// --- Application -------------------------------------------------------------------------------

CWinApp::CWinApp(LPCTSTR lpszAppName) {
    g_pApp = this;
    CThreadState::Get().m_pThread = this;
    m_nThreadID = ::GetCurrentThreadId();
    WCHAR szPath[MAX_PATH];
    const DWORD nLength = ::GetModuleFileName(nullptr, szPath, MAX_PATH);
    CString strPath(szPath, static_cast<int>(nLength));
    if (const int nDot = strPath.ReverseFind(L'.'); nDot > strPath.ReverseFind(L'\\'))
        strPath = strPath.Left(nDot);
    const CString strName = strPath.Mid(strPath.ReverseFind(L'\\') + 1);
    m_pszExeName = ::_tcsdup(strName);
    m_pszAppName = ::_tcsdup(lpszAppName != nullptr ? lpszAppName : m_pszExeName);
    m_pszHelpFilePath = ::_tcsdup(strPath + L".chm");
    SetProfileName(strName + L".INI");
}

CWinApp::~CWinApp() {
    if (g_pApp == this)
        g_pApp = nullptr;
    for (const LPCTSTR psz :
         {m_pszAppName, m_pszExeName, m_pszHelpFilePath, m_pszRegistryKey, m_pszProfileName})
        std::free(const_cast<LPTSTR>(psz));
}

BOOL CWinApp::InitInstance() {
    return TRUE;
}

int CWinApp::Run() {
    if (m_pMainWnd == nullptr)
        AfxPostQuitMessage(0); // nobody could ever end it
    return CWinThread::Run();
}

void CWinApp::OnHelp() {
    if (::GetFileAttributes(m_pszHelpFilePath) != INVALID_FILE_ATTRIBUTES)
        ::ShellExecute(HandleOf(m_pMainWnd), nullptr, m_pszHelpFilePath, nullptr, nullptr, SW_SHOWNORMAL);
}

void CWinApp::WinHelp(DWORD_PTR, UINT) {
    OnHelp();
}

void CWinApp::HtmlHelp(DWORD_PTR, UINT) {
    OnHelp();
}

void CWinApp::DoWaitCursor(int nCode) {
    if (nCode > 0)
        BeginWaitCursor();
    else if (nCode < 0)
        EndWaitCursor();
    else
        RestoreWaitCursor();
}

void CWinApp::OnAppExit() {
    if (m_pMainWnd != nullptr)
        m_pMainWnd->SendMessage(WM_CLOSE);
}

HICON CWinApp::LoadIcon(UINT nIDResource) const {
    return LoadIcon(MAKEINTRESOURCE(nIDResource));
}
HICON CWinApp::LoadIcon(LPCTSTR lpszResourceName) const {
    return ::LoadIcon(AfxFindResourceHandle(lpszResourceName, RT_GROUP_ICON), lpszResourceName);
}
HICON CWinApp::LoadStandardIcon(LPCTSTR lpszIconName) const {
    return ::LoadIcon(nullptr, lpszIconName);
}
HCURSOR CWinApp::LoadCursor(UINT nIDResource) const {
    return LoadCursor(MAKEINTRESOURCE(nIDResource));
}
HCURSOR CWinApp::LoadCursor(LPCTSTR lpszResourceName) const {
    return ::LoadCursor(AfxFindResourceHandle(lpszResourceName, RT_GROUP_CURSOR), lpszResourceName);
}
HCURSOR CWinApp::LoadStandardCursor(LPCTSTR lpszCursorName) const {
    return ::LoadCursor(nullptr, lpszCursorName);
}

CWinApp* AFXAPI AfxGetApp() {
    return g_pApp;
}
LPCTSTR AFXAPI AfxGetAppName() {
    return g_pApp != nullptr ? g_pApp->m_pszAppName : _T("");
}

namespace {

int RunThread(CWinThread& thread) {
    const CMessageFilter filter;
    if (thread.InitInstance())
        return thread.Run();
    if (thread.m_pMainWnd != nullptr)
        thread.m_pMainWnd->DestroyWindow();
    return thread.ExitInstance();
}

} // namespace

int AFXAPI AfxWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow) {
    AfxWinInit(hInstance, hPrevInstance, lpCmdLine, nCmdShow);
    CWinThread* pThread = AfxGetThread();
    int nResult = -1;
    if (pThread != nullptr)
        AfxCallGuarded({}, [&] { return nResult = RunThread(*pThread); });
    return nResult;
}

// --- Message boxes -------------------------------------------------------------------------------

int CWinApp::DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT) {
    if ((nType & MB_ICONMASK) == 0)
        nType |= (nType & MB_TYPEMASK) == MB_YESNO || (nType & MB_TYPEMASK) == MB_YESNOCANCEL
                     ? MB_ICONQUESTION
                     : MB_ICONEXCLAMATION;
    HWND hWndTop = nullptr;
    CWnd* pOwner = CWnd::GetSafeOwner(nullptr, &hWndTop);
    const HWND hWndOwner = HandleOf(pOwner);
    const int nResult = ::MessageBoxEx(hWndOwner, lpszPrompt, m_pszAppName, nType, AfxChosenLanguage());
    if (hWndTop != nullptr)
        ::EnableWindow(hWndTop, TRUE);
    return nResult;
}

int AFXAPI AfxMessageBox(LPCTSTR lpszText, UINT nType, UINT nIDHelp) {
    if (CWinApp* pApp = AfxGetApp())
        return pApp->DoMessageBox(lpszText, nType, nIDHelp);
    return ::MessageBoxEx(::GetActiveWindow(), lpszText, AfxGetAppName(), nType, AfxChosenLanguage());
}

int AFXAPI AfxMessageBox(UINT nIDPrompt, UINT nType, UINT nIDHelp) {
    CString strText;
    strText.LoadString(nIDPrompt);
    return AfxMessageBox(strText, nType, nIDHelp == static_cast<UINT>(-1) ? nIDPrompt : nIDHelp);
}

// --- Wait cursor -----------------------------------------------------------------------------------

// Each thread with windows has its own cursor.
void CCmdTarget::BeginWaitCursor() {
    CThreadState& state = CThreadState::Get();
    const HCURSOR hCursor = ::SetCursor(::LoadCursor(nullptr, IDC_WAIT));
    if (state.m_nWaitDepth++ == 0)
        state.m_hCursorBefore = hCursor;
}

void CCmdTarget::EndWaitCursor() {
    CThreadState& state = CThreadState::Get();
    if (state.m_nWaitDepth > 0 && --state.m_nWaitDepth == 0)
        ::SetCursor(state.m_hCursorBefore);
}

void CCmdTarget::RestoreWaitCursor() {
    if (CThreadState::Get().m_nWaitDepth > 0)
        ::SetCursor(::LoadCursor(nullptr, IDC_WAIT));
}

CWaitCursor::CWaitCursor() {
    if (CWinApp* pApp = AfxGetApp())
        pApp->BeginWaitCursor();
}
CWaitCursor::~CWaitCursor() {
    if (CWinApp* pApp = AfxGetApp())
        pApp->EndWaitCursor();
}
void CWaitCursor::Restore() {
    if (CWinApp* pApp = AfxGetApp())
        pApp->RestoreWaitCursor();
}

// --- Window classes ----------------------------------------------------------------------------------

LPCTSTR AFXAPI AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor, HBRUSH hbrBackground, HICON hIcon) {
    // The name says it all, so that equal classes are registered once.
    // Never destroyed: a window may be made by whatever is destroyed last.
    static std::set<CString>& names = *new std::set<CString>;
    static std::mutex& mutex = *new std::mutex;
    const std::lock_guard lock(mutex);
    CString strName;
    strName.Format(_T("Afx:%p:%x:%p:%p:%p"), static_cast<void*>(AfxGetInstanceHandle()), nClassStyle,
                   static_cast<void*>(hCursor), static_cast<void*>(hbrBackground), static_cast<void*>(hIcon));
    const auto [it, bNew] = names.insert(strName);
    if (bNew) {
        WNDCLASS wc = {};
        wc.style = nClassStyle;
        wc.lpfnWndProc = ::DefWindowProc;
        wc.hInstance = AfxGetInstanceHandle();
        wc.hIcon = hIcon;
        wc.hCursor = hCursor;
        wc.hbrBackground = hbrBackground;
        wc.lpszClassName = *it;
        if (!::RegisterClass(&wc)) {
            names.erase(it);
            AfxThrowResourceException();
        }
    }
    return *it;
}

BOOL AFXAPI AfxRegisterClass(WNDCLASS* lpWndClass) {
    WNDCLASS present = {};
    return ::GetClassInfo(lpWndClass->hInstance, lpWndClass->lpszClassName, &present) ||
           ::RegisterClass(lpWndClass);
}
