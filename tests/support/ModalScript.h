// Runs modal dialogs with a script: what the user would do, step by step, inside the
// dialog's own message loop.
#pragma once

#include "FrameworkEnvironment.h"
#include "PenInput.h"

#include <functional>
#include <initializer_list>
#include <type_traits>
#include <vector>

namespace fx {

/// Steps run one after another, each when the loop has nothing else to do, so that all
/// input and posted messages of the step before have been handled. They run in whatever
/// loop is the innermost: a step may open a further dialog, and the next one works on it.
///
///     ModalScript script;
///     script.Then([&] { pen::Tap(dlg.m_ok); });
///     EXPECT_EQ(script.Run([&] { return dlg.DoModal(); }), IDOK);
struct ModalScript {
    using Step = std::function<void()>;
    using Condition = std::function<bool()>;

    ModalScript& Then(Step step) {
        return Until([step = std::move(step)] {
            step();
            return true;
        });
    }

    /// Goes on when the condition holds.
    ModalScript& Until(Condition condition) {
        m_steps.push_back(std::move(condition));
        return *this;
    }

    /// Runs a function that contains modal loops. The test fails if they are not over when
    /// the time is, or end before the last step; they are then ended by force.
    template <class Modal>
    auto Run(Modal modal, DWORD nSeconds = 10) {
        m_nDeadline = ::GetTickCount64() + nSeconds * 1000;
        ModalScript* const pOuter = std::exchange(s_pRunning, this);
        const UINT_PTR nTimer = ::SetTimer(nullptr, 0, USER_TIMER_MINIMUM, OnTimer);
        const auto result = modal();
        ::KillTimer(nullptr, nTimer);
        s_pRunning = pOuter;
        if (!m_bTimeOut) {
            EXPECT_EQ(m_nNext, m_steps.size()) << "the dialog was over before the script";
        }
        return result;
    }

private:
    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD) {
        if (s_pRunning != nullptr)
            s_pRunning->Advance();
    }

    void Advance() {
        if (m_bTimeOut || ::GetTickCount64() > m_nDeadline) {
            OnTimeOut();
            return;
        }
        if (m_nNext == m_steps.size() || !IsSettled())
            return;
        // A step that opens a loop of its own is not over when the next one runs.
        const size_t nStep = m_nNext++;
        if (!m_steps[nStep]())
            m_nNext = nStep;
    }

    /// A tick may come before a new dialog has been shown, which happens when its loop is idle.
    /// So the same window must have been ready at two ticks; one that hides is not waited for.
    bool IsSettled() {
        constexpr int MAX_TICKS = 20;
        const HWND hActive = ::GetActiveWindow();
        const bool bReady = ::IsWindowVisible(hActive) && ::IsWindowEnabled(hActive);
        const bool bSettled = bReady && std::exchange(m_hLastActive, hActive) == hActive;
        m_nTicks = bSettled ? 0 : m_nTicks + 1;
        return bSettled || m_nTicks > MAX_TICKS;
    }

    void OnTimeOut() {
        if (!m_bTimeOut)
            ADD_FAILURE() << "time is over; " << m_nNext << " of " << m_steps.size() << " steps begun";
        m_bTimeOut = true;
        ::EnumThreadWindows(::GetCurrentThreadId(), EndWindow, 0);
    }

    static BOOL CALLBACK EndWindow(HWND hWnd, LPARAM) {
        if (auto* pDialog = dynamic_cast<CDialog*>(CWnd::FromHandlePermanent(hWnd)))
            pDialog->EndDialog(-1);
        else if (::IsWindowVisible(hWnd))
            ::PostMessage(hWnd, WM_CLOSE, 0, 0);
        return TRUE;
    }

    static inline ModalScript* s_pRunning = nullptr;

    std::vector<Condition> m_steps;
    size_t m_nNext = 0;
    ULONGLONG m_nDeadline = 0;
    bool m_bTimeOut = false;
    HWND m_hLastActive = nullptr;
    int m_nTicks = 0; ///< Waited for a window to be ready.
};

/// A step of a script; one that tells something is repeated until it tells true.
struct Step {
    template <class Run>
    Step(Run step) { // NOLINT(google-explicit-constructor): for lists of lambdas
        if constexpr (std::is_void_v<decltype(step())>)
            run = [step] { return step(), true; };
        else
            run = step;
    }
    ModalScript::Condition run;
};

/// Runs a dialog, a sheet or a function that opens one with a script. @return its result
template <class Modal>
INT_PTR Play(Modal&& modal, std::initializer_list<Step> steps) {
    ModalScript script;
    for (const Step& step : steps)
        script.Until(step.run);
    if constexpr (std::is_invocable_v<Modal>)
        return script.Run(modal);
    else
        return script.Run([&] { return modal.DoModal(); });
}

/// Runs a dialog with a script and ends it with OK after the last step.
template <class Dialog>
void PlayAndEnd(Dialog& dialog, std::initializer_list<Step> steps) {
    ModalScript script;
    for (const Step& step : steps)
        script.Until(step.run);
    script.Then([&] { dialog.EndDialog(IDOK); });
    EXPECT_EQ(IDOK, script.Run([&] { return dialog.DoModal(); }));
}

/// Runs a look at an open modal dialog or sheet, then cancels it.
template <class Dialog, class Look>
void WhileOpen(Dialog&& dialog, Look look) {
    const auto lookAndEnd = [&] {
        look();
        dialog.EndDialog(IDCANCEL);
    };
    EXPECT_EQ(IDCANCEL, Play(dialog, {lookAndEnd}));
}

} // namespace fx
