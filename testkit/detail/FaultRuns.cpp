#include "testkit/detail/FaultRuns.h"

#include "afxwin.h"

#include <atomic>
#include <csignal>
#include <cstdio>
#include <exception>

namespace testkit::detail {

namespace {

using fault::Injection;

/// A run that is going on, for last words.
class CRunning {
public:
    CRunning(const std::string& name, int nFailing, Injection::Extent extent)
        : m_injection(nFailing, extent), m_name(name) {
        s_pCurrent = this;
    }
    ~CRunning() { s_pCurrent = nullptr; }
    CRunning(const CRunning&) = delete;
    CRunning& operator=(const CRunning&) = delete;

    static void Tell(const char* pszWhy) {
        const CRunning* const p = s_pCurrent;
        std::printf("%s: %s\n", pszWhy,
                    p != nullptr ? (p->m_name + ", " + TextOf(p->m_injection)).c_str() : "between two runs");
        std::fflush(stdout);
    }

    Injection m_injection;

private:
    static inline std::atomic<const CRunning*> s_pCurrent = nullptr;

    const std::string& m_name;
};

void EndProcess(const char* pszWhy) {
    CRunning::Tell(pszWhy);
    ::TerminateProcess(::GetCurrentProcess(), 1);
}

LONG CALLBACK OnException(EXCEPTION_POINTERS* pInfo) {
    switch (pInfo->ExceptionRecord->ExceptionCode) {
    case EXCEPTION_ACCESS_VIOLATION:
    case EXCEPTION_ILLEGAL_INSTRUCTION:
    case EXCEPTION_INT_DIVIDE_BY_ZERO:
    case EXCEPTION_STACK_OVERFLOW:
    case STATUS_HEAP_CORRUPTION:
        std::printf("at %s\n", fault::WhereIs(pInfo->ExceptionRecord->ExceptionAddress).c_str());
        EndProcess("crash");
        [[fallthrough]];
    default:
        return EXCEPTION_CONTINUE_SEARCH;
    }
}

} // namespace

FaultRuns::FaultRuns()
    : m_pHandler(::AddVectoredExceptionHandler(1, OnException)),
      m_pfnAbort(std::signal(SIGABRT, [](int) { EndProcess("abort"); })),
      m_watchdog(kPatience, [] { CRunning::Tell("hang"); }) {}

FaultRuns::~FaultRuns() {
    std::signal(SIGABRT, m_pfnAbort);
    ::RemoveVectoredExceptionHandler(m_pHandler);
}

FaultRun FaultRuns::Run(const std::string& name, int nFailing, Injection::Extent extent,
                        const std::function<bool()>& run) {
    m_watchdog.Feed();
    FaultRun result;
    CRunning running(name, nFailing, extent);
    Injection& injection = running.m_injection;
    try {
        result.bDone = run();
        injection.Stop();
    } catch (CException* e) {
        injection.Stop();
        result.thrown = std::string("threw ") + e->GetRuntimeClass()->m_lpszClassName;
        e->Delete();
    } catch (const std::exception& e) {
        injection.Stop();
        result.thrown = std::string("threw ") + e.what();
    }
    result.nCalls = injection.m_nCalls;
    if (injection.m_pszFailed != nullptr)
        result.failed = TextOf(injection);
    return result;
}

} // namespace testkit::detail
