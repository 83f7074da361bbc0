// What all loops over failing calls have in common.
#pragma once

#include "testkit/Faults.h"
#include "testkit/Watchdog.h"

#include <functional>
#include <string>

namespace testkit::detail {

/// What came of a run.
struct FaultRun {
    bool bDone = false; ///< What run returned; false if it threw.
    int nCalls = 0;     ///< Through fault points.
    std::string failed; ///< The function that failed and where it was called from; empty for none.
    std::string thrown = "threw nothing"; ///< Or "threw CFileException".
};

/// Runs something with a call failing, again and again. While it exists, a crash, an abort or a hang of
/// eight seconds ends the program and tells which call had failed.
class FaultRuns {
public:
    FaultRuns();
    ~FaultRuns();
    FaultRuns(const FaultRuns&) = delete;
    FaultRuns& operator=(const FaultRuns&) = delete;

    /// Exceptions of the framework and of the standard library are a result, others come out of it.
    /// @param name what this run is, for the last words
    /// @param nFailing,extent as of fault::Injection
    FaultRun Run(const std::string& name, int nFailing, fault::Injection::Extent extent,
                 const std::function<bool()>& run);

private:
    static constexpr DWORD kPatience = 8; ///< Seconds a run.

    void* const m_pHandler;
    void (*const m_pfnAbort)(int);
    Watchdog m_watchdog;
};

} // namespace testkit::detail
