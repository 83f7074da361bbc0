#include "ThreadState.h"

#include "afxcmn.h"

#include <utility>

CThreadState& CThreadState::Get() {
    // Never destroyed: an application's static objects (its CWinApp, its dialogs) still use it
    // when the thread's own objects are gone already.
    thread_local auto* const pState = new CThreadState;
    return *pState;
}

void CThreadState::DeleteTemporaries() {
    m_windows.DeleteTemporary(m_nModalDepth);
    m_contexts.DeleteTemporary(m_nModalDepth);
    m_gdiObjects.DeleteTemporary(m_nModalDepth);
    CImageList::DeleteTempMap();
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
