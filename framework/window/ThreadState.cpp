#include "ThreadState.h"

#include <winternl.h>

#include <atomic>
#include <type_traits>
#include <utility>

using namespace fieldkit::detail;

// One slot for all of it: the compiler's thread_local is emulated here and seven times as slow.
namespace {

/// The slot as every message asks for it, several times; TLS_OUT_OF_INDEXES before it is allocated.
std::atomic<DWORD> g_nSlot{TLS_OUT_OF_INDEXES};

/// Made with the first object that needs it, which may be an application's static one.
DWORD Slot() {
    static const DWORD nSlot = ::TlsAlloc();
    g_nSlot.store(nSlot, std::memory_order_relaxed);
    return nSlot;
}

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Warray-bounds" // the system's header reads the block at address 0 of gs
/// The thread's block has the first slots where TlsGetValue looks; null also when the slot is none of them.
CThreadState* Quick() {
    if (const DWORD nSlot = g_nSlot.load(std::memory_order_relaxed);
        nSlot < std::extent_v<decltype(TEB::TlsSlots)>)
        return static_cast<CThreadState*>(::NtCurrentTeb()->TlsSlots[nSlot]);
    return nullptr;
}
#pragma GCC diagnostic pop

CThreadState* Current() {
    const DWORD nError = ::GetLastError(); // taking the value clears it
    auto* pState = static_cast<CThreadState*>(::TlsGetValue(Slot()));
    ::SetLastError(nError);
    return pState;
}

[[gnu::noinline]] CThreadState& CurrentOrNew() {
    if (CThreadState* pState = Current())
        return *pState;
    auto* pState = new CThreadState;
    ::TlsSetValue(Slot(), pState);
    return *pState;
}

/// The main thread has no such end: an application's static objects (its CWinApp, its dialogs)
/// still use the state when the process is already going down.
void NTAPI OnThread(PVOID, DWORD dwReason, PVOID) {
    if (dwReason != DLL_THREAD_DETACH)
        return;
    delete Current();
    ::TlsSetValue(Slot(), nullptr);
}

struct CNewHandler {
    CNewHandler() { AfxInstallNewHandler(); }
};
const CNewHandler g_newHandler;

} // namespace

// The linker gathers these pointers, and the system calls them; in a DLL as in a program.
extern "C" __attribute__((section(".CRT$XLF"), used)) const PIMAGE_TLS_CALLBACK FieldkitThreadCallback =
    OnThread;

CThreadState& CThreadState::Get() {
    CThreadState* const pState = Quick();
    return pState != nullptr ? *pState : CurrentOrNew();
}

CWinThread& CThreadState::PumpThread() {
    if (m_pThread != nullptr)
        return *m_pThread;
    if (m_pOwnThread == nullptr) // to everybody else the thread still has none
        m_pOwnThread = std::make_unique<CWinThread>();
    return *m_pOwnThread;
}

CMenu* CThreadState::FindMenuOf(UINT nID) const {
    return m_menus.FindPermanent([nID](const CMenu* pMenu) {
        return pMenu->GetMenuState(nID, MF_BYCOMMAND) != static_cast<UINT>(-1);
    });
}

void CThreadState::DeleteTemporaries() {
    m_windows.DeleteTemporary(m_nModalDepth);
    m_contexts.DeleteTemporary(m_nModalDepth);
    m_gdiObjects.DeleteTemporary(m_nModalDepth);
    m_menus.DeleteTemporary(m_nModalDepth);
    m_imageLists.DeleteTemporary(m_nModalDepth);
}

CModalScope::CModalScope(CWnd* pWnd) : m_pWnd(pWnd) {
    CThreadState& state = CThreadState::Get();
    m_pOuter = std::exchange(state.m_pModal, this);
    ++state.m_nModalDepth;
}

CModalScope::~CModalScope() {
    CThreadState& state = CThreadState::Get();
    state.DeleteTemporaries();
    --state.m_nModalDepth;
    state.m_pModal = m_pOuter;
    // This window may have come in a message that another thread sent, which the outer loop handles
    // while it waits for one of its own: it must look whether it shall still go on.
    if (m_pOuter != nullptr)
        ::PostMessage(nullptr, WM_NULL, 0, 0);
}

void CModalScope::Forget(const CWnd* pWnd) {
    for (CModalScope* pScope = CThreadState::Get().m_pModal; pScope != nullptr; pScope = pScope->m_pOuter)
        if (pScope->m_pWnd == pWnd)
            pScope->m_pWnd = nullptr;
}
