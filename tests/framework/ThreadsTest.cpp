// What a thread leaves behind when it has used the framework.
#include "support/TestApp.h"
#include "testkit/Leftovers.h"

#include "afxcmn.h"
#include "afxmt.h"

#include <thread>

using namespace testkit;

namespace {

void UseEverything() {
    CString str;
    str.Format(L"%d", static_cast<int>(::GetCurrentThreadId()));
    {
        Frame frame;
        CEdit edit;
        edit.Create(WS_CHILD, CRect(0, 0, 9, 9), &frame, 1);
        CWnd::FromHandle(::GetDesktopWindow());
        CClientDC dc(&frame);
        dc.SelectObject(CFont::FromHandle(static_cast<HFONT>(::GetStockObject(SYSTEM_FONT))));
        CImageList images;
        images.Create(16, 16, ILC_COLOR, 1, 1);
        CImageList::FromHandle(images.m_hImageList);
        frame.PostMessage(WM_SETTINGCHANGE, SPI_SETSIPINFO);
        frame.PostMessage(WM_NULL);
        Pump();
    }
    CWaitCursor wait;
    AfxRegisterWndClass(CS_DBLCLKS);
}

size_t BytesAfter(int nThreads) {
    for (int i = 0; i < nThreads; ++i)
        std::thread(UseEverything).join();
    return Leftovers::Now().nHeapBytes;
}

TEST(Threads, LeaveNothingWhenTheyEnd) {
    constexpr int THREADS = 100;
    const size_t nBefore = BytesAfter(10); // caches of the system are full then
    EXPECT_LT(BytesAfter(THREADS), nBefore + THREADS * 16) << "less than the smallest block a thread";
}

TEST(Threads, RegisterTheSameClassesAtTheSameTime) {
    std::vector<std::thread> threads;
    for (int i = 0; i < 8; ++i)
        threads.emplace_back([] {
            for (UINT nStyle = 0; nStyle < 200; ++nStyle)
                AfxRegisterWndClass(CS_HREDRAW, nullptr, reinterpret_cast<HBRUSH>(UINT_PTR{nStyle}));
        });
    for (std::thread& thread : threads)
        thread.join();
    const LPCTSTR pszClass = AfxRegisterWndClass(CS_HREDRAW, nullptr, reinterpret_cast<HBRUSH>(UINT_PTR{7}));
    WNDCLASS wc = {};
    EXPECT_TRUE(::GetClassInfo(AfxGetInstanceHandle(), pszClass, &wc));
}

constexpr UINT WM_ADD = WM_APP + 1;

CEvent g_started(FALSE, TRUE), g_added, g_gone;
long g_nSum = 0;

/// A thread with a message loop.
class AddingThread : public CWinThread {
    DECLARE_DYNCREATE(AddingThread)
public:
    ~AddingThread() override { g_gone.SetEvent(); }
    BOOL InitInstance() override { return AfxGetThread() == this && g_started.SetEvent(); }
    BOOL ProcessMessageFilter(int code, LPMSG lpMsg) override {
        return code == MSGF_MENU && lpMsg->message == WM_ADD;
    }

protected:
    afx_msg void OnAdd(WPARAM wParam, LPARAM lParam) {
        MSG msg = {nullptr, WM_ADD, 0, 0, 0, {}}; // as the loop of a menu offers it
        if (::CallMsgFilter(&msg, MSGF_MENU) && !::CallMsgFilter(&msg, MSGF_SCROLLBAR))
            g_nSum += static_cast<long>(wParam) + static_cast<long>(lParam);
        g_added.SetEvent();
    }
    DECLARE_MESSAGE_MAP()
};

IMPLEMENT_DYNCREATE(AddingThread, CWinThread)
BEGIN_MESSAGE_MAP(AddingThread, CWinThread)
ON_THREAD_MESSAGE(WM_ADD, &AddingThread::OnAdd)
END_MESSAGE_MAP()

TEST(Threads, OneWithAMessageLoopTakesMessagesAndEndsOnQuit) {
    CWinThread* pThread =
        AfxBeginThread(RUNTIME_CLASS(AddingThread), THREAD_PRIORITY_NORMAL, 0, CREATE_SUSPENDED);
    ASSERT_NE(nullptr, pThread);
    pThread->m_bAutoDelete = FALSE;
    pThread->ResumeThread();
    ASSERT_TRUE(g_started.Lock(10000));
    pThread->PostThreadMessage(WM_ADD, 40, 2);
    ASSERT_TRUE(CSingleLock(&g_added).Lock(10000));
    EXPECT_EQ(42, g_nSum);
    pThread->PostThreadMessage(WM_QUIT, 7, 0);
    ASSERT_EQ(WAIT_OBJECT_0, ::WaitForSingleObject(pThread->m_hThread, 10000));
    DWORD dwCode = 0;
    ::GetExitCodeThread(pThread->m_hThread, &dwCode);
    EXPECT_EQ(7U, dwCode);
    delete pThread;
    EXPECT_TRUE(g_gone.Lock(0));
    g_started.ResetEvent();
    pThread = AfxBeginThread(RUNTIME_CLASS(AddingThread));
    ASSERT_TRUE(g_started.Lock(10000));
    pThread->PostThreadMessage(WM_QUIT, 0, 0);
    EXPECT_TRUE(g_gone.Lock(10000)) << "deletes itself";
}

/// The code that a thread ends with.
DWORD CodeOf(AFX_THREADPROC pfnThread) {
    CWinThread* const pThread =
        AfxBeginThread(pfnThread, nullptr, THREAD_PRIORITY_NORMAL, 0, CREATE_SUSPENDED);
    pThread->m_bAutoDelete = FALSE;
    pThread->ResumeThread();
    EXPECT_EQ(WAIT_OBJECT_0, ::WaitForSingleObject(pThread->m_hThread, 10000));
    DWORD dwCode = 0;
    ::GetExitCodeThread(pThread->m_hThread, &dwCode);
    delete pThread;
    return dwCode;
}

TEST(Threads, EndWithTheirCodeAlsoInTheMiddleOrByAnException) {
    EXPECT_EQ(5U, CodeOf([](LPVOID) { return 5U; }));
    EXPECT_EQ(6U, CodeOf([](LPVOID) { return AfxEndThread(6, FALSE), 0U; }));
    const MessageRecorder told;
    EXPECT_EQ(static_cast<DWORD>(-1), CodeOf([](LPVOID) -> UINT { throw std::bad_alloc(); }));
    EXPECT_EQ(1U, told.m_prompts.size());
}

TEST(Locks, AreHeldByOneAtATime) {
    CMutex mutex;
    CSemaphore semaphore(2, 2);
    CEvent event(FALSE, TRUE);
    const auto isFree = [&] { // for another thread
        BOOL bFree = FALSE;
        std::thread([&] { bFree = mutex.Lock(0) && mutex.Unlock(); }).join();
        return bFree != FALSE;
    };
    CSingleLock lock(&mutex);
    EXPECT_FALSE(lock.Unlock());
    EXPECT_TRUE(lock.Lock(0));
    EXPECT_FALSE(isFree());
    EXPECT_TRUE(lock.Unlock());
    EXPECT_TRUE(isFree());
    for (const BOOL bLocked : {TRUE, TRUE, FALSE})
        EXPECT_EQ(bLocked, semaphore.Lock(0));
    LONG nBefore = -1;
    EXPECT_TRUE(semaphore.Unlock(2, &nBefore));
    EXPECT_EQ(0, nBefore);
    CSingleLock counted(&semaphore, TRUE);
    EXPECT_TRUE(counted.Unlock(1));
    EXPECT_FALSE(counted.Unlock(1));
    EXPECT_FALSE(semaphore.Unlock()) << "all are free";

    CCriticalSection section;
    CSingleLock sectionLock(&section, TRUE);
    CRITICAL_SECTION* const pSection = section;
    BOOL bEntered = TRUE;
    std::thread([&] { bEntered = ::TryEnterCriticalSection(pSection); }).join();
    EXPECT_FALSE(bEntered);
    EXPECT_TRUE(sectionLock.Unlock());
    EXPECT_FALSE(sectionLock.IsLocked());
    std::thread([&] { bEntered = ::TryEnterCriticalSection(pSection); }).join();
    EXPECT_TRUE(bEntered);

    CSyncObject* objects[] = {&event, &mutex};
    CMultiLock both(objects, 2);
    EXPECT_EQ(WAIT_OBJECT_0 + 1, both.Lock(0, FALSE));
    EXPECT_FALSE(both.IsLocked(0));
    EXPECT_TRUE(both.IsLocked(1));
    EXPECT_TRUE(both.Unlock());
    EXPECT_TRUE(isFree());
    EXPECT_EQ(DWORD{WAIT_TIMEOUT}, both.Lock(0, TRUE));
    event.SetEvent();
    EXPECT_EQ(DWORD{WAIT_OBJECT_0}, both.Lock(0, TRUE));
    EXPECT_TRUE(both.IsLocked(0));
    EXPECT_FALSE(isFree());
    EXPECT_TRUE(both.Unlock());
    event.ResetEvent();
    ::PostThreadMessage(::GetCurrentThreadId(), WM_NULL, 0, 0);
    CSyncObject* never[] = {&event};
    EXPECT_EQ(WAIT_OBJECT_0 + 1, CMultiLock(never, 1).Lock(10000, FALSE, QS_POSTMESSAGE)) << "a message";
    EXPECT_THROW(CMultiLock(objects, 65), CInvalidArgException*);
}

} // namespace
