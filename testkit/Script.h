/// @file
/// Runs modal dialogs with a script: what the user would do, step by step, inside the dialog's own
/// message loop.
///
///     COffsetDlg dlg;
///     Play(dlg, {[] { TypeText(L"12.5"); },
///                [&] { TapOk(dlg); }});
///     EXPECT_EQ(dlg.GetOffset(), 12.5);
#pragma once

#include "testkit/Failure.h"

#include "afxwin.h"

#include <functional>
#include <initializer_list>
#include <type_traits>
#include <utility>
#include <vector>

namespace testkit {

/// A step of a script: a function that does something, or one that tells whether what it waits for
/// has come, and is called again until it tells true.
class Step {
public:
    /// @param run   `void()` or `bool()`, kept as a copy
    /// @param place for messages: the line where the step stands
    template <class Run, class = std::enable_if_t<std::is_invocable_v<Run&>>>
    Step(Run run, const Place& place = {}) : m_place(place) {
        if constexpr (std::is_void_v<std::invoke_result_t<Run&>>)
            m_run = [run]() mutable { return run(), true; };
        else
            m_run = std::move(run);
    }

private:
    friend class Script;

    std::function<bool()> m_run;
    Place m_place;
};

/// Steps run one after another, each when the loop has nothing else to do, so that all input and
/// posted messages of the step before have been handled, and when a window of this program is in
/// front. They run in whatever loop is the innermost: a step may open a further dialog, and the
/// next one works on it.
///
/// It fails if a step is not true in time, if the dialog is over before the last step, or if it
/// stays after that; whatever has been opened is then closed by force. What a step throws comes out
/// of Run() when the dialogs are closed. A handler that never returns ends the program after half a
/// minute more, see Watchdog. In a debugger the time does not count.
class Script {
public:
    /// Adds a step.
    ///@{
    Script& Then(Step step);
    Script& Until(Step step) { return Then(std::move(step)); }
    ///@}

    /// Runs a function that contains modal loops, once.
    /// @param nSeconds for all of it
    /// @return what the function returns
    INT_PTR Run(const std::function<INT_PTR()>& modal, DWORD nSeconds = 10, const Place& place = {});

private:
    class Running;

    std::vector<Step> m_steps;
};

/// Runs a dialog, a sheet or a function that opens one with a script. @return its result
template <class Modal>
INT_PTR Play(Modal&& modal, std::initializer_list<Step> steps, const Place& place = {}) {
    Script script;
    for (const Step& step : steps)
        script.Then(step);
    if constexpr (std::is_invocable_v<Modal>)
        return script.Run(modal, 10, place);
    else
        return script.Run([&] { return modal.DoModal(); }, 10, place);
}

/// Runs a dialog with a script, and ends it with IDOK after the last step.
template <class Dialog>
void PlayAndEnd(Dialog& dialog, std::initializer_list<Step> steps, const Place& place = {}) {
    Script script;
    for (const Step& step : steps)
        script.Then(step);
    script.Then({[&] { dialog.EndDialog(IDOK); }, place});
    if (script.Run([&] { return dialog.DoModal(); }, 10, place) != IDOK)
        Fail("the dialog did not end with IDOK", place);
}

/// Runs a look at an open modal dialog or sheet, then cancels it.
template <class Dialog, class Look>
void WhileOpen(Dialog&& dialog, Look look, const Place& place = {}) {
    const auto lookAndEnd = [&] {
        look();
        dialog.EndDialog(IDCANCEL);
    };
    if (Play(dialog, {{lookAndEnd, place}}, place) != IDCANCEL)
        Fail("the dialog did not end with IDCANCEL", place);
}

} // namespace testkit
