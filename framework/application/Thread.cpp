// Threads that the framework starts.
#include "MessageFilter.h"
#include "window/WndProc.h"

#include <process.h>

using namespace fieldkit::detail;

namespace {

/// The thread's own object of the main window of whoever has started it: objects are not shared by threads.
class CMainWindowOfStarter {
public:
    explicit CMainWindowOfStarter(CWinThread& thread) : m_thread(thread) {
        const HWND hWnd = HandleOf(thread.m_pMainWnd);
        thread.m_pMainWnd = nullptr;
        if (hWnd != nullptr && m_wnd.Attach(hWnd))
            thread.m_pMainWnd = &m_wnd;
    }
    ~CMainWindowOfStarter() {
        if (m_thread.m_pMainWnd == &m_wnd)
            m_thread.m_pMainWnd = nullptr;
        m_wnd.Detach();
    }
    CMainWindowOfStarter(const CMainWindowOfStarter&) = delete;
    CMainWindowOfStarter& operator=(const CMainWindowOfStarter&) = delete;

private:
    CWinThread& m_thread;
    CWnd m_wnd;
};

UINT RunStarted(CWinThread& thread) {
    const CMainWindowOfStarter mainWindow(thread);
    const CMessageFilter filter;
    if (thread.m_pfnThreadProc != nullptr)
        return thread.m_pfnThreadProc(thread.m_pThreadParams);
    return static_cast<UINT>(thread.InitInstance() ? thread.Run() : thread.ExitInstance());
}

unsigned __stdcall ThreadMain(void* pParam) {
    auto* pThread = static_cast<CWinThread*>(pParam);
    CThreadState::Get().m_pThread = pThread;
    MSG msg;
    ::PeekMessage(&msg, nullptr, 0, 0, PM_NOREMOVE); // makes the queue, so that messages can be posted
    UINT nResult = static_cast<UINT>(-1);
    AfxCallGuarded({}, [&] { return nResult = RunStarted(*pThread); });
    CThreadState::Get().m_pThread = nullptr;
    pThread->Delete();
    return nResult;
}

} // namespace

CWinThread::CWinThread(AFX_THREADPROC pfnThreadProc, LPVOID pParam)
    : m_pThreadParams(pParam), m_pfnThreadProc(pfnThreadProc) {}

CWinThread::~CWinThread() {
    CThreadState& state = CThreadState::Get();
    if (state.m_pThread == this)
        state.m_pThread = nullptr;
    if (m_hThread != nullptr)
        ::CloseHandle(m_hThread);
}

BOOL CWinThread::CreateThread(DWORD dwCreateFlags, UINT nStackSize, LPSECURITY_ATTRIBUTES lpSecurityAttrs) {
    m_pMainWnd = AfxGetMainWnd();
    unsigned nThreadID = 0;
    // Suspended at first, so that the object is complete when the thread sees, or deletes, it.
    const HANDLE hThread = reinterpret_cast<HANDLE>(::_beginthreadex(
        lpSecurityAttrs, nStackSize, ThreadMain, this, dwCreateFlags | CREATE_SUSPENDED, &nThreadID));
    if (hThread == nullptr)
        return FALSE;
    m_hThread = hThread;
    m_nThreadID = nThreadID;
    if (!(dwCreateFlags & CREATE_SUSPENDED))
        ::ResumeThread(hThread);
    return TRUE;
}

void CWinThread::Delete() {
    if (m_bAutoDelete)
        delete this;
}

namespace {

/// @return the thread's object, deleted and null if the system refuses
CWinThread* Start(CWinThread* pThread, int nPriority, UINT nStackSize, DWORD dwCreateFlags,
                  LPSECURITY_ATTRIBUTES lpSecurityAttrs) {
    if (!pThread->CreateThread(dwCreateFlags | CREATE_SUSPENDED, nStackSize, lpSecurityAttrs)) {
        pThread->Delete();
        return nullptr;
    }
    pThread->SetThreadPriority(nPriority);
    if (!(dwCreateFlags & CREATE_SUSPENDED))
        pThread->ResumeThread();
    return pThread;
}

} // namespace

CWinThread* AFXAPI AfxBeginThread(AFX_THREADPROC pfnThreadProc, LPVOID pParam, int nPriority, UINT nStackSize,
                                  DWORD dwCreateFlags, LPSECURITY_ATTRIBUTES lpSecurityAttrs) {
    return Start(new CWinThread(pfnThreadProc, pParam), nPriority, nStackSize, dwCreateFlags,
                 lpSecurityAttrs);
}

CWinThread* AFXAPI AfxBeginThread(CRuntimeClass* pThreadClass, int nPriority, UINT nStackSize,
                                  DWORD dwCreateFlags, LPSECURITY_ATTRIBUTES lpSecurityAttrs) {
    auto* pThread = static_cast<CWinThread*>(pThreadClass->CreateObject());
    return pThread == nullptr ? nullptr
                              : Start(pThread, nPriority, nStackSize, dwCreateFlags, lpSecurityAttrs);
}

void AFXAPI AfxEndThread(UINT nExitCode, BOOL bDelete) {
    if (CWinThread* pThread = AfxGetThread(); pThread != nullptr && bDelete)
        pThread->Delete();
    CThreadState::Get().m_pThread = nullptr;
    ::_endthreadex(nExitCode);
}
