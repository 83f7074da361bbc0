#include "testkit/Script.h"

#include "testkit/Watchdog.h"
#include "testkit/Window.h"
#include "testkit/detail/TopLevels.h"

#include <algorithm>
#include <cstdio>
#include <exception>
#include <iterator>

namespace testkit {

/// One run of a script. A timer has the steps done; runs in steps of others come first.
class Script::Running {
public:
    Running(const std::vector<Step>& steps, DWORD nSeconds, const Place& place)
        : m_steps(steps), m_place(place), m_nDeadline(::GetTickCount64() + nSeconds * ULONGLONG{1000}),
          m_watchdog(nSeconds + kGrace, [this] { Print(); }) {}
    ~Running() {
        ::KillTimer(nullptr, m_nTimer);
        s_pInnermost = m_pOuter;
    }
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;

    /// What there is to say when all loops are over.
    void Finish() {
        if (m_exception != nullptr)
            std::rethrow_exception(m_exception);
        if (!m_bEnding && m_nNext < m_steps.size())
            Fail("the dialog was over before " + Where(), m_place);
    }

private:
    static constexpr DWORD kGrace = 30;

    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD) {
        if (s_pInnermost != nullptr)
            s_pInnermost->Tick();
    }

    // Nothing may be thrown through the system's functions that called the timer.
    void Tick() {
        try {
            if (m_bEnding)
                ForceEnd();
            else if (::GetTickCount64() > m_nDeadline && !::IsDebuggerPresent())
                GiveUp();
            else if (m_nNext < m_steps.size() && IsSettled())
                DoNext();
        } catch (CException* e) {
            e->Delete();
            Stop(std::make_exception_ptr(
                std::runtime_error(Where(m_nDone) + " threw an exception of the framework")));
        } catch (...) {
            Stop(std::current_exception());
        }
    }

    void DoNext() {
        // A step that opens a loop of its own is not over when the next one runs.
        const size_t nStep = m_nDone = m_nNext++;
        if (!m_steps[nStep].m_run())
            m_nNext = nStep;
    }

    /// A tick may come before a new dialog has been shown, which happens when its loop is idle.
    /// So the same window must have been ready at two ticks; one that hides is not waited for.
    bool IsSettled() {
        constexpr int kMaxTicks = 20;
        if (!IsInFront())
            return false;
        const HWND hActive = ::GetActiveWindow();
        const bool bReady = ::IsWindowVisible(hActive) && ::IsWindowEnabled(hActive);
        const bool bSettled = bReady && std::exchange(m_hLastActive, hActive) == hActive;
        m_nTicks = bSettled ? 0 : m_nTicks + 1;
        return bSettled || m_nTicks > kMaxTicks;
    }

    /// What is typed while another program is in front would go there. A thread without a window
    /// that can be used has nothing to bring to the front.
    static bool IsInFront() {
        DWORD nProcess = 0;
        ::GetWindowThreadProcessId(::GetForegroundWindow(), &nProcess);
        if (nProcess == ::GetCurrentProcessId())
            return true;
        for (const HWND hWnd : detail::TopLevels())
            if (::IsWindowEnabled(hWnd))
                return ::SetForegroundWindow(hWnd), false;
        return true;
    }

    void GiveUp() {
        m_bEnding = true;
        const HWND hFront = ::GetForegroundWindow();
        Fail(m_nNext < m_steps.size() ? "time is over at " + Where() + "; in front is " + NameOf(hFront)
                                      : "the script is done, but the dialog does not end",
             m_place);
    }

    void Stop(std::exception_ptr exception) {
        m_bEnding = true;
        m_exception = exception != nullptr ? exception
                                           : std::make_exception_ptr(std::runtime_error(
                                                 Where(m_nDone) + " threw an exception of another module"));
    }

    std::string Where(size_t nStep) const {
        return "step " + std::to_string(nStep + 1) + " of " + std::to_string(m_steps.size()) + " (" +
               TextOf(m_steps[nStep].m_place) + ')';
    }
    std::string Where() const { return Where(m_nNext); }

    /// For the watchdog: without memory.
    void Print() const {
        std::printf("%s:%d: %zu of %zu steps begun\n", m_place.pszFile, m_place.nLine, m_nNext,
                    m_steps.size());
    }

    /// Ends what has been opened: as a user would, then by destroying it, and in the end whatever is
    /// open and the thread's loop with it.
    void ForceEnd() {
        constexpr int kSpare = 40, kDestroy = 20;
        static constexpr WORD kAnswers[] = {IDCANCEL, IDOK, IDNO, IDABORT};
        ++m_nForced;
        detail::EndInput();
        for (const HWND hWnd : detail::TopLevels()) {
            if (!::IsWindow(hWnd) ||
                (m_nForced < kSpare && std::count(m_before.begin(), m_before.end(), hWnd) != 0))
                continue;
            if (auto* pDialog = dynamic_cast<CDialog*>(CWnd::FromHandlePermanent(hWnd)))
                pDialog->EndDialog(-1);
            else if (m_nForced > kDestroy)
                ::DestroyWindow(hWnd);
            else if (::IsWindowEnabled(hWnd))
                ::PostMessage(hWnd, WM_COMMAND,
                              kAnswers[static_cast<size_t>(m_nForced) % std::size(kAnswers)], 0);
        }
        if (m_nForced > kSpare)
            ::PostQuitMessage(-1);
    }

    static inline Running* s_pInnermost = nullptr;

    const std::vector<Step>& m_steps;
    const Place m_place;
    const std::vector<HWND> m_before = detail::TopLevels(); ///< Not the script's to close.
    Running* const m_pOuter = std::exchange(s_pInnermost, this);
    const UINT_PTR m_nTimer = ::SetTimer(nullptr, 0, USER_TIMER_MINIMUM, OnTimer);
    const ULONGLONG m_nDeadline;
    size_t m_nNext = 0, m_nDone = 0;
    bool m_bEnding = false;
    int m_nForced = 0;
    std::exception_ptr m_exception;
    HWND m_hLastActive = nullptr;
    int m_nTicks = 0; ///< Waited for a window to be ready.
    const Watchdog m_watchdog;
};

Script& Script::Then(Step step) {
    m_steps.push_back(std::move(step));
    return *this;
}

INT_PTR Script::Run(const std::function<INT_PTR()>& modal, DWORD nSeconds, const Place& place) {
    Running running(m_steps, nSeconds, place);
    const INT_PTR nResult = modal();
    running.Finish();
    return nResult;
}

} // namespace testkit
