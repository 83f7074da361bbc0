// The application and its thread.
#include "WndProc.h"

#include <set>

IMPLEMENT_DYNAMIC(CWinThread, CCmdTarget)
IMPLEMENT_DYNAMIC(CWinApp, CWinThread)

static CWinApp* g_pApp = nullptr;

// --- Thread ------------------------------------------------------------------------------------

CWinThread::CWinThread() : m_nThreadID(::GetCurrentThreadId()) {
    CThreadState::Get().m_pThread = this;
}

CWinThread::~CWinThread() {
    CThreadState& state = CThreadState::Get();
    if (state.m_pThread == this)
        state.m_pThread = nullptr;
}

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
    if (msg.message != WM_KICKIDLE && !PreTranslateMessage(&msg)) {
        ::TranslateMessage(&msg);
        ::DispatchMessage(&msg);
    }
    return TRUE;
}

BOOL CWinThread::PreTranslateMessage(MSG* pMsg) {
    if (pMsg->hwnd == nullptr)
        return FALSE;
    CWnd* pMainWnd = AfxGetMainWnd();
    return CWnd::WalkPreTranslateTree(HandleOf(pMainWnd), pMsg);
}

BOOL CWinThread::OnIdle(LONG) {
    CThreadState::Get().DeleteTemporaries();
    return FALSE;
}

BOOL CWinThread::IsIdleMessage(MSG* pMsg) {
    // Neither a pen that rests nor a blinking caret makes anything worth looking at.
    constexpr UINT WM_SYSTIMER = 0x0118;
    static CPoint ptLast(-1, -1);
    static UINT nLast = 0;
    if (pMsg->message == WM_MOUSEMOVE || pMsg->message == WM_NCMOUSEMOVE) {
        if (ptLast == pMsg->pt && nLast == pMsg->message)
            return FALSE;
        ptLast = pMsg->pt;
        nLast = pMsg->message;
        return TRUE;
    }
    return pMsg->message != WM_PAINT && pMsg->message != WM_SYSTIMER;
}

LRESULT CWinThread::ProcessWndProcException(CException* e, const MSG* pMsg) {
    CString strMessage;
    if (!e->GetErrorMessage(strMessage.GetBuffer(512), 512))
        strMessage = _T("");
    strMessage.ReleaseBuffer();
    const bool bCancelled = e->IsKindOf(RUNTIME_CLASS(CUserException)); // the user knows already
    e->Delete();
    if (pMsg->message == WM_PAINT)
        ::ValidateRect(pMsg->hwnd, nullptr); // or it would come again for ever
    if (!bCancelled)
        AfxMessageBox(strMessage, MB_OK | MB_ICONSTOP);
    return pMsg->message == WM_CREATE ? -1 : 0;
}

CWinThread* AFXAPI AfxGetThread() {
    CWinThread* pThread = CThreadState::Get().m_pThread;
    return pThread != nullptr ? pThread : g_pApp;
}

BOOL AFXAPI AfxPumpMessage() {
    if (CWinThread* pThread = AfxGetThread())
        return pThread->PumpMessage();
    // A program without an application object: a thread object for the time of the loop's life.
    static thread_local CWinThread thread;
    return thread.PumpMessage();
}

void AFXAPI AfxPostQuitMessage(int nExitCode) {
    ::PostQuitMessage(nExitCode);
}

CWnd* AFXAPI AfxGetMainWnd() {
    CWinThread* pThread = AfxGetThread();
    return pThread != nullptr ? pThread->m_pMainWnd : nullptr;
}

// --- Application -------------------------------------------------------------------------------

CWinApp::CWinApp(LPCTSTR lpszAppName) : m_strAppName(lpszAppName) {
    g_pApp = this;
    if (m_strAppName.IsEmpty()) {
        WCHAR szPath[MAX_PATH];
        const DWORD nLength = ::GetModuleFileName(nullptr, szPath, MAX_PATH);
        m_strAppName = CString(szPath, static_cast<int>(nLength));
        m_strAppName = m_strAppName.Mid(m_strAppName.ReverseFind(_T('\\')) + 1);
        if (const int nDot = m_strAppName.ReverseFind(_T('.')); nDot > 0)
            m_strAppName = m_strAppName.Left(nDot);
    }
    m_pszAppName = m_strAppName;
    m_pszProfileName = m_pszAppName;
}

CWinApp::~CWinApp() {
    if (g_pApp == this)
        g_pApp = nullptr;
}

int CWinApp::Run() {
    if (m_pMainWnd == nullptr)
        AfxPostQuitMessage(0); // nobody could ever end it
    return CWinThread::Run();
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
    const LPCTSTR pszName = MAKEINTRESOURCE(nIDResource);
    return ::LoadCursor(AfxFindResourceHandle(pszName, RT_GROUP_CURSOR), pszName);
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

int AFXAPI AfxWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow) {
    AfxWinInit(hInstance, hPrevInstance, lpCmdLine, nCmdShow);
    CWinThread* pThread = AfxGetThread();
    if (pThread == nullptr)
        return -1;
    if (pThread->InitInstance())
        return pThread->Run();
    if (pThread->m_pMainWnd != nullptr)
        pThread->m_pMainWnd->DestroyWindow();
    return pThread->ExitInstance();
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
    const int nResult = ::MessageBox(hWndOwner, lpszPrompt, m_pszAppName, nType);
    if (hWndTop != nullptr)
        ::EnableWindow(hWndTop, TRUE);
    return nResult;
}

int AFXAPI AfxMessageBox(LPCTSTR lpszText, UINT nType, UINT nIDHelp) {
    if (CWinApp* pApp = AfxGetApp())
        return pApp->DoMessageBox(lpszText, nType, nIDHelp);
    return ::MessageBox(::GetActiveWindow(), lpszText, AfxGetAppName(), nType);
}

int AFXAPI AfxMessageBox(UINT nIDPrompt, UINT nType, UINT nIDHelp) {
    CString strText;
    strText.LoadString(nIDPrompt);
    return AfxMessageBox(strText, nType, nIDHelp == static_cast<UINT>(-1) ? nIDPrompt : nIDHelp);
}

// --- Wait cursor -----------------------------------------------------------------------------------

static int g_nWaitDepth = 0;
static HCURSOR g_hCursorBefore = nullptr;

void CCmdTarget::BeginWaitCursor() {
    const HCURSOR hCursor = ::SetCursor(::LoadCursor(nullptr, IDC_WAIT));
    if (g_nWaitDepth++ == 0)
        g_hCursorBefore = hCursor;
}

void CCmdTarget::EndWaitCursor() {
    if (g_nWaitDepth > 0 && --g_nWaitDepth == 0)
        ::SetCursor(g_hCursorBefore);
}

void CCmdTarget::RestoreWaitCursor() {
    if (g_nWaitDepth > 0)
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
    static std::set<CString> names;
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
