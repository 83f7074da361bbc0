// Ends a program that hangs, so that the test that hung is named.
#pragma once

#include <windows.h>

#include <atomic>
#include <cstdio>

namespace fx {

/// While it exists, the program is ended by force when the time is over; for tests of what could
/// go round for ever, where no timer of the window system is any help.
struct Watchdog {
    explicit Watchdog(DWORD nSeconds, void (*pfnReport)() = nullptr) : m_pfnReport(pfnReport) {
        m_nMilliseconds = nSeconds * 1000;
        m_hStop = ::CreateEvent(nullptr, FALSE, FALSE, nullptr);
        m_hThread = ::CreateThread(nullptr, 0, Watch, this, 0, nullptr);
    }
    ~Watchdog() {
        m_bStop = true;
        ::SetEvent(m_hStop);
        ::WaitForSingleObject(m_hThread, INFINITE);
        ::CloseHandle(m_hThread);
        ::CloseHandle(m_hStop);
    }

    /// The time begins anew.
    void Feed() { ++m_nFed; }

private:
    static DWORD WINAPI Watch(void* pThis) {
        static_cast<Watchdog*>(pThis)->Run();
        return 0;
    }
    void Run() {
        unsigned nSeen = 0;
        do
            nSeen = m_nFed;
        while (::WaitForSingleObject(m_hStop, m_nMilliseconds) == WAIT_TIMEOUT && m_nFed != nSeen);
        if (m_bStop)
            return;
        std::fputs("hung: the program is ended\n", stdout);
        if (m_pfnReport != nullptr)
            m_pfnReport();
        std::fflush(stdout);
        ::TerminateProcess(::GetCurrentProcess(), 99);
    }

    void (*m_pfnReport)();
    DWORD m_nMilliseconds = 0;
    std::atomic<bool> m_bStop = false;
    std::atomic<unsigned> m_nFed = 0;
    HANDLE m_hStop = nullptr, m_hThread = nullptr;
};

} // namespace fx
