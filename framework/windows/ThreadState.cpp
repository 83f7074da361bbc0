#include "ThreadState.h"

#include "afxcmn.h"

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
