// What a thread leaves behind when it has used the framework.
#include "support/DialogTemplate.h"
#include "support/Leftovers.h"

#include "afxcmn.h"

namespace {

DWORD WINAPI UseEverything(void*) {
    CString str;
    str.Format(L"%d", static_cast<int>(::GetCurrentThreadId()));
    {
        fx::Frame frame;
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
        fx::Pump();
    }
    CWaitCursor wait;
    AfxRegisterWndClass(CS_DBLCLKS);
    return 0;
}

size_t BytesAfter(int nThreads) {
    for (int i = 0; i < nThreads; ++i) {
        const HANDLE hThread = ::CreateThread(nullptr, 0, UseEverything, nullptr, 0, nullptr);
        ::WaitForSingleObject(hThread, INFINITE);
        ::CloseHandle(hThread);
    }
    return fx::HeapBytes();
}

TEST(Threads, LeaveNothingWhenTheyEnd) {
    constexpr int THREADS = 100;
    BytesAfter(10); // caches of the system
    const size_t nBefore = fx::HeapBytes();
    const size_t nAfter = BytesAfter(THREADS);
    EXPECT_LT(nAfter, nBefore + THREADS * 16) << "less than the smallest block a thread";
}

TEST(Threads, EachHasItsOwnWaitCursor) {
    const CWaitCursor wait;
    const HCURSOR hMine = ::GetCursor();
    const HANDLE hThread = ::CreateThread(nullptr, 0, UseEverything, nullptr, 0, nullptr);
    ::WaitForSingleObject(hThread, INFINITE);
    ::CloseHandle(hThread);
    EXPECT_EQ(::GetCursor(), hMine);
}

TEST(Threads, RegisterTheSameClassesAtTheSameTime) {
    HANDLE threads[8] = {};
    for (HANDLE& hThread : threads)
        hThread = ::CreateThread(
            nullptr, 0,
            [](void*) -> DWORD {
                for (UINT nStyle = 0; nStyle < 200; ++nStyle)
                    AfxRegisterWndClass(CS_HREDRAW, nullptr, reinterpret_cast<HBRUSH>(UINT_PTR{nStyle}));
                return 0;
            },
            nullptr, 0, nullptr);
    ::WaitForMultipleObjects(8, threads, TRUE, INFINITE);
    for (const HANDLE hThread : threads)
        ::CloseHandle(hThread);
    const LPCTSTR pszClass = AfxRegisterWndClass(CS_HREDRAW, nullptr, reinterpret_cast<HBRUSH>(UINT_PTR{7}));
    WNDCLASS wc = {};
    EXPECT_TRUE(::GetClassInfo(AfxGetInstanceHandle(), pszClass, &wc));
}

} // namespace
