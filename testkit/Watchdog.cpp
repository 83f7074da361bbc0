#include "testkit/Watchdog.h"

#include "testkit/Picture.h"
#include "testkit/detail/StackTrace.h"

#include <atomic>
#include <cstdio>

namespace testkit {

struct Watchdog::State {
    std::function<void()> report;
    DWORD nMilliseconds = 0;
    std::atomic<unsigned> nFed = 0;
    HANDLE hStop = ::CreateEvent(nullptr, TRUE, FALSE, nullptr);
    HANDLE hWatcher = nullptr;
    DWORD nThread = ::GetCurrentThreadId();

    static DWORD WINAPI Begin(void* pState) {
        static_cast<State*>(pState)->Watch();
        return 0;
    }
    // The thread that hangs may hold the heap, which a picture needs: that is waited for only so long.
    static DWORD WINAPI TakePicture(void*) {
        SaveScreen();
        return 0;
    }

    void Watch() {
        unsigned nSeen = 0;
        do {
            nSeen = nFed;
            if (::WaitForSingleObject(hStop, nMilliseconds) != WAIT_TIMEOUT)
                return;
        } while (nFed != nSeen || ::IsDebuggerPresent());
        std::puts("hung: the program is ended");
        if (report)
            report();
        std::fflush(stdout);
        constexpr DWORD kPatience = 5000;
        ::WaitForSingleObject(::CreateThread(nullptr, 0, TakePicture, nullptr, 0, nullptr), kPatience);
        detail::PrintStackOf(nThread);
        std::fflush(stdout);
        ::TerminateProcess(::GetCurrentProcess(), 99);
    }
};

Watchdog::Watchdog(DWORD nSeconds, std::function<void()> report) : m_pState(std::make_unique<State>()) {
    m_pState->report = std::move(report);
    m_pState->nMilliseconds = nSeconds * 1000;
    m_pState->hWatcher = ::CreateThread(nullptr, 0, State::Begin, m_pState.get(), 0, nullptr);
}

Watchdog::~Watchdog() {
    ::SetEvent(m_pState->hStop);
    ::WaitForSingleObject(m_pState->hWatcher, INFINITE);
    ::CloseHandle(m_pState->hWatcher);
    ::CloseHandle(m_pState->hStop);
}

void Watchdog::Feed() {
    ++m_pState->nFed;
}

} // namespace testkit
