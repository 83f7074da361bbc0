/// @file
/// Objects that threads wait for, and the locks that hold them.
#pragma once

/// What programs ask for to see whether this header has been included.
#define __AFXMT_H__

#include "afxwin.h"

/// The base of what threads wait for. The object owns its handle.
class AFX_CORE CSyncObject : public CObject {
    DECLARE_DYNAMIC(CSyncObject)
public:
    /// @param pstrName not used
    explicit CSyncObject(LPCTSTR pstrName);
    ~CSyncObject() override;

    HANDLE m_hObject = nullptr; ///< What the system waits for.

    /// The handle, or null.
    operator HANDLE() const { return m_hObject; }
    /// Waits. @param dwTimeout milliseconds @return FALSE if the time is over, or on failure
    virtual BOOL Lock(DWORD dwTimeout = INFINITE);
    /// Gives up what Lock has taken. @return FALSE on failure
    virtual BOOL Unlock() = 0;
    /// The same for a number of holds of a semaphore. Here: TRUE, with nothing done.
    virtual BOOL Unlock(LONG lCount, LPLONG lpPrevCount = nullptr);
};

/// Held by one thread at a time, as often as it likes; with a name among processes.
class AFX_CORE CMutex : public CSyncObject {
    DECLARE_DYNAMIC(CMutex)
public:
    /// @throw CResourceException* if the system refuses, as the other classes' constructors do
    explicit CMutex(BOOL bInitiallyOwn = FALSE, LPCTSTR lpszName = nullptr,
                    LPSECURITY_ATTRIBUTES lpsaAttribute = nullptr);
    using CSyncObject::Unlock;
    BOOL Unlock() override;
};

/// Held by a number of threads at a time.
class AFX_CORE CSemaphore : public CSyncObject {
    DECLARE_DYNAMIC(CSemaphore)
public:
    explicit CSemaphore(LONG lInitialCount = 1, LONG lMaxCount = 1, LPCTSTR pstrName = nullptr,
                        LPSECURITY_ATTRIBUTES lpsaAttributes = nullptr);
    BOOL Unlock() override;
    BOOL Unlock(LONG lCount, LPLONG lpPrevCount = nullptr) override;
};

/// Something that has happened: threads wait until it is set.
class AFX_CORE CEvent : public CSyncObject {
    DECLARE_DYNAMIC(CEvent)
public:
    /// @param bManualReset FALSE: the first thread that waits resets it
    explicit CEvent(BOOL bInitiallyOwn = FALSE, BOOL bManualReset = FALSE, LPCTSTR lpszName = nullptr,
                    LPSECURITY_ATTRIBUTES lpsaAttribute = nullptr);
    /// The Win32 function of the same name. @return FALSE on failure
    ///@{
    BOOL SetEvent() { return ::SetEvent(m_hObject); }
    BOOL PulseEvent() { return ::PulseEvent(m_hObject); }
    BOOL ResetEvent() { return ::ResetEvent(m_hObject); }
    ///@}
    using CSyncObject::Unlock;
    /// Nothing to give up. @return TRUE
    BOOL Unlock() override;
};

/// Held by one thread of the process at a time, as often as it likes; the fastest of all.
class AFX_CORE CCriticalSection : public CSyncObject {
    DECLARE_DYNAMIC(CCriticalSection)
public:
    CCriticalSection();
    ~CCriticalSection() override;

    CRITICAL_SECTION m_sect; ///< The system's object.

    operator CRITICAL_SECTION*() { return &m_sect; }
    /// Waits without a limit.
    BOOL Lock() { return CCriticalSection::Lock(INFINITE); }
    /// @param dwTimeout not used: this kind waits without a limit
    BOOL Lock(DWORD dwTimeout) override;
    using CSyncObject::Unlock;
    BOOL Unlock() override;
};

/// Holds an object while it exists, or while it is locked.
class AFX_CORE CSingleLock {
public:
    explicit CSingleLock(CSyncObject* pObject, BOOL bInitialLock = FALSE);
    ~CSingleLock() { Unlock(); }
    CSingleLock(const CSingleLock&) = delete;
    CSingleLock& operator=(const CSingleLock&) = delete;

    /// @return FALSE if the time is over
    BOOL Lock(DWORD dwTimeOut = INFINITE);
    /// @return FALSE if nothing was held
    BOOL Unlock();
    BOOL Unlock(LONG lCount, LPLONG lPrevCount = nullptr);
    BOOL IsLocked() const { return m_bAcquired; }

private:
    CSyncObject* m_pObject;
    BOOL m_bAcquired = FALSE;
};

/// Holds several objects, which all have handles of the system (no critical sections).
class AFX_CORE CMultiLock {
public:
    CMultiLock(CSyncObject* ppObjects[], DWORD dwCount, BOOL bInitialLock = FALSE);
    ~CMultiLock() { Unlock(); }
    CMultiLock(const CMultiLock&) = delete;
    CMultiLock& operator=(const CMultiLock&) = delete;

    /// Waits for all, or for the first of them. @return as MsgWaitForMultipleObjects
    DWORD Lock(DWORD dwTimeOut = INFINITE, BOOL bWaitForAll = TRUE, DWORD dwWakeMask = 0);
    /// Gives up all that is held. @return FALSE on failure
    BOOL Unlock();
    BOOL IsLocked(DWORD dwItem) const { return m_held[dwItem]; }

private:
    CSyncObject* const* m_ppObjects;
    DWORD m_dwCount;
    BOOL m_held[MAXIMUM_WAIT_OBJECTS] = {};
};
