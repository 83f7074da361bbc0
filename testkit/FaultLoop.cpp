#include "testkit/FaultLoop.h"

#include "testkit/Application.h"
#include "testkit/Leftovers.h"
#include "testkit/detail/FaultRuns.h"

#include <algorithm>

namespace testkit::fault {

namespace {

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
            Fail(m_scenario.name + m_strAfter + "\nleaves after " + std::to_string(kRepeats) +
                     " runs: " + last.MoreThan(before),
                 m_place);
    }

    /// @return the number of calls that can fail
    int Run(int nFailing) {
        const std::string call = "call " + std::to_string(nFailing);
        const detail::FaultRun run = m_runs.Run(m_scenario.name + ", " + call, nFailing, Injection::Once,
                                                [this] { return m_scenario.run(m_owner); });
        Pump();
        CWnd::DeleteTempMap();
        m_recorder.m_prompts.clear();
        m_recorder.m_prompts.shrink_to_fit();
        m_bFailed = !run.failed.empty();
        if (m_bFailed)
            m_strAfter = " after " + call + ", " + run.failed;
        else if (!run.bDone)
            Fail(m_scenario.name + " does not work" + m_strAfter + ", " + run.thrown, m_place);
        if (!m_owner.IsWindowEnabled())
            Fail(m_scenario.name + " leaves its owner disabled" + m_strAfter, m_place);
        m_owner.EnableWindow();
        return run.nCalls;
    }

    const Scenario& m_scenario;
    const Place m_place;
    detail::FaultRuns m_runs;
    Frame m_owner{CSize(220, 200)};
    MessageRecorder m_recorder;
    int m_nCalls = 0;
    bool m_bFailed = false;
    std::string m_strAfter; ///< The last call that failed.
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
