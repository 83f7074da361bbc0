#include "testkit/FaultLoop.h"

#include "testkit/Application.h"
#include "testkit/Faults.h"
#include "testkit/Leftovers.h"
#include "testkit/Watchdog.h"

#include <algorithm>
#include <atomic>
#include <csignal>
#include <cstdio>
#include <new>

namespace testkit::fault {

namespace {

std::atomic<int> g_nRunning = 0; ///< The call that fails at present.
std::atomic<const Injection*> g_pInjection = nullptr;

std::string Story(const Injection& injection) {
    return std::to_string(g_nRunning) + ' ' + TextOf(injection);
}

void Tell(const char* pszWhy) {
    const Injection* const p = g_pInjection;
    std::printf("%s: %s\n", pszWhy, p != nullptr ? Story(*p).c_str() : "(between two runs)");
    std::fflush(stdout);
}

void EndProcess(const char* pszWhy) {
    Tell(pszWhy);
    ::TerminateProcess(::GetCurrentProcess(), 1);
}

LONG CALLBACK OnException(EXCEPTION_POINTERS* pInfo) {
    switch (pInfo->ExceptionRecord->ExceptionCode) {
    case EXCEPTION_ACCESS_VIOLATION:
    case EXCEPTION_ILLEGAL_INSTRUCTION:
    case EXCEPTION_INT_DIVIDE_BY_ZERO:
    case EXCEPTION_STACK_OVERFLOW:
    case STATUS_HEAP_CORRUPTION:
        std::printf("at %s\n", WhereIs(pInfo->ExceptionRecord->ExceptionAddress).c_str());
        EndProcess("crash");
        [[fallthrough]];
    default:
        return EXCEPTION_CONTINUE_SEARCH;
    }
}

/// While it exists, a process that ends by itself tells which call had failed.
class CLastWords {
public:
    CLastWords()
        : m_pHandler(::AddVectoredExceptionHandler(1, OnException)),
          m_pfnAbort(std::signal(SIGABRT, [](int) { EndProcess("abort"); })) {}
    ~CLastWords() {
        std::signal(SIGABRT, m_pfnAbort);
        ::RemoveVectoredExceptionHandler(m_pHandler);
    }
    CLastWords(const CLastWords&) = delete;
    CLastWords& operator=(const CLastWords&) = delete;

private:
    void* m_pHandler;
    void (*m_pfnAbort)(int);
};

bool IsMore(const Leftovers& before, const Leftovers& after) {
    return !after.MoreThan(before).empty();
}

class CLoop {
public:
    CLoop(const Scenario& scenario, const Place& place) : m_scenario(scenario), m_place(place) {
        m_owner.SetForegroundWindow();
        for (int i = 0; i < 3; ++i) // fill caches
            m_nCalls = Run(0);
    }

    int Calls() const { return m_nCalls; }

    /// Nothing is to stay even when nothing fails.
    void TryWithoutFailure() { Confirm(0); }

    /// @return false if the scenario has no call nFailing
    bool Try(int nFailing) {
        g_nRunning = nFailing;
        const Leftovers before = Leftovers::Now();
        Run(nFailing);
        if (!m_bFailed)
            return false;
        if (IsMore(before, Leftovers::Now()))
            Confirm(nFailing);
        Run(0);
        return true;
    }

private:
    /// What has been found more may be in a cache; what is lost grows with each run.
    void Confirm(int nFailing) {
        constexpr int kRepeats = 4;
        const Leftovers before = Leftovers::Now();
        Leftovers last = before;
        const int nFailures = Failures();
        for (int i = 0; i < kRepeats; ++i) {
            Run(nFailing);
            const Leftovers now = Leftovers::Now();
            if (!IsMore(last, now) || Failures() > nFailures) // a message takes memory too
                return;
            last = now;
        }
        if (nFailing != 0)
            last.nHeapBytes =
                std::max(last.nHeapBytes - kRepeats * m_scenario.nSystemBytes, before.nHeapBytes);
        if (IsMore(before, last))
            Fail(m_scenario.name + ' ' + m_strStory + "\nleaves after " + std::to_string(kRepeats) +
                     " runs: " + last.MoreThan(before),
                 m_place);
    }

    /// @return the number of calls that can fail
    int Run(int nFailing) {
        m_watchdog.Feed();
        Injection injection(nFailing);
        g_pInjection = &injection;
        std::string strThrown;
        const bool bDone = Done(injection, strThrown);
        injection.Stop();
        Pump();
        CWnd::DeleteTempMap();
        m_recorder.m_prompts.clear();
        m_recorder.m_prompts.shrink_to_fit();
        m_bFailed = injection.m_pszFailed != nullptr;
        m_strStory = Story(injection);
        if (!bDone && !m_bFailed)
            Fail(m_scenario.name + " does not work after " + m_strStory + strThrown, m_place);
        if (!m_owner.IsWindowEnabled())
            Fail(m_scenario.name + " leaves its owner disabled " + m_strStory, m_place);
        m_owner.EnableWindow();
        g_pInjection = nullptr;
        return injection.m_nCalls;
    }

    bool Done(Injection& injection, std::string& strThrown) {
        try {
            return m_scenario.run(m_owner);
        } catch (CException* e) {
            injection.Stop();
            strThrown = std::string("threw ") + e->GetRuntimeClass()->m_lpszClassName;
            e->Delete();
        } catch (const std::bad_alloc&) {
            injection.Stop();
            strThrown = "threw std::bad_alloc";
        }
        return false;
    }

    static constexpr DWORD kPatience = 8; ///< Seconds a run.

    const Scenario& m_scenario;
    const Place m_place;
    const CLastWords m_lastWords;
    Watchdog m_watchdog{kPatience, [] { Tell("hang"); }};
    Frame m_owner{CSize(220, 200)};
    MessageRecorder m_recorder;
    int m_nCalls = 0;
    bool m_bFailed = false;
    std::string m_strStory;
};

} // namespace

int FailEachCall(const Scenario& scenario, int nRuns, int nShift, const Place& place) {
    CLoop loop(scenario, place);
    loop.TryWithoutFailure();
    const int nStride = nRuns > 0 ? 1 + loop.Calls() / nRuns : 1;
    int n = 1 + nShift % nStride;
    while (loop.Try(n))
        n += nStride;
    return loop.Calls();
}

} // namespace testkit::fault
