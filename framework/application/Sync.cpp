// Objects that threads wait for.
#include "afxmt.h"

IMPLEMENT_DYNAMIC(CSyncObject, CObject)
IMPLEMENT_DYNAMIC(CMutex, CSyncObject)
IMPLEMENT_DYNAMIC(CSemaphore, CSyncObject)
IMPLEMENT_DYNAMIC(CEvent, CSyncObject)
IMPLEMENT_DYNAMIC(CCriticalSection, CSyncObject)

namespace {

HANDLE OrThrow(HANDLE hObject) {
    if (hObject == nullptr)
        AfxThrowResourceException();
    return hObject;
}

} // namespace

CSyncObject::CSyncObject(LPCTSTR) {}

CSyncObject::~CSyncObject() {
    if (m_hObject != nullptr)
        ::CloseHandle(m_hObject);
}

BOOL CSyncObject::Lock(DWORD dwTimeout) {
    const DWORD dwResult = ::WaitForSingleObject(m_hObject, dwTimeout);
    return dwResult == WAIT_OBJECT_0 || dwResult == WAIT_ABANDONED;
}

BOOL CSyncObject::Unlock(LONG, LPLONG) {
    return TRUE;
}

CMutex::CMutex(BOOL bInitiallyOwn, LPCTSTR lpszName, LPSECURITY_ATTRIBUTES lpsaAttribute)
    : CSyncObject(lpszName) {
    m_hObject = OrThrow(::CreateMutex(lpsaAttribute, bInitiallyOwn, lpszName));
}

BOOL CMutex::Unlock() {
    return ::ReleaseMutex(m_hObject);
}

CSemaphore::CSemaphore(LONG lInitialCount, LONG lMaxCount, LPCTSTR pstrName,
                       LPSECURITY_ATTRIBUTES lpsaAttributes)
    : CSyncObject(pstrName) {
    m_hObject = OrThrow(::CreateSemaphore(lpsaAttributes, lInitialCount, lMaxCount, pstrName));
}

BOOL CSemaphore::Unlock() {
    return Unlock(1, nullptr);
}

BOOL CSemaphore::Unlock(LONG lCount, LPLONG lpPrevCount) {
    return ::ReleaseSemaphore(m_hObject, lCount, lpPrevCount);
}

CEvent::CEvent(BOOL bInitiallyOwn, BOOL bManualReset, LPCTSTR lpszName, LPSECURITY_ATTRIBUTES lpsaAttribute)
    : CSyncObject(lpszName) {
    m_hObject = OrThrow(::CreateEvent(lpsaAttribute, bManualReset, bInitiallyOwn, lpszName));
}

BOOL CEvent::Unlock() {
    return TRUE;
}

CCriticalSection::CCriticalSection() : CSyncObject(nullptr), m_sect() {
    ::InitializeCriticalSection(&m_sect);
}

CCriticalSection::~CCriticalSection() {
    ::DeleteCriticalSection(&m_sect);
}

BOOL CCriticalSection::Lock(DWORD) {
    ::EnterCriticalSection(&m_sect);
    return TRUE;
}

BOOL CCriticalSection::Unlock() {
    ::LeaveCriticalSection(&m_sect);
    return TRUE;
}

// --- Locks -------------------------------------------------------------------------------------

CSingleLock::CSingleLock(CSyncObject* pObject, BOOL bInitialLock) : m_pObject(pObject) {
    if (bInitialLock)
        Lock();
}

BOOL CSingleLock::Lock(DWORD dwTimeOut) {
    return m_bAcquired = m_pObject->Lock(dwTimeOut);
}

BOOL CSingleLock::Unlock() {
    if (!m_bAcquired)
        return FALSE;
    m_bAcquired = !m_pObject->Unlock();
    return !m_bAcquired;
}

BOOL CSingleLock::Unlock(LONG lCount, LPLONG lPrevCount) {
    if (!m_bAcquired)
        return FALSE;
    m_bAcquired = !m_pObject->Unlock(lCount, lPrevCount);
    return !m_bAcquired;
}

CMultiLock::CMultiLock(CSyncObject* ppObjects[], DWORD dwCount, BOOL bInitialLock)
    : m_ppObjects(ppObjects), m_dwCount(dwCount) {
    if (dwCount > MAXIMUM_WAIT_OBJECTS)
        AfxThrowInvalidArgException();
    if (bInitialLock)
        Lock();
}

DWORD CMultiLock::Lock(DWORD dwTimeOut, BOOL bWaitForAll, DWORD dwWakeMask) {
    HANDLE handles[MAXIMUM_WAIT_OBJECTS];
    for (DWORD i = 0; i < m_dwCount; ++i)
        handles[i] = m_ppObjects[i]->m_hObject;
    const DWORD dwResult =
        dwWakeMask == 0 ? ::WaitForMultipleObjects(m_dwCount, handles, bWaitForAll, dwTimeOut)
                        : ::MsgWaitForMultipleObjects(m_dwCount, handles, bWaitForAll, dwTimeOut, dwWakeMask);
    const DWORD nFirst = dwResult >= WAIT_ABANDONED_0 ? dwResult - WAIT_ABANDONED_0 : dwResult;
    if (nFirst < m_dwCount)
        for (DWORD i = 0; i < m_dwCount; ++i)
            m_held[i] = m_held[i] || bWaitForAll || i == nFirst;
    return dwResult;
}

BOOL CMultiLock::Unlock() {
    BOOL bDone = TRUE;
    for (DWORD i = 0; i < m_dwCount; ++i)
        if (m_held[i]) {
            m_held[i] = !m_ppObjects[i]->Unlock();
            bDone = bDone && !m_held[i];
        }
    return bDone;
}
