#include "WndProc.h"

using namespace fieldkit::detail;

namespace {

WNDPROC WindowProcOf(HWND hWnd) {
    return reinterpret_cast<WNDPROC>(::GetWindowLongPtr(hWnd, GWLP_WNDPROC));
}

void SetWindowProc(HWND hWnd, WNDPROC pfn) {
    ::SetWindowLongPtr(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(pfn));
}

/// Gives the thread's message being handled back to the outer handler.
class CMessageScope {
public:
    CMessageScope(MSG& current, HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
        : m_current(current), m_outer(current) {
        m_current.hwnd = hWnd;
        m_current.message = message;
        m_current.wParam = wParam;
        m_current.lParam = lParam;
    }
    ~CMessageScope() { m_current = m_outer; }
    CMessageScope(const CMessageScope&) = delete;
    CMessageScope& operator=(const CMessageScope&) = delete;

private:
    MSG& m_current;
    MSG m_outer;
};

/// What has to be done for a message whose handler has thrown.
void OnUncaught(HWND hWnd, UINT message, const CWnd* pWnd) {
    CWnd* const pNow = CWnd::FromHandlePermanent(hWnd);
    if (pNow == nullptr || pNow != pWnd)
        return; // the handler has deleted it before
    if (message == WM_INITDIALOG)
        AfxWndAccess::OnInitFailed(pNow);
    if (message == WM_NCDESTROY)
        AfxWndAccess::OnNcDestroy(pNow); // or the object would keep the handle of another window
}

/// Attaches the object that waits for its window. @return false if it could not
bool AttachNew(CWnd* pWnd, HWND hWnd) noexcept {
    bool bDone = false;
    const auto attach = [&] {
        bDone = pWnd->Attach(hWnd);
        if (bDone)
            pWnd->PreSubclassWindow();
    };
    try {
        attach();
    } catch (CException* e) {
        e->Delete();
        bDone = false;
    } catch (...) {
        bDone = false;
    }
    if (!bDone)
        pWnd->Detach();
    return bDone;
}

} // namespace

LRESULT CALLBACK fieldkit::detail::AfxWndProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) {
    CThreadState& state = CThreadState::Get();
    CWnd* pWnd = state.m_windows.Permanent(hWnd);
    if (pWnd == nullptr)
        return ::DefWindowProc(hWnd, message, wParam, lParam);
    const CMessageScope scope(state.m_msgLast, hWnd, message, wParam, lParam);
    MSG msg = {};
    msg.hwnd = hWnd;
    msg.message = message;
    msg.wParam = wParam;
    msg.lParam = lParam;
    bool bDone = false;
    const LRESULT lResult = AfxCallGuarded(msg, [&] {
        const LRESULT lAnswer = AfxWndAccess::WindowProc(pWnd, message, wParam, lParam);
        bDone = true;
        return lAnswer;
    });
    if (!bDone)
        AfxCallGuarded(msg, [&] {
            OnUncaught(hWnd, message, pWnd);
            return 0;
        });
    return lResult;
}

namespace {

LRESULT CALLBACK CreateHookProc(int nCode, WPARAM wParam, LPARAM lParam) {
    CThreadState& state = CThreadState::Get();
    const HHOOK hHook = state.m_hCreateHook;
    const auto hWnd = reinterpret_cast<HWND>(wParam);
    // The input method may create a window of its own inside the creation of the first one.
    if (nCode == HCBT_CREATEWND && state.m_pWndInit != nullptr &&
        !(::GetClassLong(hWnd, GCL_STYLE) & CS_IME)) {
        CWnd* pWnd = state.m_pWndInit;
        state.m_pWndInit = nullptr; // the first window is the one; its children are not
        if (!AttachNew(pWnd, hWnd)) {
            state.m_pWndInit = pWnd; // it still waits, so its creation fails
            return 1;                // no window without its object
        }
        *AfxWndAccess::SuperProc(pWnd) = WindowProcOf(hWnd);
        SetWindowProc(hWnd, AfxWndProc);
    }
    return ::CallNextHookEx(hHook, nCode, wParam, lParam);
}

} // namespace

CCreateHook::CCreateHook(CWnd* pWnd) : m_pWnd(pWnd) {
    CThreadState& state = CThreadState::Get();
    m_pOuterWnd = state.m_pWndInit;
    m_hHook = state.m_hCreateHook;
    if (m_hHook == nullptr)
        state.m_hCreateHook = ::SetWindowsHookEx(WH_CBT, CreateHookProc, nullptr, ::GetCurrentThreadId());
    state.m_pWndInit = pWnd;
}

CCreateHook::~CCreateHook() {
    if (m_pWnd != nullptr)
        Unhook();
}

BOOL CCreateHook::Unhook() {
    CThreadState& state = CThreadState::Get();
    const BOOL bAttached = state.m_pWndInit != m_pWnd;
    state.m_pWndInit = m_pOuterWnd;
    if (m_hHook == nullptr) { // this scope set the hook
        ::UnhookWindowsHookEx(state.m_hCreateHook);
        state.m_hCreateHook = nullptr;
    }
    m_pWnd = nullptr;
    return bAttached;
}

// --- Attaching -----------------------------------------------------------------------

BOOL CWnd::Attach(HWND hWndNew) {
    if (hWndNew == nullptr || m_hWnd != nullptr || FromHandlePermanent(hWndNew) != nullptr)
        return FALSE;
    CThreadState::Get().m_windows.SetPermanent(hWndNew, this);
    m_hWnd = hWndNew;
    return TRUE;
}

HWND CWnd::Detach() {
    const HWND hWnd = m_hWnd;
    if (hWnd != nullptr)
        CThreadState::Get().m_windows.Remove(hWnd);
    m_hWnd = nullptr;
    return hWnd;
}

CWnd* CWnd::FromHandle(HWND hWnd) {
    CThreadState& state = CThreadState::Get();
    return state.m_windows.FromHandle(hWnd, state.m_nModalDepth, [] { return new CWnd; });
}

CWnd* CWnd::FromHandlePermanent(HWND hWnd) {
    return CThreadState::Get().m_windows.Permanent(hWnd);
}

void CWnd::DeleteTempMap() {
    CThreadState::Get().DeleteTemporaries();
}

BOOL CWnd::SubclassWindow(HWND hWnd) {
    if (!::IsWindow(hWnd) || !Attach(hWnd))
        return FALSE;
    PreSubclassWindow();
    const WNDPROC pfnOld = WindowProcOf(hWnd);
    if (pfnOld != AfxWndProc) {
        *GetSuperWndProcAddr() = pfnOld;
        SetWindowProc(hWnd, AfxWndProc);
    }
    return TRUE;
}

BOOL CWnd::SubclassDlgItem(UINT nID, CWnd* pParent) {
    const HWND hWnd = ::GetDlgItem(HandleOf(pParent), static_cast<int>(nID));
    return hWnd != nullptr && SubclassWindow(hWnd);
}

HWND CWnd::UnsubclassWindow() {
    WNDPROC& pfnSuper = *GetSuperWndProcAddr();
    if (m_hWnd != nullptr && pfnSuper != nullptr && WindowProcOf(m_hWnd) == AfxWndProc)
        SetWindowProc(m_hWnd, pfnSuper);
    pfnSuper = nullptr;
    return Detach();
}

WNDPROC* CWnd::GetSuperWndProcAddr() {
    return &m_pfnSuper;
}

void CWnd::PreSubclassWindow() {}

void CWnd::PostNcDestroy() {}

void CWnd::OnInitFailed() {
    m_nFlags |= WF_INITFAILED;
}

// --- Creation and destruction ----------------------------------------------------------

CWnd::~CWnd() {
    if (m_hWnd != nullptr)
        DestroyWindow();
    if (m_nFlags & WF_MODALLOOP)
        CModalScope::Forget(this);
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, int x,
                    int y, int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu, LPVOID lpParam) {
    CREATESTRUCT cs = {};
    cs.dwExStyle = dwExStyle;
    cs.lpszClass = lpszClassName;
    cs.lpszName = lpszWindowName;
    cs.style = static_cast<LONG>(dwStyle);
    cs.x = x;
    cs.y = y;
    cs.cx = nWidth;
    cs.cy = nHeight;
    cs.hwndParent = hWndParent;
    cs.hMenu = nIDorHMenu;
    cs.hInstance = AfxGetInstanceHandle();
    cs.lpCreateParams = lpParam;
    if (m_hWnd != nullptr || !PreCreateWindow(cs)) {
        PostNcDestroy();
        return FALSE;
    }
    if ((cs.dwExStyle & WS_EX_CAPTIONOKBTN) != 0)
        m_nFlags |= WF_OKBUTTON;
    CCreateHook hook(this);
    const HWND hWnd = ::CreateWindowEx(cs.dwExStyle & ~WS_EX_CAPTIONOKBTN, cs.lpszClass, cs.lpszName,
                                       static_cast<DWORD>(cs.style), cs.x, cs.y, cs.cx, cs.cy, cs.hwndParent,
                                       cs.hMenu, cs.hInstance, cs.lpCreateParams);
    if (hook.Unhook())
        return hWnd != nullptr;
    if (hWnd != nullptr)
        ::DestroyWindow(hWnd); // the hook could not be set
    PostNcDestroy();           // nothing was attached, so no WM_NCDESTROY can come
    return FALSE;
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                    const RECT& rect, CWnd* pParentWnd, UINT nID, LPVOID lpParam) {
    return CreateEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, rect.left, rect.top,
                    rect.right - rect.left, rect.bottom - rect.top, HandleOf(pParentWnd),
                    reinterpret_cast<HMENU>(static_cast<UINT_PTR>(nID)), lpParam);
}

BOOL CWnd::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                  CWnd* pParentWnd, UINT nID, CCreateContext* pContext) {
    return CreateEx(0, lpszClassName, lpszWindowName, dwStyle | WS_CHILD, rect, pParentWnd, nID, pContext);
}

BOOL CWnd::PreCreateWindow(CREATESTRUCT& cs) {
    if (cs.lpszClass == nullptr)
        cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW),
                                           reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1));
    return TRUE;
}

BOOL CWnd::DestroyWindow() {
    if (m_hWnd == nullptr)
        return FALSE;
    const HWND hWnd = m_hWnd;
    const BOOL bPermanent = FromHandlePermanent(hWnd) == this;
    const BOOL bResult = ::DestroyWindow(hWnd);
    // A window without our procedure, only attached, does not tell that it has gone. If the
    // object has deleted itself in PostNcDestroy, it is out of the map already.
    if (bPermanent && FromHandlePermanent(hWnd) == this)
        Detach();
    return bResult;
}

void CWnd::OnNcDestroy() {
    if (CWinThread* pThread = AfxGetThread(); pThread != nullptr && pThread->m_pMainWnd == this) {
        pThread->m_pMainWnd = nullptr;
        AfxPostQuitMessage(0);
    }
    const HWND hWnd = m_hWnd;
    Default();
    if (WNDPROC& pfnSuper = *GetSuperWndProcAddr(); pfnSuper != nullptr) {
        if (WindowProcOf(hWnd) == AfxWndProc)
            SetWindowProc(hWnd, pfnSuper);
        pfnSuper = nullptr;
    }
    Detach();
    m_nFlags &= ~static_cast<UINT>(WF_FULLSCREEN | WF_SHOWSET);
    if (m_nFlags & WF_MODALLOOP) { // destroyed without having been ended, perhaps by its owner
        m_nFlags &= ~static_cast<UINT>(WF_CONTINUEMODAL);
        ::PostMessage(nullptr, WM_NULL, 0, 0); // wakes the loop
    }
    PostNcDestroy();
}
