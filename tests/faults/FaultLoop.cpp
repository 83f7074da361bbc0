#include "Faults.h"

#include "testkit/Leftovers.h"
#include "testkit/Watchdog.h"

#include <csignal>
#include <cstdio>
#include <ctime>

using namespace testkit;
using namespace testkit::fault;

namespace fx {

namespace {

std::atomic<int> g_nRunning = 0; ///< The call that fails at present.
const Injection* g_pInjection = nullptr;

std::string Story(const Injection& injection) {
    std::string story = std::to_string(g_nRunning) + ' ';
    story += injection.m_pszFailed != nullptr ? injection.m_pszFailed : "(nothing)";
    for (const void* const pCaller : injection.m_callers) {
        const std::string place = WhereIs(pCaller);
        if (place.starts_with("Fieldkit") || place.starts_with("Tesuvo"))
            story += "\n    " + place;
    }
    return story;
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

/// Points the calls of the DLLs here, and tells which one had failed when the process ends.
bool Begin() {
    for (const wchar_t* const pszModule : {L"FieldkitFx.dll", L"Fieldkit.dll", L"Tesuvo.dll"})
        Install(::GetModuleHandle(pszModule), Table());
    ::AddVectoredExceptionHandler(1, OnException);
    std::signal(SIGABRT, [](int) { EndProcess("abort"); });
    return true;
}

struct Loop {
    explicit Loop(const Scenario& scenario) : m_scenario(scenario) {
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
        if (!m_failed)
            return false;
        if (IsMore(before, Leftovers::Now()))
            Confirm(nFailing);
        Run(0);
        return true;
    }

private:
    static bool IsMore(const Leftovers& before, const Leftovers& after) {
        return !after.MoreThan(before).empty();
    }

    static int Failures() {
        return testing::UnitTest::GetInstance()->current_test_info()->result()->total_part_count();
    }

    /// What has been found more may be in a cache; what is lost grows with each run.
    void Confirm(int nFailing) {
        constexpr int REPEATS = 4;
        const Leftovers before = Leftovers::Now();
        Leftovers last = before;
        const int nFailures = Failures();
        for (int i = 0; i < REPEATS; ++i) {
            Run(nFailing);
            const Leftovers now = Leftovers::Now();
            if (!IsMore(last, now) || Failures() > nFailures) // a message takes memory too
                return;
            last = now;
        }
        if (nFailing != 0)
            last.nHeapBytes =
                std::max(last.nHeapBytes - REPEATS * m_scenario.nSystemBytes, before.nHeapBytes);
        if (!IsMore(before, last))
            return;
        ADD_FAILURE() << m_scenario.pszName << ' ' << m_strStory << "\nleaves after " << REPEATS
                      << " runs: " << last.MoreThan(before);
    }

    /// @return the number of calls that can fail
    int Run(int nFailing) {
        m_watchdog.Feed();
        Injection injection(nFailing);
        g_pInjection = &injection;
        bool bDone = false;
        m_strEnd.clear();
        try {
            bDone = m_scenario.run(m_owner);
        } catch (CException* e) {
            injection.Stop();
            m_strEnd = std::string("threw ") + e->GetRuntimeClass()->m_lpszClassName;
            e->Delete();
        } catch (const std::bad_alloc&) {
            m_strEnd = "threw std::bad_alloc";
        }
        injection.Stop();
        Pump();
        CWnd::DeleteTempMap();
        m_recorder.m_prompts.clear();
        m_recorder.m_prompts.shrink_to_fit();
        m_failed = injection.m_pszFailed != nullptr;
        m_strStory = Story(injection);
        EXPECT_TRUE(bDone || m_failed)
            << m_scenario.pszName << " does not work after " << g_nRunning << ' ' << m_strStory << m_strEnd;
        EXPECT_TRUE(::IsWindowEnabled(m_owner)) << m_scenario.pszName << ' ' << m_strStory;
        m_owner.EnableWindow();
        g_pInjection = nullptr;
        return injection.m_nCalls;
    }

    static constexpr DWORD PATIENCE = 8; ///< Seconds a run.

    const Scenario& m_scenario;
    Watchdog m_watchdog{PATIENCE, [] { Tell("hang"); }};
    Frame m_owner{CSize(220, 200)};
    MessageRecorder m_recorder;
    int m_nCalls = 0;
    bool m_failed = false;
    std::string m_strStory;
    std::string m_strEnd; ///< What was thrown.
};

} // namespace

void RunLoop(const Scenario& scenario, bool bAll) {
    constexpr int RUNS = 40;
    [[maybe_unused]] static const bool s_bBegun = Begin();
    Loop loop(scenario);
    const int nStride = bAll ? 1 : 1 + loop.Calls() / RUNS;
    const int nDay = static_cast<int>(std::time(nullptr) / (24 * 60 * 60));
    loop.TryWithoutFailure();
    int n = bAll ? 1 : 1 + nDay % 16; // other calls each day, so that all have their turn
    while (loop.Try(n))
        n += nStride;
    std::printf("%s: %d calls, every %dth failed\n", scenario.pszName, loop.Calls(), nStride);
}

} // namespace fx
